#include "rtf/write/paragraph_box.h"

#include "rtf/bounds/limits.h"
#include "rtf/write/border_style.h"

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

} // namespace

bool SharesBox(const ParagraphState& a, const ParagraphState& b)
{
    return std::equal(std::begin(a.borders), std::end(a.borders), std::begin(b.borders)) &&
           a.leftIndent == b.leftIndent && a.rightIndent == b.rightIndent && a.frame == b.frame;
}

QTextTable* InsertBox(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors,
                      const PageMeasures& page)
{
    const QColor back =
        ShadedColor(colors.ChosenAt(state.patternColor), colors.ChosenAt(state.background), state.shading);
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    SetPlace(format, state.frame, page);
    QTextTable* table = cursor.insertTable(1, 1, format);
    QTextTableCell cell = table->cellAt(0, 0);
    QTextCharFormat looks = cell.format();
    QTextTableCellFormat borders;
    SetCellBorders(
        borders, [&](int side) -> const Border& { return state.borders[side]; }, colors);
    if (back.isValid())
        borders.setBackground(back);
    SetPaddings(borders, state);
    looks.merge(borders);
    cell.setFormat(looks);
    cursor = cell.firstCursorPosition();
    return table;
}

} // namespace torvik::rtf
