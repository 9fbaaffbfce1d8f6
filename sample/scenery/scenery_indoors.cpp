#include "sample/geometry/noise.h"
#include "sample/scenery/place_script.h"

namespace torvik::sample {

namespace {

/// Rows of long soft boxes under a ceiling 4 m high.
Rgb CeilingLamps(const Vec& from, const Vec& way, double strength)
{
    if (way.z < 0.05)
        return {};
    const double reach = (4.0 - from.z) / way.z;
    const double x = from.x + way.x * reach;
    const double y = from.y + way.y * reach;
    if (std::abs(x) > 7.5 || std::abs(y) > 6)
        return {};
    const double row = y / 2.4 - Floor(y / 2.4) - 0.5;
    const double tube = 1.0 - SmoothStep(0.10, 0.16, std::abs(row));
    const double ends = 1.0 - SmoothStep(6.9, 7.2, std::abs(x));
    return Rgb{1.0, 0.98, 0.93} * (strength * tube * ends);
}

} // namespace

Scenery ShowroomScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_showroom", seed);
    s.light.lamps = [](const Vec& from, const Vec& way) { return CeilingLamps(from, way, 3.2); };
    s.ground = [seed, wall = s.haze](double x, double y, double distance) {
        // Large tiles in two tones, and the lamps of the ceiling mirrored in them.
        const double tile = 1.1;
        const int cx = Floor(x / tile);
        const int cy = Floor(y / tile);
        const double tone = (cx + cy) % 2 == 0 ? 1.0 : 0.72;
        const double vein = Fractal(x * 1.7, y * 1.7, 4, seed + 3);
        Rgb floor = Rgb{0.30, 0.27, 0.23} * (tone * (0.85 + 0.3 * vein));
        const double fx = x / tile - cx;
        const double fy = y / tile - cy;
        const double joint = std::min(std::min(fx, 1 - fx), std::min(fy, 1 - fy)) * tile;
        floor = floor * Mix(0.45, 1.0, SmoothStep(0.0, 0.012 + distance * 0.001, joint));
        return Mix(floor, wall * 0.9, SmoothStep(6.0, 9.0, y) * 0.6);
    };
    return s;
}

Scenery StudioScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_studio", seed);
    s.light.lamps = [](const Vec& from, const Vec& way) { return CeilingLamps(from, way, 1.6); };
    s.ground = [seed](double x, double y, double) {
        const double pool = std::exp(-(x * x * 0.6 + y * y) / 40.0);
        const double dust = 0.94 + 0.12 * Fractal(x * 3, y * 3, 3, seed + 2);
        return Rgb{0.36, 0.355, 0.345} * ((0.45 + 0.75 * pool) * dust);
    };
    return s;
}

} // namespace torvik::sample
