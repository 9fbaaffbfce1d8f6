#pragma once

#include "sample/sounds/sources.h"

namespace torvik::sample {

/// The horn of a car: its tones in hertz, sounded together for `seconds`; `harsh` 0 (trumpet) to 1 (buzzer).
Sound CarHorn(double seconds, const std::vector<double>& tones, double harsh);
/// The air horns of a truck.
Sound TruckHorn(double seconds);
/// A siren that wails up and down, `swings` times a second.
Sound Siren(double seconds, double swings);

} // namespace torvik::sample
