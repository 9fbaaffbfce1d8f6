#include "printing/keep_together.h"

#include "rtf/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <cmath>

namespace torvik {

namespace {

bool IsCut(const QTextBlock& block)
{
    const double page = block.document()->pageSize().height();
    const double top = block.document()->documentLayout()->blockBoundingRect(block).top();
    const QTextLayout& layout = *block.layout();
    if (layout.lineCount() < 2)
        return false;
    double height = 0;
    for (int line = 0; line < layout.lineCount(); ++line)
        height += layout.lineAt(line).height();
    const double firstLine = top + layout.lineAt(0).y();
    const double lastLine = top + layout.lineAt(layout.lineCount() - 1).y();
    return height <= page && std::floor(firstLine / page) != std::floor(lastLine / page);
}

double FirstLineOf(const QTextBlock& block)
{
    const QTextLayout& layout = *block.layout();
    const double top = block.document()->documentLayout()->blockBoundingRect(block).top();
    return layout.lineCount() > 0 ? top + layout.lineAt(0).y() : top;
}

double LastLineOf(const QTextBlock& block)
{
    const QTextLayout& layout = *block.layout();
    const double top = block.document()->documentLayout()->blockBoundingRect(block).top();
    return layout.lineCount() > 0 ? top + layout.lineAt(layout.lineCount() - 1).y() : top;
}

double PageOf(double line, const QTextDocument& document)
{
    constexpr double rounding = 0.01;
    return std::floor((line + rounding) / document.pageSize().height());
}

bool StaysWithNext(const QTextBlock& block)
{
    return block.isValid() && block.blockFormat().property(rtf::keepWithNextProperty).toBool() &&
           QTextCursor(block).currentTable() == nullptr;
}

/// The first of the paragraphs that go over to the next page together; an invalid one where they fill the
/// page from its top, so that nothing would be won.
QTextBlock FirstToMove(const QTextBlock& last)
{
    const QTextDocument& document = *last.document();
    const double page = PageOf(LastLineOf(last), document);
    QTextBlock first = last;
    while (StaysWithNext(first.previous()) && PageOf(FirstLineOf(first.previous()), document) == page)
        first = first.previous();
    const QTextBlock before = first.previous();
    const bool isOnTop = !before.isValid() || PageOf(LastLineOf(before), document) < page;
    return isOnTop || PageOf(FirstLineOf(first), document) != page ? QTextBlock() : first;
}

void KeepWithNext(const QTextBlock& block, const QTextBlockFormat& onNewPage)
{
    const QTextDocument& document = *block.document();
    const QTextBlock next = block.next();
    if (!next.isValid() || PageOf(FirstLineOf(next), document) == PageOf(LastLineOf(block), document) ||
        (next.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0)
        return;
    const QTextBlock first = FirstToMove(block);
    if (first.isValid())
        QTextCursor(first).mergeBlockFormat(onNewPage);
}

} // namespace

void KeepParagraphsTogether(QTextDocument& document)
{
    QTextBlockFormat onNewPage;
    onNewPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool isKept = block.blockFormat().property(rtf::keepTogetherProperty).toBool();
        if (isKept && QTextCursor(block).currentTable() == nullptr && IsCut(block)) {
            const QTextBlock first =
                StaysWithNext(block.previous()) ? FirstToMove(block.previous()) : QTextBlock();
            QTextCursor(first.isValid() ? first : block).mergeBlockFormat(onNewPage);
        }
        // Where this one begins is known now.
        if (StaysWithNext(block.previous()))
            KeepWithNext(block.previous(), onNewPage);
    }
}

} // namespace torvik
