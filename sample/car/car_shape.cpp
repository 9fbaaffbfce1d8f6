#include "sample/car/car_shape.h"

#include "sample/drawings/script.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

namespace {

constexpr CarCurve curves[] = {
    {"halfWidth", &CarLines::halfWidth},     {"bottom", &CarLines::bottom},
    {"widest", &CarLines::widest},           {"shoulder", &CarLines::shoulder},
    {"centre", &CarLines::centre},           {"roof", &CarLines::roof},
    {"noseSetBack", &CarLines::noseSetBack}, {"tailSetBack", &CarLines::tailSetBack}};

constexpr CarFigure figures[] = {{"length", &CarShape::length},
                                 {"frontAxle", &CarShape::frontAxle},
                                 {"rearAxle", &CarShape::rearAxle},
                                 {"wheelRadius", &CarShape::wheelRadius},
                                 {"rimRadius", &CarShape::rimRadius},
                                 {"archRadius", &CarShape::archRadius},
                                 {"cowl", &CarShape::cowl},
                                 {"header", &CarShape::header},
                                 {"rearHeader", &CarShape::rearHeader},
                                 {"cabinEnd", &CarShape::cabinEnd},
                                 {"tumble", &CarShape::tumble},
                                 {"shoulderInset", &CarShape::shoulderInset},
                                 {"shoulderRadius", &CarShape::shoulderRadius},
                                 {"edgeRadius", &CarShape::edgeRadius},
                                 {"noseBow", &CarShape::noseBow},
                                 {"tailBow", &CarShape::tailBow},
                                 {"flare", &CarShape::flare},
                                 {"bonnetBulge", &CarShape::bonnetBulge},
                                 {"windowFront", &CarShape::windowFront},
                                 {"windowRear", &CarShape::windowRear},
                                 {"windowLean", &CarShape::windowLean},
                                 {"doorFront", &CarShape::doorFront},
                                 {"doorRear", &CarShape::doorRear},
                                 {"grilleHalf", &CarShape::grilleHalf},
                                 {"grilleLow", &CarShape::grilleLow},
                                 {"grilleHigh", &CarShape::grilleHigh},
                                 {"lampRadius", &CarShape::lampRadius},
                                 {"bumperHeight", &CarShape::bumperHeight}};

constexpr std::array<CarLooks, 6> looks = {{
    {Lamps::RoundInGrille, TailLamps::ThreeBars, Bumper::ChromeBlade, WheelFace::ChromeCap, true, true, false,
     false},
    {Lamps::RoundInGrille, TailLamps::FullWidth, Bumper::ChromeBlade, WheelFace::FiveSpoke, true, true, false,
     true},
    {Lamps::RoundInWings, TailLamps::ThreeBars, Bumper::RubberStrip, WheelFace::Slotted, true, true, false,
     false},
    {Lamps::RectangularPair, TailLamps::Square, Bumper::RubberStrip, WheelFace::Turbine, false, false, true,
     false},
    {Lamps::Slim, TailLamps::Wrap, Bumper::Hidden, WheelFace::FiveStar, true, false, true, false},
    {Lamps::Tall, TailLamps::ThreeTall, Bumper::Hidden, WheelFace::TenSpoke, true, false, true, true},
}};

/// The list of numbers of a body's curve.
Curve CurveOf(const Value& list)
{
    std::vector<double> numbers;
    for (const Value& number : list.Items())
        numbers.push_back(number.Number());
    return Curve(numbers);
}

const std::vector<CarShape>& Generations()
{
    static const std::vector<CarShape> bodies = [] {
        Script table("bodies");
        table.Run();
        std::vector<CarShape> shapes;
        for (std::size_t i = 0; i < looks.size(); ++i) {
            CarShape shape{CarLines(), looks[i]};
            for (const CarCurve& curve : curves)
                shape.*curve.field = CurveOf(table.Get(curve.name).At(i));
            for (const CarFigure& figure : figures)
                shape.*figure.field = table.Get(figure.name).At(i).Number();
            shapes.push_back(shape);
        }
        return shapes;
    }();
    return bodies;
}

CarShape HarwellShape()
{
    CarShape c = Generations().front();
    // An upright hardtop with a long boot, so that nobody takes it for one of the family.
    c.roof = {1.52,  0.90, 1.6,  0.945, 2.0,  1.31, 2.2,  1.382, 2.6,
              1.395, 2.95, 1.37, 3.12,  1.25, 3.4,  0.99, 3.5,   0.92};
    c.halfWidth = {0, 0.85, 0.3, 0.885, 1.2, 0.895, 3.4, 0.895, 4.65, 0.85};
    c.shoulder = {0, 0.80, 0.3, 0.835, 1.4, 0.865, 3.2, 0.885, 4.65, 0.90};
    c.centre = {0, 0.83, 0.3, 0.885, 1.5, 0.935, 3.4, 0.95, 4.65, 0.915};
    c.header = 2.06;
    c.rearHeader = 2.98;
    c.cabinEnd = 3.5;
    c.cowl = 1.52;
    c.windowFront = 1.76;
    c.windowRear = 2.98;
    c.windowLean = 0.1;
    c.grilleHalf = 0.34;
    c.lamps = Lamps::RoundInWings;
    c.lampRadius = 0.1;
    c.tailLamps = TailLamps::Wrap;
    c.sideScoop = false;
    c.bonnetScoop = false;
    c.shoulderRadius = 0.045;
    return c;
}

} // namespace

