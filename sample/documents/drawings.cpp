#include "sample/documents/drawings.h"

#include "sample/car/car_shape.h"
#include "sample/car/paints.h"
#include "sample/geometry/shapes.h"
#include "sample/geometry/vec.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <stdexcept>

namespace torvik::sample {

namespace {

constexpr double pixelsWide = 440;
const QColor drawingInk(40, 38, 44);

/// Colours between two, both included, are all that smooth edges need.
void AddMixtures(QList<QRgb>& table, const QColor& from, const QColor& to, int count)
{
    for (int i = 0; i < count; ++i) {
        const double share = count == 1 ? 0 : double(i) / (count - 1);
        const auto mixed = [share](int a, int b) {
            return static_cast<int>(std::lround(a + (b - a) * share));
        };
        table.append(qRgb(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                          mixed(from.blue(), to.blue())));
    }
}

QImage Reduced(const QImage& picture, const QColor& body)
{
    QList<QRgb> table;
    AddMixtures(table, Qt::white, drawingInk, 6);
    AddMixtures(table, body, Qt::white, 5);
    AddMixtures(table, body, drawingInk, 5);
    return picture.convertToFormat(QImage::Format_Indexed8, table, Qt::ThresholdDither | Qt::AvoidDither);
}

Drawing Placed(const QImage& picture, const QColor& body, int width)
{
    const Drawing drawing{.image = Reduced(picture, body),
                          .width = width,
                          .height = width * picture.height() / picture.width()};
    return drawing;
}

/// Draws a car from its side, its nose to the left, in metres.
class SidePainter {
public:
    SidePainter(QPainter& painter, const CarShape& shape, const QColor& body)
        : painter_(painter), c_(shape), body_(body)
    {}

    void Paint()
    {
        painter_.setPen(QPen(drawingInk, 0.012));
        Line(-0.12, 0, c_.length + 0.12, 0);
        Use(0.022, body_);
        painter_.drawPath(Silhouette());
        Glass();
        Lines();
        Ends();
        Wheel(c_.frontAxle);
        Wheel(c_.rearAxle);
    }

private:
    static constexpr double step = 0.04;

