#include "sample/car/skin_painter.h"
#include "sample/car/skin_sides.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void DrawRoundLamp(SkinPainter& p, double u, double v, double radius, bool lit)
{
    p.Fill(EllipsePath(u, v, radius * 1.22, radius * 1.22), DarkLook());
    const QPainterPath ring = EllipsePath(u, v, radius * 1.06, radius * 1.06);
    p.ChromeBar(ring, radius * 0.16);
    QRadialGradient lens(QPointF(u, v), radius, QPointF(u + radius * 0.25, v + radius * 0.3));
    lens.setColorAt(0, lit ? QColor(255, 252, 235) : QColor(250, 252, 252));
    lens.setColorAt(0.35, lit ? QColor(255, 250, 225) : QColor(176, 186, 190));
    lens.setColorAt(0.8, lit ? QColor(255, 244, 200) : QColor(120, 130, 136));
    lens.setColorAt(1, lit ? QColor(240, 220, 170) : QColor(66, 72, 76));
    const QPainterPath glass = EllipsePath(u, v, radius * 0.97, radius * 0.97);
    p.Fill(glass, {lens, lit ? 0 : 90, 0, 20, lit ? 220 : 0});
    for (int i = 5; i >= 1; --i)
        p.Raise(EllipsePath(u, v, radius * 0.17 * i, radius * 0.17 * i), radius * 0.08,
                lit ? 0 : (6 - i) * 18);
    if (!lit) {
        for (int i = -4; i <= 4; ++i) {
            const double x = u + radius * 0.2 * i;
            const double tall = radius * 0.9 * std::sqrt(std::max(0.0, 1.0 - std::pow(0.2 * i, 2.0)));
            p.Line(PolyPath({{x, v - tall}, {x, v + tall}}, false), 0.002,
                   {QColor(210, 216, 220, 110), 60, 0, 30, 0});
        }
    }
}

void DrawFlatLamp(SkinPainter& p, const QPainterPath& outline, bool lit)
{
    const QRectF box = outline.boundingRect();
    QLinearGradient lens(box.topLeft(), box.bottomLeft());
    lens.setColorAt(0, lit ? QColor(255, 246, 215) : QColor(96, 104, 110));
    lens.setColorAt(0.5, lit ? QColor(255, 252, 236) : QColor(206, 214, 218));
    lens.setColorAt(1, lit ? QColor(255, 246, 215) : QColor(140, 150, 156));
    p.Line(outline, 0.022, DarkLook());
    p.Fill(outline, {lens, lit ? 0 : 110, 0, 10, lit ? 220 : 0});
    p.Raise(outline, 0.016, lit ? 0 : 60);
    p.Line(outline, 0.006, {QColor(180, 186, 190), 160, 0, 30, 0});
    if (!lit) {
        const double middle = box.center().x();
        const QPainterPath bowl =
            EllipsePath(middle, box.center().y(), box.height() * 0.38, box.height() * 0.38);
        p.Line(bowl, 0.006, {QColor(230, 236, 240), 140, 0, 20, 0});
        p.Raise(bowl, 0.02, 80);
    }
}

void DrawGrille(SkinPainter& p, const CarShape& c, const QPainterPath& opening)
{
    p.Raise(opening, 0.02, -60);
    QLinearGradient depth(QPointF(0, c.grilleHigh), QPointF(0, c.grilleLow));
    depth.setColorAt(0, QColor(4, 4, 5));
    depth.setColorAt(1, QColor(26, 26, 28));
    p.Fill(opening, {depth, 0, 0, 240, 0});
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
        p.Line(opening, 0.010, DarkLook());
}

