#pragma once

#include "rtf/parts/border_choice.h"
#include "rtf/parts/document_state.h"

namespace torvik::rtf {

/// Reads how the rows of tables are laid out. A row takes the definition that holds where it ends.
class RowReader {
public:
    RowReader(DocumentState& document, BorderChoice& borders) : document_(document), borders_(borders) {}

    /// Starts a new definition.
    void Begin();
    /// The row that is being defined, and its next cell.
    RowStyle& Row();
    CellStyle& Cell() { return cell_; }
    /// Ends the definition of a cell; its right edge is in twips.
    void EndCell(int rightEdge);

private:
    DocumentState& document_;
    BorderChoice& borders_;
    CellStyle cell_;
};

} // namespace torvik::rtf
