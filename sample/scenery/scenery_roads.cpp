#include "sample/geometry/noise.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/place_script.h"

namespace torvik::sample {

Scenery CoastScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_coast", seed);
    // As the script finds it.
    const bool evening = Random(seed).Below(3) == 0;
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
    return s;
}

Scenery DesertScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_desert", seed);
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
    return s;
}

Scenery CityScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_city", seed);
    s.night = true;
    // Lit windows, street lamps and coloured signs, as they glide over the lacquer.
    s.light.lamps = [seed](const Vec&, const Vec& way) -> Rgb {
        if (way.z < 0)
            return {};
        const double flat = std::max(1e-4, std::hypot(way.x, way.y));
        const double height = way.z / flat;
        const double azimuth = std::atan2(way.y, way.x) / pi * 26.0;
        if (height < 0.34 && height > 0.02) {
            const int column = Floor(azimuth);
            const int row = Floor(height * 30);
            const double lit = Hash(column, row, seed + 21);
            const double fx = azimuth - column;
            if (lit > 0.55 && fx > 0.15 && fx < 0.85)
                return Hash(column, row, seed + 22) > 0.75 ? Rgb{0.15, 0.55, 1.0} * 0.7
                                                           : Rgb{1.1, 0.72, 0.32} * 0.8;
        }
        // Two rows of street lamps overhead.
        if (way.z > 0.25) {
            const double x = way.x / way.z * 5.0;
            const double y = way.y / way.z * 5.0;
            const double along = x / 6.0 - Floor(x / 6.0) - 0.5;
            const double away = std::hypot(along * 6.0, std::abs(y) - 3.2);
            return Rgb{3.4, 2.5, 1.5} * std::exp(-away * away / 0.55);
        }
        return {};
    };
    s.ground = [seed](double x, double y, double distance) {
        const double wet = SmoothStep(0.40, 0.62, Fractal(x * 0.5, y * 0.9, 3, seed + 31));
        Rgb road = Asphalt(x, y, distance, seed) * Mix(0.42, 0.22, wet);
        // Pools of lamp light, and the long reflections of coloured signs across the road.
        const double along = x / 12.0 - Floor(x / 12.0) - 0.5;
        const double pool = std::exp(-(along * along * 144.0 + (y - 5) * (y - 5)) / 26.0);
        road = road + Rgb{0.11, 0.075, 0.04} * pool;
        const double sign = Noise(x * 0.55, 2.2, seed + 33);
        const Rgb tint = sign > 0.6    ? Rgb{0.26, 0.03, 0.08}
                         : sign < 0.35 ? Rgb{0.02, 0.10, 0.20}
                                       : Rgb{0.16, 0.10, 0.03};
        road = road +
               tint * (wet * SmoothStep(-2.0, 8.0, y) * (0.25 + 0.75 * Noise(x * 2.2, y * 0.25, seed + 34)));
        const double kerb = LineMark(y, 6.4, 0.25, distance);
        return Mix(road, Rgb{0.10, 0.09, 0.085}, kerb);
    };
    return s;
}

Scenery StripScenery(std::uint32_t seed)
{
    Scenery s = PlaceFrom("place_strip", seed);
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
    return s;
}

} // namespace torvik::sample
