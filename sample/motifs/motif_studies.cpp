#include "sample/car/car_mesh.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/renderer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A study that never went into production: the body of its year with other proportions.
CarShape StudyShape(const PlannedPhoto& photo)
{
    CarShape shape = ShapeOfYear(photo.year);
    shape.flare += 0.02;
    shape.sideScoop = photo.variant % 2 == 0;
    shape.bonnetScoop = true;
    shape.ductTail = true;
    shape.bumper = Bumper::Hidden;
    shape.roof = shape.roof.Raised(-0.05);
    shape.wheel = WheelFace::FiveStar;
    return shape;
}

} // namespace

QImage PaintClay(const PlannedPhoto& photo)
{
    const CarShape shape = StudyShape(photo);
    const CarSkin skin =
        DrawCarSkin(shape, Paint{QString(), QColor(150, 110, 80), 0}, Trim{}, SideOf(photo.view));
    Subject subject{.parts = BuildCar(shape), .shape = &shape, .skin = &skin, .clay = true};
    if (photo.variant % 2 == 0)
        subject.clayColour = {0.46, 0.30, 0.20};
    Scenery scenery = MakeScenery(Place::Studio, SeedOf(photo));
    scenery.light.Prepare();
    scenery.light.shadow = std::make_shared<GroundShadow>(subject.parts, scenery.light.toSun, 0.5, 3);
    const View view = photo.view == View::Wheel ? View::High : photo.view;
    const Camera camera = CameraFor(shape, view, photo.size, SeedOf(photo));
    QImage picture = PaintScenery(scenery, camera, photo.size);
    Render(picture, subject, camera, scenery.light);
    // The gauge bridge with its pointers, behind and beside the model.
    return picture;
}

