#include "sample/documents/drawings.h"

#include "sample/car/car_shape.h"
#include "sample/car/paints.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>
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
    Drawing drawing;
    drawing.image = Reduced(picture, body);
    drawing.width = width;
    drawing.height = width * picture.height() / picture.width();
    return drawing;
}

/// Draws a car from its side, its nose to the left, in metres.
class SidePainter {
public:
    SidePainter(QPainter& painter, const CarShape& shape, const QColor& body)
        : painter_(painter), shape_(shape), body_(body)
    {}

    void Paint()
    {
        Ground();
        Body();
        Glass();
        Lines();
        Wheel(shape_.frontAxle);
        Wheel(shape_.rearAxle);
    }

private:
    static constexpr double step = 0.04;

    double Top(double s) const
    {
        return s > shape_.cowl && s < shape_.cabinEnd ? shape_.roof(s) : shape_.centre(s);
    }

    void Ground()
    {
        painter_.setPen(QPen(drawingInk, 0.012));
        painter_.drawLine(QPointF(-0.12, 0), QPointF(shape_.length + 0.12, 0));
    }

    QPainterPath Outline() const
    {
        QPainterPath path(QPointF(0.05, shape_.bottom(0) + 0.02));
        path.lineTo(0.0, shape_.centre(0) - 0.16);
        path.quadTo(0.0, shape_.centre(0), 0.09, shape_.centre(0.09));
        for (double s = 0.12; s < shape_.length - 0.08; s += step)
            path.lineTo(s, Top(s));
        path.quadTo(shape_.length, shape_.centre(shape_.length), shape_.length,
                    shape_.centre(shape_.length) - 0.1);
        path.lineTo(shape_.length - 0.05, shape_.bottom(shape_.length));
        for (double s = shape_.length - 0.08; s > 0.1; s -= step)
            path.lineTo(s, shape_.bottom(s));
        path.closeSubpath();
        for (const double axle : {shape_.frontAxle, shape_.rearAxle}) {
            QPainterPath arch;
            arch.addEllipse(QPointF(axle, shape_.wheelRadius), shape_.archRadius, shape_.archRadius);
            path = path.subtracted(arch);
        }
        return path;
    }