/// The maker's sign: a shield with a wing-shaped T; entirely our own.
void DrawBadge(SkinPainter& p, double u, double v, double size, bool chrome)
{
    QPainterPath shield;
    shield.moveTo(u - size, v + size * 0.8);
    shield.quadTo(u, v + size * 1.05, u + size, v + size * 0.8);
    shield.quadTo(u + size * 0.9, v - size * 0.6, u, v - size * 1.1);
    shield.quadTo(u - size * 0.9, v - size * 0.6, u - size, v + size * 0.8);
    p.Fill(shield, chrome ? ChromeLook() : Surface{QColor(200, 202, 206), 220, 0, 20, 0});
    p.Raise(shield, 0.008, 60);
    QTransform inner;
    inner.translate(u, v);
    inner.scale(0.8, 0.8);
    inner.translate(-u, -v);
    p.Fill(inner.map(shield), PaintLook(QColor(140, 16, 24)));
    QPainterPath tee;
    tee.moveTo(u - size * 0.7, v + size * 0.5);
    tee.quadTo(u, v + size * 0.2, u + size * 0.7, v + size * 0.5);
    tee.quadTo(u + size * 0.2, v + size * 0.15, u + size * 0.14, v - size * 0.7);
    tee.lineTo(u - size * 0.14, v - size * 0.7);
    tee.quadTo(u - size * 0.2, v + size * 0.15, u - size * 0.7, v + size * 0.5);
    p.Fill(tee, ChromeLook());
}

} // namespace

void DrawPlate(SkinPainter& p, double u, double v, const QString& text)
{
    const QPainterPath plate = RoundedPath(u - 0.165, v - 0.062, u + 0.165, v + 0.062, 0.012);
    p.Line(plate, 0.012, ChromeLook());
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
            p.Fill(RoundedPath(u - 0.11, 0, u + 0.11, 1.3, 0), PaintLook(trim.stripeColour));
    }
    // The lower air intake and the valance.
    const double low = std::max(0.22, c.bottom(0) - 0.12);
    if (c.bumper == Bumper::Hidden) {
        const QPainterPath intake = RoundedPath(-0.46, low + 0.08, 0.46, low + 0.20, 0.05);
        p.Raise(intake, 0.03, -60);
        p.Fill(intake, DarkLook());
        for (const double side : {-1.0, 1.0}) {
            DrawRoundLamp(p, side * 0.57, low + 0.14, 0.045, lit);
        }
        p.Gap(PolyPath({{-1.0, c.grilleLow - 0.03},
                        {-c.grilleHalf, c.grilleLow - 0.02},
                        {c.grilleHalf, c.grilleLow - 0.02},
                        {1.0, c.grilleLow - 0.03}},
                       false));
    } else {
        p.Fill(RoundedPath(-0.42, c.bottom(0) - 0.02, 0.42, c.bottom(0) + 0.035, 0.02), DarkLook());
        for (const double side : {-1.0, 1.0}) {
            const QPainterPath turn =
                RoundedPath(side * 0.52, c.bumperHeight - 0.115, side * 0.68, c.bumperHeight - 0.072, 0.02);
            p.Fill(turn, LampLook(QColor(236, 150, 40), lit ? 120 : 0));
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
            QPainterPath lamp;
            lamp.moveTo(side * (h + 0.05), c.grilleHigh + 0.01);
            lamp.quadTo(side * (h + 0.25), c.grilleHigh + 0.05, side * (h + 0.42), c.grilleHigh + 0.035);
            lamp.quadTo(side * (h + 0.46), middle + 0.01, side * (h + 0.36), middle - 0.035);
            lamp.quadTo(side * (h + 0.2), middle - 0.03, side * (h + 0.05), middle - 0.02);
            lamp.closeSubpath();
            DrawFlatLamp(p, lamp, lit);
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
            QPainterPath lamp;
            lamp.moveTo(side * (h + 0.05), c.grilleHigh + 0.005);
            lamp.lineTo(side * (h + 0.29), c.grilleHigh + 0.02);
            lamp.quadTo(side * (h + 0.33), middle, side * (h + 0.27), c.grilleLow - 0.01);
            lamp.lineTo(side * (h + 0.02), c.grilleLow + 0.02);
            lamp.closeSubpath();
            DrawFlatLamp(p, lamp, lit);
        }
        break;
    }
    DrawBadge(p, 0, middle + 0.005, std::min(0.06, (c.grilleHigh - c.grilleLow) * 0.36), c.chromeTrim);
    DrawPlate(p, 0, c.bumper == Bumper::Hidden ? c.grilleLow - 0.10 : c.bumperHeight - 0.0, trim.plate);
    return p.Finish();
}

} // namespace torvik::sample
