#include "sample/render/environment.h"

#include "sample/geometry/noise.h"

namespace torvik::sample {

namespace {

/// One pass of a box blur along rows (`step` 1) or columns (`step` = width).
void BoxPass(std::vector<float>& cells, int count, int radius, bool columns)
{
    std::vector<float> line(static_cast<std::size_t>(count));
    for (int r = 0; r < count; ++r) {
        const auto at = [&](int i) -> float& {
            return cells[static_cast<std::size_t>(columns ? i * count + r : r * count + i)];
        };
        float sum = 0;
        for (int i = -radius; i <= radius; ++i)
            sum += i >= 0 && i < count ? at(i) : 0.0F;
        for (int i = 0; i < count; ++i) {
            line[static_cast<std::size_t>(i)] = sum / static_cast<float>(2 * radius + 1);
            const int leaves = i - radius;
            const int enters = i + radius + 1;
            if (leaves >= 0)
                sum -= at(leaves);
            if (enters < count)
                sum += at(enters);
        }
        for (int i = 0; i < count; ++i)
            at(i) = line[static_cast<std::size_t>(i)];
    }
}

} // namespace

GroundShadow::GroundShadow(const std::vector<Mesh>& parts, const Vec& toLight, double strength, int blur)
    : cells_(static_cast<std::size_t>(cellsAcross) * cellsAcross, 0.0F)
{
    const double slopeX = toLight.x / std::max(0.2, toLight.z);
    const double slopeY = toLight.y / std::max(0.2, toLight.z);
    // The cast shadow, and the darkness straight below the car that every light leaves.
    std::vector<float> below(cells_.size(), 0.0F);
    for (const Mesh& part : parts) {
        const auto spread = [&](std::vector<float>& target, double sx, double sy, float value) {
            for (const auto& triangle : part.triangles) {
                double px[3];
                double py[3];
                for (std::size_t i = 0; i < 3; ++i) {
                    const Vec& v = part.vertices[triangle[i]].at;
                    px[i] = (v.x - sx * v.z) / cellSize + cellsAcross / 2.0;
                    py[i] = (v.y - sy * v.z) / cellSize + cellsAcross / 2.0;
                }
                const int x0 = std::max(0, Floor(std::min({px[0], px[1], px[2]})));
                const int x1 = std::min(cellsAcross - 1, Floor(std::max({px[0], px[1], px[2]})));
                const int y0 = std::max(0, Floor(std::min({py[0], py[1], py[2]})));
                const int y1 = std::min(cellsAcross - 1, Floor(std::max({py[0], py[1], py[2]})));
                for (int y = y0; y <= y1; ++y) {
                    for (int x = x0; x <= x1; ++x)
                        target[static_cast<std::size_t>(y) * cellsAcross + static_cast<std::size_t>(x)] =
                            value;
                }
            }
        };
        spread(cells_, slopeX, slopeY, static_cast<float>(strength));
        spread(below, 0, 0, 1.0F);
    }
    for (int pass = 0; pass < 3; ++pass) {
        BoxPass(cells_, cellsAcross, blur, false);
        BoxPass(cells_, cellsAcross, blur, true);
    }
    std::vector<float> wide = below;
    for (int pass = 0; pass < 3; ++pass) {
        BoxPass(below, cellsAcross, 1, false);
        BoxPass(below, cellsAcross, 1, true);
        BoxPass(wide, cellsAcross, 6, false);
        BoxPass(wide, cellsAcross, 6, true);
    }
    for (std::size_t i = 0; i < cells_.size(); ++i)
        cells_[i] = 1.0F - (1.0F - cells_[i]) * (1.0F - 0.82F * below[i]) * (1.0F - 0.45F * wide[i]);
}

double GroundShadow::At(double x, double y) const
{
    const double cx = x / cellSize + cellsAcross / 2.0 - 0.5;
    const double cy = y / cellSize + cellsAcross / 2.0 - 0.5;
    const int ix = Floor(cx);
    const int iy = Floor(cy);
    if (ix < 0 || iy < 0 || ix + 1 >= cellsAcross || iy + 1 >= cellsAcross)
        return 0.0;
    const auto cell = [this](int px, int py) {
        return static_cast<double>(
            cells_[static_cast<std::size_t>(py) * cellsAcross + static_cast<std::size_t>(px)]);
    };
    return Mix(Mix(cell(ix, iy), cell(ix + 1, iy), cx - ix),
               Mix(cell(ix, iy + 1), cell(ix + 1, iy + 1), cx - ix), cy - iy);
}

Rgb Environment::Sky(const Vec& way) const
{
    const double rise = std::pow(way.z, 0.55);
    Rgb light = Mix(horizon, zenith, rise);
    if (clouds > 0) {
        const double flat = 1.0 / (way.z + 0.18);
        const double cover = SmoothStep(0.62 - 0.35 * clouds, 0.85 - 0.2 * clouds,
                                        Fractal(way.x * flat * 1.3, way.y * flat * 1.3, 3, seed + 9));
        light = Mix(light, horizon * 1.12, cover * 0.85);
    }
    const double azimuth = std::atan2(way.y, way.x);
    const double ridge = bandHeight * (0.55 + 0.9 * Noise(azimuth * 4.0 + 20, 0.3, seed) +
                                       0.25 * Noise(azimuth * 17.0, 7.3, seed));
    const double height = way.z / std::max(1e-6, std::sqrt(way.x * way.x + way.y * way.y));
    light = Mix(band, light, SmoothStep(ridge * 0.9, ridge * 1.08 + 0.004, height));
    return light;
}

namespace {

constexpr int azimuthSteps = 512; // steps of azimuth
constexpr int heightSteps = 128;  // steps of height, closer together near the horizon

} // namespace

void Environment::Prepare()
{
    prepared_.clear();
    std::vector<Tone> table;
    table.reserve(static_cast<std::size_t>(azimuthSteps) * heightSteps);
    for (int row = 0; row < heightSteps; ++row) {
        const double share = (row + 0.5) / heightSteps;
        const double z = share * share;
        const double flat = std::sqrt(1.0 - z * z);
        for (int column = 0; column < azimuthSteps; ++column) {
            const double azimuth = (column + 0.5) / azimuthSteps * 2 * pi - pi;
            const Rgb c = Sky({flat * std::cos(azimuth), flat * std::sin(azimuth), z});
            table.push_back({static_cast<float>(c.x), static_cast<float>(c.y), static_cast<float>(c.z)});
        }
    }
    prepared_ = std::move(table);
}

Rgb Environment::PreparedSky(const Vec& way) const
{
    const double u = (std::atan2(way.y, way.x) + pi) / (2 * pi) * azimuthSteps - 0.5;
    const double v =
        std::clamp(std::sqrt(std::max(0.0, way.z)) * heightSteps - 0.5, 0.0, heightSteps - 1.001);
    const int iu = Floor(u);
    const int iv = Floor(v);
    const auto tone = [this](int column, int row) {
        const Tone& t = prepared_[static_cast<std::size_t>(row) * azimuthSteps +
                                  static_cast<std::size_t>((column + azimuthSteps) % azimuthSteps)];
        return Rgb{static_cast<double>(t.red), static_cast<double>(t.green), static_cast<double>(t.blue)};
    };
    return Mix(Mix(tone(iu, iv), tone(iu + 1, iv), u - iu),
               Mix(tone(iu, iv + 1), tone(iu + 1, iv + 1), u - iu), v - iv);
}

Rgb Environment::Seen(const Vec& from, const Vec& way) const
{
    Rgb light;
    if (way.z < 0) {
        const double reach = from.z / std::max(1e-4, -way.z);
        const Vec hit = from + way * reach;
        const double dark = shadow ? shadow->At(hit.x, hit.y) : 0.0;
        const double patches = 0.88 + 0.24 * Noise(hit.x * 0.8, hit.y * 0.8, seed + 5);
        light = ground * ((1.0 - 0.85 * dark) * patches);
        light = Mix(light, horizon * 0.55, SmoothStep(12.0, 140.0, reach));
    } else {
        light = prepared_.empty() ? Sky(way) : PreparedSky(way);
        const double facing = Dot(way, toSun);
        if (facing > 0.8)
            light = light + sun * (0.35 * std::pow(facing, 50.0) +
                                   (facing > 0.99 ? 14.0 * std::pow(facing, 2600.0) : 0.0));
    }
    if (lamps)
        light = light + lamps(from, way);
    return light;
}

Rgb Environment::Soft(const Vec& normal) const
{
    const Rgb sky = Mix(horizon, zenith, 0.45);
    const double up = 0.5 + 0.5 * normal.z;
    return Mix(ground * 0.75, sky, up) * 0.85;
}

} // namespace torvik::sample
