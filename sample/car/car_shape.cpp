#include "sample/car/car_shape.h"

#include "sample/drawings/script.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// What a body has by a name.
#define TORVIK_FIELD(name) std::pair(#name, &CarShape::name)
constexpr std::pair<const char*, Curve CarShape::*> curves[] = {
    TORVIK_FIELD(halfWidth), TORVIK_FIELD(bottom), TORVIK_FIELD(widest),      TORVIK_FIELD(shoulder),
    TORVIK_FIELD(centre),    TORVIK_FIELD(roof),   TORVIK_FIELD(noseSetBack), TORVIK_FIELD(tailSetBack)};
constexpr std::pair<const char*, double CarShape::*> figures[] = {
    TORVIK_FIELD(length),         TORVIK_FIELD(frontAxle),  TORVIK_FIELD(rearAxle),
    TORVIK_FIELD(wheelRadius),    TORVIK_FIELD(rimRadius),  TORVIK_FIELD(archRadius),
    TORVIK_FIELD(cowl),           TORVIK_FIELD(header),     TORVIK_FIELD(rearHeader),
    TORVIK_FIELD(cabinEnd),       TORVIK_FIELD(tumble),     TORVIK_FIELD(shoulderInset),
    TORVIK_FIELD(shoulderRadius), TORVIK_FIELD(edgeRadius), TORVIK_FIELD(noseBow),
    TORVIK_FIELD(tailBow),        TORVIK_FIELD(flare),      TORVIK_FIELD(bonnetBulge),
    TORVIK_FIELD(windowFront),    TORVIK_FIELD(windowRear), TORVIK_FIELD(windowLean),
    TORVIK_FIELD(doorFront),      TORVIK_FIELD(doorRear),   TORVIK_FIELD(grilleHalf),
    TORVIK_FIELD(grilleLow),      TORVIK_FIELD(grilleHigh), TORVIK_FIELD(lampRadius),
    TORVIK_FIELD(bumperHeight)};
constexpr std::pair<const char*, bool CarShape::*> switches[] = {
    TORVIK_FIELD(sideScoop), TORVIK_FIELD(chromeTrim), TORVIK_FIELD(ductTail), TORVIK_FIELD(bonnetScoop),
    TORVIK_FIELD(wing)};
#undef TORVIK_FIELD

// In the order of the models.
constexpr const char* modelNames[] = {"Vollandry",   "Harwell",       "KestraOne",
                                      "KestraThree", "SuperStallion", "Tarrant"};

Curve CurveOf(const Value& list)
{
    std::vector<double> numbers;
    for (const Value& number : list.Items())
        numbers.push_back(number.Number());
    return Curve(numbers);
}

} // namespace

CarFields<Curve> CarCurves()
{
    return curves;
}

CarFields<double> CarFigures()
{
    return figures;
}

CarFields<bool> CarSwitches()
{
    return switches;
}

int GenerationOfYear(int year)
{
    constexpr std::array firstYears = {1971, 1974, 1979, 1989, 1999};
    return 1 + static_cast<int>(std::upper_bound(firstYears.begin(), firstYears.end(), year) -
                                firstYears.begin());
}

CarShape ShapeOf(Model model, int year)
{
    const int generation = GenerationOfYear(year);
    Script body("bodies");
    body.Set(u"model"_s, QString::fromLatin1(modelNames[static_cast<std::size_t>(model)]));
    body.Set(u"year"_s, year);
    body.Set(u"generation"_s, generation);
    body.Run();
    // A table has one for each generation; what the year or the model changes stands alone.
    const auto chosen = [&](const char* name, bool isCurve) {
        const Value& value = body.Get(name);
        const bool isTable = value.IsList() && (!isCurve || value.At(0).IsList());
        return isTable ? value.At(static_cast<std::size_t>(generation - 1)) : value;
    };
    CarShape shape;
    for (const auto& [name, field] : curves)
        shape.*field = CurveOf(chosen(name, true));
    for (const auto& [name, field] : figures)
        shape.*field = chosen(name, false).Number();
    for (const auto& [name, field] : switches)
        shape.*field = chosen(name, false).Number() != 0;
    shape.lamps = chosen("lamps", false).OneOf<Lamps>(lampNames);
    shape.tailLamps = chosen("tailLamps", false).OneOf<TailLamps>(tailLampNames);
    shape.bumper = chosen("bumper", false).OneOf<Bumper>(bumperNames);
    shape.wheel = chosen("wheel", false).OneOf<WheelFace>(wheelNames);
    return shape;
}

} // namespace torvik::sample
