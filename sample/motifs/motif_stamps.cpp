#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// The edge of a stamp: a row of half circles bitten out of each side.
QPainterPath Perforated(const QRectF& box, double bite)
{
    const QPainterPath path = Rectangle(box);
    QPainterPath holes;
    const int across = static_cast<int>(box.width() / (bite * 3));
    const int down = static_cast<int>(box.height() / (bite * 3));
    for (int i = 0; i <= across; ++i) {
        const double x = box.left() + box.width() * i / across;
        holes.addEllipse(QPointF(x, box.top()), bite, bite);
        holes.addEllipse(QPointF(x, box.bottom()), bite, bite);
    }
    for (int i = 1; i < down; ++i) {
        const double y = box.top() + box.height() * i / down;
        holes.addEllipse(QPointF(box.left(), y), bite, bite);
        holes.addEllipse(QPointF(box.right(), y), bite, bite);
    }
    return path.subtracted(holes);
}

} // namespace

QImage PaintStamps(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    QImage picture = photo.variant % 2 == 0 ? ClothTable(photo.size, QColor(40, 66, 58), seed)
                                            : WoodTable(photo.size, QColor(124, 84, 52), seed);
    SmoothPainter p(&picture);
    const bool sheet = photo.variant % 3 != 1;
    const int columns = sheet ? 3 : 2;
    const int rows = 2;
    const double sw = sheet ? w * 0.235 : w * 0.30;
    const double sh = sw * 0.70;
    p.translate(w * 0.5, h * 0.5);
    p.rotate(random.Between(-5, 5));
    if (sheet) {
        LayFlat(p, Rectangle(QRectF(-sw * 1.72, -sh * 1.32, sw * 3.44, sh * 2.64)), 12, 0.6,
                Linear({-sw * 1.7, -sh}, {sw * 1.7, sh},
                       {{0, QColor(250, 246, 234)}, {1, QColor(220, 212, 192)}}));
        p.setFont(FontOf("Liberation Serif", sh * 0.11, false, true));
        p.setPen(QColor(80, 66, 50));
        p.drawText(QRectF(-sw * 1.7, -sh * 1.29, sw * 3.4, sh * 0.2), Qt::AlignCenter,
                   u"The Torvik Vollandry - six seasons in six stamps"_s);
    }
    static const int years[] = {1967, 1971, 1976, 1985, 1995, 1999};
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            const int which = (r * columns + c + photo.variant) % 6;
            p.save();
            const double gap = sheet ? 1.06 : 1.2;
            p.translate((c - (columns - 1) / 2.0) * sw * gap,
                        (r - 0.5) * sh * (sheet ? 1.08 : 1.25) + (sheet ? sh * 0.06 : 0));
            if (!sheet)
                p.rotate(random.Between(-9, 9));
            const QRectF box(-sw / 2, -sh / 2, sw, sh);
            LayFlat(p, Perforated(box, sw * 0.012), sheet ? 3 : 8, 0.5, QColor(250, 247, 238));
            const QRectF art = box.adjusted(sw * 0.05, sw * 0.05, -sw * 0.05, -sw * 0.05);
            const QColor ground = QColor::fromHsv((which * 57 + photo.variant * 40) % 360, 90, 225);
            p.fillRect(art, Linear(art.topLeft(), art.bottomLeft(),
                                   Shades(ground, {{0, -130}, {0.55, 118}, {0.56, -190}, {1, -150}})));
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(255, 244, 206, 190));
            p.drawEllipse(QPointF(art.left() + art.width() * 0.78, art.top() + art.height() * 0.3), sh * 0.12,
                          sh * 0.12);
            const CarShape shape = ShapeOfYear(years[which]);
            const Paint paint =
                PaintsOfYear(years[which])[static_cast<std::size_t>(photo.variant + which) % 6];
            const Trim trim{.plate = QString::number(years[which])};
            const QSize carSize(static_cast<int>(art.width() * 1.4), static_cast<int>(art.height() * 1.4));
            const QImage car =
                CutOutCar(shape, paint, trim, which % 2 == 0 ? View::FrontLeft : View::Side, carSize);
            p.setBrush(QColor(0, 0, 0, 90));
            p.drawEllipse(QPointF(0, art.bottom() - art.height() * 0.25), art.width() * 0.42,
                          art.height() * 0.07);
            p.drawImage(QRectF(art.left(), art.top() + art.height() * 0.06, art.width(), art.height()), car);
            QFont font = FontOf("Liberation Sans", sh * 0.13, true);
            p.setFont(font);
            p.setPen(QColor(255, 255, 255));
            p.drawText(art.adjusted(sw * 0.02, sh * 0.01, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                       u"%1c"_s.arg(15 + 5 * which));
            font.setPixelSize(static_cast<int>(sh * 0.075));
            p.setFont(font);
            p.drawText(art.adjusted(0, 0, -sw * 0.02, -sh * 0.01), Qt::AlignRight | Qt::AlignBottom,
                       u"VOLLANDRY %1"_s.arg(years[which]));
            p.drawText(art.adjusted(sw * 0.02, 0, 0, -sh * 0.01), Qt::AlignLeft | Qt::AlignBottom,
                       u"AVEREL"_s);
            p.setPen(QPen(QColor(255, 255, 255, 120), 1.5));
            p.setBrush(Qt::NoBrush);
            p.drawRect(art);
            p.restore();
        }
    }
    if (!sheet || photo.variant % 2 == 1) {
        // A postmark.
        p.save();
        p.rotate(-14);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(24, 26, 40, 150), 5));
        const QPointF m(sw * 0.55, sh * 0.05);
        p.drawEllipse(m, sh * 0.3, sh * 0.3);
        p.drawEllipse(m, sh * 0.2, sh * 0.2);
        for (int i = 0; i < 5; ++i) {
            QPainterPath wave;
            wave.moveTo(m + QPointF(sh * 0.3, (i - 2) * sh * 0.09));
            for (int k = 0; k < 5; ++k)
                wave.quadTo(
                    m + QPointF(sh * (0.36 + 0.16 * k), (i - 2 + (k % 2 == 0 ? 0.6 : -0.6)) * sh * 0.09),
                    m + QPointF(sh * (0.46 + 0.16 * k), (i - 2) * sh * 0.09));
            p.drawPath(wave);
        }
        p.restore();
    }
    // A lens that somebody laid down.
    p.resetTransform();
    QPainterPath lens;
    const QPointF m(w * 0.87, h * 0.80);
    lens.addEllipse(m, h * 0.13, h * 0.13);
    LayFlat(p, lens, 14, 0.6,
            Radial(m, h * 0.13, m - QPointF(h * 0.05, h * 0.05),
                   {{0, QColor(255, 255, 255, 30)},
                    {0.8, QColor(200, 220, 230, 40)},
                    {1, QColor(255, 255, 255, 150)}}));
    p.strokePath(lens, QPen(QColor(176, 150, 84), h * 0.02));
    p.strokePath(lens, QPen(QColor(244, 226, 170), h * 0.005));
    p.setPen(QPen(QColor(30, 22, 16), h * 0.035, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(m + QPointF(h * 0.105, h * 0.1), m + QPointF(h * 0.26, h * 0.24));
    return picture;
}

} // namespace torvik::sample
