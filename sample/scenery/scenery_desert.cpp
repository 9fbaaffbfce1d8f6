#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

Scenery DesertScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    s.light = Daylight{.toSun = Unit({random.Between(-0.8, 0.8), -0.7, random.Between(0.3, 0.6)}),
                       .sun = {2.7, 2.1, 1.45},
                       .zenith = {0.10, 0.22, 0.52},
                       .horizon = {0.90, 0.80, 0.68},
                       .ground = {0.36, 0.24, 0.145},
                       .band = {0.28, 0.15, 0.09},
                       .bandHeight = 0.09,
                       .clouds = random.Between(0.05, 0.4),
                       .seed = seed};
    s.haze = {0.80, 0.70, 0.58};
    s.hazeReach = 700;
    s.ground = [seed](double x, double y, double distance) {
        const double roadEdge = 3.4 + 0.25 * Noise(x * 0.8, 4.4, seed + 7);
        const double dunes = Fractal(x * 0.22, y * 0.22, 4, seed + 11);
        const double pebbles = (Noise(x * 16, y * 16, seed + 12) - 0.5) * std::exp(-distance / 25.0);
        const double scrub = SmoothStep(0.66, 0.74, Fractal(x * 0.55, y * 0.55, 3, seed + 13)) *
                             SmoothStep(3.8, 6.0, std::abs(y + 0.6));
        Rgb sand = Mix(Rgb{0.33, 0.20, 0.11}, Rgb{0.55, 0.37, 0.22}, dunes) * (1.0 + 0.7 * pebbles);
        sand = Mix(sand, Rgb{0.13, 0.13, 0.06}, scrub * 0.75);
        const double onRoad = SmoothStep(roadEdge + 0.35, roadEdge, std::abs(y + 0.6));
        Rgb road = Asphalt(x, y, distance, seed) * 1.25;
        const double drift = SmoothStep(0.5, 0.75, Fractal(x * 0.5, y * 1.5, 3, seed + 15)) *
                             SmoothStep(1.6, 3.3, std::abs(y + 0.6));
        const double dash = std::fmod(std::abs(x + 401.5), 9.0) < 3.0 ? 1.0 : 0.0;
        road = Mix(road, Rgb{0.72, 0.50, 0.10}, dash * LineMark(y, -1.9, 0.12, distance) * 0.8);
        road = Mix(road, sand, drift * 0.8);
        return Mix(sand, road, onRoad);
    };
    s.backdrop = [seed](QPainter& painter, const Camera& camera) {
        const QColor haze(222, 200, 178);
        PaintRidge(
            painter, camera, [=](double a) { return 0.04 + 0.05 * Fractal(a * 3, 1.0, 4, seed + 3); },
            Hazed(QColor(150, 104, 92), haze, 0.55), Hazed(QColor(170, 120, 90), haze, 0.75));
        // Mesas: flat tops with steep sides.
        PaintRidge(
            painter, camera,
            [=](double a) {
                const double n = Fractal(a * 2.2 + 5, 3.0, 3, seed + 8);
                const double table = SmoothStep(0.52, 0.56, n) * 0.075 + SmoothStep(0.62, 0.64, n) * 0.055;
                return 0.008 + table + 0.006 * Fractal(a * 40, 1.0, 3, seed + 9);
            },
            Hazed(QColor(168, 84, 50), haze, 0.18), Hazed(QColor(186, 116, 74), haze, 0.5));
        // Strata.
        Random random(seed + 77);
        for (int i = 0; i < 30; ++i) {
            const double x = random.Between(-60, 60);
            const double y = random.Between(9, 90);
            const Standing at = StandAt(camera, x, y);
            if (!at.visible || at.depth < 6)
                continue;
            const double m = at.metre;
            const double share = Clamp01(at.depth / 140);
            if (i % 4 == 0) {
                // A branching cactus.
                const QColor green = Hazed(QColor(66, 84, 46), haze, share);
                const double tall = random.Between(2.2, 4.5);
                painter.setPen(QPen(green, 0.34 * m, Qt::SolidLine, Qt::RoundCap));
                painter.drawLine(QPointF(at.x, at.y), QPointF(at.x, at.y - tall * m));
                painter.setPen(QPen(green, 0.24 * m, Qt::SolidLine, Qt::RoundCap));
                QPainterPath arm = Outline(
                    {{at.x, at.y - tall * 0.42 * m},
                     {at.x + 0.8 * m, at.y - tall * 0.42 * m, at.x + 0.8 * m, at.y - tall * 0.75 * m}});
                arm.moveTo(at.x, at.y - tall * 0.3 * m);
                arm.quadTo(at.x - 0.7 * m, at.y - tall * 0.3 * m, at.x - 0.7 * m, at.y - tall * 0.6 * m);
                painter.drawPath(arm);
                painter.setPen(Qt::NoPen);
            } else {
                PaintTree(painter, at, random.Between(0.6, 1.3), Hazed(QColor(140, 128, 74), haze, share),
                          Hazed(QColor(70, 62, 36), haze, share), seed + static_cast<std::uint32_t>(i));
            }
        }
    };
    s.backdropBlur = 2.2;
    return s;
}

} // namespace torvik::sample
