#include "sample/car/skin_painter.h"
#include "sample/car/skin_sides.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void DrawTailLamp(SkinPainter& p, const QPainterPath& outline, bool lit, bool framed)
{
    const QRectF box = outline.boundingRect();
    QLinearGradient red(box.topLeft(), box.bottomLeft());
    red.setColorAt(0, lit ? QColor(255, 40, 24) : QColor(98, 4, 8));
    red.setColorAt(0.6, lit ? QColor(255, 70, 40) : QColor(190, 16, 18));
    red.setColorAt(1, lit ? QColor(255, 40, 24) : QColor(120, 6, 10));
    p.Fill(outline, LampLook(red, lit ? 200 : 10));
    p.Raise(outline, 0.012, 60);
    if (framed)
        p.ChromeBar(outline, 0.011);
    else
        p.Line(outline, 0.008, DarkLook());
}

} // namespace

SkinMap DrawRearSkin(const CarShape& c, const Paint& paint, const Trim& trim, double pointsPerMetre)
{
    SkinPainter p(-1.1, 0.0, 2.2, 1.3, pointsPerMetre, paint.colour);
    const bool lit = trim.lampsLit;
    if (trim.stripe == Trim::Stripe::Racing) {
        for (const double u : {-0.19, 0.19})
            p.Fill(RoundedPath(u - 0.11, 0, u + 0.11, 1.3, 0), PaintLook(trim.stripeColour));
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
            p.Fill(panel, RubberLook());
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
                p.ChromeBar(PolyPath({{side * u, low + 0.01}, {side * u, high - 0.01}}, false), 0.006);
            break;
        case TailLamps::Square: {
            bar(half - 0.36, half - 0.01, 0.012);
            const QPainterPath reverse =
                RoundedPath(side * (half - 0.36), low, side * (half - 0.27), high, 0.01);
            p.Fill(reverse, {QColor(210, 212, 210), 60, 0, 20, 0});
            for (int i = 1; i < 4; ++i)
                p.Line(PolyPath({{side * (half - 0.36), Mix(low, high, i / 4.0)},
                                 {side * (half - 0.01), Mix(low, high, i / 4.0)}},
                                false),
                       0.008, RubberLook());
            break;
        }
        case TailLamps::Wrap: {
            QPainterPath lamp;
            lamp.moveTo(side * (half - 0.36), low + 0.04);
            lamp.quadTo(side * (half - 0.15), low, side * (half + 0.1), low + 0.02);
            lamp.lineTo(side * (half + 0.1), high);
            lamp.quadTo(side * (half - 0.2), high + 0.02, side * (half - 0.36), high - 0.03);
            lamp.closeSubpath();
            DrawTailLamp(p, lamp, lit, false);
            for (int i = 1; i < 3; ++i)
                p.Line(PolyPath({{side * (half - 0.34), Mix(low, high, i / 3.0)},
                                 {side * (half + 0.05), Mix(low, high, i / 3.0)}},
                                false),
                       0.007, DarkLook());
            break;
        }
        case TailLamps::ThreeTall:
            for (int i = 0; i < 3; ++i)
                bar(half - 0.085 - 0.10 * i, half - 0.012 - 0.10 * i, 0.02);
            break;
        }
    }
    // The boot lid and its sign.
    p.Gap(PolyPath({{-half + 0.01, high + 0.06},
                    {-half + 0.0, low - 0.03},
                    {half - 0.0, low - 0.03},
                    {half - 0.01, high + 0.06}},
                   false));
    const QPainterPath cap = EllipsePath(0, (low + high) / 2, 0.06, 0.06);
    p.Fill(cap, ChromeLook());
    p.Raise(cap, 0.02, 80);
    p.Fill(EllipsePath(0, (low + high) / 2, 0.038, 0.038), PaintLook(QColor(140, 16, 24)));
    p.Text(u"T O R V I K"_s, half * 0.0, high + 0.025, 0.032, u"Liberation Sans"_s, false, false,
           ChromeLook());
    if (c.bumper == Bumper::Hidden) {
        p.Gap(PolyPath({{-1.0, low - 0.03}, {1.0, low - 0.03}}, false));
        p.Fill(RoundedPath(-0.5, 0.20, 0.5, c.bottom(c.length) + 0.03, 0.03), RubberLook());
    }
    DrawPlate(p, 0, c.bumper == Bumper::Hidden ? low - 0.13 : c.bumperHeight - 0.045, trim.plate);
    return p.Finish();
}

} // namespace torvik::sample
