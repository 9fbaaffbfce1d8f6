#include "rtf/metafile/gdi_state.h"

#include <algorithm>
#include <cmath>

namespace torvik::rtf {

namespace {

constexpr Qt::PenStyle penStyles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                      Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                      Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};

/// Flags in the style of a pen: how its lines end and how they meet; round without any.
enum PenShape : unsigned {
    SquareEnds = 0x100,
    FlatEnds = 0x200,
    BevelCorners = 0x1000,
    MiterCorners = 0x2000
};
enum BrushKind { SolidBrush = 0, HollowBrush = 1, HatchedBrush = 2 };

Qt::PenCapStyle CapOf(unsigned penStyle)
{
    switch (penStyle & 0xf00U) {
    case SquareEnds:
        return Qt::SquareCap;
    case FlatEnds:
        return Qt::FlatCap;
    default:
        return Qt::RoundCap;
    }
}

Qt::PenJoinStyle JoinOf(unsigned penStyle)
{
    switch (penStyle & 0xf000U) {
    case BevelCorners:
        return Qt::BevelJoin;
    case MiterCorners:
        return Qt::MiterJoin;
    default:
        return Qt::RoundJoin;
    }
}

double Ratio(double of, double to)
{
    return to == 0 ? 1 : of / to;
}

} // namespace

QTransform GdiMapping::ToDevice() const
{
    double across = Ratio(viewportExtent.width(), windowExtent.width());
    double down = Ratio(viewportExtent.height(), windowExtent.height());
    if (isEven) {
        // The viewport shrinks in one direction.
        const double unit = std::min(std::abs(across), std::abs(down));
        across = std::copysign(unit, across);
        down = std::copysign(unit, down);
    }
    QTransform page;
    page.translate(viewportOrigin.x(), viewportOrigin.y());
    page.scale(across, down);
    page.translate(-windowOrigin.x(), -windowOrigin.y());
    return world * page;
}

QColor GdiColor(quint32 value)
{
    return {static_cast<int>(value & 255U), static_cast<int>(value >> 8U & 255U),
            static_cast<int>(value >> 16U & 255U)};
}

QPen GdiPen(int style, double width, quint32 color)
{
    const auto bits = static_cast<unsigned>(style);
    const auto place = bits & 15U;
    const Qt::PenStyle line = place < std::size(penStyles) ? penStyles[place] : Qt::SolidLine;
    QPen pen(GdiColor(color), std::abs(width), line, CapOf(bits), JoinOf(bits));
    // Qt counts from the corner itself, drawings from the inner side of the line to the tip: 10.
    pen.setMiterLimit(5);
    return pen;
}

QBrush GdiBrush(int style, quint32 color, int hatch)
{
    switch (style) {
    case SolidBrush:
        return {GdiColor(color)};
    case HollowBrush:
        return {Qt::NoBrush};
    case HatchedBrush:
        if (hatch >= 0 && hatch < static_cast<int>(std::size(hatches)))
            return {GdiColor(color), hatches[hatch]};
        return {GdiColor(color)};
    default:
        return {Qt::gray};
    }
}

QBrush GdiPatternBrush(const QImage& pattern, bool takesColors)
{
    if (pattern.isNull())
        return {Qt::gray};
    // Only a pattern that takes the colours stays one of two colours.
    const bool staysMono = takesColors && pattern.format() == QImage::Format_Mono;
    return QBrush(staysMono ? pattern : pattern.convertToFormat(QImage::Format_RGB32));
}

GdiObject GdiStockObject(StockObject object)
{
    switch (object) {
    case StockObject::WhiteBrush:
        return QBrush(Qt::white);
    case StockObject::LightGrayBrush:
        return QBrush(QColor(192, 192, 192));
    case StockObject::GrayBrush:
        return QBrush(QColor(128, 128, 128));
    case StockObject::DarkGrayBrush:
        return QBrush(QColor(64, 64, 64));
    case StockObject::BlackBrush:
        return QBrush(Qt::black);
    case StockObject::NullBrush:
        return QBrush(Qt::NoBrush);
    case StockObject::WhitePen:
        return QPen(Qt::white);
    case StockObject::BlackPen:
        return QPen(Qt::black);
    case StockObject::NullPen:
        return QPen(Qt::NoPen);
    case StockObject::OemFixedFont:
    case StockObject::AnsiFixedFont:
    case StockObject::AnsiVarFont:
    case StockObject::SystemFont:
    case StockObject::DeviceDefaultFont:
    case StockObject::SystemFixedFont:
    case StockObject::DefaultGuiFont:
        return GdiFont();
    }
    return {};
}

} // namespace torvik::rtf
