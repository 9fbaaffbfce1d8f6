#include "sample/sounds/sound.h"

#include "sample/geometry/vec.h"

namespace torvik::sample {

std::size_t SamplesIn(double seconds)
{
    return static_cast<std::size_t>(std::lround(std::max(0.0, seconds) * soundRate));
}

Sound Silence(double seconds)
{
    return Sound(SamplesIn(seconds), 0.0);
}

double SecondsOf(const Sound& sound)
{
    return static_cast<double>(sound.size()) / soundRate;
}

void Add(Sound& onto, const Sound& what, double at, double gain)
{
    const std::size_t first = SamplesIn(at);
    if (onto.size() < first + what.size())
        onto.resize(first + what.size(), 0.0);
    for (std::size_t i = 0; i < what.size(); ++i)
        onto[first + i] += what[i] * gain;
}

double Loudest(const Sound& sound)
{
    double loudest = 0;
    for (const double value : sound)
        loudest = std::max(loudest, std::abs(value));
    return loudest;
}

Sound Levelled(Sound sound, double peak)
{
    const double loudest = Loudest(sound);
    if (loudest > 0) {
        for (double& value : sound)
            value *= peak / loudest;
    }
    return sound;
}

Sound Faded(Sound sound, double in, double out)
{
    const double seconds = SecondsOf(sound);
    return Shaped(std::move(sound), [=](double t) {
        return SmoothStep(0.0, std::max(in, 1e-6), t) *
               (1.0 - SmoothStep(seconds - std::max(out, 1e-6), seconds, t));
    });
}

Sound Lasting(Sound sound, double seconds)
{
    sound.resize(SamplesIn(seconds), 0.0);
    return sound;
}

} // namespace torvik::sample
