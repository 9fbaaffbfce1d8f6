#include "sample/car/car_words.h"

#include "sample/car/car_mesh.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {
template <typename Kind>
QString NameOf(const char* const* names, Kind kind)
{
    return QString::fromLatin1(names[static_cast<std::size_t>(kind)]);
}

} // namespace

void TeachCar(Script& script, const CarShape& shape)
{
    for (const auto& [name, field] : CarFigures())
        script.Set(u"c."_s + QLatin1String(name), shape.*field);
    for (const auto& [name, field] : CarSwitches())
        script.Set(u"c."_s + QLatin1String(name), shape.*field);
    script.Set(u"c.lamps"_s, NameOf(lampNames, shape.lamps));
    script.Set(u"c.tailLamps"_s, NameOf(tailLampNames, shape.tailLamps));
    script.Set(u"c.bumper"_s, NameOf(bumperNames, shape.bumper));
    script.Set(u"c.wheel"_s, NameOf(wheelNames, shape.wheel));
    for (const auto& [name, field] : CarCurves()) {
        const Curve& line = shape.*field;
        script.Teach(QByteArray("c.").append(name).constData(),
                     [&line](const Arguments& a) { return line(a.Number(0)); });
    }
    // A curve by its name, or the same height everywhere.
    script.Teach("curve", [&shape](const Arguments& a) {
        if (!a.at(0).IsText())
            return a.Number(0);
        for (const auto& [name, field] : CarCurves()) {
            if (a.Text(0) == QLatin1String(name))
                return (shape.*field)(a.Number(1));
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
