#include "sample/car/skin_painter.h"
#include "sample/geometry/shapes.h"

namespace torvik::sample {

namespace {

/// A spoke that points upward, from the inner to the outer radius.
QPainterPath Spoke(double inner, double outer, double innerHalf, double outerHalf)
{
    return ClosedOutline(
        {{-innerHalf, inner},
         {-Mix(innerHalf, outerHalf, 0.35) * 0.85, Mix(inner, outer, 0.5), -outerHalf, outer},
         {0, outer + 0.01, outerHalf, outer},
         {Mix(innerHalf, outerHalf, 0.35) * 0.85, Mix(inner, outer, 0.5), innerHalf, inner}});
}

void Spokes(SkinPainter& p, const QPainterPath& spoke, int count, const Surface& look, double edge, int steps)
{
    for (int i = 0; i < count; ++i) {
        QTransform turn;
        turn.rotate(360.0 * i / count);
        const QPainterPath placed = turn.map(spoke);
        p.Fill(placed, look);
        p.Raise(placed, edge, steps);
    }
}

void Nuts(SkinPainter& p, int count, double radius)
{
    for (int i = 0; i < count; ++i) {
        const double a = 2 * pi * (i + 0.5) / count;
        const QPainterPath nut = Disc({radius * std::cos(a), radius * std::sin(a)}, 0.0085);
        p.Fill(nut, chromeLook);
        p.Raise(nut, 0.004, 60);
    }
}

void Cap(SkinPainter& p, double radius, const QColor& sign)
{
    const QPainterPath cap = Disc({0, 0}, radius);
    p.Fill(cap, chromeLook);
    p.Raise(cap, radius * 0.5, 90);
    p.Fill(Disc({0, 0}, radius * 0.55), Surface{sign});
    p.Fill(RoundedPath(-radius * 0.3, radius * 0.12, radius * 0.3, radius * 0.28, 0.001), chromeLook);
    p.Fill(RoundedPath(-radius * 0.07, -radius * 0.35, radius * 0.07, radius * 0.2, 0.001), chromeLook);
}

} // namespace

SkinMap DrawWheelSkin(const CarShape& c, const Paint& paint, const Trim& trim, double pointsPerMetre)
{
    SkinPainter p(-0.4, -0.4, 0.8, 0.8, pointsPerMetre, QColor(26, 26, 27));
    const double rim = c.rimRadius;
    p.Fill(RoundedPath(-0.4, -0.4, 0.4, 0.4, 0), rubberLook);
    // Side wall: a raised band with lettering and, in some years, a coloured line.
    p.Ridge(Disc({0, 0}, Mix(rim, c.wheelRadius, 0.25)), 0.02, 25);
    p.Ridge(Disc({0, 0}, Mix(rim, c.wheelRadius, 0.82)), 0.02, 30);
    for (int i = 0; i < 90; ++i) {
        const double a = 2 * pi * i / 90;
        p.Line(Outline({{c.wheelRadius * 0.955 * std::cos(a), c.wheelRadius * 0.955 * std::sin(a)},
                        {c.wheelRadius * std::cos(a), c.wheelRadius * std::sin(a)}}),
               0.004, darkLook);
    }
    if (trim.whiteWalls)
        p.Line(Disc({0, 0}, Mix(rim, c.wheelRadius, 0.38)), (c.wheelRadius - rim) * 0.26,
               {QColor(226, 224, 214), 0, 0, 220, 0});
    else if (trim.redLine)
        p.Line(Disc({0, 0}, Mix(rim, c.wheelRadius, 0.38)), 0.008, {QColor(190, 28, 28), 0, 0, 220, 0});
    // Behind the spokes: brake and shadow.
    p.Fill(Disc({0, 0}, rim),
           {Radial({0, 0}, rim, {{0, QColor(46, 46, 48)}, {0.75, QColor(18, 18, 19)}, {1, QColor(8, 8, 9)}}),
            0, 0, 230, 0});
    p.Fill(Disc({0, 0}, rim * 0.66), {QColor(74, 74, 76), 90, 0, 130, 0});
    p.Fill(Disc({0, 0}, rim * 0.36), darkLook);
    const Surface alloy = {QColor(196, 198, 202), 170, 0, 110, 0};
    switch (c.wheel) {
    case WheelFace::ChromeCap: {
        p.Fill(Disc({0, 0}, rim * 0.9), chromeLook);
        p.Ridge(Disc({0, 0}, rim * 0.78), 0.02, 60);
        for (int i = 0; i < 14; ++i) {
            const double a = 2 * pi * i / 14;
            QTransform turn;
            turn.rotateRadians(a);
            const QPainterPath slot = turn.map(RoundedPath(rim * 0.50, -0.011, rim * 0.68, 0.011, 0.011));
            p.Raise(slot, 0.006, -50);
            p.Fill(slot, darkLook);
        }
        p.Ridge(Disc({0, 0}, rim * 0.42), 0.014, 60);
        Cap(p, rim * 0.32, QColor(140, 16, 24));
        break;
    }
    case WheelFace::FiveSpoke: {
        Spokes(p, Spoke(0.03, rim * 0.92, 0.034, 0.040), 5, {QColor(66, 67, 70), 120, 0, 110, 0}, 0.012, 55);
        Spokes(p, Spoke(0.04, rim * 0.90, 0.018, 0.024), 5, chromeLook, 0.008, 75);
        p.Fill(Disc({0, 0}, rim * 0.34), {QColor(110, 111, 114), 150, 0, 80, 0});
        p.Raise(Disc({0, 0}, rim * 0.34), 0.012, 60);
        Nuts(p, 5, rim * 0.26);
        Cap(p, rim * 0.17, QColor(20, 20, 22));
        break;
    }
    case WheelFace::Slotted: {
        const QPainterPath dish = Disc({0, 0}, rim * 0.92);
        p.Fill(dish, alloy);
        p.Raise(dish, 0.01, 40);
        for (int i = 0; i < 5; ++i) {
            QTransform turn;
            turn.rotate(72.0 * i);
            const QPainterPath placed = turn.map(Outline({{-0.030, rim * 0.46},
                                                          {0, rim * 0.40, 0.030, rim * 0.46},
                                                          {0.05, rim * 0.62, 0.042, rim * 0.76},
                                                          {0, rim * 0.84, -0.042, rim * 0.76},
                                                          {-0.05, rim * 0.62, -0.030, rim * 0.46}}));
            p.Raise(placed, 0.012, -60);
            p.Fill(placed, darkLook);
        }
        Nuts(p, 5, rim * 0.31);
        Cap(p, rim * 0.2, QColor(20, 40, 90));
        break;
    }
    case WheelFace::Turbine: {
        p.Fill(Disc({0, 0}, rim * 0.93), {QColor(120, 122, 126), 150, 0, 120, 0});
        Spokes(p,
               Outline({{-0.006, rim * 0.40},
                        {0.006, rim * 0.40},
                        {0.03, rim * 0.66, 0.034, rim * 0.88},
                        {0.012, rim * 0.88},
                        {0.010, rim * 0.66, -0.006, rim * 0.40}}),
               20, {QColor(226, 228, 230), 190, 0, 80, 0}, 0.005, 50);
        for (int i = 0; i < 20; ++i) {
            QTransform turn;
            turn.rotate(18.0 * i + 9);
            p.Fill(turn.map(RoundedPath(-0.004 + 0.016, rim * 0.62, 0.006 + 0.016, rim * 0.84, 0.004)),
                   darkLook);
        }
        p.Fill(Disc({0, 0}, rim * 0.38), alloy);
        p.Raise(Disc({0, 0}, rim * 0.38), 0.014, 60);
        Nuts(p, 4, rim * 0.28);
        Cap(p, rim * 0.17, QColor(20, 20, 22));
        break;
    }
    case WheelFace::FiveStar: {
        Spokes(p, Spoke(0.02, rim * 0.93, 0.052, 0.030), 5, alloy, 0.014, 70);
        p.Fill(Disc({0, 0}, rim * 0.30), alloy);
        p.Raise(Disc({0, 0}, rim * 0.30), 0.014, 80);
        Nuts(p, 5, rim * 0.235);
        Cap(p, rim * 0.14, QColor(140, 16, 24));
        break;
    }
    case WheelFace::TenSpoke: {
        Spokes(p, Spoke(0.03, rim * 0.93, 0.012, 0.014), 10, alloy, 0.008, 70);
        p.Fill(Disc({0, 0}, rim * 0.28), alloy);
        p.Raise(Disc({0, 0}, rim * 0.28), 0.014, 70);
        Nuts(p, 5, rim * 0.215);
        Cap(p, rim * 0.13, paint.colour);
        break;
    }
    }
    p.ChromeBar(Disc({0, 0}, rim * 0.965), rim * 0.075);
    p.Line(Disc({0, 0}, rim * 1.005), 0.006, darkLook);
    return p.Finish();
}

CarSkin DrawCarSkin(const CarShape& shape, const Paint& paint, const Trim& trim, CarSide side,
                    const Sharpness& sharpness)
{
    return {paint,
            DrawSideSkin(shape, paint, trim, side, sharpness.side),
            DrawFrontSkin(shape, paint, trim, sharpness.front),
            DrawRearSkin(shape, paint, trim, sharpness.rear),
            DrawTopSkin(shape, paint, trim, sharpness.top),
            DrawWheelSkin(shape, paint, trim, sharpness.wheel)};
}

} // namespace torvik::sample
