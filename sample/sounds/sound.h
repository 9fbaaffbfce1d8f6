#pragma once

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

} // namespace torvik::sample
