#include "sample/geometry/noise.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/place_script.h"

namespace torvik::sample {

Scenery AutumnScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_autumn", seed);
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
    return s;
}

Scenery SnowScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_snow", seed);
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
    return s;
}

} // namespace torvik::sample
