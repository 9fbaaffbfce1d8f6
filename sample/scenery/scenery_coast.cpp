#include "sample/geometry/noise.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

Scenery CoastScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    const bool evening = random.Below(3) == 0;
    s.light =
        Daylight{.toSun = Unit({random.Between(-0.7, 0.7), random.Between(-0.9, -0.4), evening ? 0.32 : 0.8}),
                 .sun = evening ? Rgb{2.6, 1.6, 0.8} : Rgb{2.3, 2.1, 1.8},
                 .zenith = evening ? Rgb{0.22, 0.30, 0.52} : Rgb{0.11, 0.27, 0.66},
                 .horizon = evening ? Rgb{0.95, 0.68, 0.42} : Rgb{0.72, 0.82, 0.92},
                 .ground = {0.15, 0.145, 0.14},
                 .band = {0.06, 0.085, 0.07},
                 .bandHeight = 0.10,
                 .clouds = random.Between(0.25, 0.6),
                 .seed = seed};
    s.haze = evening ? Rgb{0.9, 0.66, 0.44} : Rgb{0.66, 0.76, 0.86};
    s.hazeReach = 900;
    s.ground = [seed, evening](double x, double y, double distance) {
        const double edge = 8.2 + 0.7 * Noise(x * 0.4, 1.5, seed + 40);
        if (y > edge + 1.6) {
            // The sea, with the sun on the crests of the waves.
            const double far = Clamp01((y - 10) / 260.0);
            const double stretch = 0.35 / (1.0 + distance * 0.012);
            const double waves = Fractal(x * stretch * 0.6, y * stretch * 1.6, 4, seed + 50);
            const Rgb deep = evening ? Rgb{0.10, 0.12, 0.18} : Rgb{0.012, 0.10, 0.17};
            const Rgb shallow = evening ? Rgb{0.45, 0.33, 0.26} : Rgb{0.10, 0.28, 0.38};
            Rgb sea = Mix(deep, shallow, 0.25 + 0.5 * waves + 0.35 * far);
            const double glint =
                SmoothStep(0.62, 0.80, Noise(x * stretch * 3.0, y * stretch * 9.0, seed + 60));
            sea = sea + (evening ? Rgb{0.8, 0.5, 0.25} : Rgb{0.35, 0.38, 0.4}) * (glint * 0.5);
            const double surf =
                SmoothStep(0.55, 0.75, Fractal(x * 0.25, y * 0.12, 3, seed + 70)) * SmoothStep(40.0, 14.0, y);
            return Mix(sea, Rgb{0.75, 0.78, 0.78}, surf * 0.8);
        }
        if (y > edge) {
            const double rock = Fractal(x * 1.4, y * 1.4, 4, seed + 80);
            return Mix(Rgb{0.10, 0.08, 0.06}, Rgb{0.30, 0.25, 0.19}, rock);
        }
        if (y > 4.6 || y < -6.2) {
            const double tufts = Fractal(x * 2.6, y * 2.6, 4, seed + 90);
            const Rgb grass = Mix(Rgb{0.07, 0.09, 0.03}, Rgb{0.30, 0.26, 0.11}, tufts);
            const double gravel = SmoothStep(5.6, 4.5, y) * (y > 0 ? 1.0 : SmoothStep(-7.2, -6.1, y));
            return Mix(grass, Rgb{0.25, 0.23, 0.20} * (0.7 + 0.6 * Noise(x * 24, y * 24, seed + 91)), gravel);
        }
        Rgb road = Asphalt(x, y, distance, seed);
        const double dash = std::fmod(std::abs(x + 400.0), 7.0) < 3.4 ? 1.0 : 0.0;
        const double mark =
            std::max(LineMark(y, 4.1, 0.13, distance), dash * LineMark(y, -1.75, 0.12, distance));
        const double worn = 0.55 + 0.45 * Noise(x * 6, y * 6, seed + 95);
        return Mix(road, y > 0 ? Rgb{0.72, 0.72, 0.70} : Rgb{0.75, 0.50, 0.07}, mark * worn);
    };
    s.backdrop = [seed, evening](QPainter& painter, const Camera& camera) {
        const QColor haze = evening ? QColor(226, 178, 132) : QColor(176, 200, 222);
        // Headlands that run out into the sea on the left and on the right.
        for (int layer = 0; layer < 3; ++layer) {
            const auto shift = static_cast<std::uint32_t>(layer);
            const double dim = 0.72 - 0.27 * layer;
            PaintRidge(
                painter, camera,
                [=](double azimuth) {
                    const double open = std::abs(azimuth - pi / 2 - 0.25 * (layer - 1));
                    const double rise = SmoothStep(0.32 + 0.16 * layer, 1.1 + 0.1 * layer, open);
                    return rise * (0.035 + 0.03 * layer) *
                           (0.6 + 0.8 * Fractal(azimuth * 5 + 9 * layer, 2.0, 4, seed + shift));
                },
                Hazed(QColor(58, 82, 58), haze, dim), Hazed(QColor(96, 92, 70), haze, dim + 0.1));
        }
        // The guard rail on its posts.
        for (int i = -24; i <= 24; ++i) {
            const double x = i * 2.0;
            PaintBar(painter, camera, {x, 5.9, 0.0}, {x, 5.9, 0.62}, 0.14, QColor(74, 60, 48));
            PaintBar(painter, camera, {x, 5.8, 0.50}, {x + 2.0, 5.8, 0.50}, 0.26,
                     evening ? QColor(190, 158, 128) : QColor(176, 182, 186));
            PaintBar(painter, camera, {x, 5.79, 0.56}, {x + 2.0, 5.79, 0.56}, 0.06,
                     evening ? QColor(236, 206, 166) : QColor(226, 230, 232));
            PaintBar(painter, camera, {x, 5.79, 0.44}, {x + 2.0, 5.79, 0.44}, 0.04, QColor(112, 116, 120));
        }
    };
    s.backdropBlur = 2.2;
    return s;
}

} // namespace torvik::sample
