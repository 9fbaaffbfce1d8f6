#include "sample/car/paints.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
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
    SmoothPainter p(&picture);
    p.fillRect(picture.rect(), Radial({w * 0.4, h * 0.2}, w * 0.75, Shades(wall, {{0, 150}, {1, -240}})));
    const double edge = h * 0.60;
    const QImage wood =
        WoodTable(QSize(photo.size.width(), static_cast<int>(h - edge) + 1), QColor(150, 96, 52), seed);
    p.drawImage(QPointF(0, edge), wood);
    p.fillRect(QRectF(0, edge, w, h - edge),
               Linear({0, edge}, {0, h}, Veil(Qt::black, {{0, 120}, {0.35, 20}, {1, 60}})));
    const CarShape shape = ShapeOfYear(photo.year);
    const Paint paint = PaintsOfYear(photo.year)[static_cast<std::size_t>(photo.variant + 1) % 6];
    const Trim trim{.stripe = photo.variant % 2 == 0 ? Trim::Stripe::Racing : Trim::Stripe::None,
                    .stripeColour =
                        paint.colour.lightness() < 100 ? QColor(238, 236, 228) : QColor(20, 20, 22),
                    .plate = QString::number(photo.year),
                    .script = u"Vollandry"_s};
    const bool boxed = photo.prefix == "TF"_L1;
    // The box, with a window or a picture.
    const QPainterPath carton = Rectangle(QRectF(w * 0.52, h * 0.10, w * 0.40, h * 0.52));
    DropShadow(p, carton, 22, 0.6);
    const QColor print = boxed ? QColor(20, 40, 96) : QColor(120, 16, 28);
    p.fillPath(carton, Linear({w * 0.52, 0}, {w * 0.92, h * 0.5}, Shades(print, {{0, 140}, {1, -140}})));
    p.fillPath(
        Outline({{w * 0.52, h * 0.10}, {w * 0.55, h * 0.06}, {w * 0.95, h * 0.06}, {w * 0.92, h * 0.10}}),
        print.lighter(170));
    p.fillPath(
        Outline({{w * 0.92, h * 0.10}, {w * 0.95, h * 0.06}, {w * 0.95, h * 0.57}, {w * 0.92, h * 0.62}}),
        print.darker(200));
    p.setPen(QPen(QColor(226, 192, 110), 4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(w * 0.535, h * 0.125, w * 0.37, h * 0.47));
    QFont font = FontOf("Liberation Serif", h * 0.048, true);
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
    LayFlat(p,
            Ellipse({place.center().x(), place.top() + place.height() * 0.755}, place.width() * 0.37,
                    place.height() * 0.075),
            18, 0.8, QColor(0, 0, 0, 130));
    p.drawImage(place, car);
    // A chromed plaque.
    LayMetal(p, Rounded(QRectF(w * 0.60, h * 0.84, w * 0.24, h * 0.075), 6), 8, 0.6, QColor(196, 168, 96),
             0.4);
    font.setItalic(false);
    font.setPixelSize(static_cast<int>(h * 0.03));
    p.setFont(font);
    p.setPen(QColor(50, 34, 10));
    p.drawText(QRectF(w * 0.60, h * 0.84, w * 0.24, h * 0.075), Qt::AlignCenter,
               u"No. %1 of 2500"_s.arg(214 + photo.variant * 377));
    return picture;
}

} // namespace torvik::sample
