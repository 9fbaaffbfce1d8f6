#pragma once

#include "sample/car/car_shape.h"
#include "sample/drawings/script.h"

namespace torvik::sample {

/// Tells a script of a car as "c": "c.length" and its other numbers and looks, "c.roof(s)" and its other
/// curves, "belt(s)", "shoulderWidth(s)", "roofRail(s)" (half width and height). The shape has to outlive it.
void TeachCar(Script& script, const CarShape& shape);

} // namespace torvik::sample
