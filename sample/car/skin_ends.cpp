#include "sample/car/skin_painter.h"
#include "sample/geometry/shapes.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void DrawRoundLamp(SkinPainter& p, double u, double v, double radius, bool lit)
{
    p.Fill(Disc({u, v}, radius * 1.22), darkLook);
    p.ChromeBar(Disc({u, v}, radius * 1.06), radius * 0.16);
    const QRadialGradient lens = Radial({u, v}, radius, {u + radius * 0.25, v + radius * 0.3},
                                        {{0, lit ? QColor(255, 252, 235) : QColor(250, 252, 252)},
                                         {0.35, lit ? QColor(255, 250, 225) : QColor(176, 186, 190)},
                                         {0.8, lit ? QColor(255, 244, 200) : QColor(120, 130, 136)},
                                         {1, lit ? QColor(240, 220, 170) : QColor(66, 72, 76)}});
    p.Fill(Disc({u, v}, radius * 0.97), {lens, lit ? 0 : 90, 0, 20, lit ? 220 : 0});
    for (int i = 5; i >= 1; --i)
        p.Raise(Disc({u, v}, radius * 0.17 * i), radius * 0.08, lit ? 0 : (6 - i) * 18);
    if (!lit) {
        for (int i = -4; i <= 4; ++i) {
            const double x = u + radius * 0.2 * i;
            const double tall = radius * 0.9 * std::sqrt(std::max(0.0, 1.0 - std::pow(0.2 * i, 2.0)));
            p.Line(Outline({{x, v - tall}, {x, v + tall}}), 0.002,
                   {QColor(210, 216, 220, 110), 60, 0, 30, 0});
        }
    }
}

void DrawFlatLamp(SkinPainter& p, const QPainterPath& outline, bool lit)
{
    const QRectF box = outline.boundingRect();
    const QLinearGradient lens = Linear(box.topLeft(), box.bottomLeft(),
                                        {{0, lit ? QColor(255, 246, 215) : QColor(96, 104, 110)},
                                         {0.5, lit ? QColor(255, 252, 236) : QColor(206, 214, 218)},
                                         {1, lit ? QColor(255, 246, 215) : QColor(140, 150, 156)}});
    p.Line(outline, 0.022, darkLook);
    p.Fill(outline, {lens, lit ? 0 : 110, 0, 10, lit ? 220 : 0});
    p.Raise(outline, 0.016, lit ? 0 : 60);
    p.Line(outline, 0.006, {QColor(180, 186, 190), 160, 0, 30, 0});
    if (!lit) {
        const double middle = box.center().x();
        const QPainterPath bowl = Disc({middle, box.center().y()}, box.height() * 0.38);
        p.Line(bowl, 0.006, {QColor(230, 236, 240), 140, 0, 20, 0});
        p.Raise(bowl, 0.02, 80);
    }
}

void DrawGrille(SkinPainter& p, const CarShape& c, const QPainterPath& opening)
{
    p.Raise(opening, 0.02, -60);
    p.Fill(opening,
           {Linear({0, c.grilleHigh}, {0, c.grilleLow}, {{0, QColor(4, 4, 5)}, {1, QColor(26, 26, 28)}}), 0,
            0, 240, 0});
    const Surface mesh = {c.chromeTrim ? QColor(150, 152, 156) : QColor(52, 53, 56), c.chromeTrim ? 190 : 40,
                          0, 60, 0};
    QPainterPath bars;
    for (double v = c.grilleLow + 0.022; v < c.grilleHigh - 0.01; v += 0.026) {
        bars.moveTo(-c.grilleHalf, v);
        bars.lineTo(c.grilleHalf, v);
    }
    for (double u = -c.grilleHalf + 0.03; u < c.grilleHalf; u += c.chromeTrim ? 0.055 : 0.035) {
        bars.moveTo(u, c.grilleLow);
        bars.lineTo(u, c.grilleHigh);
    }
    QPainterPathStroker stroker;
    stroker.setWidth(0.006);
    p.Fill(stroker.createStroke(bars).intersected(opening), mesh);
    if (c.chromeTrim)
        p.ChromeBar(opening, 0.022);
    else
        p.Line(opening, 0.010, darkLook);
}

