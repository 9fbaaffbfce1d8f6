#pragma once

class QTextDocument;

namespace torvik {

/// Lets each paragraph that is to stand on one page begin a new one where a page would end inside it, and one
/// that is to stay with the next, which may be a table, where that begins a page. One that is longer than a
/// page, or lies in a table of more than one cell, stays where it is. The document has its page size already.
void KeepParagraphsTogether(QTextDocument& document);

} // namespace torvik
