#include "sample/artwork/art_plan.h"
#include "sample/car/car_shape.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/relief.h"
#include "sample/render/tabletop.h"

#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr int emblemWidth = 200;
constexpr int emblemHeight = 124;
const QPointF emblemMiddle(100, 61);

/// The three bars of the tail lamps, which all bodies but one have in common.
QPainterPath ThreeBars(const QPointF& middle, double width, double height)
{
    QPainterPath bars;
    for (int i = -1; i <= 1; ++i)
        bars.addRect(QRectF(middle.x() + i * width * 0.36 - width * 0.12, middle.y() - height / 2,
                            width * 0.24, height));
    return bars;
}

/// A heron's wing that reaches to the right; mirrored by the transform of the caller where it is the left
/// one.
QPainterPath Wing()
{
    return PathFromText(u"M0,-9 C20,-14 44,-14 72,-20 C68,-12 62,-8 54,-6 C60,-6 62,-6 66,-7 C60,0 52,2 "
                        "44,2 C48,3 50,3 54,3 C46,10 24,11 0,9 Z"_s);
}

void AddWings(Relief& relief, const QPointF& at, const Coat& coat)
{
    relief.Add(QTransform::fromTranslate(at.x() + 20, at.y()).map(Wing()), coat, {2, 4, 5, 3});
    relief.Add(QTransform(-1, 0, 0, 1, at.x() - 20, at.y()).map(Wing()), coat, {2, 4, 5, 3});
}

void AddPlate(Relief& relief, const QString& words, double y, const QColor& enamel)
{
    QPainterPath letters = Lettering(words, 8.5, {u"Liberation Sans"_s, true, false, 135, 1.0});
    const double half = letters.boundingRect().width() / 2 + 9;
    relief.Add(Rounded(QRectF(100 - half, y - 9, half * 2, 18), 4), Chrome(), {3, 3, 3, 2});
    relief.Add(Rounded(QRectF(100 - half + 2.5, y - 6.5, half * 2 - 5, 13), 2.5), Enamel(enamel),
               {5, -1, 2, 0});
    relief.Add(Centred(letters, {100, y}), Chrome(), {5, 0.5, 0.6, 0.5});
}

/// 1967 to 1970: the shield between two wings.
void FirstEmblem(Relief& relief, int year)
{
    constexpr std::array<QRgb, 4> enamels = {0xA0101C, 0x123C86, 0xA0101C, 0x0E5A40};
    const QPointF middle = emblemMiddle + QPointF(0, -4);
    AddWings(relief, middle + QPointF(0, -6), Chrome());
    relief.Add(ShieldPath(middle, 45), Chrome(), {2, 5, 6, 3});
    Coat red = Enamel(QColor(enamels[static_cast<std::size_t>(year - 1967)]));
    red.rays = 44;
    red.rayFrom = middle + QPointF(0, 44);
    relief.Add(ShieldPath(middle, 38), red, {6, -1.5, 4, 0});
    relief.Add(WingedT(middle + QPointF(0, 2), 29), Chrome(), {6, 3.5, 4, 2});
}

/// 1971 to 1973: a wide frame with the T and three coloured bars.
void SecondEmblem(Relief& relief, int year)
{
    constexpr std::array<QRgb, 3> grounds = {0x101216, 0x2A1636, 0x33400F};
    relief.Add(Rounded(QRectF(14, 26, 172, 70), 16), Chrome(), {0, 6, 7, 4});
    relief.Add(Rounded(QRectF(23, 35, 154, 52), 10),
               Enamel(QColor(grounds[static_cast<std::size_t>(year - 1971)])), {5, -2.5, 4, 0});
    const std::array<QColor, 3> bars = {QColor(190, 20, 28), QColor(236, 232, 222), QColor(26, 70, 160)};
    for (int i = 0; i < 3; ++i) {
        relief.Add(Rounded(QRectF(32, 41.0 + i * 14, 136, 11), 2), Chrome(), {3, 1.5, 2, 0});
        relief.Add(Rounded(QRectF(34, 42.5 + i * 14, 132, 8), 1), Enamel(bars[static_cast<std::size_t>(i)]),
                   {4, -0.8, 1.5, 0});
    }
    relief.Add(WingedT(emblemMiddle + QPointF(0, 2), 40), Chrome(), {5, 5, 6, 4});
}

