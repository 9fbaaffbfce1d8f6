#pragma once

#include "sample/sounds/sound.h"

#include <cstdint>

namespace torvik::sample {

/// The horn of a car: its tones in hertz, sounded together for `seconds`; `harsh` 0 (trumpet) to 1 (buzzer).
Sound CarHorn(double seconds, const std::vector<double>& tones, double harsh);
/// The air horns of a truck.
Sound TruckHorn(double seconds);
/// A siren that wails up and down, `swings` times a second.
Sound Siren(double seconds, double swings);

/// Tyres that slide and cry; `pressure` 0 to 1 says how hard at each second.
Sound TyreSqueal(double seconds, const Course& pressure, std::uint32_t seed);
/// Tyres that roll; `speed` in metres a second at each second, `wet` 0 to 1.
Sound TyreRoll(double seconds, const Course& speed, double wet, std::uint32_t seed);
/// Tyres that roll at one speed, their loudest moment at `level`.
Sound Rolling(double seconds, double speed, double wet, std::uint32_t seed, double level);
/// A wheel that turns on ice: a whirr that rises with its speed (0 to 1), and spray.
Sound WheelOnIce(double seconds, const Course& spin, std::uint32_t seed);
/// A mixture that burns in the pipe: one bang.
Sound Backfire(std::uint32_t seed);
/// A hinge that wants oil.
Sound DoorCreak(double seconds, std::uint32_t seed);

} // namespace torvik::sample
