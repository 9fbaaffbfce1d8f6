#pragma once

class QTextDocument;

namespace torvik {

/// Brings the formats of a document from the screen to paper, before it is laid out there: fonts that print
/// fast, letters without hinting, and those lengths that the layout leaves in the screen's pixels. `scale` is
/// how many of the paper's pixels one of the screen's is.
void BringFormatsToPaper(QTextDocument& text, double scale);

} // namespace torvik
