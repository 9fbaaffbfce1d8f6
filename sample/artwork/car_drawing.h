#pragma once

#include "sample/car/skin.h"

#include <QPainter>

namespace torvik::sample {

/// The car from its left side as a flat drawing, nose to the left; `scale` pixels per metre, standing with
/// its nose at `foot` on the ground.
void DrawCarSide(QPainter& painter, const CarShape& shape, const QColor& paint, const QPointF& foot,
                 double scale);
/// The face of its wheel.
void DrawWheel(QPainter& painter, WheelFace face, const QPointF& middle, double radius);

} // namespace torvik::sample