/// 1974 to 1978: a round medal with a ring of letters.
void ThirdEmblem(Relief& relief, int year)
{
    constexpr std::array<QRgb, 5> rings = {0x5B2A14, 0x14305C, 0x1C3C9A, 0x16181C, 0x7A1018};
    const bool parade = year == 1976;
    relief.Add(Ellipse(emblemMiddle, 56, 56), year == 1978 ? Gold() : Chrome(), {0, 6, 6, 4});
    relief.Add(Ellipse(emblemMiddle, 50, 50), Enamel(QColor(rings[static_cast<std::size_t>(year - 1974)])),
               {5, -1.5, 3, 0});
    relief.Add(Ellipse(emblemMiddle, 35, 35), Chrome(), {4, 3, 3, 1});
    Coat field = Enamel(parade ? QColor(232, 232, 226) : QColor(18, 18, 20));
    field.rays = 72;
    field.rayFrom = emblemMiddle;
    relief.Add(Ellipse(emblemMiddle, 32, 32), field, {6, -1.5, 3, 0});
    if (parade)
        relief.Add(ThreeBars(emblemMiddle, 34, 60).intersected(Ellipse(emblemMiddle, 31, 31)),
                   Enamel(QColor(24, 60, 160)), {5, 1, 2, 0});
    relief.Add(WingedT(emblemMiddle + QPointF(0, 1), 25), year == 1978 ? Gold() : Chrome(), {5, 4, 4, 2});
    const QString words = u"TORVIK"_s;
    const Type type{u"Liberation Sans"_s, true, false, 100, 1.0};
    for (int i = 0; i < 6; ++i) {
        const double angle = (i - 2.5) * 22;
        const auto around = [&](double degrees) {
            return QTransform::fromTranslate(emblemMiddle.x(), emblemMiddle.y())
                .rotate(degrees)
                .translate(0, -42.5);
        };
        relief.Add(around(angle).map(Centred(Lettering(words.mid(i, 1), 8, type), {0, 0})), Chrome(),
                   {4, 0.7, 0.8, 0.5});
        relief.Add(around(180 + angle).map(Ellipse({0, 0}, 2.2, 2.2)), Chrome(), {4, 0.7, 0.8, 0.5});
    }
}

/// 1979 to 1988: a flat bar, drawn with a ruler.
void FourthEmblem(Relief& relief, int year)
{
    const bool late = year >= 1985;
    const QPainterPath frame = PathFromText(u"M40,28 L176,28 L160,84 L24,84 Z"_s);
    const QPainterPath field = PathFromText(u"M43,33 L169.5,33 L156.5,79 L30.5,79 Z"_s);
    relief.Add(frame, Chrome(), {0, 4, 2.5, 3});
    relief.Add(field, Enamel(late ? QColor(16, 17, 20) : QColor(52, 55, 60)), {3.5, -1, 2, 0});
    constexpr std::array<QRgb, 5> colours = {0xC8502A, 0xB01C20, 0x1E56A8, 0xC41E24, 0xD09A1C};
    for (int i = 0; i < 3; ++i) {
        const double x = 121.0 + i * 11;
        const QPainterPath bar =
            PathFromText(u"M%1,40 L%2,40 L%3,72 L%4,72 Z"_s.arg(x + 9).arg(x + 16).arg(x + 7).arg(x));
        relief.Add(bar, Enamel(QColor(Cycled(colours, year - 1979 + i))), {3, 1.5, 1.5, 0.5});
    }
    QTransform lean;
    lean.translate(76, 57).shear(-0.28, 0);
    relief.Add(lean.map(WingedT({0, -2}, 27)), Chrome(), {3, 3, 2.5, 1.5});
    if (year == 1984)
        AddPlate(relief, u"20 YEARS"_s, 100, QColor(120, 14, 22));
    else
        relief.Add(
            Centred(Lettering(u"TORVIK"_s, 9, {u"Liberation Sans"_s, true, false, 190, 1.2}), {96, 100}),
            Chrome(), {0, 0.8, 0.9, 1});
}

/// 1989 to 1998: an oval without a corner.
void FifthEmblem(Relief& relief, int year)
{
    constexpr std::array<QRgb, 10> enamels = {0x14306E, 0x14306E, 0x10655E, 0x8C1438, 0x0C6A66,
                                              0xA01420, 0x1A2E78, 0x2C4450, 0x7A3A18, 0x54407A};
    const double lower = year == 1994 ? -8 : 0;
    const QPointF middle = emblemMiddle + QPointF(0, lower);
    relief.Add(Ellipse(middle, 82, 44), Chrome(), {0, 6, 8, 4});
    Coat field = Enamel(QColor(enamels[static_cast<std::size_t>(year - 1989)]));
    field.rays = 90;
    field.rayFrom = middle + QPointF(0, 90);
    relief.Add(Ellipse(middle, 74, 36.5), field, {6, -2, 6, 0});
    AddWings(relief, middle + QPointF(-1, 2), Chrome());
    relief.Add(WingedT(middle + QPointF(0, 2), 28), Chrome(), {5, 5, 5, 2});
    if (year == 1994)
        AddPlate(relief, u"30 YEARS"_s, 108, QColor(20, 22, 26));
}

