#include "sample/geometry/curve.h"

#include <cstddef>

namespace torvik::sample {

Curve::Curve(std::initializer_list<Point> points) : points_(points)
{
    FindSlopes();
}

Curve::Curve(std::initializer_list<double> placesAndValues) : Curve(std::vector<double>(placesAndValues)) {}

Curve::Curve(const std::vector<double>& placesAndValues)
{
    for (std::size_t i = 0; i + 1 < placesAndValues.size(); i += 2)
        points_.push_back({placesAndValues[i], placesAndValues[i + 1]});
    FindSlopes();
}

void Curve::FindSlopes()
{
    const std::size_t count = points_.size();
    slopes_.assign(count, 0.0);
    const auto slopeAfter = [this](std::size_t i) {
        return (points_[i + 1].value - points_[i].value) / (points_[i + 1].at - points_[i].at);
    };
    for (std::size_t i = 0; i < count; ++i) {
        if (count < 2)
            break;
        if (i == 0) {
            slopes_[i] = slopeAfter(0);
        } else if (i + 1 == count) {
            slopes_[i] = slopeAfter(i - 1);
        } else {
            const double before = slopeAfter(i - 1);
            const double after = slopeAfter(i);
            slopes_[i] = before * after <= 0.0 ? 0.0 : 2.0 * before * after / (before + after);
        }
    }
}

double Curve::operator()(double at) const
{
    if (points_.empty())
        return 0.0;
    if (at <= points_.front().at)
        return points_.front().value;
    if (at >= points_.back().at)
        return points_.back().value;
    std::size_t i = 0;
    while (points_[i + 1].at < at)
        ++i;
    const double width = points_[i + 1].at - points_[i].at;
    const double t = (at - points_[i].at) / width;
    const double t2 = t * t;
    const double t3 = t2 * t;
    return points_[i].value * (2 * t3 - 3 * t2 + 1) + slopes_[i] * width * (t3 - 2 * t2 + t) +
           points_[i + 1].value * (3 * t2 - 2 * t3) + slopes_[i + 1] * width * (t3 - t2);
}

Curve Curve::Raised(double amount) const
{
    Curve raised = *this;
    for (Point& point : raised.points_)
        point.value += amount;
    return raised;
}

} // namespace torvik::sample
