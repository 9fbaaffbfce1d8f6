#pragma once

#include "sample/artwork/art_plan.h"

#include <QImage>

namespace torvik::sample {

/// A strip of small drawings of a year: what it is remembered by, the car in a colour of its card, its wheel
/// and the year itself; 480 x 80.
QImage PaintClipArt(const SmallPicture& strip);

} // namespace torvik::sample
