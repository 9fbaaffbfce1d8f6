#pragma once

class QTextDocument;

namespace torvik {

/// Lets each paragraph that is to stand on one page begin a new one where a page would end inside it, and one
/// that is to stay with the next where that begins a page. One that is longer than a page, or lies in a
/// table, stays where it is. The document has its page size already.
void KeepParagraphsTogether(QTextDocument& document);

} // namespace torvik
