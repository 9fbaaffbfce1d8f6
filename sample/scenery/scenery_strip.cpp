#include "sample/geometry/noise.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

Scenery StripScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    s.light = Daylight{.toSun = Unit({random.Between(-0.6, 0.6), -0.6, 0.7}),
                       .sun = {2.4, 2.15, 1.75},
                       .zenith = {0.16, 0.30, 0.62},
                       .horizon = {0.86, 0.87, 0.86},
                       .ground = {0.17, 0.165, 0.16},
                       .band = {0.13, 0.11, 0.10},
                       .bandHeight = 0.16,
                       .clouds = random.Between(0.4, 0.8),
                       .seed = seed};
    s.haze = {0.72, 0.75, 0.77};
    s.hazeReach = 420;
    s.ground = [seed](double x, double y, double distance) {
        if (std::abs(y - 0.5) > 8.0) {
            const double grass = Fractal(x * 1.8, y * 1.8, 4, seed + 5);
            return Mix(Rgb{0.08, 0.11, 0.035}, Rgb{0.22, 0.24, 0.10}, grass);
        }
        Rgb road = Asphalt(x, y, distance, seed) * 1.35;
        // Rubber in the two lanes.
        for (const double lane : {-0.1, 5.2}) {
            for (const double track : {-0.75, 0.75}) {
                const double away = y - lane - track;
                const double streak =
                    std::exp(-away * away / 0.07) * (0.55 + 0.45 * Noise(x * 0.35, y * 6, seed + 8));
                road = road * (1.0 - 0.72 * streak);
            }
        }
        const double marks = std::max({LineMark(y, 2.6, 0.14, distance), LineMark(y, -2.8, 0.14, distance),
                                       LineMark(y, 7.9, 0.14, distance)});
        const double start = LineMark(x, -3.4, 0.24, distance) * (std::abs(y - 2.6) < 5.4 ? 1.0 : 0.0);
        return Mix(road, Rgb{0.74, 0.73, 0.70},
                   std::max(marks, start) * (0.6 + 0.4 * Noise(x * 5, y * 5, seed + 9)));
    };
    s.backdrop = [seed](QPainter& painter, const Camera& camera) {
        const QColor haze(204, 212, 216);
        PaintRidge(
            painter, camera, [=](double a) { return 0.035 + 0.05 * Fractal(a * 6, 1.0, 5, seed + 3); },
            Hazed(QColor(64, 84, 58), haze, 0.5), Hazed(QColor(84, 96, 66), haze, 0.65));
        painter.setPen(Qt::NoPen);
        // The stand: rising rows of people, each a dot or two of colour, under a roof.
        Random random(seed + 4);
        for (int row = 0; row < 11; ++row) {
            const double y = 17.0 + row * 0.9;
            const double z = 1.4 + row * 0.62;
            PaintBar(painter, camera, {-44, y, z - 0.35}, {44, y, z - 0.35}, 0.7,
                     QColor(92 + row * 3, 92 + row * 3, 96 + row * 3));
            for (double x = -44; x < 44; x += 0.5) {
                const double chance = random.Unit();
                const int hue = random.Below(360);
                const int strong = 10 + random.Below(80);
                const int value = 70 + random.Below(130);
                if (chance < 0.18)
                    continue;
                const Standing at = StandAt(camera, x + random.Between(-0.1, 0.1), y, z);
                if (!at.visible)
                    continue;
                painter.setBrush(QColor::fromHsv(hue, strong, value));
                painter.drawEllipse(QPointF(at.x, at.y), 0.2 * at.metre, 0.3 * at.metre);
                painter.setBrush(QColor(206, 164, 136));
                painter.drawEllipse(QPointF(at.x, at.y - 0.40 * at.metre), 0.11 * at.metre, 0.13 * at.metre);
            }
        }
        PaintBar(painter, camera, {-45, 19, 10.6}, {45, 19, 10.6}, 0.9, QColor(196, 44, 40));
        PaintBar(painter, camera, {-45, 19, 10.0}, {45, 19, 10.0}, 0.25, QColor(238, 236, 228));
        for (double x = -44; x <= 44; x += 8)
            PaintBar(painter, camera, {x, 18, 0}, {x, 18, 10.4}, 0.24, QColor(120, 122, 126));
        // Walls and banners along the track.
        for (double x = -60; x < 60; x += 4) {
            const int which = Floor(Hash(Floor(x), 3, seed) * 4.0);
            static const QColor colours[] = {QColor(230, 228, 220), QColor(190, 36, 34), QColor(34, 62, 130),
                                             QColor(232, 178, 30)};
            PaintBar(painter, camera, {x, 10.5, 0.45}, {x + 3.96, 10.5, 0.45}, 0.9, colours[which]);
            PaintBar(painter, camera, {x, 10.45, 0.92}, {x + 4, 10.45, 0.92}, 0.06, QColor(150, 150, 150));
        }
        // The starting lights on their pole.
        PaintBar(painter, camera, {-4.6, 2.6, 0}, {-4.6, 2.6, 2.6}, 0.09, QColor(30, 30, 32));
        for (int i = 0; i < 6; ++i) {
            for (const double side : {-0.2, 0.2}) {
                const Standing at = StandAt(camera, -4.6, 2.6 + side, 2.45 - 0.27 * i);
                if (!at.visible)
                    continue;
                painter.setBrush(QColor(24, 24, 26));
                painter.drawEllipse(QPointF(at.x, at.y), 0.13 * at.metre, 0.13 * at.metre);
                painter.setBrush(i < 4    ? QColor(255, 186, 40)
                                 : i == 4 ? QColor(60, 230, 90)
                                          : QColor(120, 20, 18));
                painter.drawEllipse(QPointF(at.x, at.y), 0.09 * at.metre, 0.09 * at.metre);
            }
        }
    };
    s.backdropBlur = 2.6;
    return s;
}

} // namespace torvik::sample
