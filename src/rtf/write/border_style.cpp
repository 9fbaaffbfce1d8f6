#include "rtf/write/border_style.h"

#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

QTextFrameFormat::BorderStyle BorderStyleOf(BorderLine line)
{
    switch (line) {
    case BorderLine::None:
        return QTextFrameFormat::BorderStyle_None;
    case BorderLine::Double:
    case BorderLine::Unequal: // Qt has none such
        return QTextFrameFormat::BorderStyle_Double;
    case BorderLine::Dotted:
        return QTextFrameFormat::BorderStyle_Dotted;
    case BorderLine::Dashed:
        return QTextFrameFormat::BorderStyle_Dashed;
    case BorderLine::DotDash:
        return QTextFrameFormat::BorderStyle_DotDash;
    case BorderLine::DotDotDash:
        return QTextFrameFormat::BorderStyle_DotDotDash;
    case BorderLine::Groove:
        return QTextFrameFormat::BorderStyle_Groove;
    case BorderLine::Ridge:
        return QTextFrameFormat::BorderStyle_Ridge;
    case BorderLine::Inset:
        return QTextFrameFormat::BorderStyle_Inset;
    case BorderLine::Outset:
        return QTextFrameFormat::BorderStyle_Outset;
    case BorderLine::Solid:
    case BorderLine::Thick:
        break;
    }
    return QTextFrameFormat::BorderStyle_Solid;
}

double BorderPixels(const Border& border)
{
    if (!border.IsSet())
        return 0;
    // The width that is told is that of each of two lines, and of the room between them.
    const bool isDouble = border.line == BorderLine::Double;
    const bool isTwice = border.line == BorderLine::Thick || border.line == BorderLine::Unequal;
    const double drawn = PixelsFromTwips(border.width) * (isDouble ? 3 : isTwice ? 2 : 1);
    const double least = isDouble || border.line == BorderLine::Unequal ? 3 : 1;
    return std::clamp(drawn, least, 20.0);
}

void SetCellBorders(QTextTableCellFormat& format, const std::function<const Border&(int side)>& borderOf,
                    const ColorTable& colors)
{
    const auto set = [&](int side, auto setWidth, auto setStyle, auto setBrush) {
        const Border& border = borderOf(side);
        if (!border.IsSet())
            return;
        const QColor color = colors.ChosenAt(border.color);
        (format.*setWidth)(BorderPixels(border));
        (format.*setStyle)(BorderStyleOf(border.line));
        (format.*setBrush)(QBrush(color.isValid() ? color : QColor(Qt::black)));
    };
    using Format = QTextTableCellFormat;
    set(SideTop, &Format::setTopBorder, &Format::setTopBorderStyle, &Format::setTopBorderBrush);
    set(SideLeft, &Format::setLeftBorder, &Format::setLeftBorderStyle, &Format::setLeftBorderBrush);
    set(SideBottom, &Format::setBottomBorder, &Format::setBottomBorderStyle, &Format::setBottomBorderBrush);
    set(SideRight, &Format::setRightBorder, &Format::setRightBorderStyle, &Format::setRightBorderBrush);
}

} // namespace torvik::rtf
