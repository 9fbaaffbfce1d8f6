#pragma once

class QTextDocument;

namespace torvik {

/// Fills up each page that a table ends close to the end of, where that is needed. Qt takes such a table to
/// end on the next page: the text below would be cut by the end of the page, or a page would be left empty
/// before text that begins one. The document has its page size already; `scale` is the device's pixels to one
/// of the screen's.
void FillPagesBelowTables(QTextDocument& document, double scale);

} // namespace torvik
