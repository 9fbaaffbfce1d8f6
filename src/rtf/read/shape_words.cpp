#include "rtf/bounds/limits.h"
#include "rtf/read/interpreter.h"
#include "rtf/read/word_table.h"

// Words of drawn objects: "shp" and the like of the newer generation, "dp" of the older one.

namespace torvik::rtf {

namespace {

Shape& ShapeOf(Interpreter& interpreter)
{
    return interpreter.Shapes().Current();
}

template <int Shape::*length>
void SetShapeLength(Interpreter& interpreter, const Argument& argument)
{
    ShapeOf(interpreter).*length = argument.Within(-maxTwips, maxTwips);
}

template <bool Shape::*flag, bool value = true>
void SetShapeFlag(Interpreter& interpreter, const Argument&)
{
    ShapeOf(interpreter).*flag = value;
}

template <ShapeKind kind>
void BeginPrimitive(Interpreter& interpreter, const Argument&)
{
    interpreter.Shapes().BeginPrimitive(kind);
}

template <QColor Shape::*color, void (QColor::*set)(int)>
void SetColorPart(Interpreter& interpreter, const Argument& argument)
{
    QColor& target = ShapeOf(interpreter).*color;
    if (!target.isValid())
        target = Qt::black;
    (target.*set)(argument.Within(0, 255));
}

template <BorderLine line>
void SetShapeLine(Interpreter& interpreter, const Argument&)
{
    ShapeOf(interpreter).line = line;
}

/// The place of a corner, counted from that of its shape; x comes first.
void SetCornerX(Interpreter& interpreter, const Argument& argument)
{
    interpreter.Shapes().AddCorner(argument.Within(-maxTwips, maxTwips), 0);
}

void SetCornerY(Interpreter& interpreter, const Argument& argument)
{
    std::vector<QPointF>& corners = ShapeOf(interpreter).corners;
    if (!corners.empty())
        corners.back().setY(argument.Within(-maxTwips, maxTwips));
}

void SetInset(Interpreter& interpreter, const Argument& argument)
{
    for (int& side : ShapeOf(interpreter).padding)
        side = argument.Within(0, 1440);
}

constexpr WordEntry shapeEntries[] = {
    {"sn", [](Interpreter& r, const Argument&) { r.Enter(Destination::ShapePropertyName); }},
    {"sv", [](Interpreter& r, const Argument&) { r.Enter(Destination::ShapePropertyValue); }},
    {"shpleft", SetShapeLength<&Shape::left>},
    {"shptop", SetShapeLength<&Shape::top>},
    {"shpright",
     [](Interpreter& r, const Argument& a) {
         ShapeOf(r).width = a.Within(-maxTwips, maxTwips) - ShapeOf(r).left;
     }},
    {"shpbottom",
     [](Interpreter& r, const Argument& a) {
         ShapeOf(r).height = a.Within(-maxTwips, maxTwips) - ShapeOf(r).top;
     }},
    {"shpbxpage", SetShapeFlag<&Shape::fromPage>},
    {"shpfblwtxt", [](Interpreter& r, const Argument& a) { ShapeOf(r).isBehindText = a.value == 1; }},
    {"dobxpage", SetShapeFlag<&Shape::fromPage>},
    {"dpline", BeginPrimitive<ShapeKind::Line>},
    {"dprect", BeginPrimitive<ShapeKind::Rectangle>},
    {"dproundr", [](Interpreter& r, const Argument&) { ShapeOf(r).kind = ShapeKind::RoundRectangle; }},
    {"dpellipse", BeginPrimitive<ShapeKind::Ellipse>},
    {"dparc", BeginPrimitive<ShapeKind::Arc>},
    {"dppolyline", BeginPrimitive<ShapeKind::Polyline>},
    {"dppolygon", [](Interpreter& r, const Argument&) { ShapeOf(r).kind = ShapeKind::Polygon; }},
    {"dptxbx", BeginPrimitive<ShapeKind::Rectangle>},
    {"dpcallout", BeginPrimitive<ShapeKind::Polyline>},
    {"dpx", SetShapeLength<&Shape::left>},
    {"dpy", SetShapeLength<&Shape::top>},
    {"dpxsize", SetShapeLength<&Shape::width>},
    {"dpysize", SetShapeLength<&Shape::height>},
    {"dpptx", SetCornerX},
    {"dppty", SetCornerY},
    {"dparcflipx", SetShapeFlag<&Shape::flipX>},
    {"dparcflipy", SetShapeFlag<&Shape::flipY>},
    {"dptxbxmar", SetInset},
    {"dplinew", [](Interpreter& r, const Argument& a) { ShapeOf(r).lineWidth = a.Within(1, 600, 15); }},
    {"dplinehollow", SetShapeFlag<&Shape::hasLine, false>},
    {"dplinesolid", SetShapeLine<BorderLine::Solid>},
    {"dplinedash", SetShapeLine<BorderLine::Dashed>},
    {"dplinedot", SetShapeLine<BorderLine::Dotted>},
    {"dplinedado", SetShapeLine<BorderLine::DotDash>},
    {"dplinedadodo", SetShapeLine<BorderLine::DotDotDash>},
    {"dplinecor", SetColorPart<&Shape::lineColor, &QColor::setRed>},
    {"dplinecog", SetColorPart<&Shape::lineColor, &QColor::setGreen>},
    {"dplinecob", SetColorPart<&Shape::lineColor, &QColor::setBlue>},
    {"dpfillbgcr", SetColorPart<&Shape::fill, &QColor::setRed>},
    {"dpfillbgcg", SetColorPart<&Shape::fill, &QColor::setGreen>},
    {"dpfillbgcb", SetColorPart<&Shape::fill, &QColor::setBlue>},
    {"dpfillpat", [](Interpreter& r, const Argument& a) { ShapeOf(r).hasFill = a.value != 0; }},
};

} // namespace

std::span<const WordEntry> ShapeWords()
{
    return shapeEntries;
}

} // namespace torvik::rtf