    void Use(double width, const QBrush& brush)
    {
        painter_.setPen(QPen(drawingInk, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(brush);
    }
    void Line(double s0, double z0, double s1, double z1)
    {
        painter_.drawLine(QPointF(s0, z0), QPointF(s1, z1));
    }
    void Box(double s, double z, double wide, double tall, double radius)
    {
        painter_.drawRoundedRect(QRectF(s, z, wide, tall), radius, radius);
    }
    double Top(double s) const { return s > c_.cowl && s < c_.cabinEnd ? c_.roof(s) : c_.centre(s); }

    QPainterPath Silhouette() const
    {
        QPainterPath path = Outline({{0.05, c_.bottom(0) + 0.02},
                                     {0.0, c_.centre(0) - 0.16},
                                     {0.0, c_.centre(0), 0.09, c_.centre(0.09)}});
        for (double s = 0.12; s < c_.length - 0.08; s += step)
            path.lineTo(s, Top(s));
        path.quadTo(c_.length, c_.centre(c_.length), c_.length, c_.centre(c_.length) - 0.1);
        path.lineTo(c_.length - 0.05, c_.bottom(c_.length));
        for (double s = c_.length - 0.08; s > 0.1; s -= step)
            path.lineTo(s, c_.bottom(s));
        path.closeSubpath();
        for (const double axle : {c_.frontAxle, c_.rearAxle})
            path = path.subtracted(Disc({axle, c_.wheelRadius}, c_.archRadius));
        return path;
    }

    void Glass()
    {
        // Between roof and shoulder, a little inside the frame; a post parts the rear window from the door's.
        const auto sill = [this](double s) { return c_.shoulder(s) + 0.035; };
        const double highFront = c_.header + 0.06;
        QPainterPath path =
            Outline({{c_.windowFront - 0.1, sill(c_.windowFront)}, {highFront, c_.roof(highFront) - 0.07}});
        for (double s = highFront; s < c_.windowRear - c_.windowLean; s += step)
            path.lineTo(s, c_.roof(s) - 0.07);
        path.lineTo(c_.windowRear, sill(c_.windowRear));
        path.closeSubpath();
        Use(0.014, QColor(226, 226, 228));
        painter_.drawPath(path);
        const double post = c_.doorRear - 0.03;
        if (post < c_.windowRear - 0.15)
            Line(post, sill(post), post - 0.1, c_.roof(post - 0.1) - 0.07);
    }

    void Lines()
    {
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(drawingInk, 0.011));
        QPainterPath shoulder(QPointF(0.2, c_.shoulder(0.2)));
        for (double s = 0.2; s < c_.length - 0.1; s += step)
            shoulder.lineTo(s, c_.shoulder(s));
        painter_.drawPath(shoulder);
        for (const double s : {c_.doorFront, c_.doorRear})
            Line(s, c_.bottom(s) + 0.06, s, c_.shoulder(s));
        const double handle = c_.shoulder(c_.doorRear) - 0.11;
        painter_.setPen(QPen(drawingInk, 0.022));
        Line(c_.doorRear - 0.24, handle, c_.doorRear - 0.1, handle);
        if (c_.sideScoop) {
            painter_.setPen(QPen(drawingInk, 0.014));
            const double at = c_.doorRear + 0.1;
            Line(at, 0.47, at + 0.05, 0.72);
            Line(at + 0.05, 0.72, c_.doorFront - 0.1, 0.66);
        }
    }

    void Ends()
    {
        painter_.setPen(QPen(drawingInk, 0.014));
        painter_.setBrush(Qt::white);
        painter_.drawEllipse(QPointF(0.075, c_.centre(0) - 0.12), 0.035, 0.07);
        painter_.drawRect(QRectF(c_.length - 0.07, c_.centre(c_.length) - 0.22, 0.05, 0.13));
        if (c_.bumper == Bumper::ChromeBlade || c_.bumper == Bumper::RubberStrip) {
            Box(-0.07, c_.bumperHeight - 0.05, 0.3, 0.1, 0.04);
            Box(c_.length - 0.24, c_.bumperHeight - 0.05, 0.3, 0.1, 0.04);
        }
        painter_.setBrush(body_);
        if (c_.wing) {
            const double base = c_.centre(c_.length - 0.2);
            Box(c_.length - 0.36, base + 0.05, 0.36, 0.05, 0.02);
            Line(c_.length - 0.22, base, c_.length - 0.22, base + 0.05);
        }
        if (c_.bonnetScoop)
            painter_.drawPath(
                Outline({{0.82, c_.centre(0.82)}, {0.86, c_.centre(0.86) + 0.06, 1.3, c_.centre(1.3)}}));
    }

    void Wheel(double axle)
    {
        const QPointF hub(axle, c_.wheelRadius);
        const auto disc = [&](double radius, const QBrush& brush) {
            painter_.setBrush(brush);
            painter_.drawEllipse(hub, radius, radius);
        };
        painter_.setPen(Qt::NoPen);
        disc(c_.wheelRadius, drawingInk);
        disc(c_.rimRadius, Qt::white);
        painter_.setPen(QPen(drawingInk, c_.wheel == WheelFace::FiveStar ? 0.05 : 0.024));
        if (c_.wheel == WheelFace::ChromeCap)
            disc(c_.rimRadius * 0.62, Qt::NoBrush);
        const int spokes = c_.wheel == WheelFace::ChromeCap  ? 0
                           : c_.wheel == WheelFace::TenSpoke ? 10
                           : c_.wheel == WheelFace::Turbine  ? 14
                                                             : 5;
        for (int i = 0; i < spokes; ++i) {
            const double angle = 2 * pi * i / spokes + 0.3;
            const QPointF along(std::cos(angle), std::sin(angle));
            painter_.drawLine(hub + along * 0.05, hub + along * (c_.rimRadius - 0.012));
        }
        painter_.setPen(QPen(drawingInk, 0.014));
        disc(0.05, Qt::white);
    }

    QPainter& painter_;
    const CarShape& c_;
    QColor body_;
};

Drawing SideOf(const CarShape& shape, const QColor& body, int width)
{
    const double metres = shape.length + 0.3;
    const double scale = pixelsWide / metres;
    QImage picture(static_cast<int>(pixelsWide), static_cast<int>(1.5 * scale), QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        SmoothPainter painter(&picture);
        painter.translate(0.15 * scale, picture.height() - 4);
        painter.scale(scale, -scale);
        SidePainter(painter, shape, body).Paint();
    }
    return Placed(picture, body, width);
}

void PaintBank(QPainter& painter, const QColor& cover)
{
    painter.setBrush(QColor(232, 232, 234));
    painter.drawRect(QRectF(-26, -96, 52, 62));
    for (int fin = 0; fin < 4; ++fin)
        painter.drawLine(QPointF(-26, -44 - 14 * fin), QPointF(26, -44 - 14 * fin));
    painter.setBrush(cover);
    painter.drawRoundedRect(QRectF(-31, -116, 62, 22), 8, 8);
}

} // namespace

Drawing CarDrawing(int year, int width)
{
    // A dark paint would swallow the lines.
    const std::vector<Paint>& paints = PaintsOfYear(year);
    const auto at = [&](std::size_t i) {
        return paints.at((static_cast<std::size_t>(year) + i) % paints.size()).colour;
    };
    std::size_t i = 0;
    while (i < paints.size() && (at(i).lightness() < 80 || at(i).lightness() > 235))
        ++i;
    return SideOf(ShapeOfYear(year), at(i), width);
}

Drawing EngineDrawing(const QString& layout, int width)
{
    const QColor cover(52, 92, 150);
    QImage picture(300, 260, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        SmoothPainter painter(&picture);
        painter.translate(150, 165);
        painter.setPen(QPen(drawingInk, 2.2));
        const bool vee = layout.startsWith(u'v');
        const double lean = layout == u"v6" ? 30 : 45;
        const std::vector<double> banks = vee ? std::vector<double>{-lean, lean} : std::vector<double>{0.0};
        for (const double angle : banks) {
            painter.save();
            painter.rotate(angle);
            PaintBank(painter, cover);
            painter.restore();
        }
        // The air cleaner sits between the banks, or beside the only one.
        painter.setBrush(QColor(210, 210, 214));
        if (vee) {
            painter.drawRect(QRectF(-14, -92, 28, 40));
            painter.drawRoundedRect(QRectF(-58, -118, 116, 26), 9, 9);
        } else {
            painter.drawRect(QRectF(26, -80, 46, 18));
            painter.drawRoundedRect(QRectF(52, -112, 56, 34), 9, 9);
        }
        painter.setBrush(QColor(232, 232, 234));
        painter.drawEllipse(QPointF(0, 0), 48, 48);
        painter.drawRoundedRect(QRectF(-40, 40, 80, 34), 8, 8);
        painter.setBrush(cover);
        painter.drawEllipse(QPointF(0, 2), 26, 26);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(0, 2), 8, 8);
        painter.setBrush(QColor(232, 232, 234));
        painter.drawEllipse(QPointF(-66, 10), 22, 22);
        painter.drawEllipse(QPointF(66, -6), 18, 18);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(drawingInk, 4));
        painter.drawLine(QPointF(-78, -9), QPointF(78, -20));
        painter.drawLine(QPointF(-62, 32), QPointF(0, 29));
        painter.drawLine(QPointF(0, 29), QPointF(70, 12));
    }
    return Placed(picture, cover, width);
}

Drawing DrawingNamed(const QString& kind, const QString& name, int width)
{
    struct Named {
        const char* name;
        Model model;
        int year;
        QRgb colour;
    };
    constexpr Named cars[] = {{"harwell", Model::Harwell, 1967, 0x6E2836},
                              {"kestra1", Model::KestraOne, 1970, 0xE6B40E},
                              {"kestra3", Model::KestraThree, 1986, 0x5A5C60},
                              {"super", Model::SuperStallion, 2001, 0xA6ABB0}};
    const int year = name.toInt();
    if (kind == u"engine")
        return EngineDrawing(name, width);
    if (kind == u"car" && year >= 1967 && year <= 2001)
        return CarDrawing(year, width);
    for (const Named& car : cars) {
        if (kind == u"car" && name == QLatin1String(car.name))
            return SideOf(ShapeOf(car.model, car.year), QColor(car.colour), width);
    }
    throw std::runtime_error("There is no drawing of " + name.toStdString());
}

} // namespace torvik::sample
