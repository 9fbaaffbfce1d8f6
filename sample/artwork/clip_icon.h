#pragma once

#include <QPainter>
#include <QString>

namespace torvik::sample {

/// Draws a small picture that is written down as lines of "fill", "line", "disc", "ring" and "text", on a
/// grid of 64 by 64 that fills `box`. Throws std::runtime_error where a line cannot be read.
void DrawIcon(QPainter& painter, const QRectF& box, const QString& lines);

/// Fills a shape with one colour and draws its dark outline.
void FillOutlined(QPainter& painter, const QPainterPath& shape, const QColor& colour, double outline);

} // namespace torvik::sample
