#pragma once

#include "rtf/model/content.h"

#include <vector>

namespace torvik::rtf {

/// One cell of a table's grid. A merged cell spans several places.
struct GridCell {
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    const CellStyle* style = nullptr;
    /// Contents in order; several when cells were merged.
    std::vector<const std::vector<Block>*> contents;
};

/// The rows of a table, which each have edges of their own, brought onto common columns.
struct TableGrid {
    /// Twips.
    std::vector<int> columnWidths;
    int leftEdge = 0;
    int rows = 0;
    std::vector<GridCell> cells;
};

TableGrid MakeGrid(const Table& table);

} // namespace torvik::rtf
