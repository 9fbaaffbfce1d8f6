#pragma once

#include "sample/photos/photo_plan.h"

#include <QImage>

#include <cstdint>

namespace torvik::sample {

/// Lacquer close up: the sky in the upper part, the ground in the lower, flakes between.
QImage LacquerCloseUp(const PlannedPhoto& photo);
/// A wall of bricks with deep joints.
QImage BrickWall(QSize size, std::uint32_t seed);
/// A study that never went into production: the body of its year with other proportions.
CarShape StudyShape(const PlannedPhoto& photo);
/// What the driver sees.
QImage ThroughWindscreen(const PlannedPhoto& photo);

} // namespace torvik::sample
