#pragma once

#include "sample/car/car_shape.h"
#include "sample/geometry/mesh.h"

namespace torvik::sample {

/// Adds tyre and wheel. `side` is -1 for wheels whose face looks toward -y, +1 for the others; `turn` is in
/// radians.
void AddWheel(std::vector<Mesh>& parts, const Vec& hub, double radius, double rimRadius, double side,
              double turn);

/// All parts of one car, standing on the ground with its middle at the origin and its nose toward -x.
std::vector<Mesh> BuildCar(const CarShape& shape);

/// Half width of the shoulder line at `s`.
double ShoulderHalfWidth(const CarShape& shape, double s);
/// Half width of the cabin where its side turns into the roof, and the height of that edge, at `s`.
struct RoofRail {
    double halfWidth;
    double height;
};
RoofRail RoofRailAt(const CarShape& shape, double s);
/// Height of the belt on which the cabin stands.
double BeltAt(const CarShape& shape, double s);

} // namespace torvik::sample
