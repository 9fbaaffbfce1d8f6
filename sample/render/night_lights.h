#pragma once

#include "sample/car/car_shape.h"
#include "sample/geometry/camera.h"

#include <QImage>

namespace torvik::sample {

/// The light that the head lamps throw on the ground before the car, and the red that the tail lamps leave
/// behind it.
void PaintBeams(QImage& picture, const CarShape& shape, const Camera& camera);
/// The glare of lit lamps that look toward the camera.
void PaintFlares(QImage& picture, const CarShape& shape, const Camera& camera);

} // namespace torvik::sample
