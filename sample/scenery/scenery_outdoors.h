#pragma once

#include "sample/geometry/vec.h"

#include <cstdint>

namespace torvik::sample {

/// Asphalt seen at a place, grained and patched; `distance` metres off, where the grain melts away.
Rgb Asphalt(double x, double y, double distance, std::uint32_t seed);
/// 1 on a painted line of the given width round `middle`, 0 beside it, softened by distance.
double LineMark(double at, double middle, double width, double distance);

} // namespace torvik::sample
