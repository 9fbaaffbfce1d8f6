#include "printing/table_ends.h"

#include "printing/line_places.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <cmath>

namespace torvik {

namespace {

/// What stands next below a table.
struct Follower {
    QTextBlock first;
    /// nullptr for a paragraph.
    QTextTable* table = nullptr;
};

/// An invalid block where nothing follows that is seen.
Follower FollowerOf(const QTextFrame& table, QTextFrame* next)
{
    const QTextBlock below = table.document()->findBlock(table.lastPosition() + 1);
    if (below.length() > 1)
        return {below};
    // The layout hides the empty paragraph below a table.
    auto* grid = qobject_cast<QTextTable*>(next);
    if (grid != nullptr && below.next() == grid->firstCursorPosition().block())
        return {below.next(), grid};
    return {below.next().isValid() ? below : QTextBlock()};
}

bool BeginsPage(const Follower& follower)
{
    const auto policy = follower.table != nullptr ? follower.table->format().pageBreakPolicy()
                                                  : follower.first.blockFormat().pageBreakPolicy();
    return (policy & QTextFormat::PageBreak_AlwaysBefore) != 0;
}

void SetBreakBefore(const Follower& follower, QTextFormat::PageBreakFlag policy)
{
    if (follower.table != nullptr) {
        QTextTableFormat format = follower.table->format();
        format.setPageBreakPolicy(policy);
        follower.table->setFormat(format);
    } else {
        QTextBlockFormat format = follower.first.blockFormat();
        format.setPageBreakPolicy(policy);
        QTextCursor(follower.first).setBlockFormat(format);
    }
}

/// The upper edge. That of a table counts from its text: what the layout tells of a table's frame is moved
/// down by what its first cell has above the text.
double UpperEdgeOf(const Follower& follower, double scale)
{
    if (follower.table == nullptr)
        return TopOf(follower.first);
    const QTextTableCellFormat cell = follower.table->cellAt(0, 0).format().toTableCellFormat();
    return FirstLineOf(follower.first) - (cell.topPadding() + cell.topBorder()) * scale;
}

/// Whether the end of a page goes through the first line, which would have room on a page.
bool IsCut(const Follower& follower)
{
    const QTextDocument& document = *follower.first.document();
    const double top = FirstLineOf(follower.first);
    const QTextLayout& layout = *follower.first.layout();
    const double height = layout.lineCount() > 0 ? layout.lineAt(0).height() : 0;
    constexpr double touch = 0.5; // a line that only reaches the end is whole
    return height <= document.pageSize().height() &&
           PageOf(top, document) != PageOf(top + height - touch, document);
}

void AddBelow(QTextFrame* table, double pixels)
{
    QTextFrameFormat format = table->frameFormat();
    format.setBottomMargin(format.bottomMargin() + pixels);
    table->setFrameFormat(format);
}

} // namespace

void FillPagesBelowTables(QTextDocument& document, double scale)
{
    // Qt counts pages in fractions of a 64th, and rounds them.
    const double hair = document.pageSize().height() / 128;
    const QList<QTextFrame*> tables = document.rootFrame()->childFrames();
    for (qsizetype number = 0; number < tables.size(); ++number) {
        const auto* table = qobject_cast<QTextTable*>(tables.at(number));
        const Follower next = FollowerOf(*tables.at(number), tables.value(number + 1));
        if (table == nullptr || !next.first.isValid())
            continue;
        const double page = PageOf(LastLineOf(*table), document);
        const bool breaks = BeginsPage(next);
        const bool leavesPage = breaks && PageOf(FirstLineOf(next.first), document) > page + 1;
        if (!leavesPage && !IsCut(next))
            continue;
        // The full page breaks it then.
        if (breaks)
            SetBreakBefore(next, QTextFormat::PageBreak_Auto);
        const double missing = (page + 1) * document.pageSize().height() - UpperEdgeOf(next, scale);
        if (std::abs(missing) > hair && breaks)
            SetBreakBefore(next, QTextFormat::PageBreak_AlwaysBefore);
        else if (missing > 0)
            AddBelow(tables.at(number), missing / scale);
    }
}

} // namespace torvik