/// The maker's sign: a shield with a wing-shaped T; entirely our own.
void DrawBadge(SkinPainter& p, double u, double v, double size, bool chrome)
{
    const QPainterPath shield = Outline({{u - size, v + size * 0.8},
                                         {u, v + size * 1.05, u + size, v + size * 0.8},
                                         {u + size * 0.9, v - size * 0.6, u, v - size * 1.1},
                                         {u - size * 0.9, v - size * 0.6, u - size, v + size * 0.8}});
    p.Fill(shield, chrome ? chromeLook : Surface{QColor(200, 202, 206), 220, 0, 20, 0});
    p.Raise(shield, 0.008, 60);
    QTransform inner;
    inner.translate(u, v);
    inner.scale(0.8, 0.8);
    inner.translate(-u, -v);
    p.Fill(inner.map(shield), Surface{QColor(140, 16, 24)});
    p.Fill(Outline({{u - size * 0.7, v + size * 0.5},
                    {u, v + size * 0.2, u + size * 0.7, v + size * 0.5},
                    {u + size * 0.2, v + size * 0.15, u + size * 0.14, v - size * 0.7},
                    {u - size * 0.14, v - size * 0.7},
                    {u - size * 0.2, v + size * 0.15, u - size * 0.7, v + size * 0.5}}),
           chromeLook);
}

void DrawTailLamp(SkinPainter& p, const QPainterPath& outline, bool lit, bool framed)
{
    const QRectF box = outline.boundingRect();
    p.Fill(outline, Surface{Linear(box.topLeft(), box.bottomLeft(),
                                   {{0, lit ? QColor(255, 40, 24) : QColor(98, 4, 8)},
                                    {0.6, lit ? QColor(255, 70, 40) : QColor(190, 16, 18)},
                                    {1, lit ? QColor(255, 40, 24) : QColor(120, 6, 10)}}),
                            0, 0, 0, lit ? 200 : 10});
    p.Raise(outline, 0.012, 60);
    if (framed)
        p.ChromeBar(outline, 0.011);
    else
        p.Line(outline, 0.008, darkLook);
}

} // namespace

void DrawPlate(SkinPainter& p, double u, double v, const QString& text)
{
    const QPainterPath plate = RoundedPath(u - 0.165, v - 0.062, u + 0.165, v + 0.062, 0.012);
    p.Line(plate, 0.012, chromeLook);
    p.Fill(plate, {QColor(236, 226, 190), 0, 0, 150, 0});
    p.Line(RoundedPath(u - 0.155, v - 0.053, u + 0.155, v + 0.053, 0.01), 0.003,
           {QColor(30, 44, 92), 0, 0, 150, 0});
    p.Text(text, u, v - 0.036, 0.088, u"Liberation Sans"_s, false, false, {QColor(26, 40, 90), 0, 0, 150, 0});
    p.Text(u"TORVIK"_s, u, v + 0.035, 0.016, u"Liberation Sans"_s, false, false,
           {QColor(26, 40, 90), 0, 0, 150, 0});
}

