#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/blur.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QImage PaintDieCast(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    // A shelf: the wall behind is out of focus, the board in front is of wood.
    static const QColor walls[] = {QColor(58, 72, 92), QColor(96, 52, 44), QColor(54, 78, 62),
                                   QColor(104, 92, 70)};
    const QColor wall = walls[static_cast<std::size_t>(photo.variant) % 4];
    QImage picture(photo.size, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QRadialGradient glow(QPointF(w * 0.4, h * 0.2), w * 0.75);
    glow.setColorAt(0, wall.lighter(150));
    glow.setColorAt(1, wall.darker(240));
    p.fillRect(picture.rect(), glow);
    const double edge = h * 0.60;
    const QImage wood =
        WoodTable(QSize(photo.size.width(), static_cast<int>(h - edge) + 1), QColor(150, 96, 52), seed);
    p.drawImage(QPointF(0, edge), wood);
    QLinearGradient depth(0, edge, 0, h);
    depth.setColorAt(0, QColor(0, 0, 0, 120));
    depth.setColorAt(0.35, QColor(0, 0, 0, 20));
    depth.setColorAt(1, QColor(0, 0, 0, 60));
    p.fillRect(QRectF(0, edge, w, h - edge), depth);
    const CarShape shape = ShapeOfYear(photo.year);
    const Paint paint = PaintsOfYear(photo.year)[static_cast<std::size_t>(photo.variant + 1) % 6];
    Trim trim;
    trim.plate = QString::number(photo.year);
    trim.script = u"Vollandry"_s;
    trim.stripe = photo.variant % 2 == 0 ? Trim::Stripe::Racing : Trim::Stripe::None;
    trim.stripeColour = paint.colour.lightness() < 100 ? QColor(238, 236, 228) : QColor(20, 20, 22);
    const bool boxed = photo.prefix == "TF"_L1;
    // The box, with a window or a picture.
    QPainterPath carton;
    carton.addRect(QRectF(w * 0.52, h * 0.10, w * 0.40, h * 0.52));
    DropShadow(p, carton, 22, 0.6);
    const QColor print = boxed ? QColor(20, 40, 96) : QColor(120, 16, 28);
    QLinearGradient card(w * 0.52, 0, w * 0.92, h * 0.5);
    card.setColorAt(0, print.lighter(140));
    card.setColorAt(1, print.darker(140));
    p.fillPath(carton, card);
    QPainterPath flap;
    flap.moveTo(w * 0.52, h * 0.10);
    flap.lineTo(w * 0.55, h * 0.06);
    flap.lineTo(w * 0.95, h * 0.06);
    flap.lineTo(w * 0.92, h * 0.10);
    p.fillPath(flap, print.lighter(170));
    QPainterPath flank;
    flank.moveTo(w * 0.92, h * 0.10);
    flank.lineTo(w * 0.95, h * 0.06);
    flank.lineTo(w * 0.95, h * 0.57);
    flank.lineTo(w * 0.92, h * 0.62);
    p.fillPath(flank, print.darker(200));
    p.setPen(QPen(QColor(226, 192, 110), 4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(w * 0.535, h * 0.125, w * 0.37, h * 0.47));
    QFont font(u"Liberation Serif"_s);
    font.setBold(true);
    font.setPixelSize(static_cast<int>(h * 0.048));
    p.setFont(font);
    p.setPen(QColor(238, 208, 130));
    p.drawText(QRectF(w * 0.54, h * 0.13, w * 0.36, h * 0.07), Qt::AlignCenter,
               u"%1 Torvik Vollandry"_s.arg(photo.year));
    font.setPixelSize(static_cast<int>(h * 0.026));
    font.setItalic(true);
    p.setFont(font);
    p.drawText(QRectF(w * 0.54, h * 0.54, w * 0.36, h * 0.05), Qt::AlignCenter,
               u"Precision model, scale 1:24"_s);
    const QImage small = CutOutCar(shape, paint, trim, View::Side,
                                   QSize(static_cast<int>(w * 0.5), static_cast<int>(w * 0.3)));
    p.fillRect(QRectF(w * 0.555, h * 0.21, w * 0.33, h * 0.32), QColor(222, 214, 194));
    p.drawImage(QRectF(w * 0.535, h * 0.20, w * 0.37, w * 0.222), small);
    // The model itself in front, with its shadow and a faint mirror image in the varnish.
    const View view = photo.variant % 3 == 2 ? View::RearLeft : View::FrontLeft;
    const QImage car =
        CutOutCar(shape, paint, trim, view, QSize(static_cast<int>(w * 0.82), static_cast<int>(w * 0.497)));
    const QRectF place(w * 0.0, h * 0.26, w * 0.82, w * 0.497);
    QPainterPath ground;
    ground.addEllipse(QPointF(place.center().x(), place.top() + place.height() * 0.755), place.width() * 0.37,
                      place.height() * 0.075);
    DropShadow(p, ground, 18, 0.8);
    p.fillPath(ground, QColor(0, 0, 0, 130));
    p.drawImage(place, car);
    // A chromed plaque.
    QPainterPath plaque;
    plaque.addRoundedRect(QRectF(w * 0.60, h * 0.84, w * 0.24, h * 0.075), 6, 6);
    DropShadow(p, plaque, 8, 0.6);
    FillMetal(p, plaque, QColor(196, 168, 96), 0.4);
    font.setItalic(false);
    font.setPixelSize(static_cast<int>(h * 0.03));
    p.setFont(font);
    p.setPen(QColor(50, 34, 10));
    p.drawText(QRectF(w * 0.60, h * 0.84, w * 0.24, h * 0.075), Qt::AlignCenter,
               u"No. %1 of 2500"_s.arg(214 + photo.variant * 377));
    return picture;
}

} // namespace torvik::sample
