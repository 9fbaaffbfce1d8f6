#include "rtf/parts/shape.h"

#include "rtf/bounds/limits.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

constexpr int emuPerTwip = 635;
/// Corners count in parts of this where the document names no space for them.
constexpr double usualCornerSpace = 21600;
/// Narrower than this a box would break words into letters, twips.
constexpr int leastBoxWidth = 300;
constexpr int highestBox = 14400;

/// Colours are written with red in the lowest byte.
QColor ColorOf(qint64 value)
{
    constexpr unsigned byte = 0xff;
    const auto bits = static_cast<unsigned>(value);
    return {static_cast<int>(bits & byte), static_cast<int>(bits >> 8U & byte),
            static_cast<int>(bits >> 16U & byte)};
}

int TwipsFromEmu(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value / emuPerTwip, -maxTwips, maxTwips));
}

ShapeKind KindOfType(int type)
{
    switch (type) {
    case 0:
        return ShapeKind::Polygon;
    case 2:
    case 62: // a call-out with round corners
    case 176:
        return ShapeKind::RoundRectangle;
    case 3:
    case 63:
    case 120:
        return ShapeKind::Ellipse;
    case 4:
    case 110:
        return ShapeKind::Diamond;
    case 5:
        return ShapeKind::Triangle;
    case 19:
        return ShapeKind::Arc;
    case 20:
    case 32:
    case 33:
    case 34:
        return ShapeKind::Line;
    case 75: // a picture's frame
        return ShapeKind::None;
    default:
        return ShapeKind::Rectangle;
    }
}

Qt::PenStyle PenOf(BorderLine line)
{
    switch (line) {
    case BorderLine::Dotted:
        return Qt::DotLine;
    case BorderLine::Dashed:
        return Qt::DashLine;
    case BorderLine::DotDash:
        return Qt::DashDotLine;
    case BorderLine::DotDotDash:
        return Qt::DashDotDotLine;
    default:
        return Qt::SolidLine;
    }
}

BorderLine LineOfDashing(qint64 dashing)
{
    constexpr BorderLine lines[] = {BorderLine::Solid,   BorderLine::Dashed,     BorderLine::Dotted,
                                    BorderLine::DotDash, BorderLine::DotDotDash, BorderLine::Dotted,
                                    BorderLine::Dashed,  BorderLine::Dashed,     BorderLine::DotDash,
                                    BorderLine::DotDash, BorderLine::DotDotDash};
    return dashing >= 0 && dashing < qint64(std::size(lines)) ? lines[dashing] : BorderLine::Solid;
}

/// Corners as they are written: their size in bytes, their number, then "(x,y)" for each.
std::vector<QPointF> CornersFrom(const QString& value)
{
    std::vector<QPointF> corners;
    qsizetype at = value.indexOf(u'(');
    while (at >= 0 && corners.size() < std::size_t(maxCorners)) {
        const qsizetype comma = value.indexOf(u',', at);
        const qsizetype end = value.indexOf(u')', at);
        if (comma < 0 || end < comma)
            break;
        corners.emplace_back(value.mid(at + 1, comma - at - 1).toInt(),
                             value.mid(comma + 1, end - comma - 1).toInt());
        at = value.indexOf(u'(', end);
    }
    return corners;
}

using Setter = void (*)(Shape& shape, qint64 value);

const QHash<QString, Setter>& Setters()
{
    static const QHash<QString, Setter> setters{
        {u"shapeType"_s, [](Shape& s, qint64 v) { s.kind = KindOfType(int(v)); }},
        {u"fFlipH"_s, [](Shape& s, qint64 v) { s.flipX = v != 0; }},
        {u"fFlipV"_s, [](Shape& s, qint64 v) { s.flipY = v != 0; }},
        {u"fLine"_s, [](Shape& s, qint64 v) { s.hasLine = v != 0; }},
        {u"lineColor"_s, [](Shape& s, qint64 v) { s.lineColor = ColorOf(v); }},
        {u"lineWidth"_s, [](Shape& s, qint64 v) { s.lineWidth = std::max(TwipsFromEmu(v), 1); }},
        {u"lineDashing"_s, [](Shape& s, qint64 v) { s.line = LineOfDashing(v); }},
        {u"fFilled"_s, [](Shape& s, qint64 v) { s.hasFill = v != 0; }},
        {u"fillColor"_s, [](Shape& s, qint64 v) { s.fill = ColorOf(v); }},
        {u"fBehindDocument"_s, [](Shape& s, qint64 v) { s.isBehindText = v != 0; }},
        {u"fHidden"_s, [](Shape& s, qint64 v) { s.isHidden = v != 0; }},
        {u"dxTextLeft"_s, [](Shape& s, qint64 v) { s.padding[SideLeft] = std::max(TwipsFromEmu(v), 0); }},
        {u"dyTextTop"_s, [](Shape& s, qint64 v) { s.padding[SideTop] = std::max(TwipsFromEmu(v), 0); }},
        {u"dxTextRight"_s, [](Shape& s, qint64 v) { s.padding[SideRight] = std::max(TwipsFromEmu(v), 0); }},
        {u"dyTextBottom"_s, [](Shape& s, qint64 v) { s.padding[SideBottom] = std::max(TwipsFromEmu(v), 0); }},
        {u"geoLeft"_s, [](Shape& s, qint64 v) { s.cornerSpace.setLeft(double(v)); }},
        {u"geoTop"_s, [](Shape& s, qint64 v) { s.cornerSpace.setTop(double(v)); }},
        {u"geoRight"_s, [](Shape& s, qint64 v) { s.cornerSpace.setRight(double(v)); }},
        {u"geoBottom"_s, [](Shape& s, qint64 v) { s.cornerSpace.setBottom(double(v)); }},
        {u"groupLeft"_s, [](Shape& s, qint64 v) { s.memberSpace.setLeft(double(v)); }},
        {u"groupTop"_s, [](Shape& s, qint64 v) { s.memberSpace.setTop(double(v)); }},
        {u"groupRight"_s, [](Shape& s, qint64 v) { s.memberSpace.setRight(double(v)); }},
        {u"groupBottom"_s, [](Shape& s, qint64 v) { s.memberSpace.setBottom(double(v)); }},
        {u"relLeft"_s,
         [](Shape& s, qint64 v) {
             s.left = int(v);
             s.isMember = true;
         }},
        {u"relTop"_s, [](Shape& s, qint64 v) { s.top = int(v); }},
        {u"relRight"_s, [](Shape& s, qint64 v) { s.width = int(v) - s.left; }},
        {u"relBottom"_s, [](Shape& s, qint64 v) { s.height = int(v) - s.top; }},
    };
    return setters;
}

} // namespace

