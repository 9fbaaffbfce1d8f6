#include "sample/sounds/motion.h"

#include "sample/geometry/vec.h"

namespace torvik::sample {

namespace {

constexpr double soundSpeed = 340.0;

/// Hears `source` with an ear `ear` metres to the right of the origin.
Sound HeardAt(const Sound& source, const Drive& drive, double ear)
{
    Sound heard(source.size(), 0.0);
    const auto distanceAt = [&](double t) { return std::hypot(drive.along(t) - ear, drive.aside); };
    // The delay of the start is taken out, so that the sound is there from its first moment.
    const double headStart = distanceAt(0) / soundSpeed;
    double sent = 0;
    double dull = 0;
    for (std::size_t i = 0; i < heard.size(); ++i) {
        const double t = static_cast<double>(i) / soundRate + headStart;
        // When was it sent? A step or two of coming closer is enough, since a moment ago it was nearly so.
        for (int k = 0; k < 2; ++k)
            sent = t - distanceAt(sent) / soundSpeed;
        sent = std::max(0.0, sent);
        const double distance = distanceAt(sent);
        const double place = sent * soundRate;
        const auto whole = static_cast<std::size_t>(place);
        if (whole + 1 >= source.size())
            break;
        const double part = place - static_cast<double>(whole);
        const double value = Mix(source[whole], source[whole + 1], part);
        dull += (value - dull) * (0.06 + 0.94 * std::exp(-distance / drive.dulled));
        heard[i] = dull * drive.aside / (distance + drive.aside * 0.4);
    }
    return heard;
}

} // namespace

Sound Passing(const Sound& source, const Drive& drive)
{
    return HeardAt(source, drive, 0);
}

TwoEars PassingBothEars(const Sound& source, const Drive& drive)
{
    const auto towards = [&](double side) {
        const Course along = drive.along;
        return [=, aside = drive.aside](double t) {
            return 0.62 + 0.38 * side * std::tanh(along(t) / (aside * 2));
        };
    };
    return {Shaped(HeardAt(source, drive, -0.1), towards(-1)),
            Shaped(HeardAt(source, drive, 0.1), towards(1))};
}

TwoEars Placed(const Sound& sound, double place)
{
    TwoEars both{sound, sound};
    const double angle = (place + 1) * pi / 4;
    for (double& value : both.left)
        value *= std::cos(angle);
    for (double& value : both.right)
        value *= std::sin(angle);
    return both;
}

void Add(TwoEars& onto, const TwoEars& what, double at, double gain)
{
    Add(onto.left, what.left, at, gain);
    Add(onto.right, what.right, at, gain);
}

} // namespace torvik::sample
