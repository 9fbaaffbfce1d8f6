#include "sample/artwork/flat_drawing.h"

#include "sample/car/car_mesh.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/shapes.h"

#include <QPainterPath>
#include <QStringList>

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr double iconOutline = 1.8;

QColor ColourOf(const QString& word)
{
    const QColor colour(u'#' + word);
    if (!colour.isValid())
        throw std::runtime_error("There is no such colour: " + word.toStdString());
    return colour;
}

QPointF PointOf(const QString& word)
{
    return PathFromText(u'M' + word + u" L"_s + word).elementAt(0);
}

void DrawLine(QPainter& p, const QStringList& words)
{
    if (words.size() < 4)
        throw std::runtime_error("A line of a small picture is too short: " + words.join(u' ').toStdString());
    const QColor colour = ColourOf(words[1]);
    const double size = words[2].toDouble();
    const auto rest = [&](qsizetype from) { return QStringList(words.mid(from)).join(u' '); };
    if (words[0] == "fill"_L1)
        FillOutlined(p, PathFromText(rest(2)), colour, iconOutline);
    else if (words[0] == "disc"_L1)
        FillOutlined(p, Disc(PointOf(words[2]), words[3].toDouble()), colour, iconOutline);
    else if (words[0] == "line"_L1)
        p.strokePath(PathFromText(rest(3)), QPen(colour, size, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    else if (words[0] == "ring"_L1)
        p.strokePath(Disc(PointOf(words[3]), words.value(4).toDouble()), QPen(colour, size));
    else if (words[0] == "text"_L1)
        p.fillPath(Centred(Lettering(rest(4), size * 0.72, {u"Liberation Sans"_s, true}), PointOf(words[3])),
                   colour);
    else
        throw std::runtime_error("A small picture has an unknown line: " + words[0].toStdString());
}

const QColor chromeTone(206, 210, 216);
const QColor darkTone(30, 30, 34);

/// Metres of the car to pixels of the drawing.
struct Sheet {
    QPointF foot;
    double scale;

    QPointF At(double s, double z) const { return foot + QPointF(s * scale, -z * scale); }
    QPainterPath Box(double s0, double z0, double s1, double z1) const
    {
        return Rounded(QRectF(At(s0, z1), At(s1, z0)), scale * 0.02);
    }
};

double TopAt(const CarShape& c, double s)
{
    return std::max(c.centre(s) - 0.015, c.shoulder(s));
}

QPainterPath BodyOf(const CarShape& c, const Sheet& sheet)
{
    QPainterPath path(sheet.At(c.noseSetBack(c.bottom(0)), c.bottom(0)));
    for (double z = c.bottom(0); z < TopAt(c, 0); z += 0.02)
        path.lineTo(sheet.At(c.noseSetBack(z), z));
    for (double s = c.noseSetBack(TopAt(c, 0)) + 0.03; s < c.length - 0.03; s += 0.03)
        path.lineTo(sheet.At(s, TopAt(c, s)));
    for (double z = TopAt(c, c.length); z > c.bottom(c.length); z -= 0.02)
        path.lineTo(sheet.At(c.length - c.tailSetBack(z), z));
    for (double s = c.length - 0.05; s > 0.05; s -= 0.03)
        path.lineTo(sheet.At(s, c.bottom(s)));
    path.closeSubpath();
    return path;
}

/// The cabin between windscreen foot and rear window foot; `inset` metres inside its outline.
QPainterPath CabinOf(const CarShape& c, const Sheet& sheet, double inset, double from, double to)
{
    QPainterPath path(sheet.At(from, BeltAt(c, from) + inset * 0.5));
    for (double s = from; s <= to; s += 0.02)
        path.lineTo(sheet.At(s, std::max(c.roof(s) - inset, BeltAt(c, s))));
    for (double s = to; s >= from; s -= 0.05)
        path.lineTo(sheet.At(s, BeltAt(c, s) + inset * 0.3));
    path.closeSubpath();
    return path;
}

void DrawEnds(QPainter& p, const CarShape& c, const Sheet& sheet, double outline)
{
    const double z = c.bumperHeight;
    const bool chrome = c.bumper == Bumper::ChromeBlade;
    if (chrome || c.bumper == Bumper::RubberStrip) {
        const QColor colour = chrome ? chromeTone : darkTone;
        FillOutlined(p, sheet.Box(-0.04, z - 0.06, 0.24, z + 0.04), colour, outline * 0.6);
        FillOutlined(p, sheet.Box(c.length - 0.22, z - 0.06, c.length + 0.04, z + 0.04), colour,
                     outline * 0.6);
    }
    const double lamp = c.shoulder(0.1) - 0.12;
    FillOutlined(p, sheet.Box(0.05, lamp - 0.05, 0.17, lamp + 0.05), QColor(250, 226, 140), outline * 0.6);
    const double tail = c.shoulder(c.length - 0.1) - 0.12;
    FillOutlined(p, sheet.Box(c.length - 0.15, tail - 0.08, c.length - 0.05, tail + 0.05),
                 QColor(214, 24, 30), outline * 0.6);
}

} // namespace

void FillOutlined(QPainter& painter, const QPainterPath& shape, const QColor& colour, double outline)
{
    painter.fillPath(shape, colour);
    painter.strokePath(shape, QPen(QColor(26, 24, 26), outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void DrawIcon(QPainter& painter, const QRectF& box, const QString& lines)
{
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(box.width() / 64, box.height() / 64);
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        DrawLine(painter, line.split(u' ', Qt::SkipEmptyParts));
    painter.restore();
}

void DrawWheel(QPainter& p, WheelFace face, const QPointF& middle, double radius)
{
    const auto disc = [&](double share, const QColor& colour, double outline) {
        FillOutlined(p, Disc(middle, radius * share), colour, outline);
    };
    disc(1.0, darkTone, radius * 0.05);
    disc(0.68, chromeTone, radius * 0.04);
    const int spokes = face == WheelFace::FiveSpoke || face == WheelFace::FiveStar ? 5
                       : face == WheelFace::TenSpoke                               ? 10
                       : face == WheelFace::Turbine                                ? 16
                       : face == WheelFace::Slotted                                ? 8
                                                                                   : 0;
    if (spokes == 0) {
        disc(0.50, QColor(150, 156, 164), radius * 0.03);
        disc(0.44, chromeTone, radius * 0.02);
    } else {
        disc(0.60, QColor(70, 74, 80), radius * 0.02);
        for (int i = 0; i < spokes; ++i) {
            p.save();
            p.translate(middle);
            p.rotate(360.0 * i / spokes);
            const double half = radius * (spokes == 5 ? 0.12 : spokes == 8 ? 0.11 : 0.05);
            p.fillRect(QRectF(-half, -radius * 0.62, half * 2, radius * 0.6), chromeTone);
            p.restore();
        }
    }
    disc(0.16, face == WheelFace::ChromeCap ? QColor(168, 22, 30) : QColor(120, 126, 134), radius * 0.03);
}

void DrawCarSide(QPainter& p, const CarShape& c, const QColor& paint, const QPointF& foot, double scale)
{
    const Sheet sheet{foot, scale};
    const double outline = std::max(0.9, scale * 0.028);
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 60));
    p.drawEllipse(sheet.At(c.length / 2, 0.0), c.length * scale * 0.53, scale * 0.06);
    FillOutlined(p, CabinOf(c, sheet, 0, c.cowl, c.cabinEnd), paint, outline);
    FillOutlined(p, CabinOf(c, sheet, 0.07, c.cowl + 0.16, c.cabinEnd - 0.42), QColor(176, 208, 224),
                 outline * 0.7);
    // The pillar behind the door.
    p.setPen(QPen(paint, scale * 0.07));
    p.drawLine(sheet.At(c.windowRear - c.windowLean * 0.3, BeltAt(c, c.windowRear)),
               sheet.At(c.rearHeader - 0.05, c.roof(c.rearHeader) - 0.05));
    const QPainterPath body = BodyOf(c, sheet);
    FillOutlined(p, body, paint, outline);
    p.save();
    p.setClipPath(body);
    // Light above the widest line, shade below it.
    QPainterPath shade(sheet.At(0, 0));
    for (double s = 0; s <= c.length; s += 0.1)
        shade.lineTo(sheet.At(s, c.widest(s) - 0.06));
    shade.lineTo(sheet.At(c.length, 0));
    p.fillPath(shade, QColor(0, 0, 0, 60));
    QPainterPath light(sheet.At(0.1, c.shoulder(0.1)));
    for (double s = 0.1; s <= c.length; s += 0.1)
        light.lineTo(sheet.At(s, c.shoulder(s) - 0.05));
    p.strokePath(light, QPen(QColor(255, 255, 255, 130), scale * 0.03));
    p.restore();
    p.setPen(QPen(QColor(0, 0, 0, 150), outline * 0.6));
    p.drawLine(sheet.At(c.doorFront + 0.06, BeltAt(c, c.doorFront)),
               sheet.At(c.doorFront, c.bottom(2) + 0.08));
    p.drawLine(sheet.At(c.doorRear, BeltAt(c, c.doorRear)), sheet.At(c.doorRear - 0.03, c.bottom(2) + 0.08));
    DrawEnds(p, c, sheet, outline);
    for (const double axle : {c.frontAxle, c.rearAxle}) {
        const QPainterPath arch = Disc(sheet.At(axle, c.wheelRadius), c.archRadius * scale);
        p.fillPath(arch.intersected(body), darkTone);
        DrawWheel(p, c.wheel, sheet.At(axle, c.wheelRadius), c.wheelRadius * scale);
    }
    p.restore();
}

} // namespace torvik::sample
