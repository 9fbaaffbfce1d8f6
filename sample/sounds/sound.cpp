#include "sample/sounds/sound.h"

#include "sample/geometry/noise.h"
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

Sound WhiteNoise(double seconds, std::uint32_t seed)
{
    Random random(seed);
    Sound sound = Silence(seconds);
    for (double& value : sound)
        value = random.Between(-1, 1);
    return sound;
}

Sound SlowNoise(double seconds, double hertz, std::uint32_t seed)
{
    Sound sound = Silence(seconds);
    for (std::size_t i = 0; i < sound.size(); ++i)
        sound[i] = Noise(static_cast<double>(i) / soundRate * hertz, 0.5, seed) * 2 - 1;
    return sound;
}

Sound PureTone(double seconds, const Course& hertz)
{
    Sound sound = Silence(seconds);
    double phase = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        phase += hertz(static_cast<double>(i) / soundRate) / soundRate;
        sound[i] = std::sin(2 * pi * phase);
    }
    return sound;
}

Sound RichTone(double seconds, const Course& hertz, int harmonics, double fall)
{
    std::vector<double> strengths;
    for (int k = 1; k <= harmonics; ++k)
        strengths.push_back(std::pow(k, -fall));
    Sound sound = Silence(seconds);
    double phase = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double pitch = hertz(static_cast<double>(i) / soundRate);
        phase += pitch / soundRate;
        phase -= std::floor(phase);
        // Each harmonic is the one before it turned on by the angle of the first.
        const double c = std::cos(2 * pi * phase);
        const double s = std::sin(2 * pi * phase);
        double re = c;
        double im = s;
        for (std::size_t k = 0; k < strengths.size(); ++k) {
            if (pitch * static_cast<double>(k + 1) > soundRate * 0.42)
                break;
            sound[i] += im * strengths[k];
            const double turned = re * c - im * s;
            im = re * s + im * c;
            re = turned;
        }
    }
    return sound;
}

Sound Struck(double seconds, const std::vector<double>& partials, double ring)
{
    Sound sound = Silence(seconds);
    for (std::size_t k = 0; k < partials.size(); ++k) {
        const double lasting = ring * partials.front() / partials[k];
        const double strength = 1.0 / (1.0 + 0.6 * static_cast<double>(k));
        for (std::size_t i = 0; i < sound.size(); ++i) {
            const double t = static_cast<double>(i) / soundRate;
            sound[i] += strength * std::exp(-t / lasting) * std::sin(2 * pi * partials[k] * t);
        }
    }
    return sound;
}

} // namespace torvik::sample
