#pragma once

#include "sample/geometry/curve.h"

#include <span>
#include <utility>

namespace torvik::sample {

enum class Lamps { RoundInGrille, RoundInWings, RectangularPair, Slim, Tall };
enum class TailLamps { ThreeBars, FullWidth, Square, Wrap, ThreeTall };
enum class Bumper { ChromeBlade, BodyColour, RubberStrip, Hidden };
enum class WheelFace { ChromeCap, FiveSpoke, Slotted, Turbine, FiveStar, TenSpoke };

/// Which body: that of the year, or one of the special cars.
enum class Model { Vollandry, Harwell, KestraOne, KestraThree, SuperStallion, Tarrant };

/// What tells one body from another. Lengths are metres; s runs from the nose (0) to the tail (`length`),
/// z from the ground up, widths are half widths from the middle.
struct CarLines {
    Curve halfWidth;
    Curve bottom;
    Curve widest;      ///< z of the widest line of the flank
    Curve shoulder;    ///< z of the edge between flank and upper side
    Curve centre;      ///< z of bonnet and deck in the middle
    Curve roof;        ///< z of the roof line in the middle, from windscreen foot to rear window foot
    Curve noseSetBack; ///< how far the nose lies behind its foremost point, by z
    Curve tailSetBack;
};

struct CarLooks {
    Lamps lamps = Lamps::RoundInGrille;
    TailLamps tailLamps = TailLamps::ThreeBars;
    Bumper bumper = Bumper::ChromeBlade;
    WheelFace wheel = WheelFace::ChromeCap;
    bool sideScoop = true;
    bool chromeTrim = true;
    bool ductTail = false; ///< a raised lip on the boot
    bool bonnetScoop = false;
};

/// The same with its numbers.
struct CarShape : CarLines, CarLooks {
    double length = 4.65;
    double frontAxle = 0.86;
    double rearAxle = 3.6;
    double wheelRadius = 0.325;
    double rimRadius = 0.2;
    double archRadius = 0.375;
    double cowl = 1.6;        ///< s of the windscreen's foot
    double header = 2.3;      ///< s of the windscreen's top edge
    double rearHeader = 2.95; ///< s of the rear window's top edge
    double cabinEnd = 3.9;    ///< s of the rear window's foot
    double tumble = 0.42;     ///< how much the cabin narrows per metre of height
    double shoulderInset = 0.06;
    double shoulderRadius = 0.07;
    double edgeRadius = 0.05; ///< rounding of nose and tail
    double noseBow = 0.12;    ///< how much the corners of the nose stand back
    double tailBow = 0.06;
    double flare = 0.02;
    double bonnetBulge = 0.02;
    double windowFront = 1.95; ///< s of the front lower corner of the side window
    double windowRear = 3.2;   ///< s of the rear lower corner
    double windowLean = 0.25;  ///< how far the rear edge leans forward at the top
    double doorFront = 1.62;
    double doorRear = 2.85;
    double grilleHalf = 0.5; ///< half width of the grille's opening
    double grilleLow = 0.5;
    double grilleHigh = 0.72;
    double lampRadius = 0.085;
    double bumperHeight = 0.42;
    bool wing = false;
};

/// The curves, numbers and switches of a body by their names; each is called so in drawings/bodies.txt.
template <typename Field>
using CarFields = std::span<const std::pair<const char*, Field CarShape::*>>;
CarFields<Curve> CarCurves();
CarFields<double> CarFigures();
CarFields<bool> CarSwitches();

/// The names of the kinds, in their order.
inline constexpr const char* lampNames[] = {"RoundInGrille", "RoundInWings", "RectangularPair", "Slim",
                                            "Tall"};
inline constexpr const char* tailLampNames[] = {"ThreeBars", "FullWidth", "Square", "Wrap", "ThreeTall"};
inline constexpr const char* bumperNames[] = {"ChromeBlade", "BodyColour", "RubberStrip", "Hidden"};
inline constexpr const char* wheelNames[] = {"ChromeCap", "FiveSpoke", "Slotted",
                                             "Turbine",   "FiveStar",  "TenSpoke"};

/// Number 1 to 6 of the model generation of the year.
int GenerationOfYear(int year);
/// The body of one of the special cars, which stands on that of its year.
CarShape ShapeOf(Model model, int year);
/// The body of the model year (1967 to 2001); six generations, and small changes from year to year.
inline CarShape ShapeOfYear(int year)
{
    return ShapeOf(Model::Vollandry, year);
}

} // namespace torvik::sample
