#pragma once

#include "sample/geometry/vec.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdint>

namespace torvik::sample {

/// Boards of wood seen from above, with light from the upper left; `base` is the middle tone.
QImage WoodTable(QSize size, const QColor& base, std::uint32_t seed);
/// Folded cloth.
QImage ClothTable(QSize size, const QColor& base, std::uint32_t seed);
/// The soft shadow of a shape that lies `lift` pixels above its ground.
void DropShadow(QPainter& painter, const QPainterPath& shape, double lift, double strength);
/// Fills a shape as polished metal in bands, brightest where the light falls in.
void FillMetal(QPainter& painter, const QPainterPath& shape, const QColor& tint, double angle);
/// A round glossy thing: shade at its rim, highlight at the upper left.
void FillGlossy(QPainter& painter, const QPainterPath& shape, const QColor& colour);
/// The same for a piece that lies `lift` pixels above its ground: its shadow, then the piece.
void LayMetal(QPainter& painter, const QPainterPath& shape, double lift, double strength, const QColor& tint,
              double angle);
void LayGlossy(QPainter& painter, const QPainterPath& shape, double lift, double strength,
               const QColor& colour);
void LayFlat(QPainter& painter, const QPainterPath& shape, double lift, double strength, const QBrush& brush);
/// The maker's shield, `size` pixels from its middle to its edge.
QPainterPath ShieldPath(const QPointF& middle, double size);
/// The winged T within the shield.
QPainterPath WingedT(const QPointF& middle, double size);

} // namespace torvik::sample
