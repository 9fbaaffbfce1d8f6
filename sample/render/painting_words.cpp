#include "sample/render/painting_words.h"

#include "sample/geometry/shapes.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {
/// A colour and a width from argument `at` on; then, where there is one, "round", "capped", "flat" or "dash".
QPen PenOf(const Arguments& a, std::size_t at)
{
    QPen pen(a.at(at).Brush(), a.size() > at + 1 ? a[at + 1].Number() : 1.0);
    const QString style = a.size() > at + 2 ? a[at + 2].Text() : QString();
    if (style == "dash"_L1)
        pen.setStyle(Qt::DashLine);
    if (style == "flat"_L1)
        pen.setCapStyle(Qt::FlatCap);
    if (style == "round"_L1 || style == "capped"_L1)
        pen.setCapStyle(Qt::RoundCap);
    if (style == "round"_L1)
        pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

void FillBox(QPainter& p, const QRectF& box, const QBrush& brush)
{
    if (brush.style() == Qt::SolidPattern)
        p.fillRect(box, brush.color());
    else
        p.fillRect(box, brush);
}

void DrawWords(QPainter& p, const Arguments& a)
{
    if (a.Items(0).size() == 2) {
        p.drawText(a.Point(0), a.at(1).Words());
        return;
    }
    int alignment = Qt::AlignCenter;
    if (a.size() > 2) {
        const QString& side = a.Text(2);
        alignment = side == "top left"_L1       ? Qt::AlignLeft | Qt::AlignTop
                    : side == "bottom left"_L1  ? Qt::AlignLeft | Qt::AlignBottom
                    : side == "bottom right"_L1 ? Qt::AlignRight | Qt::AlignBottom
                                                : Qt::AlignHCenter | Qt::TextWordWrap;
    }
    p.drawText(a.Box(0), alignment, a.at(1).Words());
}

void SetFont(QPainter& p, const Arguments& a)
{
    const QByteArray family = a.Text(0).toLatin1();
    p.setFont(FontOf(family.constData(), a.Number(1), a.IsSet(2), a.IsSet(3)));
}

using Action = void (*)(QPainter& p, const Arguments& a);

constexpr std::pair<const char*, Action> actions[] = {
    {"fill", [](QPainter& p, const Arguments& a) { p.fillPath(a.Path(0), a.Brush(1)); }},
    {"stroke", [](QPainter& p, const Arguments& a) { p.strokePath(a.Path(0), PenOf(a, 1)); }},
    {"fillbox", [](QPainter& p, const Arguments& a) { FillBox(p, a.Box(0), a.Brush(1)); }},
    {"pen", [](QPainter& p, const Arguments& a) { p.setPen(a.empty() ? QPen(Qt::NoPen) : PenOf(a, 0)); }},
    {"brush", [](QPainter& p, const Arguments& a) { p.setBrush(a.empty() ? QBrush() : a.Brush(0)); }},
    {"font", SetFont},
    {"write", DrawWords},
    {"line", [](QPainter& p, const Arguments& a) { p.drawLine(a.Point(0), a.Point(1)); }},
    {"frame", [](QPainter& p, const Arguments& a) { p.drawRect(a.Box(0)); }},
    {"card", [](QPainter& p, const Arguments& a) { p.drawRoundedRect(a.Box(0), a.Number(1), a.Number(1)); }},
    {"oval", [](QPainter& p,
                const Arguments& a) { p.drawEllipse(a.Point(0), a.Number(1), a.at(a.size() - 1).Number()); }},
    {"arc", [](QPainter& p, const Arguments& a) { p.drawArc(a.Box(0), a.Whole(1), a.Whole(2)); }},
    {"draw", [](QPainter& p, const Arguments& a) { p.drawPath(a.Path(0)); }},
    {"image",
     [](QPainter& p, const Arguments& a) {
         if (a.Items(0).size() == 4)
             p.drawImage(a.Box(0), a.Image(1));
         else
             p.drawImage(a.Point(0), a.Image(1));
     }},
    {"save", [](QPainter& p, const Arguments&) { p.save(); }},
    {"restore", [](QPainter& p, const Arguments&) { p.restore(); }},
    {"reset", [](QPainter& p, const Arguments&) { p.resetTransform(); }},
    {"translate", [](QPainter& p, const Arguments& a) { p.translate(a.Point(0)); }},
    {"rotate", [](QPainter& p, const Arguments& a) { p.rotate(a.Number(0)); }},
    {"opacity", [](QPainter& p, const Arguments& a) { p.setOpacity(a.Number(0)); }},
    {"clip", [](QPainter& p, const Arguments& a) { p.setClipPath(a.Path(0)); }},
    {"shadow", [](QPainter& p, const Arguments& a) { DropShadow(p, a.Path(0), a.Number(1), a.Number(2)); }},
    {"metal", [](QPainter& p, const Arguments& a) { FillMetal(p, a.Path(0), a.Colour(1), a.Number(2)); }},
    {"gloss", [](QPainter& p, const Arguments& a) { FillGlossy(p, a.Path(0), a.Colour(1)); }},
    {"laymetal",
     [](QPainter& p, const Arguments& a) {
         LayMetal(p, a.Path(0), a.Number(1), a.Number(2), a.Colour(3), a.Number(4));
     }},
    {"laygloss",
     [](QPainter& p, const Arguments& a) { LayGlossy(p, a.Path(0), a.Number(1), a.Number(2), a.Colour(3)); }},
    {"lay",
     [](QPainter& p, const Arguments& a) { LayFlat(p, a.Path(0), a.Number(1), a.Number(2), a.Brush(3)); }},
};

QSize SizeOf(const Value& size)
{
    return QSize(size.At(0).Whole(), size.At(1).Whole());
}

/// A coat as a list, and back.
Value ListOf(const Coat& coat)
{
    return Value::List{static_cast<double>(coat.kind), coat.colour, static_cast<double>(coat.rays),
                       coat.rayFrom};
}

Coat CoatOf(const Value& list)
{
    return {static_cast<Coat::Kind>(list.At(0).Whole()), list.At(1).Colour(), list.At(2).Whole(),
            list.At(3).Point()};
}

/// The maker's shield and the winged T within it.
void TeachSigns(Script& script)
{
    script.Teach("shield", [](const Arguments& a) { return ShieldPath(a.Point(0), a.Number(1)); });
    script.Teach("wings", [](const Arguments& a) { return WingedT(a.Point(0), a.Number(1)); });
}

} // namespace

