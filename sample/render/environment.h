#pragma once

#include "sample/geometry/mesh.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace torvik::sample {

/// How much of the light a car takes from each place of the ground.
class GroundShadow {
public:
    /// `toLight` points from the ground to the sun or lamp; `strength` 0 to 1, `blur` in cells of 5 cm.
    GroundShadow(const std::vector<Mesh>& parts, const Vec& toLight, double strength, int blur);

    /// 0 where the place is free, 1 where it is quite dark.
    double At(double x, double y) const;

private:
    static constexpr int cellsAcross = 256;
    static constexpr double cellSize = 0.05;
    std::vector<float> cells_;
};

/// Sky, sun and horizon. Colours are linear, 1 is paper white in full light.
struct Daylight {
    Vec toSun = {0.4, -0.5, 0.75};
    Rgb sun = {2.2, 2.0, 1.7};
    Rgb zenith = {0.20, 0.36, 0.75};
    Rgb horizon = {0.85, 0.88, 0.92};
    Rgb ground = {0.22, 0.21, 0.20};
    Rgb band = {0.10, 0.12, 0.10}; ///< what stands round the horizon: hills, trees, houses
    double bandHeight = 0.10;      ///< its height as the tangent of the angle
    double clouds = 0.5;           ///< 0 clear to 1 overcast
    std::uint32_t seed = 1;
};

/// Everything that lights the car and is mirrored in it.
struct Environment : Daylight {
    Environment(const Daylight& daylight = {}) : Daylight(daylight) {}

    /// Lamps and soft boxes: the light that is seen from `from` in direction `way`; may be empty.
    std::function<Rgb(const Vec& from, const Vec& way)> lamps;
    std::shared_ptr<const GroundShadow> shadow;

    /// Reckons sky and horizon once for all directions; to be called after the last change and before the
    /// first use by `Seen` where many rays are asked for. Without it each ray is reckoned anew.
    void Prepare();

    /// What is seen from `from` in direction `way`, the sun included.
    Rgb Seen(const Vec& from, const Vec& way) const;
    /// The soft light from all around that falls on a surface with this normal.
    Rgb Soft(const Vec& normal) const;

private:
    Rgb Sky(const Vec& way) const;
    Rgb PreparedSky(const Vec& way) const;

    struct Tone {
        float red, green, blue;
    };
    std::vector<Tone> prepared_;
};

} // namespace torvik::sample