SkinMap DrawFrontSkin(const CarShape& c, const Paint& paint, const Trim& trim, double pointsPerMetre)
{
    SkinPainter p(-1.1, 0.0, 2.2, 1.3, pointsPerMetre, paint.colour);
    const double middle = (c.grilleLow + c.grilleHigh) / 2;
    const bool lit = trim.lampsLit;
    if (trim.stripe == Trim::Stripe::Racing) {
        for (const double u : {-0.19, 0.19})
            p.Fill(RoundedPath(u - 0.11, 0, u + 0.11, 1.3, 0), Surface{trim.stripeColour});
    }
    // The lower air intake and the valance.
    const double low = std::max(0.22, c.bottom(0) - 0.12);
    if (c.bumper == Bumper::Hidden) {
        const QPainterPath intake = RoundedPath(-0.46, low + 0.08, 0.46, low + 0.20, 0.05);
        p.Raise(intake, 0.03, -60);
        p.Fill(intake, darkLook);
        for (const double side : {-1.0, 1.0}) {
            DrawRoundLamp(p, side * 0.57, low + 0.14, 0.045, lit);
        }
        p.Gap(Outline({{-1.0, c.grilleLow - 0.03},
                       {-c.grilleHalf, c.grilleLow - 0.02},
                       {c.grilleHalf, c.grilleLow - 0.02},
                       {1.0, c.grilleLow - 0.03}}));
    } else {
        p.Fill(RoundedPath(-0.42, c.bottom(0) - 0.02, 0.42, c.bottom(0) + 0.035, 0.02), darkLook);
        for (const double side : {-1.0, 1.0}) {
            const QPainterPath turn =
                RoundedPath(side * 0.52, c.bumperHeight - 0.115, side * 0.68, c.bumperHeight - 0.072, 0.02);
            p.Fill(turn, Surface{QColor(236, 150, 40), 0, 0, 0, lit ? 120 : 0});
            p.Raise(turn, 0.008, 40);
        }
    }
    QPainterPath opening;
    const double h = c.grilleHalf;
    switch (c.lamps) {
    case Lamps::RoundInGrille:
        opening.moveTo(-h + 0.03, c.grilleHigh);
        opening.quadTo(0, c.grilleHigh + 0.015, h - 0.03, c.grilleHigh);
        opening.quadTo(h + 0.03, middle, h - 0.06, c.grilleLow);
        opening.lineTo(-h + 0.06, c.grilleLow);
        opening.quadTo(-h - 0.03, middle, -h + 0.03, c.grilleHigh);
        DrawGrille(p, c, opening);
        for (const double side : {-1.0, 1.0})
            DrawRoundLamp(p, side * (h - c.lampRadius - 0.035), middle, c.lampRadius, lit);
        break;
    case Lamps::RoundInWings:
        opening.moveTo(-h, c.grilleHigh);
        opening.lineTo(h, c.grilleHigh);
        opening.lineTo(h - 0.07, c.grilleLow);
        opening.lineTo(-h + 0.07, c.grilleLow);
        opening.closeSubpath();
        DrawGrille(p, c, opening);
        for (const double side : {-1.0, 1.0}) {
            DrawRoundLamp(p, side * (h + c.lampRadius + 0.05), middle + 0.01, c.lampRadius, lit);
            if (h > 0.42)
                DrawRoundLamp(p, side * (h - 0.14), middle, c.lampRadius * 0.72, lit);
        }
        break;
    case Lamps::RectangularPair:
        opening = RoundedPath(-h, c.grilleLow, h, c.grilleHigh, 0.012);
        DrawGrille(p, c, opening);
        for (const double side : {-1.0, 1.0}) {
            DrawFlatLamp(p,
                         RoundedPath(side * (h + 0.02), c.grilleLow + 0.005, side * (h + 0.165),
                                     c.grilleHigh - 0.005, 0.012),
                         lit);
            DrawFlatLamp(p,
                         RoundedPath(side * (h + 0.185), c.grilleLow + 0.005, side * (h + 0.33),
                                     c.grilleHigh - 0.005, 0.012),
                         lit);
        }
        break;
    case Lamps::Slim:
        opening = RoundedPath(-h, c.grilleLow, h, c.grilleHigh, 0.04);
        DrawGrille(p, c, opening);
        for (const double side : {-1.0, 1.0}) {
            DrawFlatLamp(p,
                         ClosedOutline({{side * (h + 0.05), c.grilleHigh + 0.01},
                                        {side * (h + 0.25), c.grilleHigh + 0.05, side * (h + 0.42),
                                         c.grilleHigh + 0.035},
                                        {side * (h + 0.46), middle + 0.01, side * (h + 0.36), middle - 0.035},
                                        {side * (h + 0.2), middle - 0.03, side * (h + 0.05), middle - 0.02}}),
                         lit);
        }
        break;
    case Lamps::Tall:
        opening.moveTo(-h, c.grilleHigh);
        opening.lineTo(h, c.grilleHigh);
        opening.lineTo(h - 0.08, c.grilleLow);
        opening.lineTo(-h + 0.08, c.grilleLow);
        opening.closeSubpath();
        DrawGrille(p, c, opening);
        for (const double side : {-1.0, 1.0}) {
            DrawFlatLamp(p,
                         ClosedOutline({{side * (h + 0.05), c.grilleHigh + 0.005},
                                        {side * (h + 0.29), c.grilleHigh + 0.02},
                                        {side * (h + 0.33), middle, side * (h + 0.27), c.grilleLow - 0.01},
                                        {side * (h + 0.02), c.grilleLow + 0.02}}),
                         lit);
        }
        break;
    }
    DrawBadge(p, 0, middle + 0.005, std::min(0.06, (c.grilleHigh - c.grilleLow) * 0.36), c.chromeTrim);
    DrawPlate(p, 0, c.bumper == Bumper::Hidden ? c.grilleLow - 0.10 : c.bumperHeight - 0.0, trim.plate);
    return p.Finish();
}

