#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QImage PaintBadge(const PlannedPhoto& photo)
{
    QImage picture(photo.size, QImage::Format_ARGB32_Premultiplied);
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    const Paint paint = PaintOf(photo);
    const Rgb base = LinearOfPixel(paint.colour.rgb());
    // Lacquer close up: the sky in the upper part, the ground in the lower, flakes between.
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double bow = (y - h * 0.44 + 46 * std::sin(x / w * 3.0 + 0.6)) / h;
            const Rgb sky = Mix(Rgb{0.34, 0.42, 0.55}, Rgb{0.85, 0.86, 0.86}, SmoothStep(-0.5, 0.0, bow));
            const Rgb land = Mix(Rgb{0.06, 0.065, 0.06}, Rgb{0.22, 0.21, 0.19}, SmoothStep(0.0, 0.5, bow));
            const double trees = 0.03 * Fractal(x * 0.012, 3.0, 4, seed);
            const Rgb seen = Mix(sky, land, SmoothStep(-0.01, 0.012, bow + trees));
            const double flake = paint.metallic * (Hash(x, y, seed) - 0.5) * 0.22;
            const double lit = 0.75 + 0.35 * SmoothStep(0.4, -0.4, bow);
            line[x] = PixelOf(Shoulder(base * (lit + flake) + seen * 0.16));
        }
    }
    SmoothPainter p(&picture);
    // A panel gap, for scale.
    const QPainterPath gap = Outline({{w * 0.86, -10}, {w * 0.82, h * 0.5, w * 0.87, h + 10}});
    p.strokePath(gap, QPen(QColor(0, 0, 0, 220), 7));
    p.strokePath(gap.translated(6, 0), QPen(QColor(255, 255, 255, 80), 3));
    const bool lettering = photo.variant % 3 == 1;
    const QPointF m(w * (lettering ? 0.20 : 0.42), h * 0.48);
    const double size = h * (lettering ? 0.17 : 0.30);
    const QPainterPath outer = ShieldPath(m, size);
    LayMetal(p, outer, size * 0.13, 0.75, QColor(196, 198, 204), 0.9);
    p.strokePath(outer, QPen(QColor(250, 250, 252, 150), 3));
    const QPainterPath inner = ShieldPath(m, size * 0.86);
    FillGlossy(p, inner, QColor(150, 14, 24));
    // Fine lines under the enamel.
    p.save();
    p.setClipPath(inner);
    p.setPen(QPen(QColor(255, 120, 100, 50), 2));
    for (int i = 0; i < 40; ++i) {
        const double a = pi * i / 40;
        p.drawLine(m + QPointF(0, size),
                   m + QPointF(0, size) + QPointF(std::cos(a), -std::sin(a)) * size * 3);
    }
    p.restore();
    p.strokePath(inner, QPen(QColor(60, 4, 8), 3));
    const QPainterPath tee = WingedT(m + QPointF(0, size * 0.02), size * 0.70);
    LayMetal(p, tee, size * 0.05, 0.8, QColor(206, 208, 212), 1.2);
    p.strokePath(tee, QPen(QColor(255, 255, 255, 170), 2));
    const QFont font = FontOf("Liberation Serif", h * (lettering ? 0.22 : 0.105), true, true);
    QPainterPath script;
    script.addText(QPointF(lettering ? w * 0.36 : w * 0.34, lettering ? h * 0.54 : h * 0.93), font,
                   u"Vollandry"_s);
    // The letters stand on a bar, as cast ones do.
    const QRectF box = script.boundingRect();
    QPainterPath cast = script.united(
        Rounded(QRectF(box.left() - 6, box.bottom() - box.height() * 0.25, box.width() + 14, h * 0.012), 4));
    LayMetal(p, cast, h * 0.018, 0.8, QColor(204, 206, 212), 1.35);
    p.strokePath(cast, QPen(QColor(255, 255, 255, 140), 1.6));
    return picture;
}

} // namespace torvik::sample
