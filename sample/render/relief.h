#pragma once

#include "sample/geometry/vec.h"

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QSize>

#include <vector>

namespace torvik::sample {

/// How far each point of a field lies from the nearest point whose value is below a half, in points.
std::vector<float> DistancesInside(const std::vector<float>& field, QSize size);
/// Each point becomes the mean of the square of `2 * radius + 1` points round it, three times over.
void Soften(std::vector<float>& field, QSize size, int radius);

/// What the surface of a raised shape is.
struct Coat {
    enum class Kind { Metal, Enamel, Matte };
    Kind kind = Kind::Metal;
    QColor colour = QColor(214, 217, 222);
    int rays = 0; ///< fine lines under enamel that run from `rayFrom`; 0: none
    QPointF rayFrom;
};

Coat Chrome();
Coat Gold();
Coat Enamel(const QColor& colour);
Coat Matte(const QColor& colour);

/// How a shape stands out, in pixels of the picture.
struct Rise {
    double foot = 0;   ///< the height of its edge
    double height = 3; ///< from the edge to the top; negative: sunk
    double edge = 4;   ///< width of the rounded edge
    double lift = 2;   ///< how far its shadow falls on what lies below; 0: none
};

/// A medal in the making: shapes laid one over the other, then lit as cast metal and enamel are.
class Relief {
public:
    explicit Relief(QSize size);

    void Add(const QPainterPath& shape, const Coat& coat, const Rise& rise);
    /// The lit relief over `ground`, which has the size of the picture; shadows fall on it.
    QImage Over(const QImage& ground) const;

private:
    using Field = std::vector<float>;
    static constexpr int fineness = 3; ///< points per pixel, each way

    Rgb ColourAt(int x, int y) const;
    std::size_t Index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    float HeightAt(int x, int y) const;

    int width_;
    int height_;
    Field heights_;
    Field shade_; ///< 0 in full light, 1 in full shadow
    std::vector<std::int16_t> coatOf_;
    std::vector<Coat> coats_;
};

/// A soft ground for emblems and scripts: lighter in the middle, with a fine frame.
QImage SoftGround(QSize size, const QColor& middle, const QColor& rim);

} // namespace torvik::sample
