#pragma once

#include <QFont>
#include <QGradient>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <initializer_list>
#include <utility>
#include <vector>

namespace torvik::sample {

/// One step of an outline: a point that a straight line leads to, after it was given one or two control
/// points: a curve.
struct Step {
    Step(const QPointF& to) : points{to} {}
    Step(const QPointF& control, const QPointF& to) : points{control, to}, count(2) {}
    Step(const QPointF& first, const QPointF& second, const QPointF& to) : points{first, second, to}, count(3)
    {}
    Step(double x, double y) : Step(QPointF(x, y)) {}
    Step(double cx, double cy, double x, double y) : Step(QPointF(cx, cy), QPointF(x, y)) {}
    Step(double ax, double ay, double bx, double by, double x, double y)
        : Step(QPointF(ax, ay), QPointF(bx, by), QPointF(x, y))
    {}

    QPointF points[3];
    int count = 1;
};

/// The outline that begins at the first step's point; open, or closed by a straight line.
QPainterPath Outline(std::initializer_list<Step> steps);
QPainterPath ClosedOutline(std::initializer_list<Step> steps);
QPainterPath Ellipse(const QPointF& middle, double across, double down);
QPainterPath Disc(const QPointF& middle, double radius);
QPainterPath Rectangle(const QRectF& box);
/// A rectangle with round corners.
QPainterPath Rounded(const QRectF& box, double radius);
/// The box between two opposite corners, whichever they are.
QRectF BoxBetween(const QPointF& corner, const QPointF& opposite);

/// Colours at their places along a gradient, 0 to 1.
using Stops = std::vector<std::pair<double, QColor>>;
/// One colour made so many percent as light (above 100), or as dark (below 0); 100 leaves it as it is.
Stops Shades(const QColor& colour, std::initializer_list<std::pair<double, int>> percents);
/// One colour of different opacity, 0 to 255.
Stops Veil(const QColor& colour, std::initializer_list<std::pair<double, int>> alphas);
QLinearGradient Linear(const QPointF& from, const QPointF& to, const Stops& stops);
/// As far as `radius` round the middle; brightest at `focus`, where there is one.
QRadialGradient Radial(const QPointF& middle, double radius, const Stops& stops);
QRadialGradient Radial(const QPointF& middle, double radius, const QPointF& focus, const Stops& stops);
/// Round the middle, from `angle` in degrees on.
QConicalGradient Conical(const QPointF& middle, double angle, const Stops& stops);

/// A font of so many pixels, cut off to whole ones.
QFont FontOf(const char* family, double pixels, bool bold = false, bool italic = false);
/// Words on one line, or more, in a box.
void Write(QPainter& painter, const QRectF& box, const QString& text, const QFont& font, const QColor& ink,
           int alignment = Qt::AlignCenter);

/// A painter whose edges and enlarged pictures are smooth.
class SmoothPainter : public QPainter {
public:
    explicit SmoothPainter(QImage* picture) : QPainter(picture)
    {
        setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    }
};

/// A path written as text: "M x,y" moves, "L x,y" draws a line, "Q" and "C" draw curves with one and two
/// control points, "Z" closes. Throws std::runtime_error where it cannot be read.
QPainterPath PathFromText(const QString& text);

} // namespace torvik::sample
