#pragma once

#include "sample/photos/photographed_car.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

/// A car at a place, seen by a given camera.
QImage PhotographCar(const CarShape& shape, const Paint& paint, const Trim& trim, Scenery scenery,
                     const Camera& camera, QSize size, CarSide side);

/// A car alone on transparent ground, in studio light.
QImage CutOutCar(const CarShape& shape, const Paint& paint, const Trim& trim, View view, QSize size);

/// Where the photographer stands for a view of a car of this shape.
Camera CameraFor(const CarShape& shape, View view, QSize size, std::uint32_t seed);
CarSide SideOf(View view);
/// How fine the sheets have to be for this camera.
Sharpness SharpnessFor(const CarShape& shape, const Camera& camera, QSize size);

/// A number of its own for each photo, from its name.
std::uint32_t SeedOf(const PlannedPhoto& photo);

} // namespace torvik::sample
