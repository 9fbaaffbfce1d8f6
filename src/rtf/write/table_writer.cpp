#include "rtf/write/table_writer.h"

#include "rtf/bounds/limits.h"
#include "rtf/write/border_style.h"
#include "rtf/write/flow_writer.h"
#include "rtf/write/table_grid.h"

#include <QTextTable>

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr qint64 tableCost = 4000;
constexpr qint64 cellCost = 400;

QTextTableFormat TableFormatOf(const Table& table, const TableGrid& grid)
{
    const RowStyle& first = table.rows.front().style;
    QTextTableFormat format;
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setBorder(0);
    format.setBorderCollapse(true);
    if (first.alignment == Alignment::Center)
        format.setAlignment(Qt::AlignHCenter);
    else if (first.alignment == Alignment::Right)
        format.setAlignment(Qt::AlignRight);
    else if (grid.leftEdge > 0)
        format.setLeftMargin(PixelsFromTwips(grid.leftEdge));
    QList<QTextLength> widths;
    for (const int width : grid.columnWidths)
        widths.append(QTextLength(QTextLength::FixedLength, PixelsFromTwips(width)));
    format.setColumnWidthConstraints(widths);
    int headers = 0;
    while (headers < grid.rows && table.rows[static_cast<std::size_t>(headers)].style.isHeader)
        ++headers;
    if (headers > 0 && headers < grid.rows)
        format.setHeaderRowCount(headers);
    return format;
}

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

QTextTableCellFormat CellFormat(const GridCell& cell, const RowStyle& row, const TableGrid& grid,
                                const ColorTable& colors)
{
    QTextTableCellFormat format;
    const double gap = PixelsFromTwips(std::clamp(row.gap, 0, 720));
    format.setLeftPadding(gap);
    format.setRightPadding(gap);
    const CellStyle& style = *cell.style;
    const QColor back =
        ShadedColor(colors.ChosenAt(style.patternColor), colors.ChosenAt(style.background), style.shading);
    if (back.isValid())
        format.setBackground(back);
    if (style.verticalAlignment == 1)
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    else if (style.verticalAlignment == 2)
        format.setVerticalAlignment(QTextCharFormat::AlignBottom);
    SetCellBorders(
        format, [&](int side) -> const Border& { return BorderOf(cell, row, grid, side); }, colors);
    return format;
}

} // namespace

int WriteTable(WritingContext& context, const QTextCursor& where, const Table& table)
{
    // Making the grid costs time too, so it is not made for nothing.
    const qint64 least = tableCost + cellCost * static_cast<qint64>(table.rows.size());
    if (table.rows.empty() || context.budget.Left() < least)
        return -1;
    const TableGrid grid = MakeGrid(table);
    const auto columns = static_cast<int>(grid.columnWidths.size());
    if (!context.budget.Take(tableCost + cellCost * columns * grid.rows))
        return -1;
    QTextCursor cursor(where);
    QTextTable* written = cursor.insertTable(grid.rows, columns, TableFormatOf(table, grid));
    for (const GridCell& cell : grid.cells) {
        if (cell.rowSpan > 1 || cell.columnSpan > 1)
            written->mergeCells(cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    }
    for (const GridCell& cell : grid.cells) {
        QTextTableCell place = written->cellAt(cell.row, cell.column);
        const RowStyle& row = table.rows[static_cast<std::size_t>(cell.row)].style;
        // The cell's format already holds its spans, so the rest is merged into it.
        QTextCharFormat format = place.format();
        format.merge(CellFormat(cell, row, grid, context.formats.Colors()));
        place.setFormat(format);
        FlowWriter flow(context, place.firstCursorPosition(), FlowWriter::Room::Cell);
        for (const std::vector<Block>* blocks : cell.contents)
            flow.Write(*blocks);
    }
    ++context.tables;
    return written->lastPosition() + 1;
}

} // namespace torvik::rtf
