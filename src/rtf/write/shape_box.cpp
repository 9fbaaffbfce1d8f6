#include "rtf/write/shape_box.h"

#include "rtf/bounds/limits.h"
#include "rtf/model/content.h"
#include "rtf/paint/format_properties.h"
#include "rtf/write/border_style.h"

#include <QTextTable>

namespace torvik::rtf {

namespace {

void SetEdges(QTextTableCellFormat& format, const BoxStyle& style)
{
    if (style.line == BorderLine::None || style.lineWidth <= 0)
        return;
    const Border edge{style.line, style.lineWidth, 0};
    const QBrush brush(style.lineColor.isValid() ? style.lineColor : QColor(Qt::black));
    format.setBorder(BorderPixels(edge));
    format.setBorderStyle(BorderStyleOf(style.line));
    format.setBorderBrush(brush);
}

} // namespace

QTextTable* InsertShapeBox(QTextCursor& cursor, const BoxStyle& style)
{
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    if (style.left > 0)
        format.setLeftMargin(PixelsFromTwips(style.left));
    if (style.width > 0)
        format.setColumnWidthConstraints(
            {QTextLength(QTextLength::FixedLength, PixelsFromTwips(style.width))});
    else
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    QTextTable* table = cursor.insertTable(1, 1, format);
    QTextTableCell cell = table->cellAt(0, 0);
    QTextCharFormat looks = cell.format();
    QTextTableCellFormat inside;
    SetEdges(inside, style);
    if (style.height > 0)
        inside.setProperty(RowHeightProperty, PixelsFromTwips(style.height));
    if (style.fill.isValid())
        inside.setBackground(style.fill);
    inside.setTopPadding(PixelsFromTwips(style.padding[SideTop]));
    inside.setLeftPadding(PixelsFromTwips(style.padding[SideLeft]));
    inside.setBottomPadding(PixelsFromTwips(style.padding[SideBottom]));
    inside.setRightPadding(PixelsFromTwips(style.padding[SideRight]));
    looks.merge(inside);
    cell.setFormat(looks);
    return table;
}

} // namespace torvik::rtf
