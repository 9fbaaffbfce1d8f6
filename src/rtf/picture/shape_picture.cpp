#include "rtf/picture/shape_picture.h"

#include "rtf/bounds/budget.h"
#include "rtf/bounds/limits.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace torvik::rtf {

namespace {

/// Image points along one pixel of a page: paper shows more than the screen does.
constexpr int sharpness = 2;

QPolygonF Placed(const std::vector<QPointF>& corners, const QRectF& bounds)
{
    QPolygonF polygon;
    for (const QPointF& corner : corners)
        polygon << QPointF(bounds.left() + corner.x() * bounds.width(),
                           bounds.top() + corner.y() * bounds.height());
    return polygon;
}

void DrawOutline(QPainter& painter, const DrawnShape& shape)
{
    const QRectF& bounds = shape.bounds;
    switch (shape.kind) {
    case ShapeKind::None:
        break;
    case ShapeKind::Line:
        painter.drawLine(bounds.topLeft(), bounds.bottomRight());
        break;
    case ShapeKind::Rectangle:
        painter.drawRect(bounds);
        break;
    case ShapeKind::RoundRectangle: {
        const double radius = std::min(bounds.width(), bounds.height()) / 6;
        painter.drawRoundedRect(bounds, radius, radius);
        break;
    }
    case ShapeKind::Ellipse:
        painter.drawEllipse(bounds);
        break;
    case ShapeKind::Diamond:
        painter.drawPolygon(Placed({{0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}}, bounds));
        break;
    case ShapeKind::Triangle:
        painter.drawPolygon(Placed({{0.5, 0}, {1, 1}, {0, 1}}, bounds));
        break;
    case ShapeKind::Arc: {
        // A quarter of an ellipse around the lower left corner.
        constexpr int quarter = 90 * 16;
        painter.drawArc(
            QRectF(bounds.left() - bounds.width(), bounds.top(), bounds.width() * 2, bounds.height() * 2), 0,
            quarter);
        break;
    }
    case ShapeKind::Polyline:
        painter.drawPolyline(Placed(shape.corners, bounds));
        break;
    case ShapeKind::Polygon:
        painter.drawPolygon(Placed(shape.corners, bounds));
        break;
    }
}

void DrawShape(QPainter& painter, const DrawnShape& shape)
{
    painter.save();
    if (shape.lineColor.isValid())
        painter.setPen(QPen(shape.lineColor, shape.lineWidth, shape.pen, Qt::FlatCap, Qt::MiterJoin));
    else
        painter.setPen(Qt::NoPen);
    painter.setBrush(shape.fill.isValid() ? QBrush(shape.fill) : QBrush(Qt::NoBrush));
    if (shape.flipX || shape.flipY) {
        const QPointF center = shape.bounds.center();
        painter.translate(center);
        painter.scale(shape.flipX ? -1 : 1, shape.flipY ? -1 : 1);
        painter.translate(-center);
    }
    DrawOutline(painter, shape);
    painter.restore();
}

} // namespace

QRectF RoomOf(const DrawnShape& shape)
{
    const double half = shape.lineColor.isValid() ? std::max(shape.lineWidth, 1.0) / 2 : 0.5;
    return shape.bounds.adjusted(-half, -half, half, half);
}

ShownPicture DrawShapes(const std::vector<DrawnShape>& shapes, Budget& budget)
{
    QRectF room;
    for (const DrawnShape& shape : shapes)
        room = room.united(RoomOf(shape));
    ShownPicture shown;
    constexpr double largestSide = PixelsFromTwips(maxTwips);
    const int width = static_cast<int>(std::ceil(std::min(room.width(), largestSide) * sharpness));
    const int height = static_cast<int>(std::ceil(std::min(room.height(), largestSide) * sharpness));
    if (width < 1 || height < 1 || !budget.Take(4LL * width * height))
        return shown;
    shown.image = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
    if (shown.image.isNull())
        return shown;
    shown.image.fill(Qt::transparent);
    shown.size = QSizeF(width, height) / sharpness;
    QPainter painter(&shown.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(sharpness, sharpness);
    painter.translate(-room.topLeft());
    for (const DrawnShape& shape : shapes)
        DrawShape(painter, shape);
    return shown;
}

} // namespace torvik::rtf
