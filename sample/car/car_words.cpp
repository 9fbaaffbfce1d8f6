#include "sample/car/car_words.h"

#include "sample/car/car_mesh.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {
// In the order of their kinds.
constexpr const char* lampNames[] = {"RoundInGrille", "RoundInWings", "RectangularPair", "Slim", "Tall"};
constexpr const char* tailLampNames[] = {"ThreeBars", "FullWidth", "Square", "Wrap", "ThreeTall"};
constexpr const char* bumperNames[] = {"ChromeBlade", "BodyColour", "RubberStrip", "Hidden"};
constexpr const char* wheelNames[] = {"ChromeCap", "FiveSpoke", "Slotted", "Turbine", "FiveStar", "TenSpoke"};

template <typename Kind>
QString NameOf(const char* const* names, Kind kind)
{
    return QString::fromLatin1(names[static_cast<std::size_t>(kind)]);
}

} // namespace

void TeachCar(Script& script, const CarShape& shape)
{
    for (const CarFigure& figure : CarFigures())
        script.Set(u"c."_s + QLatin1String(figure.name), shape.*figure.field);
    const std::pair<const char*, bool> switches[] = {{"c.sideScoop", shape.sideScoop},
                                                     {"c.chromeTrim", shape.chromeTrim},
                                                     {"c.ductTail", shape.ductTail},
                                                     {"c.bonnetScoop", shape.bonnetScoop},
                                                     {"c.wing", shape.wing}};
    for (const auto& [name, on] : switches)
        script.Set(QString::fromLatin1(name), on);
    script.Set(u"c.lamps"_s, NameOf(lampNames, shape.lamps));
    script.Set(u"c.tailLamps"_s, NameOf(tailLampNames, shape.tailLamps));
    script.Set(u"c.bumper"_s, NameOf(bumperNames, shape.bumper));
    script.Set(u"c.wheel"_s, NameOf(wheelNames, shape.wheel));
    for (const CarCurve& curve : CarCurves()) {
        const Curve& line = shape.*curve.field;
        script.Teach(QByteArray("c.").append(curve.name).constData(),
                     [&line](const Arguments& a) { return line(a.Number(0)); });
    }
    // A curve by its name, or the same height everywhere.
    script.Teach("curve", [&shape](const Arguments& a) {
        if (!a.at(0).IsText())
            return a.Number(0);
        for (const CarCurve& curve : CarCurves()) {
            if (a.Text(0) == QLatin1String(curve.name))
                return (shape.*curve.field)(a.Number(1));
        }
        throw std::runtime_error("The car has no such curve.");
    });
    script.Teach("belt", [&shape](const Arguments& a) { return BeltAt(shape, a.Number(0)); });
    script.Teach("shoulderWidth",
                 [&shape](const Arguments& a) { return ShoulderHalfWidth(shape, a.Number(0)); });
    script.Teach("roofRail", [&shape](const Arguments& a) {
        const RoofRail rail = RoofRailAt(shape, a.Number(0));
        return QPointF(rail.halfWidth, rail.height);
    });
}

} // namespace torvik::sample
