#include "sample/drawings/script.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/shapes.h"
#include "sample/geometry/vec.h"

#include <cmath>

namespace torvik::sample {

namespace {
/// Goes on with an outline: two numbers lead to a point, four and six along a curve.
void Extend(QPainterPath& path, const Value& step)
{
    std::vector<double> n;
    for (const Value& item : step.Items()) {
        if (item.IsList())
            n.insert(n.end(), {item.At(0).Number(), item.At(1).Number()});
        else
            n.push_back(item.Number());
    }
    if (n.size() == 2 && path.elementCount() == 0)
        path.moveTo(n[0], n[1]);
    else if (n.size() == 2)
        path.lineTo(n[0], n[1]);
    else if (n.size() == 4)
        path.quadTo(n[0], n[1], n[2], n[3]);
    else
        path.cubicTo(n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5));
}

QPainterPath PathOf(QPainterPath path, const Value::List& steps)
{
    for (const Value& step : steps)
        Extend(path, step);
    return path;
}

Stops StopsOf(const Value& list)
{
    Stops stops;
    for (const Value& stop : list.Items())
        stops.emplace_back(stop.At(0).Number(), stop.At(1).Colour());
    return stops;
}

Value WithPlaces(const Value& pairs, const std::function<QColor(int)>& colourOf)
{
    Value::List stops;
    for (const Value& pair : pairs.Items())
        stops.push_back(Value::List{pair.At(0), colourOf(pair.At(1).Whole())});
    return stops;
}

/// A family, whether it is bold and italic, its spacing and its stretch.
Type TypeOf(const Value& list)
{
    Type type{list.At(0).Text()};
    const std::size_t count = list.Items().size();
    type.bold = count > 1 && list.At(1).Number() != 0;
    type.italic = count > 2 && list.At(2).Number() != 0;
    type.spacing = count > 3 ? list.At(3).Number() : type.spacing;
    type.stretch = count > 4 ? list.At(4).Number() : type.stretch;
    return type;
}

/// From the first number to the second, added up step by step as a loop does; the second may be left out.
Value Steps(const Arguments& a, bool withLast)
{
    Value::List items;
    const double step = a.Number(2);
    const double to = a.Number(1);
    for (double at = a.Number(0); (step > 0 ? at < to : at > to) || (withLast && at == to); at += step)
        items.emplace_back(at);
    return items;
}

Value Range(const Arguments& a)
{
    Value::List items;
    for (int i = a.size() > 1 ? a.Whole(0) : 0; i < a.back().Whole(); ++i)
        items.emplace_back(i);
    return items;
}

Value Colour(const Arguments& a)
{
    return QColor(a.Whole(0), a.Whole(1), a.Whole(2), a.size() > 3 ? a.Whole(3) : 255);
}

Value Translucent(const Arguments& a)
{
    QColor colour = a.Colour(0);
    colour.setAlpha(a.Whole(1));
    return colour;
}

Value WordsOf(const Arguments& a)
{
    QString text = a.Text(0);
    for (std::size_t i = 1; i < a.size(); ++i)
        text = text.arg(a[i].Words());
    return text;
}

Value Extreme(const Arguments& a, bool largest)
{
    double found = a.Number(0);
    for (const Value& value : a)
        found = largest ? std::max(found, value.Number()) : std::min(found, value.Number());
    return found;
}

Value RadialOf(const Arguments& a)
{
    if (a.size() > 3)
        return QBrush(Radial(a.Point(0), a.Number(1), a.Point(2), StopsOf(a[3])));
    return QBrush(Radial(a.Point(0), a.Number(1), StopsOf(a.at(2))));
}

/// The outline of words that begin at a point, in a font of so many pixels.
Value Written(const Arguments& a)
{
    const QByteArray family = a.Text(2).toLatin1();
    QPainterPath path;
    path.addText(a.Point(1), FontOf(family.constData(), a.Number(3), a.IsSet(4), a.IsSet(5)), a.Text(0));
    return path;
}

/// A shape after moves (pairs) and turns (single numbers) of its paper.
Value Steered(const Arguments& a)
{
    QTransform way;
    for (const Value& step : a.Items(1)) {
        if (step.Items().size() == 1)
            way.rotate(step.At(0).Number());
        else
            way.translate(step.Point().x(), step.Point().y());
    }
    return way.map(a.Path(0));
}

void TeachNumbers(Script& script)
{
    script.Set(QStringLiteral("pi"), pi);
    const std::pair<const char*, double (*)(double)> functions[] = {
        {"sin", [](double v) { return std::sin(v); }},     {"cos", [](double v) { return std::cos(v); }},
        {"sqrt", [](double v) { return std::sqrt(v); }},   {"abs", [](double v) { return std::abs(v); }},
        {"floor", [](double v) { return std::floor(v); }}, {"int", [](double v) { return std::trunc(v); }}};
    for (const auto& [name, function] : functions)
        script.Teach(name, [function = function](const Arguments& a) { return function(a.Number(0)); });
    script.Teach("pow", [](const Arguments& a) { return std::pow(a.Number(0), a.Number(1)); });
    script.Teach("mix", [](const Arguments& a) { return Mix(a.Number(0), a.Number(1), a.Number(2)); });
    script.Teach("max", [](const Arguments& a) { return Extreme(a, true); });
    script.Teach("min", [](const Arguments& a) { return Extreme(a, false); });
    script.Teach("with", [](const Arguments& a) {
        Value::List list = a.Items(0);
        list.insert(list.end(), a.begin() + 1, a.end());
        return list;
    });
    script.Teach("range", Range);
    script.Teach("steps", [](const Arguments& a) { return Steps(a, true); });
    script.Teach("until", [](const Arguments& a) { return Steps(a, false); });
    script.Teach("words", WordsOf);
}

void TeachBoxes(Script& script)
{
    const std::pair<const char*, double (*)(const QRectF&)> sides[] = {{"left", [](const QRectF& b) { return b.left(); }},
                                                                       {"right", [](const QRectF& b) { return b.right(); }},
                                                                       {"top", [](const QRectF& b) { return b.top(); }},
                                                                       {"bottom", [](const QRectF& b) { return b.bottom(); }},
                                                                       {"wide", [](const QRectF& b) { return b.width(); }},
                                                                       {"high", [](const QRectF& b) { return b.height(); }}};
    for (const auto& [name, side] : sides)
        script.Teach(name, [side = side](const Arguments& a) { return side(a.Box(0)); });
    script.Teach("middle", [](const Arguments& a) { return a.Box(0).center(); });
    script.Teach("adjusted", [](const Arguments& a) {
        return a.Box(0).adjusted(a.Number(1), a.Number(2), a.Number(3), a.Number(4));
    });
    script.Teach("bounds", [](const Arguments& a) { return a.Path(0).boundingRect(); });
}

void TeachPaths(Script& script)
{
    script.Teach("outline", [](const Arguments& a) { return PathOf({}, a); });
    script.Teach("closed", [](const Arguments& a) {
        QPainterPath path = PathOf({}, a);
        path.closeSubpath();
        return path;
    });
    script.Teach("along", [](const Arguments& a) { return PathOf(a.Path(0), {a.begin() + 1, a.end()}); });
    script.Teach("shut", [](const Arguments& a) {
        QPainterPath path = a.Path(0);
        path.closeSubpath();
        return path;
    });
    script.Teach("path", [](const Arguments& a) { return PathFromText(a.Text(0)); });
    script.Teach("ellipse", [](const Arguments& a) { return Ellipse(a.Point(0), a.Number(1), a.Number(2)); });
    script.Teach("disc", [](const Arguments& a) { return Disc(a.Point(0), a.Number(1)); });
    script.Teach("rect", [](const Arguments& a) { return Rectangle(a.Box(0)); });
    script.Teach("rounded", [](const Arguments& a) { return Rounded(a.Box(0), a.Number(1)); });
    script.Teach("united", [](const Arguments& a) { return a.Path(0).united(a.Path(1)); });
    script.Teach("joined", [](const Arguments& a) {
        QPainterPath path = a.Path(0);
        path.setFillRule(Qt::WindingFill);
        path.addPath(a.Path(1));
        return path;
    });
    script.Teach("pierced", [](const Arguments& a) {
        QPainterPath path = a.Path(0);
        path.addPath(a.Path(1));
        return path;
    });
    script.Teach("without", [](const Arguments& a) { return a.Path(0).subtracted(a.Path(1)); });
    script.Teach("within", [](const Arguments& a) { return a.Path(0).intersected(a.Path(1)); });
    script.Teach("moved", [](const Arguments& a) { return a.Path(0).translated(a.Point(1)); });
    script.Teach("turned",
                 [](const Arguments& a) { return QTransform().rotate(a.Number(1)).map(a.Path(0)); });
    script.Teach("turnedBy",
                 [](const Arguments& a) { return QTransform().rotateRadians(a.Number(1)).map(a.Path(0)); });
    script.Teach("mapped", [](const Arguments& a) {
        const Value::List& m = a.Items(1);
        return QTransform(m.at(0).Number(), m.at(1).Number(), m.at(2).Number(), m.at(3).Number(),
                          m.at(4).Number(), m.at(5).Number())
            .map(a.Path(0));
    });
    script.Teach("steered", Steered);
    script.Teach("scaled", [](const Arguments& a) {
        QTransform scale = QTransform::fromScale(a.Number(1), a.Number(2));
        scale.translate(a.Point(3).x(), a.Point(3).y());
        return scale.map(a.Path(0));
    });
    script.Teach("band", [](const Arguments& a) {
        QPainterPathStroker stroker;
        stroker.setWidth(a.Number(1));
        stroker.setJoinStyle(Qt::RoundJoin);
        return stroker.createStroke(a.Path(0));
    });
    script.Teach("thick", [](const Arguments& a) {
        QPainterPathStroker stroker;
        stroker.setWidth(a.Number(1));
        return stroker.createStroke(a.Path(0));
    });
    script.Teach("contains", [](const Arguments& a) { return a.Path(0).contains(a.Point(1)); });
    script.Teach("written", Written);
    script.Teach("lettering",
                 [](const Arguments& a) { return Lettering(a.Text(0), a.Number(1), TypeOf(a.at(2))); });
    script.Teach("widened", [](const Arguments& a) { return Widened(a.Path(0), a.Number(1)); });
    script.Teach("centred", [](const Arguments& a) { return Centred(a.Path(0), a.Point(1)); });
}

void TeachColours(Script& script)
{
    script.Teach("rgb", Colour);
    script.Teach("hex", [](const Arguments& a) { return QColor(static_cast<QRgb>(a.Number(0))); });
    script.Teach("hsv",
                 [](const Arguments& a) { return QColor::fromHsv(a.Whole(0), a.Whole(1), a.Whole(2)); });
    script.Teach("lighter", [](const Arguments& a) { return a.Colour(0).lighter(a.Whole(1)); });
    script.Teach("darker", [](const Arguments& a) { return a.Colour(0).darker(a.Whole(1)); });
    script.Teach("translucent", Translucent);
    script.Teach("lightness", [](const Arguments& a) { return a.Colour(0).lightness(); });
    script.Teach("grey", [](const Arguments& a) { return qGray(a.Colour(0).rgb()); });
    script.Teach("linear",
                 [](const Arguments& a) { return QBrush(Linear(a.Point(0), a.Point(1), StopsOf(a.at(2)))); });
    script.Teach("radial", RadialOf);
    script.Teach("conical", [](const Arguments& a) {
        return QBrush(Conical(a.Point(0), a.Number(1), StopsOf(a.at(2))));
    });
    script.Teach("shades", [](const Arguments& a) {
        const QColor colour = a.Colour(0);
        return WithPlaces(a.at(1), [&](int percent) { return Shades(colour, {{0, percent}})[0].second; });
    });
    script.Teach("veil", [](const Arguments& a) {
        const QColor colour = a.Colour(0);
        return WithPlaces(a.at(1), [&](int alpha) { return Veil(colour, {{0, alpha}})[0].second; });
    });
}

} // namespace

void TeachShapes(Script& script)
{
    TeachNumbers(script);
    TeachBoxes(script);
    TeachPaths(script);
    TeachColours(script);
}

} // namespace torvik::sample
