#pragma once

class QTextDocument;

namespace torvik::rtf {

/// Gives the rows of all tables the height that they are to have, by room around the text of the
/// highest cell. Columns have fixed widths, so this holds however wide the document is laid out.
void SetRowHeights(QTextDocument& document);

} // namespace torvik::rtf
