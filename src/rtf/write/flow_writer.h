#pragma once

#include "rtf/bounds/budget.h"
#include "rtf/model/content.h"
#include "rtf/model/page_measures.h"
#include "rtf/picture/picture_store.h"
#include "rtf/write/formats.h"
#include "rtf/write/list_writer.h"
#include "rtf/write/table_spacing.h"

#include <QTextCursor>
#include <QTextTable>

namespace torvik::rtf {

/// What every writer of a document needs.
struct WritingContext {
    const Formats& formats;
    const PictureStore& pictures;
    Budget& budget;
    const PageMeasures& page;
    int paragraphs = 0;
    int tables = 0;
    /// Some row of a table is to have a height of its own.
    bool hasRowHeights = false;
};

/// Writes paragraphs and tables one below the other, in the document's body or in one cell.
class FlowWriter {
public:
    enum class Room { Body, Cell };

    /// The cursor is in an empty block, which the first paragraph takes over.
    FlowWriter(WritingContext& context, const QTextCursor& cursor, Room room);

    /// Bytes that a paragraph costs in a document, by estimate.
    static qint64 CostOf(qsizetype characters, std::size_t runs);

    void Write(const Paragraph& paragraph);
    void Write(const Table& table);
    void Write(const Box& box);
    void Write(const Block& block);
    void Write(const std::vector<Block>& blocks);

private:
    /// Whether what comes next begins a page when that is told; then nothing goes below what came before.
    /// Nothing in a cell does, since the rest of the row would stay where it is; and the beginning of the
    /// body stands on a page of its own anyway.
    bool TakeBreak(bool isTold);
    void TableCame(QTextTable& table, int before, bool beginsPage, int space = 0);
    /// The looks of a box with the space that its first and last paragraph want.
    BoxStyle WithSpaces(const Box& box) const;
    void PlaceBox(const Paragraph& paragraph);
    /// Draws the line between what is in the box and the paragraph that comes next.
    void PartBoxBefore(const ParagraphState& state);
    void LeaveBox();
    void OpenBlock(const Paragraph& paragraph);
    void TakeFreshBlock(const QTextBlockFormat& format, const QTextCharFormat& endFormat);
    void WriteSpans(const Paragraph& paragraph);

    WritingContext& context_;
    QTextCursor cursor_;
    Room room_;
    ListWriter lists_;
    /// The cursor's block is empty and belongs to no paragraph yet.
    bool fresh_ = true;
    /// What comes before the fresh block is the start of a cell, which carries the cell's own format.
    bool atCellStart_ = false;
    TableSpacing spacing_;
    QTextTable* box_ = nullptr;
    /// Space after the last paragraph in the box, twips.
    int boxSpaceAfter_ = 0;
    int boxFormat_ = 0;
};

} // namespace torvik::rtf
