#include "rtf/write/table_grid.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr int leastCellWidth = 60;
constexpr int widthOfUndefinedCell = 1440;
/// Edges nearer than this are one edge, twips.
constexpr int edgeTolerance = 30;

/// The right edges of a row's cells, strictly growing, one for every cell that has contents or a definition.
std::vector<int> EdgesOf(const Row& row)
{
    const std::size_t count = std::max(row.cells.size(), row.style.cells.size());
    std::vector<int> edges;
    edges.reserve(count);
    int last = row.style.leftEdge;
    for (std::size_t i = 0; i < count; ++i) {
        const bool isDefined = i < row.style.cells.size();
        const int wanted = isDefined ? row.style.cells[i].rightEdge : last + widthOfUndefinedCell;
        last = std::max(wanted, last + leastCellWidth);
        edges.push_back(last);
    }
    return edges;
}

/// Sorted edges without those that are close to the one before.
std::vector<int> Thinned(const std::vector<int>& sorted, int tolerance)
{
    std::vector<int> kept;
    for (const int edge : sorted) {
        if (kept.empty() || edge - kept.back() > tolerance)
            kept.push_back(edge);
    }
    return kept;
}

std::vector<int> CommonEdges(const std::vector<std::vector<int>>& rows, const Table& table)
{
    std::vector<int> all;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        all.push_back(table.rows[r].style.leftEdge);
        all.insert(all.end(), rows[r].begin(), rows[r].end());
    }
    std::sort(all.begin(), all.end());
    int tolerance = edgeTolerance;
    std::vector<int> edges = Thinned(all, tolerance);
    while (edges.size() > static_cast<std::size_t>(maxTableColumns) + 1) {
        tolerance *= 2;
        edges = Thinned(edges, tolerance);
    }
    if (edges.size() < 2)
        edges = {edges.empty() ? 0 : edges.front(),
                 (edges.empty() ? 0 : edges.front()) + widthOfUndefinedCell};
    return edges;
}

/// The place of the common edge nearest to an edge.
int Nearest(const std::vector<int>& edges, int edge)
{
    const auto above = std::lower_bound(edges.begin(), edges.end(), edge);
    if (above == edges.begin())
        return 0;
    if (above == edges.end() || edge - *(above - 1) <= *above - edge)
        return static_cast<int>(above - edges.begin()) - 1;
    return static_cast<int>(above - edges.begin());
}

const CellStyle& StyleOf(const Row& row, std::size_t cell)
{
    static const CellStyle plain;
    return cell < row.style.cells.size() ? row.style.cells[cell] : plain;
}

class GridMaker {
public:
    explicit GridMaker(const Table& table) : table_(table) {}

    TableGrid Make()
    {
        std::vector<std::vector<int>> rowEdges;
        rowEdges.reserve(table_.rows.size());
        for (const Row& row : table_.rows)
            rowEdges.push_back(EdgesOf(row));
        edges_ = CommonEdges(rowEdges, table_);
        const std::size_t columns = edges_.size() - 1;
        grid_.leftEdge = edges_.front();
        for (std::size_t c = 0; c < columns; ++c)
            grid_.columnWidths.push_back(edges_[c + 1] - edges_[c]);
        above_.assign(columns, -1);
        for (std::size_t r = 0; r < table_.rows.size(); ++r)
            PlaceRow(table_.rows[r], rowEdges[r]);
        if (table_.rows.front().style.rightToLeft)
            Mirror();
        return std::move(grid_);
    }

private:
    void Mirror()
    {
        std::reverse(grid_.columnWidths.begin(), grid_.columnWidths.end());
        for (GridCell& cell : grid_.cells)
            cell.column = static_cast<int>(grid_.columnWidths.size()) - cell.column - cell.columnSpan;
    }

    void PlaceRow(const Row& row, const std::vector<int>& rowEdges)
    {
        const int rowNumber = grid_.rows++;
        std::vector<int> here(above_.size(), -1);
        int column = Nearest(edges_, row.style.leftEdge);
        int last = -1;
        for (std::size_t i = 0; i < rowEdges.size(); ++i) {
            const CellStyle& style = StyleOf(row, i);
            const int end = std::max(Nearest(edges_, rowEdges[i]), column);
            const bool joinsLeft = last >= 0 && (style.horizontal == Merge::Continued || end == column);
            if (joinsLeft)
                Widen(last, end - column);
            else if (end > column)
                last = PlaceCell(rowNumber, column, end - column, style);
            if (last >= 0) {
                if (i < row.cells.size())
                    AddContents(last, row.cells[i]);
                std::fill(here.begin() + column, here.begin() + end, last);
            }
            column = end;
        }
        above_ = std::move(here);
    }

    /// A cell that continues one of the row above keeps its width.
    void Widen(int cell, int columns)
    {
        GridCell& widened = grid_.cells[static_cast<std::size_t>(cell)];
        if (widened.rowSpan == 1)
            widened.columnSpan += columns;
    }

    int PlaceCell(int row, int column, int span, const CellStyle& style)
    {
        const int upper = above_[static_cast<std::size_t>(column)];
        if (style.vertical == Merge::Continued && upper >= 0) {
            GridCell& above = grid_.cells[static_cast<std::size_t>(upper)];
            if (above.column == column && above.columnSpan == span && above.row + above.rowSpan == row) {
                ++above.rowSpan;
                return upper;
            }
        }
        grid_.cells.push_back({row, column, 1, span, &style, {}});
        return static_cast<int>(grid_.cells.size()) - 1;
    }

    void AddContents(int cell, const std::vector<Block>& blocks)
    {
        GridCell& target = grid_.cells[static_cast<std::size_t>(cell)];
        const bool isBlank = blocks.size() == 1 && !blocks.front().table && !blocks.front().box &&
                             blocks.front().paragraph.IsEmpty();
        // The empty text of a merged cell adds nothing to the cell that it is part of.
        if (target.contents.empty() || !isBlank)
            target.contents.push_back(&blocks);
    }

    const Table& table_;
    TableGrid grid_;
    std::vector<int> edges_;
    /// For every column the cell of the row above, -1 for none.
    std::vector<int> above_;
};

} // namespace

TableGrid MakeGrid(const Table& table)
{
    return GridMaker(table).Make();
}

} // namespace torvik::rtf
