#pragma once

#include "sample/geometry/mesh.h"

namespace torvik::sample {

/// Adds tyre and wheel. `side` is -1 for wheels whose face looks toward -y, +1 for the others; `turn` is in
/// radians.
void AddWheel(std::vector<Mesh>& parts, const Vec& hub, double radius, double rimRadius, double side,
              double turn);

} // namespace torvik::sample
