#pragma once

class QTextDocument;

namespace torvik {

/// Shrinks each picture of a document with a page size that is wider than the page, or would be cut by the
/// end of a page, until it stands on one page as a whole; its proportions are kept. `scale` is how many of
/// the layout's pixels one unit of a picture's format takes.
void FitPicturesToPages(QTextDocument& document, double scale);

} // namespace torvik
