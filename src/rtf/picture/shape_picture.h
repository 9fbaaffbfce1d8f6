#pragma once

#include "rtf/picture/show_picture.h"

#include <QColor>
#include <QPointF>
#include <QRectF>

#include <vector>

namespace torvik::rtf {

enum class ShapeKind : quint8 {
    None,
    Line,
    Rectangle,
    RoundRectangle,
    Ellipse,
    Diamond,
    Triangle,
    Arc,
    Polyline,
    Polygon
};

/// A line, rectangle, ellipse or the like that is drawn onto a page. Lengths are pixels at 96 to the inch.
struct DrawnShape {
    ShapeKind kind = ShapeKind::None;
    QRectF bounds;
    /// Corners of polylines and polygons, as parts of the bounds from 0 to 1.
    std::vector<QPointF> corners;
    /// Invalid for none.
    QColor lineColor;
    QColor fill;
    double lineWidth = 1;
    Qt::PenStyle pen = Qt::SolidLine;
    bool flipX = false;
    bool flipY = false;
};

/// Draws shapes into one picture that is as large as all of them. Null when it would cost more than the
/// document may.
ShownPicture DrawShapes(const std::vector<DrawnShape>& shapes, Budget& budget);

/// The room that a shape takes, its line included.
QRectF RoomOf(const DrawnShape& shape);

} // namespace torvik::rtf