std::span<const CarCurve> CarCurves()
{
    return curves;
}

std::span<const CarFigure> CarFigures()
{
    return figures;
}

int GenerationOfYear(int year)
{
    constexpr std::array firstYears = {1971, 1974, 1979, 1989, 1999};
    return 1 + static_cast<int>(std::upper_bound(firstYears.begin(), firstYears.end(), year) -
                                firstYears.begin());
}

CarShape ShapeOfYear(int year)
{
    const int generation = GenerationOfYear(year);
    CarShape c = Generations()[static_cast<std::size_t>(generation - 1)];
    switch (generation) {
    case 1:
        c.wheel = year % 2 == 1 ? WheelFace::ChromeCap : WheelFace::FiveSpoke;
        c.lamps = year >= 1969 ? Lamps::RoundInWings : Lamps::RoundInGrille;
        c.grilleHalf = year >= 1969 ? 0.5 : 0.62;
        c.bonnetScoop = year >= 1969;
        c.ductTail = year == 1970;
        break;
    case 2:
        c.wheel = year == 1972 ? WheelFace::ChromeCap : WheelFace::FiveSpoke;
        c.bumper = year == 1973 ? Bumper::BodyColour : Bumper::ChromeBlade;
        break;
    case 3:
        c.wheel = year % 2 == 0 ? WheelFace::Slotted : WheelFace::ChromeCap;
        c.ductTail = year >= 1976;
        c.bonnetScoop = year >= 1977;
        break;
    case 4:
        c.wheel = year >= 1985 ? WheelFace::TenSpoke : WheelFace::Turbine;
        c.bonnetScoop = year >= 1982 && year <= 1986;
        c.wing = year >= 1985;
        if (year >= 1987) {
            c.lamps = Lamps::Slim;
            c.grilleHalf = 0.26;
            c.grilleHigh = 0.62;
            c.bumper = Bumper::BodyColour;
        }
        break;
    case 5:
        c.wheel = year % 3 == 0 ? WheelFace::Turbine : WheelFace::FiveStar;
        c.wing = year >= 1994;
        break;
    default:
        c.wheel = year == 2000 ? WheelFace::FiveSpoke : WheelFace::TenSpoke;
        c.wing = year >= 2001;
        break;
    }
    return c;
}

CarShape ShapeOf(Model model, int year)
{
    CarShape c = ShapeOfYear(year);
    switch (model) {
    case Model::Vollandry:
        return c;
    case Model::Harwell:
        return HarwellShape();
    case Model::KestraOne:
    case Model::Tarrant:
        c.wheel = model == Model::Tarrant ? WheelFace::TenSpoke : WheelFace::FiveSpoke;
        c.bonnetScoop = c.ductTail = true;
        c.flare = model == Model::Tarrant ? c.flare : 0.035;
        return c;
    case Model::KestraThree:
        c.wheel = WheelFace::TenSpoke;
        c.flare = 0.03;
        break;
    case Model::SuperStallion:
        c.wheel = WheelFace::FiveStar;
        c.flare = 0.045;
        c.wheelRadius = 0.345;
        c.rimRadius = 0.25;
        break;
    }
    c.wing = true;
    return c;
}

} // namespace torvik::sample
