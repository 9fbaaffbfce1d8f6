#include "sample/car/car_mesh.h"
#include "sample/car/skin_painter.h"
#include "sample/geometry/shapes.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// The opening of the side windows: from the front corner along under the roof and down the rear edge.
QPainterPath WindowPath(const CarShape& c, double margin)
{
    QPainterPath path;
    const auto low = [&](double s) { return BeltAt(c, s) + 0.012 + margin; };
    const auto high = [&](double s) { return RoofRailAt(c, s).height - 0.028 - margin; };
    double front = c.windowFront;
    while (high(front) < low(front) + 0.02 && front < c.windowRear)
        front += 0.02;
    path.moveTo(front + margin, low(front));
    const double rearTop = c.windowRear - c.windowLean - margin;
    for (double s = front + margin; s <= rearTop; s += 0.03)
        path.lineTo(s, std::max(high(s), low(s)));
    path.lineTo(rearTop, high(rearTop));
    const double rear = c.windowRear - margin;
    path.quadTo(Mix(rearTop, rear, 0.55), Mix(high(rearTop), low(rear), 0.30), rear, low(rear) + 0.02);
    path.quadTo(rear, low(rear), rear - 0.04, low(rear));
    for (double s = rear - 0.05; s > front; s -= 0.05)
        path.lineTo(s, low(s));
    path.closeSubpath();
    return path;
}

QPainterPath AlongFlank(const CarShape& c, double from, double to, const Curve& height, double offset)
{
    QPainterPath path;
    path.moveTo(from, height(from) + offset);
    for (double s = from; s <= to; s += 0.05)
        path.lineTo(s, height(s) + offset);
    path.lineTo(std::min(to, c.length), height(to) + offset);
    return path;
}

void DrawStripe(SkinPainter& p, const CarShape& c, const Trim& trim)
{
    const Surface look = Surface{trim.stripeColour};
    const double rear = c.length - 0.15;
    switch (trim.stripe) {
    case Trim::Stripe::Rocker:
        p.Line(AlongFlank(c, c.frontAxle + c.archRadius + 0.02, c.rearAxle - c.archRadius - 0.02, c.bottom,
                          0.105),
               0.055, look);
        p.Line(AlongFlank(c, c.frontAxle + c.archRadius + 0.02, c.rearAxle - c.archRadius - 0.02, c.bottom,
                          0.155),
               0.016, look);
        break;
    case Trim::Stripe::Flank:
        p.Line(AlongFlank(c, 0.2, rear, c.shoulder, -0.10), 0.05, look);
        p.Line(AlongFlank(c, 0.2, rear, c.shoulder, -0.145), 0.012, look);
        break;
    case Trim::Stripe::Hockey: {
        p.Fill(Outline({{0.35, c.shoulder(0.35) - 0.09},
                        {1.6, c.shoulder(1.6) - 0.10, 2.4, c.shoulder(2.4) - 0.13, c.doorRear - 0.1,
                         c.shoulder(c.doorRear) - 0.16},
                        {c.doorRear + 0.12, c.shoulder(c.doorRear) - 0.14, c.doorRear + 0.34,
                         c.shoulder(c.doorRear) + 0.0},
                        {c.doorRear + 0.22, c.shoulder(c.doorRear) + 0.0},
                        {c.doorRear + 0.02, c.shoulder(c.doorRear) - 0.20, c.doorRear - 0.2,
                         c.shoulder(c.doorRear) - 0.22},
                        {2.2, c.shoulder(2.2) - 0.19, 1.4, c.shoulder(1.4) - 0.13, 0.35,
                         c.shoulder(0.35) - 0.09}}),
               look);
        break;
    }
    case Trim::Stripe::Flames: {
        QPainterPath path;
        path.moveTo(0.0, c.shoulder(0.0));
        double s = 0.1;
        for (int i = 0; i < 7; ++i) {
            const double top = c.shoulder(s) - 0.06 - 0.03 * (i % 2);
            path.quadTo(s + 0.10, top + 0.02, s + 0.34 + 0.05 * (i % 3), top - 0.02 - 0.03 * i * 0.4);
            path.quadTo(s + 0.18, top - 0.03, s + 0.12, top - 0.09);
            s += 0.17;
        }
        path.quadTo(0.8, 0.52, 0.0, 0.50);
        path.closeSubpath();
        p.Fill(path, look);
        break;
    }
    case Trim::Stripe::Racing:
    case Trim::Stripe::None:
        break;
    }
}

void DrawDoor(SkinPainter& p, const CarShape& c)
{
    const double foot = c.bottom(2.2) + 0.10;
    p.Gap(Outline({{c.doorFront + 0.12, BeltAt(c, c.doorFront) + 0.02},
                   {c.doorFront + 0.05, 0.75, c.doorFront, 0.6, c.doorFront + 0.02, foot + 0.05},
                   {c.doorFront + 0.03, foot, c.doorFront + 0.10, foot},
                   {c.doorRear - 0.14, foot},
                   {c.doorRear - 0.04, foot, c.doorRear - 0.02, foot + 0.08},
                   {c.doorRear + 0.03, 0.6, c.doorRear + 0.02, 0.75, c.doorRear - 0.02,
                    BeltAt(c, c.doorRear) + 0.03}}));
    // The handle.
    const double handleS = c.doorRear - 0.20;
    const double handleZ = c.shoulder(handleS) - 0.115;
    const QPainterPath handle =
        RoundedPath(handleS - 0.075, handleZ - 0.013, handleS + 0.075, handleZ + 0.013, 0.013);
    p.Raise(RoundedPath(handleS - 0.06, handleZ - 0.028, handleS + 0.05, handleZ + 0.024, 0.02), 0.015, -35);
    p.Fill(handle, c.chromeTrim ? chromeLook : rubberLook);
    p.Raise(handle, 0.005, 60);
    p.Fill(Disc({handleS + 0.04, handleZ - 0.05}, 0.009), chromeLook);
}

