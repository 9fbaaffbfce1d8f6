#include "sample/geometry/noise.h"

#include "sample/geometry/vec.h"

namespace torvik::sample {

namespace {

/// Scrambles a number so that each of its bits hangs on each of the old ones.
inline double Scrambled(std::uint32_t h)
{
    h ^= h >> 15;
    h *= 0x2C1B3C6DU;
    h ^= h >> 12;
    h *= 0x297A2D39U;
    h ^= h >> 15;
    return static_cast<double>(h) * (1.0 / 4294967296.0);
}

/// The library's floor is a call on plain x86-64; the two noise coordinates need it hundreds of millions of
/// times.
inline int FloorFast(double v)
{
    const int whole = static_cast<int>(v);
    return v < whole ? whole - 1 : whole;
}

constexpr std::uint32_t acrossFactor = 0x8DA6B343U;
constexpr std::uint32_t downFactor = 0xD8163841U;
constexpr std::uint32_t seedFactor = 0xCB1AB31FU;

} // namespace

std::uint64_t Random::Bits()
{
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

double Random::Unit()
{
    return static_cast<double>(Bits() >> 11) / 9007199254740992.0;
}

int Random::Below(int count)
{
    return static_cast<int>(Bits() % static_cast<std::uint64_t>(count));
}

double Hash(int x, int y, std::uint32_t seed)
{
    return Scrambled(static_cast<std::uint32_t>(x) * acrossFactor +
                     static_cast<std::uint32_t>(y) * downFactor + seed * seedFactor);
}

double Noise(double x, double y, std::uint32_t seed)
{
    const int ix = FloorFast(x);
    const int iy = FloorFast(y);
    double fx = x - ix;
    double fy = y - iy;
    fx = fx * fx * (3.0 - 2.0 * fx);
    fy = fy * fy * (3.0 - 2.0 * fy);
    const std::uint32_t corner = static_cast<std::uint32_t>(ix) * acrossFactor +
                                 static_cast<std::uint32_t>(iy) * downFactor + seed * seedFactor;
    const double top = Mix(Scrambled(corner), Scrambled(corner + acrossFactor), fx);
    const double bottom =
        Mix(Scrambled(corner + downFactor), Scrambled(corner + downFactor + acrossFactor), fx);
    return Mix(top, bottom, fy);
}

double Fractal(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0;
    double weight = 0.5;
    double total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * Noise(x, y, seed + static_cast<std::uint32_t>(i) * 17U);
        total += weight;
        weight *= 0.5;
        // Turned a little at each layer, so that the grid does not show.
        const double turnedX = 1.62 * x - 1.18 * y + 3.1;
        y = 1.18 * x + 1.62 * y + 7.7;
        x = turnedX;
    }
    return sum / total;
}

} // namespace torvik::sample
