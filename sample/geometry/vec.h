#pragma once

#include <algorithm>
#include <cmath>

namespace torvik::sample {

/// A point, a direction or a linear colour (x red, y green, z blue). Lengths are metres.
struct Vec {
    double x = 0;
    double y = 0;
    double z = 0;

    Vec operator+(const Vec& b) const { return {x + b.x, y + b.y, z + b.z}; }
    Vec operator-(const Vec& b) const { return {x - b.x, y - b.y, z - b.z}; }
    Vec operator*(double k) const { return {x * k, y * k, z * k}; }
    Vec operator*(const Vec& b) const { return {x * b.x, y * b.y, z * b.z}; }
};

using Rgb = Vec;

constexpr double pi = 3.14159265358979323846;

inline double Dot(const Vec& a, const Vec& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec Cross(const Vec& a, const Vec& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vec& a)
{
    return std::sqrt(Dot(a, a));
}
/// The direction of `a`; straight up where `a` has no length.
inline Vec Unit(const Vec& a)
{
    const double length = Length(a);
    return length > 1e-12 ? a * (1.0 / length) : Vec{0, 0, 1};
}
inline Vec Mix(const Vec& a, const Vec& b, double t)
{
    return a * (1.0 - t) + b * t;
}
inline double Mix(double a, double b, double t)
{
    return a + (b - a) * t;
}
inline double Clamp01(double v)
{
    return std::clamp(v, 0.0, 1.0);
}
/// 0 below `from`, 1 above `to`, smooth between them.
inline double SmoothStep(double from, double to, double v)
{
    const double t = Clamp01((v - from) / (to - from));
    return t * t * (3.0 - 2.0 * t);
}
inline Vec Reflect(const Vec& incoming, const Vec& normal)
{
    return incoming - normal * (2.0 * Dot(incoming, normal));
}
inline int Floor(double v)
{
    return static_cast<int>(std::floor(v));
}

} // namespace torvik::sample
