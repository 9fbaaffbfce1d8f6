#pragma once

#include <initializer_list>
#include <vector>

namespace torvik::sample {

/// A smooth curve through given points that never swings beyond them (monotone cubic pieces).
/// Before the first and after the last point it stays level.
class Curve {
public:
    struct Point {
        double at;
        double value;
    };

    Curve() = default;
    /// At least one point, in ascending order of `at`.
    Curve(std::initializer_list<Point> points);

    /// The same from places and values in turn.
    Curve(std::initializer_list<double> placesAndValues);
    explicit Curve(const std::vector<double>& placesAndValues);

    double operator()(double at) const;
    /// The same curve with every value raised by `amount`.
    Curve Raised(double amount) const;

private:
    void FindSlopes();

    std::vector<Point> points_;
    std::vector<double> slopes_;
};

} // namespace torvik::sample