/// 1999 to 2001: the first shield again, with sharp creases and three bars.
void SixthEmblem(Relief& relief, int year)
{
    const QPointF middle = emblemMiddle + QPointF(0, year == 1999 ? -8 : -2);
    const QPainterPath body = PathFromText(u"M-56,-44 L56,-44 L46,8 L0,50 L-46,8 Z"_s).translated(middle);
    const QPainterPath inner = PathFromText(u"M-47,-36 L47,-36 L39,4 L0,39 L-39,4 Z"_s).translated(middle);
    constexpr std::array<QRgb, 3> enamels = {0x96101C, 0x17181B, 0x0E3A2A};
    relief.Add(body, Chrome(), {0, 6, 7, 4});
    relief.Add(inner, Enamel(QColor(enamels[static_cast<std::size_t>(year - 1999)])), {6, -2, 3, 0});
    relief.Add(ThreeBars(middle + QPointF(0, -4), 58, 90).intersected(inner), Chrome(), {3.5, 1, 1.5, 0});
    relief.Add(WingedT(middle + QPointF(0, -4), 34), Chrome(), {5, 5, 4, 3});
    if (year == 1999)
        AddPlate(relief, u"35 YEARS"_s, 110, QColor(20, 22, 26));
}

void HarwellEmblem(Relief& relief)
{
    for (const double side : {-1.0, 1.0}) {
        for (int i = 0; i < 6; ++i) {
            const double angle = (-62 + i * 25) * side;
            QTransform leaf = QTransform::fromTranslate(emblemMiddle.x() + side * 12, emblemMiddle.y());
            leaf.rotate(angle + side * 90).translate(0, -47).rotate(side * 50);
            relief.Add(leaf.map(Ellipse({0, 0}, 5, 12)), Gold(), {0, 4, 4, 2});
        }
    }
    relief.Add(Ellipse(emblemMiddle, 40, 46), Gold(), {2, 5, 5, 3});
    Coat field = Enamel(QColor(92, 12, 30));
    field.rays = 60;
    field.rayFrom = emblemMiddle;
    relief.Add(Ellipse(emblemMiddle, 34, 40), field, {6, -1.5, 4, 0});
    relief.Add(Centred(Lettering(u"H"_s, 38, {u"Liberation Serif"_s, true}), emblemMiddle + QPointF(0, 6)),
               Gold(), {5, 3.5, 3, 2});
    relief.Add(PathFromText(u"M-16,8 L-20,-8 L-9,0 L0,-12 L9,0 L20,-8 L16,8 Z"_s)
                   .translated(emblemMiddle + QPointF(0, -28)),
               Gold(), {6, 3, 3, 2});
}

void PrototypeEmblem(Relief& relief)
{
    relief.Add(Rounded(QRectF(22, 14, 156, 94), 5), Matte(QColor(126, 98, 70)), {0, 4, 3, 3});
    for (const QPointF& hole : {QPointF(34, 26), QPointF(166, 26), QPointF(34, 96), QPointF(166, 96)})
        relief.Add(Ellipse(hole, 4.5, 4.5), Chrome(), {3, 2, 4, 1});
    relief.Add(WingedT(emblemMiddle + QPointF(0, -8), 40), Gold(), {4, 5, 6, 4});
    relief.Add(
        Centred(Lettering(u"PROJECT T-5"_s, 9, {u"Liberation Mono"_s, true, false, 120, 1.0}), {100, 96}),
        Gold(), {3.5, 0.6, 0.8, 0.8});
}

} // namespace

QImage PaintEmblem(const SmallPicture& emblem)
{
    const QSize size(emblemWidth, emblemHeight);
    Relief relief(size);
    switch (emblem.marque) {
    case Marque::Harwell:
        HarwellEmblem(relief);
        return relief.Over(SoftGround(size, QColor(214, 206, 190), QColor(150, 140, 124)));
    case Marque::Prototype:
        PrototypeEmblem(relief);
        return relief.Over(SoftGround(size, QColor(196, 200, 204), QColor(128, 134, 140)));
    case Marque::Vollandry:
        break;
    }
    constexpr void (*generations[])(Relief&, int) = {FirstEmblem,  SecondEmblem, ThirdEmblem,
                                                     FourthEmblem, FifthEmblem,  SixthEmblem};
    generations[GenerationOfYear(emblem.year) - 1](relief, emblem.year);
    return relief.Over(SoftGround(size, QColor(196, 200, 206), QColor(120, 126, 136)));
}

} // namespace torvik::sample
