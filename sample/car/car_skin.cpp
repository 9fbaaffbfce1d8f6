#include "sample/car/car_words.h"
#include "sample/car/skin_painter.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* stripeNames[] = {"None", "Rocker", "Racing", "Flank", "Hockey", "Flames"};

/// Where a sheet begins and how large it is, metres.
struct Extent {
    double left, bottom, width, height;
};

/// The sheet that a file in drawings/ describes. It knows the car as "c", the decoration as "trim".
SkinMap DrawSheet(const char* name, const CarShape& shape, const Extent& extent, double pointsPerMetre,
                  const QColor& base, const Paint& paint, const Trim& trim, CarSide side)
{
    SkinPainter painter(extent.left, extent.bottom, extent.width, extent.height, pointsPerMetre, base);
    Script script(name);
    TeachSkin(script, painter);
    TeachCar(script, shape);
    const std::pair<const char*, Value> words[] = {
        {"paint.colour", paint.colour},
        {"mirrored", side == CarSide::Right},
        {"trim.stripe", QString::fromLatin1(stripeNames[static_cast<std::size_t>(trim.stripe)])},
        {"trim.stripeColour", trim.stripeColour},
        {"trim.plate", trim.plate},
        {"trim.script", trim.script},
        {"trim.vinylRoof", trim.vinylRoof},
        {"trim.lampsLit", trim.lampsLit},
        {"trim.whiteWalls", trim.whiteWalls},
        {"trim.redLine", trim.redLine}};
    for (const auto& [word, value] : words)
        script.Set(QString::fromLatin1(word), value);
    script.Run();
    return painter.Finish();
}

} // namespace

CarSkin DrawCarSkin(const CarShape& shape, const Paint& paint, const Trim& trim, CarSide side,
                    const Sharpness& sharpness)
{
    const auto draw = [&](const char* name, const Extent& extent, double points, const QColor& base) {
        return DrawSheet(name, shape, extent, points, base, paint, trim, side);
    };
    const double length = shape.length + 0.1;
    return {paint, draw("skin_side", {-0.05, 0.1, length, 1.4}, sharpness.side, paint.colour),
            draw("skin_front", {-1.1, 0.0, 2.2, 1.3}, sharpness.front, paint.colour),
            draw("skin_rear", {-1.1, 0.0, 2.2, 1.3}, sharpness.rear, paint.colour),
            draw("skin_top", {-0.05, -1.05, length, 2.1}, sharpness.top, paint.colour),
            // The face of wheel and tyre, centred on the hub.
            draw("skin_wheel", {-0.4, -0.4, 0.8, 0.8}, sharpness.wheel, QColor(26, 26, 27))};
}

} // namespace torvik::sample