    void Body()
    {
        painter_.setPen(QPen(drawingInk, 0.022, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(body_);
        painter_.drawPath(Outline());
    }

    void Glass()
    {
        // Between roof and shoulder, a little inside the frame; a post parts the rear window from the door's.
        QPainterPath path;
        const auto sill = [this](double s) { return shape_.shoulder(s) + 0.035; };
        path.moveTo(shape_.windowFront - 0.1, sill(shape_.windowFront));
        const double highFront = shape_.header + 0.06;
        const double highRear = shape_.windowRear - shape_.windowLean;
        path.lineTo(highFront, shape_.roof(highFront) - 0.07);
        for (double s = highFront; s < highRear; s += step)
            path.lineTo(s, shape_.roof(s) - 0.07);
        path.lineTo(shape_.windowRear, sill(shape_.windowRear));
        path.closeSubpath();
        painter_.setPen(QPen(drawingInk, 0.014, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setBrush(QColor(226, 226, 228));
        painter_.drawPath(path);
        const double post = shape_.doorRear - 0.03;
        if (post < shape_.windowRear - 0.15)
            painter_.drawLine(QPointF(post, sill(post)), QPointF(post - 0.1, shape_.roof(post - 0.1) - 0.07));
    }

    void Lines()
    {
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(drawingInk, 0.011));
        QPainterPath shoulder(QPointF(0.2, shape_.shoulder(0.2)));
        for (double s = 0.2; s < shape_.length - 0.1; s += step)
            shoulder.lineTo(s, shape_.shoulder(s));
        painter_.drawPath(shoulder);
        const double sill = 0.06;
        painter_.drawLine(QPointF(shape_.doorFront, shape_.bottom(shape_.doorFront) + sill),
                          QPointF(shape_.doorFront, shape_.shoulder(shape_.doorFront)));
        painter_.drawLine(QPointF(shape_.doorRear, shape_.bottom(shape_.doorRear) + sill),
                          QPointF(shape_.doorRear, shape_.shoulder(shape_.doorRear)));
        const double handle = shape_.shoulder(shape_.doorRear) - 0.11;
        painter_.setPen(QPen(drawingInk, 0.022));
        painter_.drawLine(QPointF(shape_.doorRear - 0.24, handle), QPointF(shape_.doorRear - 0.1, handle));
        if (shape_.sideScoop) {
            painter_.setPen(QPen(drawingInk, 0.014));
            const double at = shape_.doorRear + 0.1;
            painter_.drawLine(QPointF(at, 0.47), QPointF(at + 0.05, 0.72));
            painter_.drawLine(QPointF(at + 0.05, 0.72), QPointF(shape_.doorFront - 0.1, 0.66));
        }
        Ends();
    }

    void Ends()
    {
        painter_.setPen(QPen(drawingInk, 0.014));
        painter_.setBrush(Qt::white);
        const double lamp = shape_.centre(0) - 0.12;
        painter_.drawEllipse(QPointF(0.075, lamp), 0.035, 0.07);
        painter_.drawRect(QRectF(shape_.length - 0.07, shape_.centre(shape_.length) - 0.22, 0.05, 0.13));
        if (shape_.bumper == Bumper::ChromeBlade || shape_.bumper == Bumper::RubberStrip) {
            painter_.drawRoundedRect(QRectF(-0.07, shape_.bumperHeight - 0.05, 0.3, 0.1), 0.04, 0.04);
            painter_.drawRoundedRect(QRectF(shape_.length - 0.24, shape_.bumperHeight - 0.05, 0.3, 0.1), 0.04,
                                     0.04);
        }
        if (shape_.wing) {
            const double base = shape_.centre(shape_.length - 0.2);
            painter_.setBrush(body_);
            painter_.drawRoundedRect(QRectF(shape_.length - 0.36, base + 0.05, 0.36, 0.05), 0.02, 0.02);
            painter_.drawLine(QPointF(shape_.length - 0.22, base),
                              QPointF(shape_.length - 0.22, base + 0.05));
        }
        if (shape_.bonnetScoop) {
            painter_.setBrush(body_);
            QPainterPath scoop(QPointF(0.82, shape_.centre(0.82)));
            scoop.quadTo(0.86, shape_.centre(0.86) + 0.06, 1.3, shape_.centre(1.3));
            painter_.drawPath(scoop);
        }
    }

    void Wheel(double axle)
    {
        const QPointF hub(axle, shape_.wheelRadius);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(drawingInk);
        painter_.drawEllipse(hub, shape_.wheelRadius, shape_.wheelRadius);
        painter_.setBrush(Qt::white);
        painter_.drawEllipse(hub, shape_.rimRadius, shape_.rimRadius);
        const int spokes = shape_.wheel == WheelFace::TenSpoke  ? 10
                           : shape_.wheel == WheelFace::Turbine ? 14
                                                                : 5;
        painter_.setPen(QPen(drawingInk, shape_.wheel == WheelFace::FiveStar ? 0.05 : 0.024));
        if (shape_.wheel != WheelFace::ChromeCap) {
            for (int i = 0; i < spokes; ++i) {
                const double angle = 2 * std::numbers::pi * i / spokes + 0.3;
                const QPointF along(std::cos(angle), std::sin(angle));
                painter_.drawLine(hub + along * 0.05, hub + along * (shape_.rimRadius - 0.012));
            }
        } else {
            painter_.setBrush(Qt::NoBrush);
            painter_.drawEllipse(hub, shape_.rimRadius * 0.62, shape_.rimRadius * 0.62);
        }
        painter_.setPen(QPen(drawingInk, 0.014));
        painter_.setBrush(Qt::white);
        painter_.drawEllipse(hub, 0.05, 0.05);
    }

    QPainter& painter_;
    const CarShape& shape_;
    QColor body_;
};

Drawing SideOf(const CarShape& shape, const QColor& body, int width)
{
    const double metres = shape.length + 0.3;
    const double scale = pixelsWide / metres;
    QImage picture(static_cast<int>(pixelsWide), static_cast<int>(1.5 * scale), QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
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
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
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
    const int year = name.toInt();
    if (kind == u"engine")
        return EngineDrawing(name, width);
    if (kind == u"car" && year >= 1967 && year <= 2001)
        return CarDrawing(year, width);
    if (kind == u"car" && name == u"harwell")
        return SideOf(ClassicHarwellShape(), QColor(110, 40, 54), width);
    if (kind == u"car" && name == u"kestra1")
        return SideOf(KestraOneShape(), QColor(230, 180, 14), width);
    if (kind == u"car" && name == u"kestra3")
        return SideOf(KestraThreeShape(), QColor(90, 92, 96), width);
    if (kind == u"car" && name == u"super")
        return SideOf(SuperStallionShape(), QColor(166, 171, 176), width);
    throw std::runtime_error("There is no drawing of " + name.toStdString());
}

} // namespace torvik::sample