void DrawScoop(SkinPainter& p, const CarShape& c)
{
    const double s = c.doorRear + 0.16;
    const double z = c.widest(s) + 0.03;
    const QPainterPath scoop = Outline({{s + 0.24, z + 0.075},
                                        {s + 0.1, z + 0.07, s - 0.02, z + 0.04, s - 0.03, z - 0.01},
                                        {s, z - 0.05, s + 0.08, z - 0.06, s + 0.20, z - 0.055},
                                        {s + 0.26, z + 0.01, s + 0.24, z + 0.075}});
    const QLinearGradient dark =
        Linear({s + 0.22, 0}, {s - 0.04, 0}, {{0, QColor(6, 6, 7)}, {1, QColor(30, 30, 32)}});
    p.Raise(scoop, 0.03, -70);
    p.Fill(scoop, {dark, 0, 0, 255, 0});
    if (c.chromeTrim)
        p.ChromeBar(scoop, 0.010);
}

} // namespace

SkinMap DrawSideSkin(const CarShape& c, const Paint& paint, const Trim& trim, CarSide side,
                     double pointsPerMetre)
{
    const bool mirrored = side == CarSide::Right;
    SkinPainter p(-0.05, 0.1, c.length + 0.1, 1.4, pointsPerMetre, paint.colour);
    DrawStripe(p, c, trim);
    // The crease along the shoulder.
    QPainterPath crease = AlongFlank(c, 0.15, c.length - 0.2, c.widest, 0.05);
    p.Ridge(crease, 0.07, 14);
    // Bonnet, wing and boot joints.
    p.Gap(AlongFlank(c, 0.15, c.cowl + 0.2, c.shoulder, -0.01));
    DrawDoor(p, c);
    if (c.sideScoop)
        DrawScoop(p, c);
    p.Gap(RoundedPath(c.rearAxle + 0.30, c.shoulder(c.rearAxle) - 0.16, c.rearAxle + 0.44,
                      c.shoulder(c.rearAxle) - 0.03, 0.02));
    // Sill.
    const QPainterPath sill =
        AlongFlank(c, c.frontAxle + c.archRadius, c.rearAxle - c.archRadius, c.bottom, 0.012);
    if (c.chromeTrim)
        p.ChromeBar(sill, 0.022);
    else
        p.Line(sill, 0.05, rubberLook);
    if (c.bumper == Bumper::RubberStrip) {
        const QPainterPath strip =
            AlongFlank(c, 0.12, c.length - 0.12, Curve{{0, c.bumperHeight + 0.07}}, 0.0);
        p.Line(strip, 0.05, rubberLook);
        p.Ridge(strip, 0.05, 60);
        p.Line(strip, 0.010, chromeLook);
    }
    for (const double axle : {c.frontAxle, c.rearAxle}) {
        const QPainterPath arch = Disc({axle, c.wheelRadius}, c.archRadius + 0.006);
        if (c.chromeTrim)
            p.ChromeBar(arch, 0.016);
        else
            p.Ridge(arch, 0.03, 40);
        p.Line(Disc({axle, c.wheelRadius}, c.archRadius), 0.008, darkLook);
    }
    // Windows: frame, rubber, panes with their pillars.
    const QPainterPath opening = WindowPath(c, -0.012);
    p.Line(opening, 0.016, c.chromeTrim ? chromeLook : rubberLook);
    p.Ridge(opening, 0.016, 60);
    p.Fill(opening, darkLook);
    QPainterPath panes = WindowPath(c, 0.010);
    const double post = c.doorRear - 0.10;
    QPainterPath pillar =
        ClosedOutline({{post, 0.7}, {post + 0.04, 0.7}, {post - 0.04, 1.5}, {post - 0.065, 1.5}});
    QPainterPath vent = ClosedOutline({{c.windowFront + 0.30, 0.7},
                                       {c.windowFront + 0.312, 0.7},
                                       {c.windowFront + 0.372, 1.5},
                                       {c.windowFront + 0.36, 1.5}});
    p.Fill(panes.subtracted(pillar), glassLook);
    if (c.chromeTrim) {
        p.Fill(panes.intersected(vent), chromeLook);
        p.ChromeBar(AlongFlank(c, c.windowFront - 0.05, c.windowRear, c.shoulder, 0.006), 0.012);
    }
    if (trim.vinylRoof) {
        p.Line(WindowPath(c, -0.02), 0.012, chromeLook);
    }
    // Side lamps and lettering.
    const QPainterPath front = RoundedPath(0.30, c.bumperHeight + 0.11, 0.42, c.bumperHeight + 0.15, 0.012);
    const QPainterPath rear =
        RoundedPath(c.length - 0.42, c.bumperHeight + 0.14, c.length - 0.30, c.bumperHeight + 0.18, 0.012);
    p.Fill(front, Surface{QColor(225, 120, 20), 0, 0, 0, trim.lampsLit ? 90 : 0});
    p.Fill(rear, Surface{QColor(170, 14, 14), 0, 0, 0, trim.lampsLit ? 90 : 0});
    p.Raise(front, 0.006, 40);
    p.Raise(rear, 0.006, 40);
    if (!trim.script.isEmpty())
        p.Text(trim.script, c.frontAxle + c.archRadius + 0.20, c.shoulder(1.3) - 0.16, 0.06,
               u"Liberation Serif"_s, true, mirrored,
               c.chromeTrim ? chromeLook : Surface{QColor(225, 226, 228), 200, 0, 20, 0});
    return p.Finish();
}

} // namespace torvik::sample
