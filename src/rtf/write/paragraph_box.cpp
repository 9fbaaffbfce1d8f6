#include "rtf/write/paragraph_box.h"

#include "rtf/bounds/limits.h"
#include "rtf/write/border_style.h"

#include <QTextTable>

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

namespace {

/// Between border and text, pixels.
constexpr double boxPadding = 4;

QTextFrame* InsertFrame(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors,
                        const QColor& back)
{
    const auto* edge = std::find_if(std::begin(state.borders), std::end(state.borders),
                                    [](const Border& border) { return border.IsSet(); });
    QTextFrameFormat format;
    const QColor color = colors.ChosenAt(edge->color);
    format.setBorder(BorderPixels(*edge));
    format.setBorderStyle(BorderStyleOf(edge->line));
    format.setBorderBrush(color.isValid() ? color : QColor(Qt::black));
    format.setPadding(boxPadding);
    if (back.isValid())
        format.setBackground(back);
    QTextFrame* frame = cursor.insertFrame(format);
    cursor = frame->firstCursorPosition();
    return frame;
}

QTextFrame* InsertCell(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors,
                       const QColor& back)
{
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    QTextTable* table = cursor.insertTable(1, 1, format);
    QTextTableCell cell = table->cellAt(0, 0);
    QTextCharFormat looks = cell.format();
    QTextTableCellFormat borders;
    SetCellBorders(
        borders, [&](int side) -> const Border& { return state.borders[side]; }, colors);
    if (back.isValid())
        borders.setBackground(back);
    looks.merge(borders);
    cell.setFormat(looks);
    cursor = cell.firstCursorPosition();
    return table;
}

} // namespace

bool SharesBox(const ParagraphState& a, const ParagraphState& b)
{
    return std::equal(std::begin(a.borders), std::end(a.borders), std::begin(b.borders)) &&
           a.leftIndent == b.leftIndent && a.rightIndent == b.rightIndent;
}

QTextFrame* InsertBox(QTextCursor& cursor, const ParagraphState& state, const ColorTable& colors)
{
    const QColor back =
        ShadedColor(colors.ChosenAt(state.patternColor), colors.ChosenAt(state.background), state.shading);
    return state.HasBox() ? InsertFrame(cursor, state, colors, back)
                          : InsertCell(cursor, state, colors, back);
}

} // namespace torvik::rtf
