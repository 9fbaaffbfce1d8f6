#include "sample/car/paints.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A wall of bricks with deep joints.
QImage BrickWall(QSize size, std::uint32_t seed)
{
    QImage wall(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(wall.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int row = Floor(y / 52.0);
            const double shift = row % 2 == 0 ? 0.0 : 64.0;
            const int column = Floor((x + shift) / 128.0);
            const double fx = x + shift - column * 128.0;
            const double fy = y - row * 52.0;
            const double rough = Fractal(x * 0.06, y * 0.06, 4, seed);
            const double edge = std::min({fx, 128 - fx, fy, 52 - fy}) + (rough - 0.5) * 5;
            const double own = Hash(column, row, seed + 2);
            const Rgb brick = Mix(Rgb{0.26, 0.085, 0.05}, Rgb{0.42, 0.19, 0.11}, own) * (0.55 + 0.8 * rough);
            const Rgb mortar = Rgb{0.30, 0.28, 0.25} * (0.4 + 0.5 * rough);
            const double lip = fy < 9 ? 1.25 : fy > 43 ? 0.7 : 1.0;
            const double light = 1.3 - 0.8 * std::hypot(x / 1280.0 - 0.3, y / 776.0 - 0.2);
            line[x] = PixelOf(Shoulder(Mix(mortar * 0.8, brick * lip, SmoothStep(3.0, 7.0, edge)) * light));
        }
    }
    return wall;
}

} // namespace

QImage PaintSign(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    QImage picture = photo.variant % 2 == 0 ? BrickWall(photo.size, seed)
                                            : WoodTable(photo.size, QColor(140, 116, 92), seed);
    SmoothPainter p(&picture);
    const QRectF box(w * 0.15, h * 0.08, w * 0.70, h * 0.82);
    const QPainterPath plate = Rounded(box, 26);
    DropShadow(p, plate, 16, 0.75);
    struct Scheme {
        QColor ground;
        QColor frame;
        QColor ink;
        const char* head;
        const char* foot;
        int year;
    };
    static const Scheme schemes[] = {
        {QColor(238, 226, 196), QColor(168, 26, 26), QColor(168, 26, 26), "VOLLANDRY", "SALES & SERVICE",
         1967},
        {QColor(24, 60, 116), QColor(242, 232, 204), QColor(246, 208, 60), "TORVIK", "Parts for every season",
         1972},
        {QColor(240, 190, 34), QColor(20, 20, 22), QColor(20, 20, 22), "KESTRA I", "OBEY THE SPRINGS", 1970},
        {QColor(206, 46, 34), QColor(244, 238, 222), QColor(250, 244, 226), "VOLLANDRY PARKING",
         "ALL OTHERS WILL BE PUSHED", 1968},
        {QColor(46, 96, 74), QColor(238, 226, 196), QColor(244, 232, 196), "MILLBROOK",
         "Drag strip - every Sunday", 1999}};
    const Scheme& scheme = schemes[static_cast<std::size_t>(photo.variant) % 5];
    const QLinearGradient enamel =
        Linear(box.topLeft(), box.bottomRight(), Shades(scheme.ground, {{0, 118}, {0.5, 100}, {1, -128}}));
    p.fillPath(plate, enamel);
    const QPainterPath inner = Rounded(box.adjusted(20, 20, -20, -20), 18);
    p.strokePath(inner, QPen(scheme.frame, 11));
    const CarShape shape = ShapeOfYear(scheme.year);
    const Trim trim{.plate = QString::number(scheme.year)};
    const Paint paint = PaintsOfYear(scheme.year)[static_cast<std::size_t>(photo.variant * 2 + 1) % 6];
    const QSize carSize(static_cast<int>(box.width() * 1.0), static_cast<int>(box.width() * 0.6));
    const QImage car =
        CutOutCar(shape, paint, trim, photo.variant % 2 == 0 ? View::FrontLeft : View::Side, carSize);
    p.setPen(Qt::NoPen);
    // Rays behind the car.
    p.save();
    p.setClipPath(inner);
    QColor ray = scheme.ink;
    ray.setAlpha(34);
    for (int i = 0; i < 24; i += 2) {
        QPainterPath wedge;
        const QPointF m(box.center().x(), box.center().y() + h * 0.1);
        wedge.moveTo(m);
        wedge.lineTo(m + QPointF(std::cos(i * pi / 12), -std::sin(i * pi / 12)) * w);
        wedge.lineTo(m + QPointF(std::cos((i + 1) * pi / 12), -std::sin((i + 1) * pi / 12)) * w);
        p.fillPath(wedge, ray);
    }
    p.restore();
    p.setBrush(QColor(0, 0, 0, 80));
    p.drawEllipse(QPointF(box.center().x(), box.top() + box.height() * 0.70), box.width() * 0.36,
                  box.height() * 0.05);
    p.drawImage(QRectF(box.left() + box.width() * 0.06, box.top() + box.height() * 0.14, box.width() * 0.88,
                       box.width() * 0.88 * 0.6),
                car);
    QFont font = FontOf("Liberation Sans", box.height() * 0.15, true);
    const auto lettering = [&](const QString& text, double y, double high) {
        QPainterPath path;
        font.setPixelSize(static_cast<int>(high));
        path.addText(0, 0, font, text);
        QRectF b = path.boundingRect();
        const double scale = std::min(1.0, box.width() * 0.86 / b.width());
        path = QTransform::fromScale(scale, 1.0).map(path);
        b = path.boundingRect();
        path.translate(box.center().x() - b.center().x(), y);
        p.fillPath(path.translated(3, 4), QColor(0, 0, 0, 70));
        p.fillPath(path, scheme.ink);
    };
    lettering(QString::fromLatin1(scheme.head), box.top() + box.height() * 0.21, box.height() * 0.16);
    lettering(QString::fromLatin1(scheme.foot), box.bottom() - box.height() * 0.09, box.height() * 0.10);
    // Chips and rust at the edge and round the screws, then the shine of the enamel.
    for (int i = 0; i < 46; ++i) {
        const bool acrossEdge = random.Unit() < 0.5;
        const QPointF at(acrossEdge ? random.Between(box.left(), box.right())
                                    : (random.Unit() < 0.5 ? box.left() + 5 : box.right() - 5),
                         acrossEdge ? (random.Unit() < 0.5 ? box.top() + 5 : box.bottom() - 5)
                                    : random.Between(box.top(), box.bottom()));
        const double size = random.Between(3, 15);
        p.setBrush(Radial(
            at, size,
            {{0, QColor(52, 24, 12, 235)}, {0.6, QColor(126, 60, 22, 200)}, {1, QColor(150, 80, 30, 0)}}));
        p.drawEllipse(at, size * random.Between(0.7, 1.6), size);
    }
    for (const double x : {box.left() + 46, box.right() - 46}) {
        for (const double y : {box.top() + 46, box.bottom() - 46}) {
            LayMetal(p, Disc({x, y}, 13), 4, 0.6, QColor(170, 168, 160), 0.8);
            p.setPen(QPen(QColor(40, 38, 34), 3));
            p.drawLine(QPointF(x - 9, y - 5), QPointF(x + 9, y + 5));
            p.setPen(Qt::NoPen);
        }
    }
    p.setClipPath(plate);
    p.fillRect(
        box, Linear(box.topLeft(), box.bottomRight(),
                    Veil(Qt::white, {{0.10, 0}, {0.22, 64}, {0.30, 12}, {0.55, 0}, {0.62, 30}, {0.70, 0}})));
    return picture;
}

} // namespace torvik::sample
