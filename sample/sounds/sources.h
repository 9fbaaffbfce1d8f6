#pragma once

#include "sample/geometry/curve.h"
#include "sample/sounds/sound.h"

#include <cstdint>
#include <functional>

namespace torvik::sample {

/// What changes in the course of a sound: a value for each second.
using Course = std::function<double(double seconds)>;

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
