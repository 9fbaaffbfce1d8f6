#include "sample/geometry/noise.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

#include <algorithm>

namespace torvik::sample {

namespace {

struct Trunk {
    double x;
    double y;
    double tall;
    int kind;
};

/// Trees on both sides of a lane along x, the farthest first.
std::vector<Trunk> Grove(std::uint32_t seed, int count, double free, const Camera& camera)
{
    Random random(seed);
    std::vector<Trunk> trunks;
    for (int i = 0; i < count; ++i) {
        const double side = random.Unit() < 0.75 ? 1.0 : -1.0;
        const double x = random.Between(-75, 75);
        const double y = side * (free + std::pow(random.Unit(), 1.6) * 42);
        trunks.push_back({x, y, random.Between(6, 13), random.Below(5)});
    }
    // Nothing stands between the camera and the car.
    std::erase_if(trunks,
                  [&](const Trunk& t) { return std::hypot(t.x - camera.eye.x, t.y - camera.eye.y) < 9.0; });
    std::sort(trunks.begin(), trunks.end(), [&](const Trunk& a, const Trunk& b) {
        return std::hypot(a.x - camera.eye.x, a.y - camera.eye.y) >
               std::hypot(b.x - camera.eye.x, b.y - camera.eye.y);
    });
    return trunks;
}

} // namespace

Scenery AutumnScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    s.light = Daylight{.toSun = Unit({random.Between(-0.7, 0.7), -0.55, 0.5}),
                       .sun = {2.3, 1.8, 1.15},
                       .zenith = {0.30, 0.42, 0.66},
                       .horizon = {0.95, 0.84, 0.62},
                       .ground = {0.17, 0.12, 0.08},
                       .band = {0.20, 0.10, 0.03},
                       .bandHeight = 0.34,
                       .clouds = 0.3,
                       .seed = seed};
    s.haze = {0.82, 0.70, 0.48};
    s.hazeReach = 240;
    s.ground = [seed](double x, double y, double distance) {
        const double leaves = Noise(x * 9, y * 9, seed + 4);
        const double which = Noise(x * 13 + 40, y * 13, seed + 5);
        const Rgb leaf = which > 0.6    ? Rgb{0.50, 0.26, 0.04}
                         : which > 0.35 ? Rgb{0.42, 0.13, 0.03}
                                        : Rgb{0.30, 0.17, 0.07};
        const bool lane = std::abs(y + 0.4) < 3.4;
        const double cover = lane ? SmoothStep(0.72, 0.80,
                                               leaves + 0.22 * Fractal(x * 0.5, y * 0.5, 2, seed + 6) - 0.10 +
                                                   0.10 * SmoothStep(1.5, 3.4, std::abs(y + 0.4)))
                                  : SmoothStep(0.25, 0.5, leaves);
        const Rgb base = lane
                             ? Asphalt(x, y, distance, seed) * 1.05
                             : Mix(Rgb{0.12, 0.09, 0.035}, Rgb{0.20, 0.17, 0.06}, Fractal(x, y, 3, seed + 7));
        // Sun through the branches.
        const double dapple = 0.66 + 0.55 * SmoothStep(0.42, 0.6, Fractal(x * 0.32, y * 0.32, 3, seed + 8));
        return Mix(base, leaf * (0.6 + 0.7 * which), cover) * dapple;
    };
    s.backdrop = [seed](QPainter& painter, const Camera& camera) {
        const QColor haze(232, 206, 156);
        PaintRidge(
            painter, camera, [=](double a) { return 0.16 + 0.10 * Fractal(a * 9, 1.0, 4, seed + 3); },
            Hazed(QColor(176, 116, 46), haze, 0.5), Hazed(QColor(120, 76, 34), haze, 0.4));
        static const QColor lights[] = {QColor(240, 170, 40), QColor(226, 104, 28), QColor(196, 52, 26),
                                        QColor(214, 186, 60), QColor(150, 150, 56)};
        static const QColor darks[] = {QColor(132, 74, 12), QColor(112, 38, 12), QColor(82, 18, 14),
                                       QColor(104, 82, 20), QColor(54, 60, 22)};
        std::uint32_t number = seed;
        for (const Trunk& t : Grove(seed + 12, 110, 5.4, camera)) {
            const Standing at = StandAt(camera, t.x, t.y);
            const double share = Clamp01(at.depth / 95);
            PaintTree(painter, at, t.tall, Hazed(lights[t.kind], haze, share * 0.75),
                      Hazed(darks[t.kind], haze, share * 0.75), ++number);
        }
        Random random(seed + 60);
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 40; ++i) {
            const Standing at =
                StandAt(camera, random.Between(-9, 9), random.Between(3, 12), random.Between(0.4, 5));
            const int kind = random.Below(4);
            if (!at.visible || at.depth < 5)
                continue;
            painter.setBrush(lights[kind]);
            painter.drawEllipse(QPointF(at.x, at.y), 0.05 * at.metre, 0.035 * at.metre);
        }
    };
    s.backdropBlur = 3.4;
    return s;
}

