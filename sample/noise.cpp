#include "noise.h"

#include "vec.h"

namespace torvik::sample {

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
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8DA6B343U +
                      static_cast<std::uint32_t>(y) * 0xD8163841U + seed * 0xCB1AB31FU;
    h ^= h >> 15;
    h *= 0x2C1B3C6DU;
    h ^= h >> 12;
    h *= 0x297A2D39U;
    h ^= h >> 15;
    return static_cast<double>(h) / 4294967296.0;
}

double Noise(double x, double y, std::uint32_t seed)
{
    const int ix = Floor(x);
    const int iy = Floor(y);
    double fx = x - ix;
    double fy = y - iy;
    fx = fx * fx * (3.0 - 2.0 * fx);
    fy = fy * fy * (3.0 - 2.0 * fy);
    const double top = Mix(Hash(ix, iy, seed), Hash(ix + 1, iy, seed), fx);
    const double bottom = Mix(Hash(ix, iy + 1, seed), Hash(ix + 1, iy + 1, seed), fx);
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
