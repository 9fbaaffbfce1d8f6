#include "rtf/write/flow_writer.h"

#include "rtf/bounds/limits.h"
#include "rtf/paint/format_properties.h"
#include "rtf/write/direction_marks.h"
#include "rtf/write/edge_spaces.h"
#include "rtf/write/mark_room.h"
#include "rtf/write/paragraph_box.h"
#include "rtf/write/shape_box.h"
#include "rtf/write/table_writer.h"

#include <QTextTable>

#include <algorithm>

namespace torvik::rtf {

namespace {

// What the document keeps for a block, a run and a character of text, growing of its arrays included; bytes.
constexpr qint64 blockCost = 240;
constexpr qint64 runCost = 70;
constexpr qint64 characterCost = 4;
constexpr qint64 listCost = 900;
constexpr qint64 boxCost = 4000;

/// For the rule between text and notes, pixels.
constexpr double roomAboveNotes = 16;

/// Whether what comes first in a table is to begin a page.
bool IsToldToBeginPage(const Table& table)
{
    for (const Table* inner = &table; !inner->rows.empty();) {
        const std::vector<std::vector<Block>>& cells = inner->rows.front().cells;
        if (cells.empty() || cells.front().empty())
            return false;
        const Block& first = cells.front().front();
        if (!first.table)
            return first.box ? first.box->breakBefore : first.paragraph.breakBefore;
        inner = first.table.get();
    }
    return false;
}

} // namespace

FlowWriter::FlowWriter(WritingContext& context, const QTextCursor& cursor, Room room)
    : context_(context), cursor_(cursor), room_(room), atCellStart_(room == Room::Cell),
      spacing_(context.formats)
{}

qint64 FlowWriter::CostOf(qsizetype characters, std::size_t runs)
{
    return blockCost + runCost * static_cast<qint64>(runs) + characterCost * characters;
}

void FlowWriter::Write(const Paragraph& paragraph)
{
    if (!context_.budget.Take(CostOf(paragraph.text.size(), paragraph.spans.size())))
        return;
    PlaceBox(paragraph);
    boxFormat_ = paragraph.format;
    OpenBlock(paragraph);
    WriteSpans(paragraph);
    if (box_ == nullptr)
        spacing_.ParagraphCame(paragraph);
    else
        boxSpaceAfter_ = context_.formats.StateOf(paragraph.format).spaceAfter;
    ++context_.paragraphs;
}

void FlowWriter::Write(const std::vector<Block>& blocks)
{
    for (const Block& block : blocks)
        Write(block);
}

void FlowWriter::Write(const Block& block)
{
    if (block.table)
        Write(*block.table);
    else if (block.box)
        Write(*block.box);
    else
        Write(block.paragraph);
}

bool FlowWriter::TakeBreak(bool isTold)
{
    const bool isFirst = fresh_ && cursor_.position() == 0;
    if (!isTold || room_ != Room::Body || isFirst)
        return false;
    spacing_.PageBegan();
    return true;
}

void FlowWriter::TableCame(QTextTable& table, int before, bool beginsPage, int space)
{
    if (beginsPage) {
        QTextTableFormat format = table.format();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table.setFormat(format);
    }
    spacing_.TableCame(table, before, space);
}

BoxStyle FlowWriter::WithSpaces(const Box& box) const
{
    BoxStyle style = box.style;
    const EdgeSpaces spaces = EdgeSpacesOf(box.blocks, box.blocks, context_.formats);
    style.padding[SideTop] += spaces.above;
    style.padding[SideBottom] += spaces.below;
    return style;
}

void FlowWriter::Write(const Box& box)
{
    const bool beginsPage = TakeBreak(box.breakBefore);
    LeaveBox();
    lists_.Interrupt();
    if (!context_.budget.Take(boxCost))
        return Write(box.blocks);
    const int before = cursor_.position();
    QTextTable* frame = InsertShapeBox(cursor_, WithSpaces(box));
    context_.hasRowHeights = context_.hasRowHeights || box.style.height > 0;
    TableCame(*frame, before, beginsPage);
    FlowWriter inside(context_, frame->cellAt(0, 0).firstCursorPosition(), Room::Cell);
    inside.Write(box.blocks);
    cursor_.setPosition(frame->lastPosition() + 1);
    atCellStart_ = false;
    fresh_ = true;
}

void FlowWriter::Write(const Table& table)
{
    const bool beginsPage = TakeBreak(IsToldToBeginPage(table));
    LeaveBox();
    lists_.Interrupt();
    const int before = cursor_.position();
    QTextTable* written = WriteTable(context_, cursor_, table);
    if (written == nullptr) {
        // Too much for a table: its texts at least, one below the other.
        for (const Row& row : table.rows) {
            for (const std::vector<Block>& cell : row.cells)
                Write(cell);
        }
        return;
    }
    TableCame(*written, before, beginsPage);
    cursor_.setPosition(written->lastPosition() + 1);
    atCellStart_ = false;
    fresh_ = true;
}

void FlowWriter::PlaceBox(const Paragraph& paragraph)
{
    const ParagraphState& state = context_.formats.StateOf(paragraph.format);
    // The layout hides an empty paragraph below a table, with the rule that a single border is there.
    const bool isHidden = paragraph.IsEmpty() && spacing_.IsBelowTable();
    const bool isRule = paragraph.IsEmpty() && !isHidden;
    const bool beginsPage = TakeBreak(paragraph.breakBefore);
    // The table makes up for its height, unless that belongs on the next page.
    const bool isBoxed = state.HasBox() || state.frame.isSet || state.between.IsSet() ||
                         (state.HasBorder() && !isRule) || (isHidden && beginsPage);
    if (box_ != nullptr && isBoxed && !beginsPage && SharesBox(state, context_.formats.StateOf(boxFormat_)))
        return PartBoxBefore(state);
    LeaveBox();
    if (!isBoxed || !context_.budget.Take(boxCost))
        return;
    const int before = cursor_.position();
    box_ = InsertBox(cursor_, state, context_.formats.Colors(), context_.page);
    TableCame(*box_, before, beginsPage, state.spaceBefore);
    atCellStart_ = true;
    fresh_ = true;
}

void FlowWriter::PartBoxBefore(const ParagraphState& state)
{
    if (!state.between.IsSet() || box_->rows() >= maxBoxParts || !context_.budget.Take(boxCost))
        return;
    PartBox(*box_, cursor_, state, boxSpaceAfter_, context_.formats.Colors());
    atCellStart_ = true;
    fresh_ = true;
}

void FlowWriter::LeaveBox()
{
    if (box_ == nullptr)
        return;
    spacing_.AddBelowTable(boxSpaceAfter_);
    cursor_.setPosition(box_->lastPosition() + 1);
    box_ = nullptr;
    atCellStart_ = false;
    fresh_ = true;
}

void FlowWriter::TakeFreshBlock(const QTextBlockFormat& format, const QTextCharFormat& endFormat)
{
    cursor_.setBlockFormat(format);
    if (atCellStart_) {
        QTextCharFormat measures;
        measures.setFontPointSize(endFormat.fontPointSize());
        if (endFormat.hasProperty(QTextFormat::FontStretch))
            measures.setFontStretch(endFormat.fontStretch());
        cursor_.mergeBlockCharFormat(measures);
    } else {
        cursor_.setBlockCharFormat(endFormat);
    }
    atCellStart_ = false;
    fresh_ = false;
}

void FlowWriter::OpenBlock(const Paragraph& paragraph)
{
    QTextCharFormat endFormat = context_.formats.CharacterFormat(paragraph.endFormat);
    ListWriter::Place place = lists_.Join(paragraph.mark);
    if (place == ListWriter::Place::Starts && !context_.budget.Take(listCost))
        place = ListWriter::Place::Outside;
    const bool isItem = place != ListWriter::Place::Outside;
    const double markRoom = isItem
                                ? RoomOfMark(paragraph.mark, context_.formats.StateOf(paragraph.itemFormat),
                                             endFormat.fontPointSize())
                                : 0;
    // The format of a block is that of its mark; the letters have formats of their own.
    if (isItem && paragraph.mark.kind == ListMark::Kind::Bullet)
        endFormat.setFontStretch(SpaceAfterBullet(markRoom));
    QTextBlockFormat format = context_.formats.BlockFormat(isItem ? paragraph.itemFormat : paragraph.format);
    if (box_ == nullptr && TakeBreak(paragraph.breakBefore))
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (paragraph.beginsNotes) {
        format.setTopMargin(std::max(format.topMargin(), roomAboveNotes));
        format.setProperty(RuleAboveProperty, true);
    }
    if (place == ListWriter::Place::Continues)
        format.setObjectIndex(lists_.Continue(paragraph.mark, markRoom));
    const bool isRule =
        paragraph.IsEmpty() && context_.formats.StateOf(paragraph.format).HasBorder() && box_ == nullptr;
    if (isRule)
        format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                           QTextLength(QTextLength::PercentageLength, 100));
    if (fresh_)
        TakeFreshBlock(format, endFormat);
    else
        cursor_.insertBlock(format, endFormat);
    if (place == ListWriter::Place::Starts)
        lists_.Start(paragraph.mark, markRoom, cursor_);
    else if (!isItem && !paragraph.mark.literal.isEmpty())
        cursor_.insertText(paragraph.mark.literal + paragraph.mark.gap, endFormat);
}

void FlowWriter::WriteSpans(const Paragraph& paragraph)
{
    qsizetype at = 0;
    for (std::size_t number = 0; number < paragraph.spans.size(); ++number) {
        const Span& span = paragraph.spans[number];
        const QTextCharFormat& format = context_.formats.CharacterFormat(span.format);
        if (span.picture != 0) {
            QTextImageFormat image;
            image.merge(format);
            image.setName(PictureStore::NameOf(span.picture));
            const QSizeF size = context_.pictures.SizeOf(span.picture);
            image.setWidth(size.width());
            image.setHeight(size.height());
            cursor_.insertImage(image);
        } else if (format.layoutDirection() == Qt::RightToLeft) {
            cursor_.insertText(WithDirectionMarks(paragraph, number, at, context_.formats), format);
        } else {
            cursor_.insertText(QString::fromRawData(paragraph.text.constData() + at, span.length), format);
        }
        at += span.length;
    }
}

} // namespace torvik::rtf
