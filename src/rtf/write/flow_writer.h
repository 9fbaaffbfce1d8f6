#pragma once

#include "rtf/bounds/budget.h"
#include "rtf/model/content.h"
#include "rtf/picture/picture_store.h"
#include "rtf/write/formats.h"
#include "rtf/write/list_writer.h"

#include <QTextCursor>

namespace torvik::rtf {

/// What every writer of a document needs.
struct WritingContext {
    const Formats& formats;
    const PictureStore& pictures;
    Budget& budget;
    int paragraphs = 0;
    int tables = 0;
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
    void Write(const std::vector<Block>& blocks);

private:
    void PlaceBox(const Paragraph& paragraph);
    void LeaveBox();
    void OpenBlock(const Paragraph& paragraph);
    void TakeFreshBlock(const QTextBlockFormat& format, const QTextCharFormat& endFormat);
    void WriteSpans(const Paragraph& paragraph);

    WritingContext& context_;
    QTextCursor cursor_;
    ListWriter lists_;
    /// The cursor's block is empty and belongs to no paragraph yet.
    bool fresh_ = true;
    /// What comes before the fresh block is the start of a cell, which carries the cell's own format.
    bool atCellStart_ = false;
    QTextFrame* box_ = nullptr;
    int boxFormat_ = 0;
};

} // namespace torvik::rtf
