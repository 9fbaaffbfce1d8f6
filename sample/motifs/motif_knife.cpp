#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QImage PaintKnife(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    static const QColor cloths[] = {QColor(88, 18, 28), QColor(26, 40, 84), QColor(30, 66, 44),
                                    QColor(60, 56, 52)};
    QImage picture = ClothTable(photo.size, cloths[photo.variant % 4], seed);
    SmoothPainter p(&picture);
    p.translate(w * 0.5, h * 0.5);
    p.rotate(-12 + random.Between(-4, 4));
    const double u = w / 1280.0;
    // The blade.
    const QPainterPath blade = ClosedOutline({{40 * u, -52 * u},
                                              {300 * u, -58 * u},
                                              {420 * u, -60 * u, 500 * u, -30 * u, 560 * u, 20 * u},
                                              {470 * u, 42 * u, 250 * u, 50 * u, 40 * u, 46 * u}});
    LayFlat(p, blade, 14 * u, 0.7,
            Linear({0, -58 * u}, {0, 48 * u},
                   {{0, QColor(122, 126, 132)},
                    {0.28, QColor(236, 240, 244)},
                    {0.50, QColor(176, 182, 190)},
                    {0.62, QColor(92, 98, 106)},
                    {0.66, QColor(240, 244, 248)},
                    {1, QColor(178, 184, 190)}}));
    p.strokePath(blade, QPen(QColor(255, 255, 255, 120), 2 * u));
    p.setPen(QPen(QColor(60, 64, 70), 3 * u));
    p.drawLine(QPointF(90 * u, -42 * u), QPointF(330 * u, -46 * u));
    p.setFont(FontOf("Liberation Serif", 44 * u, false, true));
    p.setPen(QColor(70, 76, 84));
    p.drawText(QPointF(130 * u, 4 * u), u"Vollandry"_s);
    // The handle, in resin over a painted car.
    LayMetal(p,
             ClosedOutline({{60 * u, -74 * u},
                            {-120 * u, -104 * u, -360 * u, -104 * u, -500 * u, -70 * u},
                            {-570 * u, -50 * u, -570 * u, 60 * u, -500 * u, 84 * u},
                            {-360 * u, 126 * u, -120 * u, 112 * u, 60 * u, 72 * u}}),
             26 * u, 0.75, QColor(206, 168, 84), 1.3);
    const QPainterPath scale = ClosedOutline({{-30 * u, -68 * u},
                                              {-160 * u, -84 * u, -340 * u, -84 * u, -462 * u, -56 * u},
                                              {-510 * u, -40 * u, -510 * u, 50 * u, -462 * u, 68 * u},
                                              {-340 * u, 102 * u, -160 * u, 92 * u, -30 * u, 66 * u}});
    static const int years[] = {1967, 1970, 1985, 2000};
    const int year = years[photo.variant % 4];
    const Paint paint = PaintsOfYear(year)[static_cast<std::size_t>(photo.variant * 3 + 1) % 6];
    const QLinearGradient sky = Linear({0, -80 * u}, {0, 90 * u},
                                       {{0, QColor(40, 70, 130)},
                                        {0.55, QColor(236, 190, 150)},
                                        {0.60, QColor(74, 66, 70)},
                                        {1, QColor(34, 32, 36)}});
    p.save();
    p.setClipPath(scale);
    p.fillPath(scale, sky);
    const Trim trim{.plate = QString::number(year)};
    const QImage car = CutOutCar(ShapeOfYear(year), paint, trim, View::Side,
                                 QSize(static_cast<int>(560 * u), static_cast<int>(340 * u)));
    p.drawImage(QRectF(-525 * u, -172 * u, 560 * u, 340 * u), car);
    p.fillPath(scale, Linear({0, -84 * u}, {0, 90 * u},
                             Veil(Qt::white, {{0, 160}, {0.24, 40}, {0.26, 0}, {0.9, 0}, {1, 70}})));
    p.restore();
    p.strokePath(scale, QPen(QColor(90, 62, 20), 4 * u));
    for (const double x : {-520.0, 18.0}) {
        const QPainterPath rivet = Disc({x * u, 4 * u}, 17 * u);
        FillMetal(p, rivet, QColor(226, 196, 120), 0.8);
        p.strokePath(rivet, QPen(QColor(80, 56, 18), 2 * u));
    }
    // Its pouch.
    p.resetTransform();
    p.translate(w * 0.78, h * 0.83);
    p.rotate(8);
    LayGlossy(p, Rounded(QRectF(-230 * u, -70 * u, 460 * u, 150 * u), 40 * u), 20 * u, 0.7,
              QColor(26, 24, 24));
    p.strokePath(Rounded(QRectF(-216 * u, -57 * u, 432 * u, 124 * u), 32 * u),
                 QPen(QColor(120, 112, 100), 2.5 * u, Qt::DashLine));
    p.fillPath(ShieldPath({0, 0}, 36 * u), QColor(196, 160, 80));
    p.fillPath(WingedT({0, 0}, 24 * u), QColor(40, 30, 16));
    return picture;
}

} // namespace torvik::sample
