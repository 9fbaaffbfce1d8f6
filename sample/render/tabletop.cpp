#include "sample/render/tabletop.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/film.h"

namespace torvik::sample {

QImage WoodTable(QSize size, const QColor& base, std::uint32_t seed)
{
    QImage table(size, QImage::Format_ARGB32_Premultiplied);
    const double scale = 1280.0 / std::max(size.width(), size.height());
    const Rgb tone = LinearOfPixel(base.rgb());
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(table.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double px = x * scale;
            const double py = y * scale;
            const int board = Floor(py / 190.0);
            const double inBoard = py / 190.0 - board;
            const std::uint32_t own = seed + static_cast<std::uint32_t>(board) * 31U;
            const double bend = 30.0 * Noise(px * 0.004, py * 0.01, own);
            const double rings = std::sin((py + bend) * 0.22 + 9.0 * Noise(px * 0.0025, py * 0.02, own + 1));
            const double fibre = Fractal(px * 0.012, py * 0.5, 3, own + 2);
            double level = 0.62 + 0.10 * rings + 0.5 * fibre + 0.16 * Hash(board, 4, seed);
            const double joint = std::min(inBoard, 1 - inBoard) * 190.0;
            level *= 0.35 + 0.65 * SmoothStep(0.0, 3.0, joint);
            const double light = 1.25 - 0.75 * std::hypot(px / 1280.0 - 0.25, py / 800.0 - 0.15);
            line[x] = PixelOf(Shoulder(tone * (level * light)));
        }
    }
    return table;
}

QImage ClothTable(QSize size, const QColor& base, std::uint32_t seed)
{
    QImage table(size, QImage::Format_ARGB32_Premultiplied);
    const double scale = 1280.0 / std::max(size.width(), size.height());
    const Rgb tone = LinearOfPixel(base.rgb());
    const auto height = [&](double x, double y) {
        const double fold = Fractal(x * 0.0035 + y * 0.001, y * 0.0022, 3, seed);
        return 90.0 * fold;
    };
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(table.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double px = x * scale;
            const double py = y * scale;
            const double slope = height(px + 3, py + 3) - height(px, py);
            const double weave = 0.93 + 0.07 * std::sin(px * 2.1) * std::sin(py * 2.1);
            const double light =
                (1.2 - 0.7 * std::hypot(px / 1280.0 - 0.3, py / 800.0 - 0.2)) * (0.85 - slope * 0.30);
            line[x] = PixelOf(Shoulder(tone * (std::max(0.1, light) * weave)));
        }
    }
    return table;
}

void DropShadow(QPainter& painter, const QPainterPath& shape, double lift, double strength)
{
    const QRectF box = shape.boundingRect().adjusted(-lift * 3, -lift * 3, lift * 4, lift * 4);
    // Shadows are soft: a third of the resolution is enough.
    QImage soft((box.size() / 3.0).toSize() + QSize(2, 2), QImage::Format_ARGB32_Premultiplied);
    soft.fill(Qt::transparent);
    SmoothPainter inner(&soft);
    inner.scale(1 / 3.0, 1 / 3.0);
    inner.translate(-box.topLeft() + QPointF(lift * 0.7, lift * 0.9));
    inner.fillPath(shape, QColor(0, 0, 0, static_cast<int>(255 * strength)));
    inner.end();
    const QImage blurred = Blurred(soft, lift / 3.0);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(box.topLeft(), QSizeF(blurred.width() * 3.0, blurred.height() * 3.0)), blurred);
    painter.restore();
}

void FillMetal(QPainter& painter, const QPainterPath& shape, const QColor& tint, double angle)
{
    const QRectF box = shape.boundingRect();
    const QPointF way(std::cos(angle) * box.width() / 2, std::sin(angle) * box.height() / 2);
    painter.fillPath(shape, Linear(box.center() - way, box.center() + way,
                                   Shades(tint, {{0.0, 150},
                                                 {0.22, 115},
                                                 {0.40, -135},
                                                 {0.50, -230},
                                                 {0.54, 165},
                                                 {0.72, 100},
                                                 {0.90, -160},
                                                 {1.0, 130}})));
}

void FillGlossy(QPainter& painter, const QPainterPath& shape, const QColor& colour)
{
    const QRectF box = shape.boundingRect();
    painter.fillPath(
        shape, Linear(box.topLeft(), box.bottomRight(), Shades(colour, {{0, 140}, {0.45, 100}, {1, -190}})));
    painter.save();
    painter.setClipPath(shape);
    painter.fillRect(box, Radial({box.left() + box.width() * 0.3, box.top() + box.height() * 0.18},
                                 std::max(box.width(), box.height()) * 0.5,
                                 Veil(Qt::white, {{0, 150}, {0.35, 40}, {1, 0}})));
    painter.restore();
}

void LayMetal(QPainter& painter, const QPainterPath& shape, double lift, double strength, const QColor& tint,
              double angle)
{
    DropShadow(painter, shape, lift, strength);
    FillMetal(painter, shape, tint, angle);
}

void LayGlossy(QPainter& painter, const QPainterPath& shape, double lift, double strength,
               const QColor& colour)
{
    DropShadow(painter, shape, lift, strength);
    FillGlossy(painter, shape, colour);
}

void LayFlat(QPainter& painter, const QPainterPath& shape, double lift, double strength, const QBrush& brush)
{
    DropShadow(painter, shape, lift, strength);
    painter.fillPath(shape, brush);
}

QPainterPath ShieldPath(const QPointF& m, double size)
{
    return Outline({{m.x() - size, m.y() - size * 0.8},
                    {m.x(), m.y() - size * 1.05, m.x() + size, m.y() - size * 0.8},
                    {m.x() + size, m.y() + size * 0.3, m.x() + size * 0.5, m.y() + size * 0.8, m.x(),
                     m.y() + size * 1.15},
                    {m.x() - size * 0.5, m.y() + size * 0.8, m.x() - size, m.y() + size * 0.3, m.x() - size,
                     m.y() - size * 0.8}});
}

QPainterPath WingedT(const QPointF& m, double size)
{
    QPainterPath path;
    const auto at = [&](double x, double y) { return QPointF(m.x() + x * size, m.y() + y * size); };
    path.moveTo(at(-0.95, -0.62));
    path.quadTo(at(0, -0.28), at(0.95, -0.62));
    path.quadTo(at(0.55, -0.16), at(0.24, -0.14));
    path.quadTo(at(0.16, 0.3), at(0.16, 0.85));
    path.lineTo(at(-0.16, 0.85));
    path.quadTo(at(-0.16, 0.3), at(-0.24, -0.14));
    path.quadTo(at(-0.55, -0.16), at(-0.95, -0.62));
    return path;
}

} // namespace torvik::sample
