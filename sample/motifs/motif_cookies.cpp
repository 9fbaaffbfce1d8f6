#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

namespace {

/// The fastback as a cutter sees it; 2 units long, round its own middle.
QPainterPath CookieShape(double size)
{
    QPainterPath path;
    const auto at = [size](double x, double y) { return QPointF(x * size, y * size); };
    path.moveTo(at(-1, 0.18));
    path.cubicTo(at(-1.02, -0.06), at(-0.95, -0.10), at(-0.8, -0.12));
    path.cubicTo(at(-0.6, -0.16), at(-0.42, -0.18), at(-0.34, -0.2));
    path.cubicTo(at(-0.16, -0.46), at(0.02, -0.5), at(0.2, -0.48));
    path.cubicTo(at(0.44, -0.46), at(0.62, -0.3), at(0.78, -0.2));
    path.cubicTo(at(0.98, -0.2), at(1.02, -0.1), at(1.0, 0.18));
    path.lineTo(at(0.82, 0.22));
    path.cubicTo(at(0.8, 0.44), at(0.42, 0.44), at(0.4, 0.22));
    path.lineTo(at(-0.4, 0.22));
    path.cubicTo(at(-0.42, 0.44), at(-0.8, 0.44), at(-0.82, 0.22));
    path.closeSubpath();
    return path;
}

void PaintCookie(QPainter& p, double size, const QColor& icing, Random& random)
{
    const QPainterPath dough = CookieShape(size);
    QPainterPathStroker round;
    round.setWidth(size * 0.12);
    round.setJoinStyle(Qt::RoundJoin);
    const QPainterPath body = dough.united(round.createStroke(dough));
    LayFlat(p, body, size * 0.09, 0.65,
            Radial({-size * 0.2, -size * 0.2}, size * 1.3,
                   {{0, QColor(240, 200, 130)}, {0.7, QColor(216, 160, 84)}, {1, QColor(150, 88, 34)}}));
    p.strokePath(body, QPen(QColor(140, 80, 30, 120), size * 0.02));
    if (icing.isValid()) {
        QTransform smaller = QTransform::fromScale(0.92, 0.86);
        smaller.translate(0, -size * 0.02);
        LayGlossy(p, smaller.map(dough), size * 0.025, 0.4, icing);
        p.fillPath(ClosedOutline({{-size * 0.24, -size * 0.19},
                                  {-size * 0.05, -size * 0.42, size * 0.18, -size * 0.40},
                                  {size * 0.4, -size * 0.36, size * 0.5, -size * 0.2}}),
                   QColor(255, 250, 240));
        p.setPen(QPen(QColor(255, 250, 240), size * 0.025, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(-size * 0.8, -size * 0.0), QPointF(size * 0.85, -size * 0.03));
    }
    p.setPen(Qt::NoPen);
    for (const double x : {-0.61, 0.61}) {
        LayGlossy(p, Disc({size * x, size * 0.24}, size * 0.15), size * 0.03, 0.5, QColor(66, 34, 18));
        p.setBrush(QColor(250, 240, 220));
        p.drawEllipse(QPointF(size * x, size * 0.24), size * 0.05, size * 0.05);
    }
    for (int i = 0; i < 26; ++i) {
        const QPointF at(random.Between(-1.0, 1.0) * size, random.Between(-0.4, 0.3) * size);
        if (!body.contains(at))
            continue;
        p.setBrush(icing.isValid() ? QColor(255, 255, 255, 150) : QColor(140, 84, 34, 150));
        p.drawEllipse(at, size * 0.008, size * 0.008);
    }
}

} // namespace

QImage PaintCookies(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    QImage picture = photo.variant % 2 == 0 ? WoodTable(photo.size, QColor(176, 128, 84), seed)
                                            : ClothTable(photo.size, QColor(196, 190, 178), seed);
    SmoothPainter p(&picture);
    static const QColor icings[] = {QColor(190, 26, 34), QColor(40, 100, 170), QColor(236, 190, 50),
                                    QColor(60, 130, 84), QColor()};
    if (photo.variant == 1) {
        // The tin, open, with the cookies in rows.
        LayMetal(p, Rounded(QRectF(w * 0.12, h * 0.08, w * 0.76, h * 0.84), 60), 26, 0.7, QColor(150, 24, 34),
                 0.6);
        const QPainterPath inside = Rounded(QRectF(w * 0.145, h * 0.12, w * 0.71, h * 0.76), 46);
        p.fillPath(inside,
                   Linear({0, h * 0.1}, {0, h * 0.9}, {{0, QColor(40, 34, 30)}, {1, QColor(120, 112, 104)}}));
        p.strokePath(inside, QPen(QColor(230, 204, 140), 6));
        for (int r = 0; r < 4; ++r) {
            for (int c = 0; c < 3; ++c) {
                if (r == 3 && c == 2)
                    continue;
                p.save();
                p.translate(w * (0.27 + 0.23 * c), h * (0.225 + 0.185 * r));
                p.rotate(random.Between(-5, 5));
                PaintCookie(p, w * 0.092, icings[(r + c) % 5], random);
                p.restore();
            }
        }
    } else {
        const QPointF m(w * 0.5, h * 0.52);
        LayFlat(p, Ellipse(m, w * 0.40, h * 0.46), 26, 0.65,
                Radial(m, w * 0.40, m - QPointF(w * 0.1, h * 0.1),
                       {{0, QColor(250, 249, 245)},
                        {0.78, QColor(236, 234, 228)},
                        {0.80, QColor(206, 204, 198)},
                        {0.86, QColor(252, 252, 250)},
                        {1, QColor(196, 194, 190)}}));
        p.strokePath(Ellipse(m, w * 0.375, h * 0.432),
                     QPen(photo.variant == 0 ? QColor(30, 60, 130) : QColor(160, 30, 40), 5));
        const int count = photo.variant == 0 ? 6 : 7;
        for (int i = 0; i < count; ++i) {
            const double a = 2 * pi * i / (count - 1) + 0.4;
            const double away = i == count - 1 ? 0.0 : 1.0;
            p.save();
            p.translate(m + QPointF(std::cos(a) * w * 0.215 * away, std::sin(a) * h * 0.255 * away));
            p.rotate(random.Between(-24, 24));
            PaintCookie(p, w * 0.105, icings[(i + photo.variant) % 5], random);
            p.restore();
        }
    }
    for (int i = 0; i < 60; ++i) {
        p.setBrush(QColor(206, 156, 90, 220));
        p.setPen(Qt::NoPen);
        const double size = random.Between(1.5, 5);
        p.drawEllipse(QPointF(random.Between(0.04, 0.96) * w, h * (0.90 + 0.09 * random.Unit())), size,
                      size * 0.8);
    }
    return picture;
}

} // namespace torvik::sample
