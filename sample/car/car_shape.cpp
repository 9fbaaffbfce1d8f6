#include "sample/car/car_shape.h"

namespace torvik::sample {

namespace {

CarShape FirstGeneration()
{
    CarShape c;
    c.halfWidth = {{0, 0.80},    {0.35, 0.865}, {1.2, 0.885}, {2.3, 0.872},
                   {3.4, 0.915}, {4.1, 0.895},  {4.65, 0.835}};
    c.bottom = {{0, 0.40}, {0.22, 0.30}, {0.6, 0.235}, {3.9, 0.235}, {4.35, 0.31}, {4.65, 0.40}};
    c.widest = {{0, 0.58}, {1.2, 0.60}, {2.6, 0.58}, {3.4, 0.66}, {4.65, 0.63}};
    c.shoulder = {{0, 0.74},    {0.3, 0.80},   {1.3, 0.845}, {2.3, 0.85},
                  {2.9, 0.868}, {3.45, 0.935}, {4.0, 0.93},  {4.65, 0.865}};
    c.centre = {{0, 0.765},   {0.2, 0.83},  {0.8, 0.89},  {1.6, 0.925},
                {3.5, 0.955}, {4.2, 0.935}, {4.65, 0.885}};
    c.roof = {{1.56, 0.90}, {1.66, 0.945}, {2.2, 1.255},  {2.42, 1.312}, {2.7, 1.325},
              {3.0, 1.30},  {3.4, 1.185},  {3.85, 0.985}, {4.0, 0.92}};
    c.noseSetBack = {{0.3, 0.13}, {0.45, 0.06}, {0.62, 0.05}, {0.78, 0.0}};
    c.tailSetBack = {{0.35, 0.12}, {0.5, 0.05}, {0.7, 0.04}, {0.88, 0.0}};
    c.cowl = 1.56;
    c.header = 2.24;
    c.rearHeader = 3.04;
    c.cabinEnd = 4.0;
    c.windowFront = 1.86;
    c.windowRear = 3.2;
    c.windowLean = 0.34;
    c.flare = 0.018;
    c.bonnetBulge = 0.025;
    return c;
}

CarShape SecondGeneration()
{
    CarShape c = FirstGeneration();
    c.length = 4.9;
    c.frontAxle = 0.94;
    c.rearAxle = 3.74;
    c.wheelRadius = 0.335;
    c.archRadius = 0.39;
    c.halfWidth = {{0, 0.84},    {0.4, 0.905}, {1.4, 0.935}, {2.5, 0.925},
                   {3.6, 0.965}, {4.3, 0.945}, {4.9, 0.87}};
    c.bottom = {{0, 0.38}, {0.25, 0.28}, {0.7, 0.225}, {4.1, 0.225}, {4.6, 0.33}, {4.9, 0.42}};
    c.widest = {{0, 0.60}, {1.4, 0.60}, {2.7, 0.58}, {3.6, 0.68}, {4.9, 0.66}};
    c.shoulder = {{0, 0.745},  {0.4, 0.80},  {1.5, 0.85},  {2.4, 0.865},
                  {3.0, 0.90}, {3.6, 0.985}, {4.1, 0.985}, {4.9, 0.895}};
    c.centre = {{0, 0.765}, {0.3, 0.83}, {1.0, 0.895}, {1.8, 0.925}, {3.6, 0.99}, {4.9, 0.92}};
    c.roof = {{1.76, 0.90}, {1.88, 0.945}, {2.42, 1.205}, {2.68, 1.275}, {2.95, 1.285},
              {3.3, 1.255}, {3.9, 1.12},   {4.5, 0.96},   {4.62, 0.92}};
    c.noseSetBack = {{0.3, 0.16}, {0.45, 0.09}, {0.65, 0.05}, {0.78, 0.0}};
    c.cowl = 1.76;
    c.header = 2.5;
    c.rearHeader = 3.42;
    c.cabinEnd = 4.6;
    c.windowFront = 2.05;
    c.windowRear = 3.42;
    c.windowLean = 0.42;
    c.doorFront = 1.85;
    c.doorRear = 3.1;
    c.grilleHalf = 0.66;
    c.grilleLow = 0.53;
    c.lamps = Lamps::RoundInGrille;
    c.tailLamps = TailLamps::FullWidth;
    c.wheel = WheelFace::FiveSpoke;
    c.flare = 0.025;
    c.bonnetScoop = true;
    return c;
}

CarShape ThirdGeneration()
{
    CarShape c = FirstGeneration();
    c.length = 4.4;
    c.frontAxle = 0.86;
    c.rearAxle = 3.30;
    c.wheelRadius = 0.305;
    c.rimRadius = 0.178;
    c.archRadius = 0.35;
    c.halfWidth = {{0, 0.77},    {0.35, 0.845}, {1.2, 0.872}, {2.3, 0.868},
                   {3.2, 0.885}, {3.9, 0.865},  {4.4, 0.80}};
    c.bottom = {{0, 0.38}, {0.25, 0.29}, {0.6, 0.235}, {3.6, 0.235}, {4.1, 0.32}, {4.4, 0.40}};
    c.widest = {{0, 0.60}, {2.6, 0.60}, {4.4, 0.64}};
    c.shoulder = {{0, 0.72}, {0.3, 0.785}, {1.3, 0.85}, {2.2, 0.875}, {3.2, 0.93}, {3.8, 0.925}, {4.4, 0.86}};
    c.centre = {{0, 0.745}, {0.3, 0.815}, {1.0, 0.89}, {1.5, 0.92}, {3.3, 0.95}, {4.4, 0.885}};
    c.roof = {{1.46, 0.90},  {1.58, 0.945}, {2.1, 1.235},  {2.3, 1.288}, {2.6, 1.295},
              {2.85, 1.262}, {3.3, 1.10},   {3.65, 0.955}, {3.8, 0.915}};
    c.noseSetBack = {{0.3, 0.14}, {0.5, 0.03}, {0.62, 0.02}, {0.74, 0.03}};
    c.cowl = 1.46;
    c.header = 2.14;
    c.rearHeader = 2.86;
    c.cabinEnd = 3.8;
    c.windowFront = 1.74;
    c.windowRear = 3.02;
    c.windowLean = 0.3;
    c.doorFront = 1.5;
    c.doorRear = 2.72;
    c.grilleHalf = 0.36;
    c.grilleLow = 0.5;
    c.lamps = Lamps::RoundInWings;
    c.lampRadius = 0.1;
    c.tailLamps = TailLamps::ThreeBars;
    c.bumper = Bumper::RubberStrip;
    c.wheel = WheelFace::Slotted;
    c.shoulderRadius = 0.05;
    return c;
}

CarShape FourthGeneration()
{
    CarShape c = FirstGeneration();
    c.length = 4.55;
    c.frontAxle = 0.85;
    c.rearAxle = 3.41;
    c.wheelRadius = 0.312;
    c.rimRadius = 0.2;
    c.archRadius = 0.36;
    c.halfWidth = {{0, 0.81}, {0.25, 0.85}, {1.2, 0.868}, {3.6, 0.872}, {4.3, 0.855}, {4.55, 0.825}};
    c.bottom = {{0, 0.30}, {0.25, 0.26}, {0.6, 0.225}, {3.8, 0.225}, {4.3, 0.29}, {4.55, 0.34}};
    c.widest = {{0, 0.60}, {4.55, 0.64}};
    c.shoulder = {{0, 0.70}, {0.2, 0.745}, {1.3, 0.845}, {2.5, 0.88}, {4.0, 0.92}, {4.55, 0.905}};
    c.centre = {{0, 0.715}, {0.2, 0.765}, {1.4, 0.885}, {3.6, 0.955}, {4.55, 0.935}};
    c.roof = {{1.42, 0.865}, {1.52, 0.905}, {2.1, 1.255},  {2.28, 1.318}, {2.6, 1.335},
              {2.95, 1.318}, {3.2, 1.22},   {3.62, 0.985}, {3.75, 0.93}};
    c.noseSetBack = {{0.25, 0.06}, {0.42, 0.0}, {0.5, 0.01}, {0.72, 0.10}};
    c.tailSetBack = {{0.35, 0.05}, {0.5, 0.0}, {0.9, 0.02}};
    c.cowl = 1.42;
    c.header = 2.16;
    c.rearHeader = 2.98;
    c.cabinEnd = 3.75;
    c.windowFront = 1.72;
    c.windowRear = 3.26;
    c.windowLean = 0.22;
    c.doorFront = 1.46;
    c.doorRear = 2.74;
    c.tumble = 0.36;
    c.shoulderInset = 0.035;
    c.shoulderRadius = 0.03;
    c.edgeRadius = 0.03;
    c.noseBow = 0.07;
    c.tailBow = 0.03;
    c.flare = 0.008;
    c.bonnetBulge = 0.012;
    c.grilleHalf = 0.42;
    c.grilleLow = 0.55;
    c.grilleHigh = 0.67;
    c.lamps = Lamps::RectangularPair;
    c.tailLamps = TailLamps::Square;
    c.bumper = Bumper::RubberStrip;
    c.bumperHeight = 0.43;
    c.wheel = WheelFace::Turbine;
    c.sideScoop = false;
    c.chromeTrim = false;
    c.ductTail = true;
    return c;
}

CarShape FifthGeneration()
{
    CarShape c = FirstGeneration();
    c.length = 4.6;
    c.frontAxle = 0.90;
    c.rearAxle = 3.46;
    c.wheelRadius = 0.325;
    c.rimRadius = 0.222;
    c.archRadius = 0.375;
    c.halfWidth = {{0, 0.74},    {0.3, 0.84}, {0.9, 0.905}, {2.2, 0.895},
                   {3.4, 0.925}, {4.1, 0.89}, {4.6, 0.78}};
    c.bottom = {{0, 0.27}, {0.3, 0.22}, {0.7, 0.20}, {3.9, 0.205}, {4.3, 0.26}, {4.6, 0.33}};
    c.widest = {{0, 0.52}, {2.3, 0.55}, {4.6, 0.62}};
    c.shoulder = {{0, 0.62}, {0.3, 0.71}, {1.0, 0.81}, {2.2, 0.875}, {3.4, 0.955}, {4.1, 0.955}, {4.6, 0.89}};
    c.centre = {{0, 0.64}, {0.3, 0.745}, {1.0, 0.865}, {1.5, 0.925}, {3.6, 1.0}, {4.2, 0.985}, {4.6, 0.92}};
    c.roof = {{1.36, 0.875}, {1.5, 0.94},  {2.0, 1.205}, {2.3, 1.30}, {2.6, 1.322},
              {2.95, 1.295}, {3.35, 1.18}, {3.8, 1.01},  {3.95, 0.95}};
    c.noseSetBack = {{0.2, 0.07}, {0.38, 0.0}, {0.5, 0.02}, {0.66, 0.10}};
    c.tailSetBack = {{0.3, 0.10}, {0.55, 0.0}, {0.9, 0.03}};
    c.cowl = 1.36;
    c.header = 2.16;
    c.rearHeader = 3.0;
    c.cabinEnd = 3.95;
    c.windowFront = 1.72;
    c.windowRear = 3.34;
    c.windowLean = 0.38;
    c.doorFront = 1.5;
    c.doorRear = 2.82;
    c.tumble = 0.46;
    c.shoulderInset = 0.09;
    c.shoulderRadius = 0.10;
    c.edgeRadius = 0.09;
    c.noseBow = 0.26;
    c.tailBow = 0.16;
    c.flare = 0.022;
    c.bonnetBulge = 0.025;
    c.grilleHalf = 0.3;
    c.grilleLow = 0.5;
    c.grilleHigh = 0.585;
    c.lamps = Lamps::Slim;
    c.tailLamps = TailLamps::Wrap;
    c.bumper = Bumper::Hidden;
    c.wheel = WheelFace::FiveStar;
    c.chromeTrim = false;
    c.sideScoop = true;
    c.ductTail = true;
    return c;
}

CarShape SixthGeneration()
{
    CarShape c = FirstGeneration();
    c.length = 4.65;
    c.frontAxle = 0.90;
    c.rearAxle = 3.48;
    c.wheelRadius = 0.335;
    c.rimRadius = 0.235;
    c.archRadius = 0.385;
    c.halfWidth = {{0, 0.79},     {0.3, 0.87},  {1.0, 0.925}, {2.3, 0.905},
                   {3.45, 0.945}, {4.1, 0.915}, {4.65, 0.83}};
    c.bottom = {{0, 0.27}, {0.3, 0.215}, {0.7, 0.195}, {3.9, 0.20}, {4.3, 0.26}, {4.65, 0.32}};
    c.widest = {{0, 0.56}, {2.3, 0.575}, {3.4, 0.66}, {4.65, 0.64}};
    c.shoulder = {{0, 0.695},  {0.3, 0.765},  {1.2, 0.85}, {2.3, 0.875},
                  {2.9, 0.91}, {3.45, 0.985}, {4.1, 0.98}, {4.65, 0.905}};
    c.centre = {{0, 0.72}, {0.3, 0.80}, {1.0, 0.895}, {1.5, 0.94}, {3.6, 1.01}, {4.2, 1.0}, {4.65, 0.935}};
    c.roof = {{1.42, 0.89}, {1.54, 0.945}, {2.05, 1.235}, {2.32, 1.315}, {2.62, 1.332},
              {2.95, 1.30}, {3.35, 1.185}, {3.8, 1.02},   {3.95, 0.96}};
    c.noseSetBack = {{0.2, 0.09}, {0.4, 0.01}, {0.52, 0.03}, {0.72, 0.03}};
    c.tailSetBack = {{0.3, 0.12}, {0.55, 0.01}, {0.92, 0.02}};
    c.cowl = 1.42;
    c.header = 2.18;
    c.rearHeader = 3.0;
    c.cabinEnd = 3.95;
    c.windowFront = 1.76;
    c.windowRear = 3.26;
    c.windowLean = 0.36;
    c.doorFront = 1.52;
    c.doorRear = 2.84;
    c.shoulderInset = 0.075;
    c.shoulderRadius = 0.045;
    c.edgeRadius = 0.05;
    c.noseBow = 0.16;
    c.tailBow = 0.09;
    c.flare = 0.03;
    c.bonnetBulge = 0.03;
    c.grilleHalf = 0.4;
    c.grilleLow = 0.52;
    c.grilleHigh = 0.685;
    c.lamps = Lamps::Tall;
    c.tailLamps = TailLamps::ThreeTall;
    c.bumper = Bumper::Hidden;
    c.wheel = WheelFace::TenSpoke;
    c.chromeTrim = false;
    c.ductTail = true;
    c.bonnetScoop = true;
    return c;
}

} // namespace

int GenerationOfYear(int year)
{
    if (year < 1971)
        return 1;
    if (year < 1974)
        return 2;
    if (year < 1979)
        return 3;
    if (year < 1989)
        return 4;
    return year < 1999 ? 5 : 6;
}

CarShape ShapeOfYear(int year)
{
    switch (GenerationOfYear(year)) {
    case 1: {
        CarShape c = FirstGeneration();
        c.wheel = year % 2 == 1 ? WheelFace::ChromeCap : WheelFace::FiveSpoke;
        c.lamps = year >= 1969 ? Lamps::RoundInWings : Lamps::RoundInGrille;
        c.grilleHalf = year >= 1969 ? 0.5 : 0.62;
        c.bonnetScoop = year >= 1969;
        c.ductTail = year == 1970;
        return c;
    }
    case 2: {
        CarShape c = SecondGeneration();
        c.wheel = year == 1972 ? WheelFace::ChromeCap : WheelFace::FiveSpoke;
        c.bumper = year == 1973 ? Bumper::BodyColour : Bumper::ChromeBlade;
        return c;
    }
    case 3: {
        CarShape c = ThirdGeneration();
        c.wheel = year % 2 == 0 ? WheelFace::Slotted : WheelFace::ChromeCap;
        c.ductTail = year >= 1976;
        c.bonnetScoop = year >= 1977;
        return c;
    }
    case 4: {
        CarShape c = FourthGeneration();
        c.wheel = year >= 1985 ? WheelFace::TenSpoke : WheelFace::Turbine;
        c.bonnetScoop = year >= 1982 && year <= 1986;
        c.wing = year >= 1985;
        if (year >= 1987) {
            c.lamps = Lamps::Slim;
            c.grilleHalf = 0.26;
            c.grilleHigh = 0.62;
            c.bumper = Bumper::BodyColour;
        }
        return c;
    }
    case 5: {
        CarShape c = FifthGeneration();
        c.wheel = year % 3 == 0 ? WheelFace::Turbine : WheelFace::FiveStar;
        c.wing = year >= 1994;
        return c;
    }
    default: {
        CarShape c = SixthGeneration();
        c.wheel = year == 2000 ? WheelFace::FiveSpoke : WheelFace::TenSpoke;
        c.wing = year >= 2001;
        return c;
    }
    }
}

CarShape ClassicHarwellShape()
{
    CarShape c = FirstGeneration();
    // An upright hardtop with a long boot, so that nobody takes it for one of the family.
    c.roof = {{1.52, 0.90}, {1.6, 0.945}, {2.0, 1.31}, {2.2, 1.382}, {2.6, 1.395},
              {2.95, 1.37}, {3.12, 1.25}, {3.4, 0.99}, {3.5, 0.92}};
    c.halfWidth = {{0, 0.85}, {0.3, 0.885}, {1.2, 0.895}, {3.4, 0.895}, {4.65, 0.85}};
    c.shoulder = {{0, 0.80}, {0.3, 0.835}, {1.4, 0.865}, {3.2, 0.885}, {4.65, 0.90}};
    c.centre = {{0, 0.83}, {0.3, 0.885}, {1.5, 0.935}, {3.4, 0.95}, {4.65, 0.915}};
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

CarShape KestraOneShape()
{
    CarShape c = ShapeOfYear(1970);
    c.wheel = WheelFace::FiveSpoke;
    c.bonnetScoop = true;
    c.ductTail = true;
    c.flare = 0.035;
    return c;
}

CarShape KestraThreeShape()
{
    CarShape c = ShapeOfYear(1986);
    c.wheel = WheelFace::TenSpoke;
    c.wing = true;
    c.flare = 0.03;
    return c;
}

CarShape SuperStallionShape()
{
    CarShape c = ShapeOfYear(2001);
    c.wheel = WheelFace::FiveStar;
    c.wing = true;
    c.flare = 0.045;
    c.wheelRadius = 0.345;
    c.rimRadius = 0.25;
    return c;
}

CarShape TarrantShape()
{
    CarShape c = ShapeOfYear(1968);
    c.wheel = WheelFace::TenSpoke;
    c.bonnetScoop = true;
    c.ductTail = true;
    return c;
}

} // namespace torvik::sample
