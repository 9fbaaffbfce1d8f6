#include "sample/sounds/filters.h"

#include "sample/geometry/vec.h"

#include <array>

namespace torvik::sample {

namespace {

struct Cutoff {
    double cosine;
    double alpha;
};

Cutoff CutoffAt(double hertz, double q)
{
    const double w = 2 * pi * std::clamp(hertz, 5.0, soundRate * 0.48) / soundRate;
    return {std::cos(w), std::sin(w) / (2 * q)};
}

} // namespace

Filter Filter::LowPass(double hertz, double q)
{
    const auto [c, alpha] = CutoffAt(hertz, q);
    const double a0 = 1 + alpha;
    Filter f;
    f.b1_ = (1 - c) / a0;
    f.b0_ = f.b2_ = f.b1_ / 2;
    f.a1_ = -2 * c / a0;
    f.a2_ = (1 - alpha) / a0;
    return f;
}

Filter Filter::HighPass(double hertz, double q)
{
    const auto [c, alpha] = CutoffAt(hertz, q);
    const double a0 = 1 + alpha;
    Filter f;
    f.b1_ = -(1 + c) / a0;
    f.b0_ = f.b2_ = -f.b1_ / 2;
    f.a1_ = -2 * c / a0;
    f.a2_ = (1 - alpha) / a0;
    return f;
}

Filter Filter::BandPass(double hertz, double q)
{
    const auto [c, alpha] = CutoffAt(hertz, q);
    const double a0 = 1 + alpha;
    Filter f;
    f.b0_ = alpha / a0;
    f.b2_ = -f.b0_;
    f.a1_ = -2 * c / a0;
    f.a2_ = (1 - alpha) / a0;
    return f;
}

Sound Filtered(Sound sound, Filter filter)
{
    for (double& value : sound)
        value = filter(value);
    return sound;
}

Sound Driven(Sound sound, double drive)
{
    for (double& value : sound)
        value = std::tanh(value * drive);
    return sound;
}

Sound InRoom(const Sound& sound, double seconds, double share)
{
    // Four echoes that share no common measure, each losing its treble on the way round, then two stages
    // that blur them.
    struct Echo {
        std::vector<double> line;
        std::size_t at = 0;
        double keep = 0;
        double dull = 0;
    };
    constexpr std::array delays = {0.0297, 0.0371, 0.0411, 0.0437};
    std::array<Echo, 4> echoes;
    for (std::size_t i = 0; i < echoes.size(); ++i) {
        echoes[i].line.assign(SamplesIn(delays[i]), 0.0);
        echoes[i].keep = std::pow(0.001, delays[i] / seconds);
    }
    std::array<Echo, 2> blurs;
    blurs[0].line.assign(SamplesIn(0.005), 0.0);
    blurs[1].line.assign(SamplesIn(0.0017), 0.0);
    Sound result = sound;
    result.resize(sound.size() + SamplesIn(seconds), 0.0);
    for (double& value : result) {
        double sum = 0;
        for (Echo& e : echoes) {
            const double old = e.line[e.at];
            e.dull += (old - e.dull) * 0.55;
            e.line[e.at] = value + e.dull * e.keep;
            e.at = (e.at + 1) % e.line.size();
            sum += old;
        }
        sum *= 0.35;
        for (Echo& b : blurs) {
            const double old = b.line[b.at];
            const double in = sum + old * 0.6;
            b.line[b.at] = in;
            b.at = (b.at + 1) % b.line.size();
            sum = old - in * 0.6;
        }
        value = value * (1 - share) + sum * share;
    }
    return result;
}

} // namespace torvik::sample
