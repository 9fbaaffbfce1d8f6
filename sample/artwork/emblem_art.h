#pragma once

#include "sample/artwork/art_plan.h"

#include <QImage>

namespace torvik::sample {

/// The emblem on the car: one for each of the six bodies, its enamel after the fashion of the year; 200 x
/// 124.
QImage PaintEmblem(const SmallPicture& emblem);

} // namespace torvik::sample
