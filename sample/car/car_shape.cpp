#include "sample/car/car_shape.h"

#include <algorithm>
#include <array>

namespace torvik::sample {

namespace {

const std::array<CarLines, 6> lines = {{
    {{0, 0.80, 0.35, 0.865, 1.2, 0.885, 2.3, 0.872, 3.4, 0.915, 4.1, 0.895, 4.65, 0.835},
     {0, 0.40, 0.22, 0.30, 0.6, 0.235, 3.9, 0.235, 4.35, 0.31, 4.65, 0.40},
     {0, 0.58, 1.2, 0.60, 2.6, 0.58, 3.4, 0.66, 4.65, 0.63},
     {0, 0.74, 0.3, 0.80, 1.3, 0.845, 2.3, 0.85, 2.9, 0.868, 3.45, 0.935, 4.0, 0.93, 4.65, 0.865},
     {0, 0.765, 0.2, 0.83, 0.8, 0.89, 1.6, 0.925, 3.5, 0.955, 4.2, 0.935, 4.65, 0.885},
     {1.56, 0.90, 1.66, 0.945, 2.2, 1.255, 2.42, 1.312, 2.7, 1.325, 3.0, 1.30, 3.4, 1.185, 3.85, 0.985, 4.0,
      0.92},
     {0.3, 0.13, 0.45, 0.06, 0.62, 0.05, 0.78, 0.0},
     {0.35, 0.12, 0.5, 0.05, 0.7, 0.04, 0.88, 0.0}},
    {{0, 0.84, 0.4, 0.905, 1.4, 0.935, 2.5, 0.925, 3.6, 0.965, 4.3, 0.945, 4.9, 0.87},
     {0, 0.38, 0.25, 0.28, 0.7, 0.225, 4.1, 0.225, 4.6, 0.33, 4.9, 0.42},
     {0, 0.60, 1.4, 0.60, 2.7, 0.58, 3.6, 0.68, 4.9, 0.66},
     {0, 0.745, 0.4, 0.80, 1.5, 0.85, 2.4, 0.865, 3.0, 0.90, 3.6, 0.985, 4.1, 0.985, 4.9, 0.895},
     {0, 0.765, 0.3, 0.83, 1.0, 0.895, 1.8, 0.925, 3.6, 0.99, 4.9, 0.92},
     {1.76, 0.90, 1.88, 0.945, 2.42, 1.205, 2.68, 1.275, 2.95, 1.285, 3.3, 1.255, 3.9, 1.12, 4.5, 0.96, 4.62,
      0.92},
     {0.3, 0.16, 0.45, 0.09, 0.65, 0.05, 0.78, 0.0},
     {0.35, 0.12, 0.5, 0.05, 0.7, 0.04, 0.88, 0.0}},
    {{0, 0.77, 0.35, 0.845, 1.2, 0.872, 2.3, 0.868, 3.2, 0.885, 3.9, 0.865, 4.4, 0.80},
     {0, 0.38, 0.25, 0.29, 0.6, 0.235, 3.6, 0.235, 4.1, 0.32, 4.4, 0.40},
     {0, 0.60, 2.6, 0.60, 4.4, 0.64},
     {0, 0.72, 0.3, 0.785, 1.3, 0.85, 2.2, 0.875, 3.2, 0.93, 3.8, 0.925, 4.4, 0.86},
     {0, 0.745, 0.3, 0.815, 1.0, 0.89, 1.5, 0.92, 3.3, 0.95, 4.4, 0.885},
     {1.46, 0.90, 1.58, 0.945, 2.1, 1.235, 2.3, 1.288, 2.6, 1.295, 2.85, 1.262, 3.3, 1.10, 3.65, 0.955, 3.8,
      0.915},
     {0.3, 0.14, 0.5, 0.03, 0.62, 0.02, 0.74, 0.03},
     {0.35, 0.12, 0.5, 0.05, 0.7, 0.04, 0.88, 0.0}},
    {{0, 0.81, 0.25, 0.85, 1.2, 0.868, 3.6, 0.872, 4.3, 0.855, 4.55, 0.825},
     {0, 0.30, 0.25, 0.26, 0.6, 0.225, 3.8, 0.225, 4.3, 0.29, 4.55, 0.34},
     {0, 0.60, 4.55, 0.64},
     {0, 0.70, 0.2, 0.745, 1.3, 0.845, 2.5, 0.88, 4.0, 0.92, 4.55, 0.905},
     {0, 0.715, 0.2, 0.765, 1.4, 0.885, 3.6, 0.955, 4.55, 0.935},
     {1.42, 0.865, 1.52, 0.905, 2.1, 1.255, 2.28, 1.318, 2.6, 1.335, 2.95, 1.318, 3.2, 1.22, 3.62, 0.985,
      3.75, 0.93},
     {0.25, 0.06, 0.42, 0.0, 0.5, 0.01, 0.72, 0.10},
     {0.35, 0.05, 0.5, 0.0, 0.9, 0.02}},
    {{0, 0.74, 0.3, 0.84, 0.9, 0.905, 2.2, 0.895, 3.4, 0.925, 4.1, 0.89, 4.6, 0.78},
     {0, 0.27, 0.3, 0.22, 0.7, 0.20, 3.9, 0.205, 4.3, 0.26, 4.6, 0.33},
     {0, 0.52, 2.3, 0.55, 4.6, 0.62},
     {0, 0.62, 0.3, 0.71, 1.0, 0.81, 2.2, 0.875, 3.4, 0.955, 4.1, 0.955, 4.6, 0.89},
     {0, 0.64, 0.3, 0.745, 1.0, 0.865, 1.5, 0.925, 3.6, 1.0, 4.2, 0.985, 4.6, 0.92},
     {1.36, 0.875, 1.5, 0.94, 2.0, 1.205, 2.3, 1.30, 2.6, 1.322, 2.95, 1.295, 3.35, 1.18, 3.8, 1.01, 3.95,
      0.95},
     {0.2, 0.07, 0.38, 0.0, 0.5, 0.02, 0.66, 0.10},
     {0.3, 0.10, 0.55, 0.0, 0.9, 0.03}},
    {{0, 0.79, 0.3, 0.87, 1.0, 0.925, 2.3, 0.905, 3.45, 0.945, 4.1, 0.915, 4.65, 0.83},
     {0, 0.27, 0.3, 0.215, 0.7, 0.195, 3.9, 0.20, 4.3, 0.26, 4.65, 0.32},
     {0, 0.56, 2.3, 0.575, 3.4, 0.66, 4.65, 0.64},
     {0, 0.695, 0.3, 0.765, 1.2, 0.85, 2.3, 0.875, 2.9, 0.91, 3.45, 0.985, 4.1, 0.98, 4.65, 0.905},
     {0, 0.72, 0.3, 0.80, 1.0, 0.895, 1.5, 0.94, 3.6, 1.01, 4.2, 1.0, 4.65, 0.935},
     {1.42, 0.89, 1.54, 0.945, 2.05, 1.235, 2.32, 1.315, 2.62, 1.332, 2.95, 1.30, 3.35, 1.185, 3.8, 1.02,
      3.95, 0.96},
     {0.2, 0.09, 0.4, 0.01, 0.52, 0.03, 0.72, 0.03},
     {0.3, 0.12, 0.55, 0.01, 0.92, 0.02}},
}};

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

/// A number of the body, and what it is in each generation.
struct Figure {
    double CarShape::*field;
    std::array<double, 6> values;
};

constexpr Figure figures[] = {
    {&CarShape::length, {4.65, 4.9, 4.4, 4.55, 4.6, 4.65}},
    {&CarShape::frontAxle, {0.86, 0.94, 0.86, 0.85, 0.90, 0.90}},
    {&CarShape::rearAxle, {3.6, 3.74, 3.30, 3.41, 3.46, 3.48}},
    {&CarShape::wheelRadius, {0.325, 0.335, 0.305, 0.312, 0.325, 0.335}},
    {&CarShape::rimRadius, {0.2, 0.2, 0.178, 0.2, 0.222, 0.235}},
    {&CarShape::archRadius, {0.375, 0.39, 0.35, 0.36, 0.375, 0.385}},
    {&CarShape::cowl, {1.56, 1.76, 1.46, 1.42, 1.36, 1.42}},
    {&CarShape::header, {2.24, 2.5, 2.14, 2.16, 2.16, 2.18}},
    {&CarShape::rearHeader, {3.04, 3.42, 2.86, 2.98, 3.0, 3.0}},
    {&CarShape::cabinEnd, {4.0, 4.6, 3.8, 3.75, 3.95, 3.95}},
    {&CarShape::tumble, {0.42, 0.42, 0.42, 0.36, 0.46, 0.42}},
    {&CarShape::shoulderInset, {0.06, 0.06, 0.06, 0.035, 0.09, 0.075}},
    {&CarShape::shoulderRadius, {0.07, 0.07, 0.05, 0.03, 0.10, 0.045}},
    {&CarShape::edgeRadius, {0.05, 0.05, 0.05, 0.03, 0.09, 0.05}},
    {&CarShape::noseBow, {0.12, 0.12, 0.12, 0.07, 0.26, 0.16}},
    {&CarShape::tailBow, {0.06, 0.06, 0.06, 0.03, 0.16, 0.09}},
    {&CarShape::flare, {0.018, 0.025, 0.018, 0.008, 0.022, 0.03}},
    {&CarShape::bonnetBulge, {0.025, 0.025, 0.025, 0.012, 0.025, 0.03}},
    {&CarShape::windowFront, {1.86, 2.05, 1.74, 1.72, 1.72, 1.76}},
    {&CarShape::windowRear, {3.2, 3.42, 3.02, 3.26, 3.34, 3.26}},
    {&CarShape::windowLean, {0.34, 0.42, 0.3, 0.22, 0.38, 0.36}},
    {&CarShape::doorFront, {1.62, 1.85, 1.5, 1.46, 1.5, 1.52}},
    {&CarShape::doorRear, {2.85, 3.1, 2.72, 2.74, 2.82, 2.84}},
    {&CarShape::grilleHalf, {0.5, 0.66, 0.36, 0.42, 0.3, 0.4}},
    {&CarShape::grilleLow, {0.5, 0.53, 0.5, 0.55, 0.5, 0.52}},
    {&CarShape::grilleHigh, {0.72, 0.72, 0.72, 0.67, 0.585, 0.685}},
    {&CarShape::lampRadius, {0.085, 0.085, 0.1, 0.085, 0.085, 0.085}},
    {&CarShape::bumperHeight, {0.42, 0.42, 0.42, 0.43, 0.42, 0.42}},
};

CarShape ShapeOfGeneration(int generation)
{
    const auto index = static_cast<std::size_t>(generation - 1);
    CarShape shape{lines[index], looks[index]};
    for (const Figure& figure : figures)
        shape.*figure.field = figure.values[index];
    return shape;
}

CarShape HarwellShape()
{
    CarShape c = ShapeOfGeneration(1);
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

int GenerationOfYear(int year)
{
    constexpr std::array firstYears = {1971, 1974, 1979, 1989, 1999};
    return 1 + static_cast<int>(std::upper_bound(firstYears.begin(), firstYears.end(), year) -
                                firstYears.begin());
}

CarShape ShapeOfYear(int year)
{
    const int generation = GenerationOfYear(year);
    CarShape c = ShapeOfGeneration(generation);
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
