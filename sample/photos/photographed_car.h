#pragma once

#include "sample/car/skin.h"
#include "sample/photos/photo_plan.h"

namespace torvik::sample {

/// The lacquer of the car on the photo.
Paint PaintOf(const PlannedPhoto& photo);
/// Stripes, plate and lettering of the car on the photo.
Trim TrimOf(const PlannedPhoto& photo);

} // namespace torvik::sample