SkinMap DrawRearSkin(const CarShape& c, const Paint& paint, const Trim& trim, double pointsPerMetre)
{
    SkinPainter p(-1.1, 0.0, 2.2, 1.3, pointsPerMetre, paint.colour);
    const bool lit = trim.lampsLit;
    if (trim.stripe == Trim::Stripe::Racing) {
        for (const double u : {-0.19, 0.19})
            p.Fill(RoundedPath(u - 0.11, 0, u + 0.11, 1.3, 0), Surface{trim.stripeColour});
    }
    const double high = c.shoulder(c.length) - 0.085;
    const double low =
        c.bumper == Bumper::Hidden ? high - 0.20 : std::max(c.bumperHeight + 0.15, high - 0.19);
    const double half = c.halfWidth(c.length) - 0.09;
    const QPainterPath panel = RoundedPath(-half, low - 0.015, half, high + 0.015, 0.02);
    if (c.bumper != Bumper::Hidden) {
        p.Raise(panel, 0.02, -40);
        if (c.chromeTrim) {
            p.Fill(panel, {paint.colour.darker(150), 0, 0, 90, 0});
            p.ChromeBar(panel, 0.010);
        } else {
            p.Fill(panel, rubberLook);
        }
    }
    for (const double side : {-1.0, 1.0}) {
        const auto bar = [&](double from, double to, double radius) {
            DrawTailLamp(p, RoundedPath(side * from, low, side * to, high, radius), lit, c.chromeTrim);
        };
        switch (c.tailLamps) {
        case TailLamps::ThreeBars:
            for (int i = 0; i < 3; ++i)
                bar(half - 0.10 - 0.105 * i, half - 0.02 - 0.105 * i, 0.014);
            break;
        case TailLamps::FullWidth:
            bar(0.17, half - 0.02, 0.02);
            for (double u = 0.25; u < half - 0.05; u += 0.07)
                p.ChromeBar(Outline({{side * u, low + 0.01}, {side * u, high - 0.01}}), 0.006);
            break;
        case TailLamps::Square: {
            bar(half - 0.36, half - 0.01, 0.012);
            const QPainterPath reverse =
                RoundedPath(side * (half - 0.36), low, side * (half - 0.27), high, 0.01);
            p.Fill(reverse, {QColor(210, 212, 210), 60, 0, 20, 0});
            for (int i = 1; i < 4; ++i)
                p.Line(Outline({{side * (half - 0.36), Mix(low, high, i / 4.0)},
                                {side * (half - 0.01), Mix(low, high, i / 4.0)}}),
                       0.008, rubberLook);
            break;
        }
        case TailLamps::Wrap: {
            DrawTailLamp(
                p,
                ClosedOutline({{side * (half - 0.36), low + 0.04},
                               {side * (half - 0.15), low, side * (half + 0.1), low + 0.02},
                               {side * (half + 0.1), high},
                               {side * (half - 0.2), high + 0.02, side * (half - 0.36), high - 0.03}}),
                lit, false);
            for (int i = 1; i < 3; ++i)
                p.Line(Outline({{side * (half - 0.34), Mix(low, high, i / 3.0)},
                                {side * (half + 0.05), Mix(low, high, i / 3.0)}}),
                       0.007, darkLook);
            break;
        }
        case TailLamps::ThreeTall:
            for (int i = 0; i < 3; ++i)
                bar(half - 0.085 - 0.10 * i, half - 0.012 - 0.10 * i, 0.02);
            break;
        }
    }
    // The boot lid and its sign.
    p.Gap(Outline({{-half + 0.01, high + 0.06},
                   {-half + 0.0, low - 0.03},
                   {half - 0.0, low - 0.03},
                   {half - 0.01, high + 0.06}}));
    const QPainterPath cap = Disc({0, (low + high) / 2}, 0.06);
    p.Fill(cap, chromeLook);
    p.Raise(cap, 0.02, 80);
    p.Fill(Disc({0, (low + high) / 2}, 0.038), Surface{QColor(140, 16, 24)});
    p.Text(u"T O R V I K"_s, half * 0.0, high + 0.025, 0.032, u"Liberation Sans"_s, false, false, chromeLook);
    if (c.bumper == Bumper::Hidden) {
        p.Gap(Outline({{-1.0, low - 0.03}, {1.0, low - 0.03}}));
        p.Fill(RoundedPath(-0.5, 0.20, 0.5, c.bottom(c.length) + 0.03, 0.03), rubberLook);
    }
    DrawPlate(p, 0, c.bumper == Bumper::Hidden ? low - 0.13 : c.bumperHeight - 0.045, trim.plate);
    return p.Finish();
}

} // namespace torvik::sample