Scenery SnowScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    s.light = Daylight{.toSun = Unit({random.Between(-0.7, 0.7), -0.65, 0.38}),
                       .sun = {1.9, 1.65, 1.35},
                       .zenith = {0.20, 0.34, 0.62},
                       .horizon = {0.86, 0.88, 0.92},
                       .ground = {0.58, 0.62, 0.70},
                       .band = {0.10, 0.13, 0.16},
                       .bandHeight = 0.22,
                       .clouds = random.Between(0.3, 0.8),
                       .seed = seed};
    s.haze = {0.82, 0.85, 0.90};
    s.hazeReach = 420;
    s.shadowStrength = 0.55;
    s.ground = [seed](double x, double y, double distance) {
        const double drifts = Fractal(x * 0.28, y * 0.42, 4, seed + 3);
        const double sparkle = Noise(x * 60, y * 60, seed + 4) * std::exp(-distance / 9.0);
        Rgb snow = Mix(Rgb{0.46, 0.54, 0.70}, Rgb{0.86, 0.88, 0.91}, SmoothStep(0.25, 0.7, drifts)) *
                   (0.94 + 0.14 * sparkle);
        // Ruts where cars have driven, with slush and bare road.
        for (const double track : {-0.75, 0.75, -3.6, -2.1}) {
            const double away = std::abs(y - track + 0.15 * Noise(x * 0.2, track, seed + 6));
            const double rut = 1.0 - SmoothStep(0.16, 0.34, away);
            const double tread = 0.8 + 0.2 * std::sin(x * 26.0) * std::exp(-distance / 12.0);
            snow = Mix(snow, Rgb{0.24, 0.26, 0.30} * tread * (0.7 + 0.6 * Noise(x * 4, y * 8, seed + 7)),
                       rut * 0.85);
        }
        return snow;
    };
    s.backdrop = [seed](QPainter& painter, const Camera& camera) {
        const QColor haze(222, 229, 238);
        PaintRidge(
            painter, camera,
            [=](double a) { return 0.10 + 0.24 * std::pow(Fractal(a * 3.2, 1.0, 5, seed + 3), 1.5); },
            QColor(226, 232, 242), QColor(168, 184, 208));
        PaintRidge(
            painter, camera,
            [=](double a) { return 0.05 + 0.14 * std::pow(Fractal(a * 3.9 + 4, 5.0, 5, seed + 5), 1.4); },
            QColor(150, 166, 192), QColor(196, 208, 224));
        PaintRidge(
            painter, camera,
            [=](double a) {
                return 0.03 + 0.035 * Fractal(a * 30, 5.0, 3, seed + 6) + 0.01 * Noise(a * 160, 1.0, seed);
            },
            QColor(84, 104, 116), QColor(150, 166, 184));
        std::uint32_t number = seed;
        for (const Trunk& t : Grove(seed + 21, 90, 6.2, camera)) {
            const Standing at = StandAt(camera, t.x, t.y);
            const double share = Clamp01(at.depth / 90);
            PaintFir(painter, at, t.tall * 0.9, Hazed(QColor(34, 56, 46), haze, share * 0.8),
                     0.9 - 0.4 * share, ++number);
        }
    };
    s.backdropBlur = 2.8;
    return s;
}

} // namespace torvik::sample
