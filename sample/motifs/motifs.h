#pragma once

#include "sample/photos/photo_plan.h"

#include <QImage>

namespace torvik::sample {

/// The picture as it is looked at, before it is stored: a car in its place, or another motif.
QImage TakePhoto(const PlannedPhoto& photo);

} // namespace torvik::sample
