#pragma once

#include "sample/photos/photo_plan.h"

#include <QImage>

namespace torvik::sample {

/// Draws the motif that the file `name` in drawings/ describes. It knows the photo as "w" and "h" (pixels),
/// "seed", "variant", "year", "generation", "topic" and "paint".
QImage PaintMotif(const char* name, const PlannedPhoto& photo);

} // namespace torvik::sample
