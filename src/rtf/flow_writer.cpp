#include "rtf/flow_writer.h"

#include "rtf/border_style.h"
#include "rtf/limits.h"
#include "rtf/table_writer.h"

#include <QTextFrame>

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

namespace {

// What the document keeps for a block, a run and a character of text, growing of its arrays included; bytes.
constexpr qint64 BlockCost = 240;
constexpr qint64 RunCost = 70;
constexpr qint64 CharacterCost = 4;
constexpr qint64 FrameCost = 2000;

bool SameBox(const ParagraphState& a, const ParagraphState& b)
{
    return std::equal(std::begin(a.borders), std::end(a.borders), std::begin(b.borders)) &&
           a.leftIndent == b.leftIndent && a.rightIndent == b.rightIndent;
}

QTextFrameFormat BoxFormat(const ParagraphState& state, const ColorTable& colors)
{
    const auto* edge = std::find_if(std::begin(state.borders), std::end(state.borders),
                                    [](const Border& b) { return b.IsSet(); });
    QTextFrameFormat format;
    format.setBorder(BorderPixels(*edge));
    format.setBorderStyle(BorderStyleOf(edge->line));
    const QColor color = colors.At(edge->color);
    format.setBorderBrush(color.isValid() ? color : QColor(Qt::black));
    format.setPadding(4);
    const QColor back =
        ShadedColor(colors.At(state.patternColor), colors.At(state.background), state.shading);
    if (back.isValid())
        format.setBackground(back);
    return format;
}

} // namespace

FlowWriter::FlowWriter(WritingContext& context, const QTextCursor& cursor)
    : context_(context), cursor_(cursor)
{}

qint64 FlowWriter::CostOf(qsizetype characters, std::size_t runs)
{
    return BlockCost + RunCost * static_cast<qint64>(runs) + CharacterCost * characters;
}

void FlowWriter::Write(const Paragraph& paragraph)
{
    if (!context_.budget.Take(CostOf(paragraph.text.size(), paragraph.spans.size())))
        return;
    PlaceBox(context_.formats.StateOf(paragraph.format));
    boxFormat_ = paragraph.format;
    OpenBlock(paragraph);
    WriteSpans(paragraph);
    ++context_.paragraphs;
}

void FlowWriter::Write(const std::vector<Block>& blocks)
{
    for (const Block& block : blocks) {
        if (block.table)
            Write(*block.table);
        else
            Write(block.paragraph);
    }
}

void FlowWriter::Write(const Table& table)
{
    LeaveBox();
    lists_.Interrupt();
    const int end = WriteTable(context_, cursor_, table);
    if (end < 0) {
        // Too much for a table: its texts at least, one below the other.
        for (const Row& row : table.rows) {
            for (const std::vector<Block>& cell : row.cells)
                Write(cell);
        }
        return;
    }
    cursor_.setPosition(end);
    fresh_ = true;
    first_ = false;
}

void FlowWriter::PlaceBox(const ParagraphState& state)
{
    if (box_ != nullptr && state.HasBox() && SameBox(state, context_.formats.StateOf(boxFormat_)))
        return;
    LeaveBox();
    if (!state.HasBox() || !context_.budget.Take(FrameCost))
        return;
    box_ = cursor_.insertFrame(BoxFormat(state, context_.formats.Colors()));
    cursor_ = box_->firstCursorPosition();
    fresh_ = true;
}

void FlowWriter::LeaveBox()
{
    if (box_ == nullptr)
        return;
    cursor_.setPosition(box_->lastPosition() + 1);
    box_ = nullptr;
    fresh_ = true;
    first_ = false;
}

void FlowWriter::RuleOff(const ParagraphState& state)
{
    if (!state.borders[SideTop].IsSet() || state.HasBox() || first_)
        return;
    // A line above a paragraph is a line below the one before.
    QTextBlockFormat ruled;
    ruled.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                      QTextLength(QTextLength::PercentageLength, 100));
    cursor_.mergeBlockFormat(ruled);
}

void FlowWriter::OpenBlock(const Paragraph& paragraph)
{
    const QTextCharFormat& endFormat = context_.formats.CharacterFormat(paragraph.endFormat);
    RuleOff(context_.formats.StateOf(paragraph.format));
    const ListWriter::Place place = lists_.Join(paragraph.mark);
    const bool isItem = place != ListWriter::Place::Outside;
    QTextBlockFormat format = context_.formats.BlockFormat(isItem ? paragraph.itemFormat : paragraph.format);
    if (paragraph.breakBefore)
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (place == ListWriter::Place::Continues)
        format.setObjectIndex(lists_.IndexOf(paragraph.mark));
    if (fresh_) {
        cursor_.setBlockFormat(format);
        cursor_.setBlockCharFormat(endFormat);
    } else {
        cursor_.insertBlock(format, endFormat);
    }
    fresh_ = false;
    first_ = false;
    if (place == ListWriter::Place::Starts)
        lists_.Start(paragraph.mark, cursor_);
    else if (!isItem && !paragraph.mark.literal.isEmpty())
        cursor_.insertText(paragraph.mark.literal + u'\t', endFormat);
}

void FlowWriter::WriteSpans(const Paragraph& paragraph)
{
    qsizetype at = 0;
    for (const Span& span : paragraph.spans) {
        const QTextCharFormat& format = context_.formats.CharacterFormat(span.format);
        if (span.picture != 0) {
            QTextImageFormat image;
            image.merge(format);
            image.setName(PictureStore::NameOf(span.picture));
            const QSizeF size = context_.pictures.SizeOf(span.picture);
            image.setWidth(size.width());
            image.setHeight(size.height());
            cursor_.insertImage(image);
        } else {
            cursor_.insertText(QString::fromRawData(paragraph.text.constData() + at, span.length), format);
        }
        at += span.length;
    }
}

} // namespace torvik::rtf
