#include "rtf/parts/row_reader.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

void RowReader::Begin()
{
    Row() = RowStyle();
    cell_ = CellStyle();
    borders_.ChooseNone();
}

RowStyle& RowReader::Row()
{
    const GroupState& group = document_.group;
    return document_.flow.RowAt(group.isNestedTableProperties ? std::max(2, group.paragraph.tableDepth) : 1);
}

void RowReader::EndCell(int rightEdge)
{
    RowStyle& row = Row();
    cell_.rightEdge = rightEdge;
    if (row.cells.size() < static_cast<std::size_t>(maxRowCells))
        row.cells.push_back(cell_);
    cell_ = CellStyle();
    borders_.ChooseNone();
}

} // namespace torvik::rtf
