#include "rtf/write/flow_collector.h"

#include "rtf/bounds/limits.h"

#include <algorithm>
#include <iterator>
#include <utility>

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
        if (!block.table && !block.box)
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
    return place_.rowStyles[static_cast<std::size_t>(std::max(Clamped(depth), 1))];
}

void FlowCollector::EndParagraph(int depth)
{
    if (inNote_) {
        if (context_.budget.Take(WaitingCostOf(place_.draft)))
            notes_.push_back(place_.draft);
        place_.draft.ClearText();
        return;
    }
    SetDepth(Clamped(depth));
    PassBreakOn();
    Deliver(std::exchange(place_.anchored, {}));
    if (place_.levels.empty() && around_.empty()) {
        body_.Write(place_.draft);
        place_.draft.ClearText();
    } else {
        if (context_.budget.Take(WaitingCostOf(place_.draft)))
            Keep(Block(std::move(place_.draft)));
        place_.draft = Paragraph();
    }
    Deliver(std::exchange(place_.anchoredAfter, {}));
}

void FlowCollector::PassBreakOn()
{
    if (!place_.draft.breakBefore || place_.anchored.empty())
        return;
    Block& first = place_.anchored.front();
    (first.box ? first.box->breakBefore : first.paragraph.breakBefore) = true;
    place_.draft.breakBefore = false;
}

void FlowCollector::EndCell(int depth)
{
    if (inNote_)
        return EndParagraph(0);
    const int level = std::max(Clamped(depth), 1);
    EndParagraph(level);
    Level& open = place_.levels.back();
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
    if (static_cast<std::size_t>(level) > place_.levels.size())
        return;
    SetDepth(level);
    CloseRow(place_.levels.back(), level);
    if (place_.levels.back().cells < maxTableCells)
        return;
    // The table continues as another one below it.
    SetDepth(level - 1);
    SetDepth(level);
}

void FlowCollector::EndTable()
{
    if (place_.levels.size() == 1 && place_.levels.front().row.cells.empty() &&
        place_.levels.front().cell.empty())
        SetDepth(0);
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
    while (static_cast<int>(place_.levels.size()) > depth)
        CloseLevel();
    while (static_cast<int>(place_.levels.size()) < depth)
        place_.levels.emplace_back();
}

void FlowCollector::CloseLevel()
{
    Level level = std::move(place_.levels.back());
    CloseRow(level, static_cast<int>(place_.levels.size()));
    place_.levels.pop_back();
    if (level.table.rows.empty())
        return;
    Deliver(Block(std::make_unique<Table>(std::move(level.table))));
}

void FlowCollector::Keep(Block block)
{
    std::vector<Block>& blocks = place_.levels.empty() ? place_.blocks : place_.levels.back().cell;
    blocks.push_back(std::move(block));
}

void FlowCollector::Deliver(Block block)
{
    if (!place_.levels.empty() || !around_.empty())
        return Keep(std::move(block));
    if (block.table)
        context_.budget.GiveBack(WaitingCostOf(*block.table));
    else if (block.box)
        context_.budget.GiveBack(WaitingCostOf(block.box->blocks));
    body_.Write(block);
}

void FlowCollector::BeginBox()
{
    around_.push_back(std::exchange(place_, Place()));
}

std::vector<Block> FlowCollector::EndBox()
{
    SetDepth(0);
    Deliver(std::exchange(place_.anchored, {}));
    Deliver(std::exchange(place_.anchoredAfter, {}));
    std::vector<Block> blocks = std::move(place_.blocks);
    place_ = std::move(around_.back());
    around_.pop_back();
    return blocks;
}

void FlowCollector::AddAnchored(Block block, bool after)
{
    (after ? place_.anchoredAfter : place_.anchored).push_back(std::move(block));
}

void FlowCollector::Deliver(std::vector<Block> anchored)
{
    for (Block& block : anchored)
        Deliver(std::move(block));
}

void FlowCollector::BeginNote()
{
    inNote_ = true;
    interrupted_ = std::move(place_.draft);
    place_.draft = Paragraph();
}

void FlowCollector::EndNote()
{
    inNote_ = false;
    place_.draft = std::move(interrupted_);
    interrupted_ = Paragraph();
}

void FlowCollector::Finish(bool beginsPage)
{
    while (!around_.empty()) {
        std::vector<Block> lost = EndBox();
        std::move(lost.begin(), lost.end(), std::back_inserter(place_.anchored));
    }
    SetDepth(0);
    place_.draft.breakBefore = beginsPage;
    PassBreakOn();
    Deliver(std::exchange(place_.anchored, {}));
    Deliver(std::exchange(place_.anchoredAfter, {}));
    if (!notes_.empty())
        notes_.front().beginsNotes = true;
    for (const Paragraph& note : notes_) {
        context_.budget.GiveBack(WaitingCostOf(note));
        body_.Write(note);
    }
    notes_.clear();
}

} // namespace torvik::rtf
