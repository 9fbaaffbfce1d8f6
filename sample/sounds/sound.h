#pragma once

#include "sample/geometry/curve.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace torvik::sample {

/// One channel of sound while it is being made: numbers around 0, `soundRate` of them a second.
using Sound = std::vector<double>;

/// Twice the rate of most finished files, so that what is sharp can be made sharp and is smoothed once, at
/// the end.
constexpr double soundRate = 44100;

Sound Silence(double seconds);
double SecondsOf(const Sound& sound);
/// Number of samples in so many seconds.
std::size_t SamplesIn(double seconds);

/// Lays `what`, `gain` times as loud, over `onto` from second `at` on; `onto` grows where it is too short.
void Add(Sound& onto, const Sound& what, double at = 0, double gain = 1);
/// The sound with every sample multiplied by what `gain(seconds)` says.
template <typename Gain>
Sound Shaped(Sound sound, const Gain& gain)
{
    for (std::size_t i = 0; i < sound.size(); ++i)
        sound[i] *= gain(static_cast<double>(i) / soundRate);
    return sound;
}
double Loudest(const Sound& sound);
/// As loud as it takes for the loudest sample to be `peak`; silence stays silence.
Sound Levelled(Sound sound, double peak);
/// Comes up from silence in `in` seconds and goes back to it in the last `out` seconds.
Sound Faded(Sound sound, double in, double out);
/// Exactly so long: cut, or filled with silence.
Sound Lasting(Sound sound, double seconds);

/// What changes in the course of a sound: a value for each second.
using Course = std::function<double(double seconds)>;
/// The same value at all times.
inline Course Always(double value)
{
    return [value](double) { return value; };
}

Sound WhiteNoise(double seconds, std::uint32_t seed);
/// Noise that drifts: the sum of slow random steps, from -1 to 1, a new one every 1 / `hertz` seconds.
Sound SlowNoise(double seconds, double hertz, std::uint32_t seed);
/// A pure tone of changing pitch in hertz.
Sound PureTone(double seconds, const Course& hertz);
/// A tone rich in overtones: the sum of harmonics whose strengths fall with their number to the power of
/// `fall` (1 as bright as a saw, 2 dull). Overtones above what a sound can hold are left out.
Sound RichTone(double seconds, const Course& hertz, int harmonics, double fall);
/// A thing that is struck: partials in hertz that die away, `ring` seconds for the lowest, less for the
/// others.
Sound Struck(double seconds, const std::vector<double>& partials, double ring);

} // namespace torvik::sample
