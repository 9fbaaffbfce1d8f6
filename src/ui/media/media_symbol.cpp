#include "ui/media/media_symbol.h"

#include "ui/look/look.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <span>

namespace torvik {

namespace {

enum class Shape { Box, Left, Right, Up, Disc };

/// A part of a symbol; lengths are in units of the symbol's height.
struct Mark {
    Shape kind;
    double left, top, width, height;
};

struct Symbol {
    double width;
    std::span<const Mark> marks;
};

constexpr Mark prevMarks[] = {{Shape::Box, 0, 0, 0.2, 1}, {Shape::Left, 0.25, 0, 0.75, 1}};
constexpr Mark nextMarks[] = {{Shape::Right, 0, 0, 0.75, 1}, {Shape::Box, 0.8, 0, 0.2, 1}};
constexpr Mark playMarks[] = {{Shape::Right, 0, 0, 0.85, 1}};
constexpr Mark pauseMarks[] = {{Shape::Box, 0, 0, 0.3, 1}, {Shape::Box, 0.55, 0, 0.3, 1}};
constexpr Mark backMarks[] = {{Shape::Left, 0, 0, 0.65, 1}, {Shape::Left, 0.65, 0, 0.65, 1}};
constexpr Mark stepMarks[] = {{Shape::Right, 0, 0, 0.65, 1}, {Shape::Right, 0.65, 0, 0.65, 1}};
constexpr Mark stopMarks[] = {{Shape::Box, 0, 0.05, 0.9, 0.9}};
constexpr Mark recordMarks[] = {{Shape::Disc, 0, 0, 1, 1}};
constexpr Mark ejectMarks[] = {{Shape::Up, 0, 0, 1.1, 0.65}, {Shape::Box, 0, 0.78, 1.1, 0.22}};

constexpr Symbol symbols[mediaButtonCount] = {{1, prevMarks},     {1, nextMarks},   {0.85, playMarks},
                                              {0.85, pauseMarks}, {1.3, backMarks}, {1.3, stepMarks},
                                              {0.9, stopMarks},   {1, recordMarks}, {1.1, ejectMarks}};

QPainterPath Triangle(const QPointF& one, const QPointF& other, const QPointF& tip)
{
    QPainterPath path(one);
    path.lineTo(other);
    path.lineTo(tip);
    path.closeSubpath();
    return path;
}

QPainterPath PathOf(Shape shape, const QRectF& box)
{
    switch (shape) {
    case Shape::Left:
        return Triangle(box.topRight(), box.bottomRight(), {box.left(), box.center().y()});
    case Shape::Right:
        return Triangle(box.topLeft(), box.bottomLeft(), {box.right(), box.center().y()});
    case Shape::Up:
        return Triangle(box.bottomLeft(), box.bottomRight(), {box.center().x(), box.top()});
    case Shape::Disc: {
        QPainterPath path;
        path.addEllipse(box);
        return path;
    }
    default: {
        QPainterPath path;
        path.addRect(box);
        return path;
    }
    }
}

void DrawMarks(QPainter& painter, const QPointF& corner, double height, const Symbol& symbol,
               const QColor& colour)
{
    for (const Mark& mark : symbol.marks) {
        const QRectF box(corner.x() + mark.left * height, corner.y() + mark.top * height, mark.width * height,
                         mark.height * height);
        painter.fillPath(PathOf(mark.kind, Snapped(painter, box)), colour);
    }
}

} // namespace

void DrawMediaSymbol(QPainter& painter, const QRectF& area, MediaButton button, bool enabled)
{
    constexpr double largest = 14; // pixels high
    constexpr double ofHeight = 0.6;
    constexpr double ofWidth = 0.7;
    const Symbol& symbol = symbols[static_cast<int>(button)];
    const double height =
        std::min({largest, area.height() * ofHeight, area.width() * ofWidth / symbol.width});
    const QPointF corner = area.center() - QPointF(symbol.width * height, height) / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (enabled) {
        DrawMarks(painter, corner, height, symbol, look::text);
    } else {
        const double thin = ThinLine(painter);
        DrawMarks(painter, corner + QPointF(thin, thin), height, symbol, look::light);
        DrawMarks(painter, corner, height, symbol, look::shadow);
    }
    painter.restore();
}

} // namespace torvik