QImage PaintSketch(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    QImage picture = WoodTable(photo.size, QColor(92, 70, 52), seed);
    SmoothPainter p(&picture);
    p.translate(w / 2, h / 2);
    p.rotate(random.Between(-3, 3));
    const QRectF sheet(-w * 0.44, -h * 0.43, w * 0.88, h * 0.86);
    const QPainterPath paper = Rectangle(sheet);
    DropShadow(p, paper, 12, 0.6);
    QLinearGradient tone(sheet.topLeft(), sheet.bottomRight());
    const bool blueprint = photo.variant % 2 == 1;
    tone.setColorAt(0, blueprint ? QColor(38, 74, 140) : QColor(226, 214, 186));
    tone.setColorAt(1, blueprint ? QColor(20, 46, 96) : QColor(190, 174, 142));
    p.fillPath(paper, tone);
    const QColor ink = blueprint ? QColor(226, 236, 250, 190) : QColor(40, 34, 40, 150);
    const CarShape shape = StudyShape(photo);
    const double scale = sheet.width() * 0.86 / shape.length;
    const double left = -shape.length / 2 * scale;
    const double ground = h * 0.13;
    const auto at = [&](double s, double z) { return QPointF(left + s * scale, ground - z * scale); };
    const auto draw = [&](const QPainterPath& path, double thick) {
        // A pencil goes over a line more than once and never quite on the same way.
        for (int i = 0; i < 4; ++i) {
            QColor shade = ink;
            shade.setAlpha(ink.alpha() / (i < 2 ? 1 : 3));
            p.strokePath(
                path.translated(random.Between(-1.6, 1.6), random.Between(-1.6, 1.6)),
                QPen(shade, thick * random.Between(0.6, 1.2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
    };
    const auto curve = [&](const Curve& c, double from, double to) {
        QPainterPath path;
        path.moveTo(at(from, c(from)));
        for (double s = from; s <= to; s += 0.04)
            path.lineTo(at(s, c(s)));
        return path;
    };
    p.setPen(Qt::NoPen);
    // A rendering in chalk under the lines.
    QPainterPath body;
    body.moveTo(at(0, 0.45));
    for (double s = 0; s <= shape.length; s += 0.05) {
        const bool cabin = s > shape.cowl && s < shape.cabinEnd;
        body.lineTo(at(s, cabin ? std::max(shape.roof(s), shape.centre(s)) : shape.centre(s)));
    }
    body.lineTo(at(shape.length, 0.45));
    for (double s = shape.length; s >= 0; s -= 0.05)
        body.lineTo(at(s, shape.bottom(s)));
    body.closeSubpath();
    if (!blueprint) {
        p.fillPath(body, Linear(at(0, 1.3), at(0, 0.2),
                                {{0, QColor(250, 240, 220, 150)},
                                 {0.4, QColor(180, 46, 40, 170)},
                                 {0.62, QColor(232, 140, 110, 120)},
                                 {1, QColor(90, 20, 24, 180)}}));
    }
    draw(body, 3.2);
    draw(curve(shape.shoulder, 0.02, shape.length - 0.02), 2.0);
    draw(curve(shape.widest, 0.1, shape.length - 0.1), 1.2);
    draw(curve(shape.roof, shape.cowl, shape.cabinEnd), 2.6);
    QPainterPath window;
    window.moveTo(at(shape.windowFront, shape.shoulder(shape.windowFront) + 0.03));
    for (double s = shape.windowFront; s < shape.windowRear - shape.windowLean; s += 0.04)
        window.lineTo(at(s, std::max(shape.shoulder(s) + 0.03, shape.roof(s) - 0.08)));
    window.lineTo(at(shape.windowRear, shape.shoulder(shape.windowRear) + 0.03));
    window.closeSubpath();
    p.fillPath(window, blueprint ? QColor(120, 160, 220, 60) : QColor(40, 60, 80, 110));
    draw(window, 1.8);
    draw(Outline({at(shape.doorFront + 0.1, shape.shoulder(shape.doorFront)),
                  {at(shape.doorFront, 0.6), at(shape.doorFront + 0.05, 0.3)},
                  at(shape.doorRear - 0.05, 0.3),
                  {at(shape.doorRear + 0.03, 0.6), at(shape.doorRear, shape.shoulder(shape.doorRear))}}),
         1.3);
    for (const double axle : {shape.frontAxle, shape.rearAxle}) {
        const QPainterPath wheel = Disc(at(axle, shape.wheelRadius), shape.wheelRadius * scale);
        if (!blueprint)
            p.fillPath(wheel, QColor(40, 36, 40, 190));
        draw(wheel, 2.4);
        for (const double share : {0.62, 0.56, 0.18}) {
            draw(Disc(at(axle, shape.wheelRadius), shape.wheelRadius * scale * share), 1.4);
        }
        for (int i = 0; i < 5; ++i) {
            const double a = 2 * pi * i / 5 + 0.3;
            draw(Outline({at(axle + 0.05 * std::cos(a), shape.wheelRadius + 0.05 * std::sin(a)),
                          at(axle + 0.18 * std::cos(a), shape.wheelRadius + 0.18 * std::sin(a))}),
                 3.0);
        }
    }
    // Guide lines and dimensions.
    p.setPen(QPen(ink, 1.2, Qt::DashLine));
    p.drawLine(QPointF(sheet.left() + 20, at(0, 0).y()), QPointF(sheet.right() - 20, at(0, 0).y()));
    for (const double axle : {shape.frontAxle, shape.rearAxle})
        p.drawLine(at(axle, -0.28), at(axle, 1.4));
    p.drawLine(at(0, 1.0), at(0, -0.42));
    p.drawLine(at(shape.length, 1.0), at(shape.length, -0.42));
    QFont font = FontOf("Liberation Serif", h * 0.032, false, true);
    p.setFont(font);
    p.setPen(ink);
    p.drawText(QPointF(at(1.9, -0.24)),
               u"%1 mm"_s.arg(static_cast<int>((shape.rearAxle - shape.frontAxle) * 1000)));
    p.drawText(QPointF(at(2.0, -0.40)), u"%1 mm"_s.arg(static_cast<int>(shape.length * 1000)));
    font.setPixelSize(static_cast<int>(h * 0.045));
    p.setFont(font);
    p.drawText(QPointF(sheet.left() + 40, sheet.top() + h * 0.08),
               photo.year < 1971 ? u"Project X-4, fastback, third idea"_s
                                 : u"Project X-7, longer and wider"_s);
    // A small view from the front in the corner.
    p.save();
    p.translate(sheet.right() - w * 0.15, sheet.top() + h * 0.15);
    QPainterPath front;
    const double k = w * 0.09;
    front.moveTo(-k, k * 0.45);
    front.cubicTo(-k * 1.1, k * 0.1, -k, -k * 0.05, -k * 0.8, -k * 0.08);
    front.cubicTo(-k * 0.66, -k * 0.5, -k * 0.5, -k * 0.56, 0, -k * 0.57);
    front.cubicTo(k * 0.5, -k * 0.56, k * 0.66, -k * 0.5, k * 0.8, -k * 0.08);
    front.cubicTo(k, -k * 0.05, k * 1.1, k * 0.1, k, k * 0.45);
    front.closeSubpath();
    draw(front, 1.8);
    draw(Rounded(QRectF(-k * 0.62, k * 0.05, k * 1.24, k * 0.26), 8), 1.6);
    for (const double x : {-0.48, 0.48}) {
        draw(Disc({k * x, k * 0.18}, k * 0.11), 1.6);
    }
    p.restore();
    // The pencil.
    p.translate(w * 0.20, h * 0.36);
    p.rotate(-24);
    LayFlat(p, Rectangle(QRectF(-w * 0.12, -8, w * 0.22, 16)), 8, 0.6,
            Linear({0, -8}, {0, 8},
                   {{0, QColor(240, 190, 40)}, {0.4, QColor(220, 150, 20)}, {1, QColor(120, 76, 8)}}));
    p.fillPath(ClosedOutline({{w * 0.10, -8}, {w * 0.13, 0}, {w * 0.10, 8}}), QColor(226, 190, 140));
    return picture;
}

} // namespace torvik::sample
