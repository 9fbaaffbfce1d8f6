#include "sample/car/car_mesh.h"
#include "sample/car/skin_painter.h"
#include "sample/geometry/shapes.h"

namespace torvik::sample {

namespace {

/// A pane between two places along the car, as wide as the cabin there less the pillars.
QPainterPath PanePath(const CarShape& c, double from, double to, double pillar)
{
    QPainterPath path;
    constexpr int paneSteps = 16;
    for (int pass = 0; pass < 2; ++pass) {
        for (int i = 0; i <= paneSteps; ++i) {
            const double t = static_cast<double>(pass == 0 ? i : paneSteps - i) / paneSteps;
            const double s = Mix(from, to, t);
            const double y = (RoofRailAt(c, s).halfWidth - pillar) * (pass == 0 ? -1.0 : 1.0);
            if (pass == 0 && i == 0)
                path.moveTo(s, y);
            else
                path.lineTo(s, y);
        }
    }
    path.closeSubpath();
    return path;
}

} // namespace

SkinMap DrawTopSkin(const CarShape& c, const Paint& paint, const Trim& trim, double pointsPerMetre)
{
    SkinPainter p(-0.05, -1.05, c.length + 0.1, 2.1, pointsPerMetre, paint.colour);
    if (trim.stripe == Trim::Stripe::Racing) {
        for (const double y : {-0.19, 0.19})
            p.Fill(RoundedPath(-0.05, y - 0.11, c.length + 0.05, y + 0.11, 0), Surface{trim.stripeColour});
    } else if (trim.stripe == Trim::Stripe::Hockey || trim.stripe == Trim::Stripe::Flames) {
        p.Fill(ClosedOutline({{0.1, -0.30}, {0.1, 0.30}, {c.cowl - 0.05, 0.36}, {c.cowl - 0.05, -0.36}}),
               Surface{trim.stripeColour});
    }
    if (trim.vinylRoof)
        p.Fill(RoundedPath(c.header - 0.1, -0.8, c.cabinEnd - 0.12, 0.8, 0.05),
               {QColor(28, 26, 25), 0, 0, 170, 0});
    // Bonnet and boot lid.
    for (const double sign : {-1.0, 1.0}) {
        p.Gap(Outline({{0.06, sign * (c.halfWidth(0.06) - 0.14)},
                       {0.8, sign * (ShoulderHalfWidth(c, 0.8) - 0.05), c.cowl - 0.06,
                        sign * (ShoulderHalfWidth(c, c.cowl) - 0.04)}}));
        p.Ridge(Outline({{0.12, sign * 0.25}, {c.cowl - 0.1, sign * 0.31}}), 0.06, 16);
        p.Gap(Outline({{c.cabinEnd + 0.04, sign * (ShoulderHalfWidth(c, c.cabinEnd) - 0.10)},
                       {c.length - 0.02, sign * (c.halfWidth(c.length) - 0.12)}}));
    }
    p.Gap(Outline({{c.cowl - 0.055, -0.82},
                   {c.cowl - 0.02, -0.4},
                   {c.cowl - 0.01, 0},
                   {c.cowl - 0.02, 0.4},
                   {c.cowl - 0.055, 0.82}}));
    p.Gap(Outline({{c.cabinEnd + 0.04, -0.75}, {c.cabinEnd + 0.06, 0}, {c.cabinEnd + 0.04, 0.75}}));
    if (c.bonnetScoop) {
        p.Fill(RoundedPath(0.79, -0.135, 0.835, 0.135, 0.01), darkLook);
    }
    // Grille before the windscreen, wipers.
    p.Fill(RoundedPath(c.cowl - 0.01, -0.62, c.cowl + 0.045, 0.62, 0.01), darkLook);
    const auto pane = [&](double from, double to) {
        const QPainterPath frame = PanePath(c, from - 0.025, to + 0.025, 0.045);
        p.Fill(frame, c.chromeTrim ? chromeLook : rubberLook);
        p.Ridge(frame, 0.03, 40);
        p.Fill(PanePath(c, from - 0.005, to + 0.005, 0.062), darkLook);
        p.Fill(PanePath(c, from + 0.008, to - 0.008, 0.075), glassLook);
    };
    pane(c.cowl + 0.06, c.header);
    pane(c.rearHeader, c.cabinEnd - 0.10);
    for (const double y : {-0.42, 0.12}) {
        p.Line(Outline({{c.cowl + 0.055, y}, {c.cowl + 0.13, y + 0.36}}), 0.012, darkLook);
    }
    return p.Finish();
}

} // namespace torvik::sample
