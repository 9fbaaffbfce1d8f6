#include "rtf/write/paragraph_box.h"

#include "rtf/bounds/limits.h"
#include "rtf/write/border_style.h"
#include "rtf/write/edge_spaces.h"

#include <QTextTable>

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

namespace {

/// Between border and text of a box, at least, pixels.
constexpr double boxPadding = 4;

/// A frame keeps its width, or is as wide as its text where it stands apart from the left edge, and stays
/// within the text that it stands in.
void SetPlace(QTextTableFormat& format, const FramePlace& frame, const PageMeasures& page)
{
    const bool isApart = frame.across != FramePlace::Across::Left;
    if (!frame.isSet || (frame.width <= 0 && !isApart)) {
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        return;
    }
    if (frame.width > 0)
        format.setColumnWidthConstraints(
            {QTextLength(QTextLength::FixedLength, PixelsFromTwips(frame.width))});
    // Within whatever width the text has in a window or on paper.
    if (frame.across == FramePlace::Across::Center)
        return format.setAlignment(Qt::AlignHCenter);
    if (frame.across == FramePlace::Across::Right)
        return format.setAlignment(Qt::AlignRight);
    const int left = frame.fromPage ? frame.left - page.leftMargin : frame.left;
    format.setLeftMargin(PixelsFromTwips(std::clamp(left, 0, std::max(page.TextWidth() - frame.width, 0))));
}

void SetPaddings(QTextTableCellFormat& format, const ParagraphState& state)
{
    const double least = state.HasBox() ? boxPadding : 0;
    const auto paddingAt = [&](Side side) {
        const Border& border = state.borders[side];
        return std::max(least, border.IsSet() ? PixelsFromTwips(border.space) : 0);
    };
    format.setTopPadding(paddingAt(SideTop));
    format.setLeftPadding(paddingAt(SideLeft));
    format.setBottomPadding(paddingAt(SideBottom));
    format.setRightPadding(paddingAt(SideRight));
}

QTextTableCellFormat CellFormatOf(const ParagraphState& state, const ColorTable& colors)
{
    QTextTableCellFormat format;
    SetCellBorders(
        format, [&](int side) -> const Border& { return state.borders[side]; }, colors);
    const QColor back =
        ShadedColor(colors.ChosenAt(state.patternColor), colors.ChosenAt(state.background), state.shading);
    if (back.isValid())
        format.setBackground(back);
    SetPaddings(format, state);
    return format;
}

/// What the format already tells of the cell's place in its table stays.
void MergeInto(QTextTableCell cell, const QTextTableCellFormat& looks)
{
    QTextCharFormat format = cell.format();
    format.merge(looks);
    cell.setFormat(format);
}

} // namespace

bool SharesBox(const ParagraphState& a, const ParagraphState& b)
{
    return std::equal(std::begin(a.borders), std::end(a.borders), std::begin(b.borders)) &&
           a.between == b.between && a.leftIndent == b.leftIndent && a.rightIndent == b.rightIndent &&
           a.frame == b.frame;
}

QTextTable* InsertBox(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors,
                      const PageMeasures& page)
{
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    SetPlace(format, state.frame, page);
    QTextTable* table = cursor.insertTable(1, 1, format);
    const QTextTableCell cell = table->cellAt(0, 0);
    MergeInto(cell, CellFormatOf(state, colors));
    cursor = cell.firstCursorPosition();
    return table;
}

void PartBox(QTextTable& box, QTextCursor& cursor, const ParagraphState& state, int spaceAbove,
             const ColorTable& colors)
{
    const double room = PixelsFromTwips(state.between.space);
    QTextTableCellFormat upper;
    upper.setBottomBorder(0);
    upper.setBottomPadding(room + PixelsFromTwips(std::min(spaceAbove, largestEdgeSpace)));
    MergeInto(box.cellAt(box.rows() - 1, 0), upper);
    box.appendRows(1);
    ParagraphState below = state;
    below.borders[SideTop] = state.between;
    QTextTableCellFormat lower = CellFormatOf(below, colors);
    SetPaddings(lower, state); // the line makes no box of borders that are none
    lower.setTopPadding(room + PixelsFromTwips(std::min(state.spaceBefore, largestEdgeSpace)));
    const QTextTableCell cell = box.cellAt(box.rows() - 1, 0);
    MergeInto(cell, lower);
    cursor = cell.firstCursorPosition();
}

} // namespace torvik::rtf
