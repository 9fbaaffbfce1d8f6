#include "rtf/write/flow_collector.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

static_assert(maxTableNesting < 8, "every level of table needs a row definition");

// What a paragraph costs while it waits for its table, bytes; the writer counts it once more for good.
constexpr qint64 waitingCost = sizeof(Block) + 32;

qint64 WaitingCostOf(const Paragraph& paragraph)
{
    return waitingCost + 2 * paragraph.text.size() +
           static_cast<qint64>(paragraph.spans.size() * sizeof(Span));
}

/// What `blocks` cost while they waited.
qint64 WaitingCostOf(const std::vector<Block>& blocks)
{
    qint64 cost = 0;
    for (const Block& block : blocks) {
        if (!block.table)
            cost += WaitingCostOf(block.paragraph);
    }
    return cost;
}

qint64 WaitingCostOf(const Table& table)
{
    qint64 cost = 0;
    for (const Row& row : table.rows) {
        for (const std::vector<Block>& cell : row.cells)
            cost += WaitingCostOf(cell);
    }
    return cost;
}

} // namespace

int FlowCollector::Clamped(int depth)
{
    return std::clamp(depth, 0, maxTableNesting);
}

RowStyle& FlowCollector::RowAt(int depth)
{
    return rowStyles_[static_cast<std::size_t>(std::max(Clamped(depth), 1))];
}

void FlowCollector::EndParagraph(int depth)
{
    if (inNote_) {
        if (context_.budget.Take(WaitingCostOf(draft_)))
            notes_.push_back(draft_);
        draft_.ClearText();
        return;
    }
    SetDepth(Clamped(depth));
    if (levels_.empty()) {
        body_.Write(draft_);
        draft_.ClearText();
        return;
    }
    if (context_.budget.Take(WaitingCostOf(draft_)))
        levels_.back().cell.push_back({std::move(draft_), nullptr});
    draft_ = Paragraph();
}

void FlowCollector::EndCell(int depth)
{
    if (inNote_)
        return EndParagraph(0);
    const int level = std::max(Clamped(depth), 1);
    EndParagraph(level);
    Level& open = levels_.back();
    if (open.row.cells.size() < static_cast<std::size_t>(maxRowCells)) {
        open.row.cells.push_back(std::move(open.cell));
    } else {
        std::vector<Block>& last = open.row.cells.back();
        std::move(open.cell.begin(), open.cell.end(), std::back_inserter(last));
    }
    open.cell.clear();
}

void FlowCollector::EndRow(int depth)
{
    if (inNote_)
        return;
    const int level = std::max(Clamped(depth), 1);
    if (static_cast<std::size_t>(level) > levels_.size())
        return;
    SetDepth(level);
    CloseRow(levels_.back(), level);
    if (levels_.back().cells < maxTableCells)
        return;
    // The table continues as another one below it.
    SetDepth(level - 1);
    SetDepth(level);
}

void FlowCollector::CloseRow(Level& level, int depth)
{
    if (!level.cell.empty()) {
        level.row.cells.push_back(std::move(level.cell));
        level.cell.clear();
    }
    if (level.row.cells.empty())
        return;
    level.row.style = RowAt(depth);
    level.cells += static_cast<int>(std::max(level.row.cells.size(), level.row.style.cells.size()));
    level.table.rows.push_back(std::move(level.row));
    level.row = Row();
}

void FlowCollector::SetDepth(int depth)
{
    while (static_cast<int>(levels_.size()) > depth)
        CloseLevel();
    while (static_cast<int>(levels_.size()) < depth)
        levels_.emplace_back();
}

void FlowCollector::CloseLevel()
{
    Level level = std::move(levels_.back());
    CloseRow(level, static_cast<int>(levels_.size()));
    levels_.pop_back();
    if (level.table.rows.empty())
        return;
    Deliver({Paragraph(), std::make_unique<Table>(std::move(level.table))});
}

void FlowCollector::Deliver(Block block)
{
    if (!levels_.empty()) {
        levels_.back().cell.push_back(std::move(block));
        return;
    }
    context_.budget.GiveBack(WaitingCostOf(*block.table));
    body_.Write(*block.table);
}

void FlowCollector::BeginNote()
{
    inNote_ = true;
    interrupted_ = std::move(draft_);
    draft_ = Paragraph();
}

void FlowCollector::EndNote()
{
    inNote_ = false;
    draft_ = std::move(interrupted_);
    interrupted_ = Paragraph();
}

void FlowCollector::Finish()
{
    SetDepth(0);
    for (const Paragraph& note : notes_) {
        context_.budget.GiveBack(WaitingCostOf(note));
        body_.Write(note);
    }
    notes_.clear();
}

} // namespace torvik::rtf
