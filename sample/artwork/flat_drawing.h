#pragma once

#include "sample/car/skin.h"

#include <QPainter>
#include <QString>

namespace torvik::sample {

/// Draws a small picture that is written down as lines of "fill", "line", "disc", "ring" and "text", on a
/// grid of 64 by 64 that fills `box`. Throws std::runtime_error where a line cannot be read.
void DrawIcon(QPainter& painter, const QRectF& box, const QString& lines);

/// Fills a shape with one colour and draws its dark outline.
void FillOutlined(QPainter& painter, const QPainterPath& shape, const QColor& colour, double outline);

/// The car from its left side as a flat drawing, nose to the left; `scale` pixels per metre, standing with
/// its nose at `foot` on the ground.
void DrawCarSide(QPainter& painter, const CarShape& shape, const QColor& paint, const QPointF& foot,
                 double scale);
/// The face of its wheel.
void DrawWheel(QPainter& painter, const CarShape& shape, const QPointF& middle, double radius);

} // namespace torvik::sample
