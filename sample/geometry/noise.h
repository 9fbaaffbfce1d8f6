#pragma once

#include <cstdint>
#include <iterator>

namespace torvik::sample {

/// A small generator of our own, so that every run draws the same disc on every platform.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ULL + 0x1234567ULL) {}

    /// The next 64 random bits.
    std::uint64_t Bits();
    /// A number from 0 up to, but not including, 1.
    double Unit();
    /// A number between `low` and `high`.
    double Between(double low, double high) { return low + (high - low) * Unit(); }
    /// A whole number from 0 to `count` - 1; `count` is at least 1.
    int Below(int count);

private:
    std::uint64_t state_;
};

/// The element that a number of any size, 0 or more, comes to when it is counted round and round.
template <typename List>
const auto& Cycled(const List& list, int number)
{
    return list[static_cast<std::size_t>(number) % std::size(list)];
}

/// A fixed random number from 0 to 1 for each point of the grid.
double Hash(int x, int y, std::uint32_t seed);
/// Smooth noise from 0 to 1 with features about one unit large.
double Noise(double x, double y, std::uint32_t seed);
/// `octaves` layers of noise, each half as large as the one before; 0 to 1.
double Fractal(double x, double y, int octaves, std::uint32_t seed);

} // namespace torvik::sample