void SetShapeProperty(Shape& shape, const QString& name, const QString& value)
{
    constexpr qint64 farthest = 1'000'000'000;
    if (name == QLatin1StringView("pVerticies")) {
        shape.corners = CornersFrom(value);
        if (shape.cornerSpace.isEmpty())
            shape.cornerSpace = QRectF(0, 0, usualCornerSpace, usualCornerSpace);
    } else if (name == QLatin1StringView("gtextUNICODE"))
        shape.artText = value.left(maxAsideText);
    else if (const Setter setter = Setters().value(name, nullptr))
        setter(shape, std::clamp(value.trimmed().toLongLong(), -farthest, farthest));
}

DrawnShape DrawnFrom(const Shape& shape)
{
    DrawnShape drawn;
    drawn.kind = shape.kind;
    const auto bounded = [](int twips) { return PixelsFromTwips(std::clamp(twips, -maxTwips, maxTwips)); };
    drawn.bounds =
        QRectF(bounded(shape.left), bounded(shape.top), bounded(shape.width), bounded(shape.height));
    drawn.flipX = shape.flipX;
    drawn.flipY = shape.flipY;
    drawn.pen = PenOf(shape.line);
    if (shape.hasLine)
        drawn.lineColor = shape.lineColor;
    // The flat end of a hairline is still a point wide.
    drawn.lineWidth = std::clamp(PixelsFromTwips(shape.lineWidth), 1.0, 40.0);
    const bool isOpen = shape.kind == ShapeKind::Line || shape.kind == ShapeKind::Arc;
    if (shape.hasFill && !isOpen)
        drawn.fill = shape.fill.isValid() ? shape.fill : QColor(Qt::white);
    const QRectF space =
        shape.cornerSpace.isEmpty() ? QRectF(0, 0, shape.width, shape.height) : shape.cornerSpace;
    for (const QPointF& corner : shape.corners) {
        if (space.width() > 0 && space.height() > 0)
            drawn.corners.emplace_back(std::clamp((corner.x() - space.left()) / space.width(), -1.0, 2.0),
                                       std::clamp((corner.y() - space.top()) / space.height(), -1.0, 2.0));
    }
    if (shape.kind == ShapeKind::Line && shape.corners.size() == 2) {
        const QPointF way = shape.corners[1] - shape.corners[0];
        drawn.flipY = way.x() * way.y() < 0;
    }
    const bool needsCorners = shape.kind == ShapeKind::Polygon || shape.kind == ShapeKind::Polyline;
    if (needsCorners && drawn.corners.size() < 2)
        drawn.kind = ShapeKind::None;
    if (!drawn.lineColor.isValid() && !drawn.fill.isValid())
        drawn.kind = ShapeKind::None;
    return drawn;
}

BoxStyle BoxStyleOf(const Shape& shape, int textWidth, int leftMargin)
{
    BoxStyle style;
    if (shape.width > 0)
        style.width = std::clamp(shape.width, leastBoxWidth, maxTwips);
    // Letters that are a picture of themselves have no room around them.
    if (shape.artText.isEmpty())
        style.height = std::clamp(shape.height, 0, highestBox);
    const int left = shape.fromPage ? shape.left - leftMargin : shape.left;
    style.left = std::clamp(left, 0, std::max(textWidth - style.width, 0));
    if (shape.hasLine) {
        style.line = shape.line;
        style.lineWidth = shape.lineWidth;
        style.lineColor = shape.lineColor;
    }
    if (shape.hasFill)
        style.fill = shape.fill;
    std::copy(std::begin(shape.padding), std::end(shape.padding), std::begin(style.padding));
    for (int& side : style.padding)
        side = std::clamp(side, 0, 1440);
    return style;
}

} // namespace torvik::rtf
