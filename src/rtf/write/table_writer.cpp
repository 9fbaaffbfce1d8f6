#include "rtf/write/table_writer.h"

#include "rtf/bounds/limits.h"
#include "rtf/paint/format_properties.h"
#include "rtf/write/border_style.h"
#include "rtf/write/edge_spaces.h"
#include "rtf/write/flow_writer.h"
#include "rtf/write/table_grid.h"

#include <QTextTable>

#include <algorithm>
#include <cstdlib>

namespace torvik::rtf {

namespace {

constexpr qint64 tableCost = 4000;
constexpr qint64 cellCost = 400;

/// The border of one side of a cell: its own, else what the row says for its place.
const Border& BorderOf(const GridCell& cell, const RowStyle& row, const TableGrid& grid, int side)
{
    const Border& own = cell.style->borders[side];
    if (own.IsSet())
        return own;
    const bool isOuter =
        (side == SideTop && cell.row == 0) || (side == SideLeft && cell.column == 0) ||
        (side == SideBottom && cell.row + cell.rowSpan == grid.rows) ||
        (side == SideRight && cell.column + cell.columnSpan == int(grid.columnWidths.size()));
    if (isOuter)
        return row.borders[side];
    return side == SideTop || side == SideBottom ? row.innerHorizontal : row.innerVertical;
}

int PaddingOf(const CellStyle& style, const RowStyle& row, Side side)
{
    const int otherwise = side == SideLeft || side == SideRight ? row.gap : 0;
    const int own = style.padding[side] >= 0 ? style.padding[side] : row.padding[side];
    return std::clamp(own >= 0 ? own : otherwise, 0, 720);
}

QColor BackgroundOf(const CellStyle& style, const Formats& formats)
{
    const ColorTable& colors = formats.Colors();
    return ShadedColor(colors.ChosenAt(style.patternColor), colors.ChosenAt(style.background), style.shading);
}

/// Twips that are cut off the left edge of a table which stands out there, so that its text is in line with
/// the text around it: there is nothing to the left of a window's text on which it could stand.
int CutOf(const Table& table, const TableGrid& grid, const Formats& formats)
{
    constexpr int leastPadding = 30; // beside a line or an edge that is seen
    constexpr int leastWidth = 240;
    const RowStyle& first = table.rows.front().style;
    const bool isAtLeft = first.alignment != Alignment::Center && first.alignment != Alignment::Right;
    if (grid.leftEdge >= 0 || first.rightToLeft || !isAtLeft)
        return 0;
    int cut = -grid.leftEdge;
    for (const GridCell& cell : grid.cells) {
        if (cell.column != 0)
            continue;
        const RowStyle& row = table.rows[static_cast<std::size_t>(cell.row)].style;
        const bool isSeen =
            BorderOf(cell, row, grid, SideLeft).IsSet() || BackgroundOf(*cell.style, formats).isValid();
        cut = std::min(cut, PaddingOf(*cell.style, row, SideLeft) - (isSeen ? leastPadding : 0));
    }
    return cut > 0 && grid.columnWidths.front() - cut >= leastWidth ? cut : 0;
}

bool HasBorders(const Table& table, const TableGrid& grid)
{
    return std::any_of(grid.cells.begin(), grid.cells.end(), [&](const GridCell& cell) {
        const RowStyle& row = table.rows[static_cast<std::size_t>(cell.row)].style;
        return BorderOf(cell, row, grid, SideTop).IsSet() || BorderOf(cell, row, grid, SideLeft).IsSet() ||
               BorderOf(cell, row, grid, SideBottom).IsSet() || BorderOf(cell, row, grid, SideRight).IsSet();
    });
}

QTextTableFormat TableFormatOf(const Table& table, const TableGrid& grid, int cut)
{
    const RowStyle& first = table.rows.front().style;
    QTextTableFormat format;
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setBorder(0);
    // For borders that it shares between cells the layout asks each cell for those of all its neighbours.
    format.setBorderCollapse(HasBorders(table, grid));
    if (first.alignment == Alignment::Center)
        format.setAlignment(Qt::AlignHCenter);
    else if (first.alignment == Alignment::Right ||
             (first.rightToLeft && first.alignment == Alignment::Start))
        format.setAlignment(Qt::AlignRight);
    else if (grid.leftEdge > 0)
        format.setLeftMargin(PixelsFromTwips(grid.leftEdge));
    QList<QTextLength> widths;
    for (const int width : grid.columnWidths)
        widths.append(
            QTextLength(QTextLength::FixedLength, PixelsFromTwips(width - (widths.isEmpty() ? cut : 0))));
    format.setColumnWidthConstraints(widths);
    int headers = 0;
    while (headers < grid.rows && table.rows[static_cast<std::size_t>(headers)].style.isHeader)
        ++headers;
    if (headers > 0 && headers < grid.rows)
        format.setHeaderRowCount(headers);
    return format;
}

QTextTableCellFormat CellFormat(const GridCell& cell, const RowStyle& row, const TableGrid& grid,
                                const Formats& formats, int cut)
{
    QTextTableCellFormat format;
    const CellStyle& style = *cell.style;
    format.setLeftPadding(PixelsFromTwips(PaddingOf(style, row, SideLeft) - (cell.column == 0 ? cut : 0)));
    format.setRightPadding(PixelsFromTwips(PaddingOf(style, row, SideRight)));
    EdgeSpaces spaces;
    if (!cell.contents.empty())
        spaces = EdgeSpacesOf(*cell.contents.front(), *cell.contents.back(), formats);
    const int top = PaddingOf(style, row, SideTop) + spaces.above;
    const int bottom = PaddingOf(style, row, SideBottom) + spaces.below;
    if (top > 0)
        format.setTopPadding(PixelsFromTwips(top));
    if (bottom > 0)
        format.setBottomPadding(PixelsFromTwips(bottom));
    if (const QColor back = BackgroundOf(style, formats); back.isValid())
        format.setBackground(back);
    if (style.verticalAlignment == 1)
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    else if (style.verticalAlignment == 2)
        format.setVerticalAlignment(QTextCharFormat::AlignBottom);
    SetCellBorders(
        format, [&](int side) -> const Border& { return BorderOf(cell, row, grid, side); }, formats.Colors());
    return format;
}

} // namespace

QTextTable* WriteTable(WritingContext& context, const QTextCursor& where, const Table& table)
{
    // Making the grid costs time too, so it is not made for nothing.
    const qint64 least = tableCost + cellCost * static_cast<qint64>(table.rows.size());
    if (table.rows.empty() || context.budget.Left() < least)
        return nullptr;
    const TableGrid grid = MakeGrid(table);
    const auto columns = static_cast<int>(grid.columnWidths.size());
    if (!context.budget.Take(tableCost + cellCost * columns * grid.rows))
        return nullptr;
    const int cut = CutOf(table, grid, context.formats);
    QTextCursor cursor(where);
    QTextTable* written = cursor.insertTable(grid.rows, columns, TableFormatOf(table, grid, cut));
    for (const GridCell& cell : grid.cells) {
        if (cell.rowSpan > 1 || cell.columnSpan > 1)
            written->mergeCells(cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    }
    for (const GridCell& cell : grid.cells) {
        QTextTableCell place = written->cellAt(cell.row, cell.column);
        const RowStyle& row = table.rows[static_cast<std::size_t>(cell.row)].style;
        // The cell's format already holds its spans, so the rest is merged into it.
        QTextCharFormat format = place.format();
        format.merge(CellFormat(cell, row, grid, context.formats, cut));
        if (cell.rowSpan == 1 && row.height != 0)
            format.setProperty(RowHeightProperty, PixelsFromTwips(std::abs(row.height)));
        place.setFormat(format);
        FlowWriter flow(context, place.firstCursorPosition(), FlowWriter::Room::Cell);
        for (const std::vector<Block>* blocks : cell.contents)
            flow.Write(*blocks);
    }
    ++context.tables;
    context.hasRowHeights =
        context.hasRowHeights || std::any_of(table.rows.begin(), table.rows.end(),
                                             [](const Row& row) { return row.style.height != 0; });
    return written;
}

} // namespace torvik::rtf