void TeachPainting(Script& script, QPainter& painter)
{
    TeachShapes(script);
    for (const auto& [name, action] : actions) {
        script.Teach(name, [&painter, action = action](const Arguments& a) {
            action(painter, a);
            return Value();
        });
    }
    TeachSigns(script);
    script.Teach("wood", [](const Arguments& a) {
        return WoodTable(SizeOf(a.at(0)), a.Colour(1), static_cast<std::uint32_t>(a.Number(2)));
    });
    script.Teach("cloth", [](const Arguments& a) {
        return ClothTable(SizeOf(a.at(0)), a.Colour(1), static_cast<std::uint32_t>(a.Number(2)));
    });
}

void TeachRelief(Script& script, Relief& relief)
{
    TeachShapes(script);
    TeachSigns(script);
    script.Teach("chrome", [](const Arguments&) { return ListOf(Chrome()); });
    script.Teach("gold", [](const Arguments&) { return ListOf(Gold()); });
    script.Teach("enamel", [](const Arguments& a) { return ListOf(Enamel(a.Colour(0))); });
    script.Teach("matte", [](const Arguments& a) { return ListOf(Matte(a.Colour(0))); });
    script.Teach("rays", [](const Arguments& a) {
        Coat coat = CoatOf(a.at(0));
        coat.rays = a.Whole(1);
        coat.rayFrom = a.Point(2);
        return ListOf(coat);
    });
    script.Teach("add", [&relief](const Arguments& a) {
        const Value& rise = a.at(2);
        relief.Add(a.Path(0), CoatOf(a.at(1)),
                   {rise.At(0).Number(), rise.At(1).Number(), rise.At(2).Number(), rise.At(3).Number()});
        return Value();
    });
}

void TeachLuck(Script& script, Random& random)
{
    script.Teach("between",
                 [&random](const Arguments& a) { return random.Between(a.Number(0), a.Number(1)); });
    script.Teach("unit", [&random](const Arguments&) { return random.Unit(); });
    script.Teach("below", [&random](const Arguments& a) { return random.Below(a.Whole(0)); });
}

} // namespace torvik::sample
