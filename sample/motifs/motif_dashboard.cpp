#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void PaintDial(QPainter& p, const QPointF& m, double r, int highest, const QString& unit, double share,
               bool chrome, const QColor& ink)
{
    const QPainterPath bezel = Disc(m, r * 1.10);
    DropShadow(p, bezel, r * 0.08, 0.7);
    if (chrome)
        FillMetal(p, bezel, QColor(196, 198, 204), 0.9);
    else
        p.fillPath(bezel, QColor(28, 28, 30));
    const QRadialGradient face =
        Radial(m, r, m - QPointF(0, r * 0.4), {{0, QColor(34, 36, 38)}, {1, QColor(8, 8, 9)}});
    p.setPen(Qt::NoPen);
    p.setBrush(face);
    p.drawEllipse(m, r, r);
    const int marks = 10;
    p.setFont(FontOf("Liberation Sans", std::max(6, static_cast<int>(r * 0.15))));
    for (int i = 0; i <= marks * 5; ++i) {
        const double a = (225.0 - 270.0 * i / (marks * 5)) / 180 * pi;
        const QPointF way(std::cos(a), -std::sin(a));
        const bool major = i % 5 == 0;
        p.setPen(QPen(ink, major ? r * 0.022 : r * 0.010));
        p.drawLine(m + way * r * 0.93, m + way * r * (major ? 0.81 : 0.87));
        if (major) {
            const QPointF at = m + way * r * 0.66;
            p.drawText(QRectF(at.x() - r * 0.2, at.y() - r * 0.12, r * 0.4, r * 0.24), Qt::AlignCenter,
                       QString::number(highest * i / (marks * 5)));
        }
    }
    p.drawText(QRectF(m.x() - r * 0.5, m.y() + r * 0.28, r, r * 0.2), Qt::AlignCenter, unit);
    const double a = (225.0 - 270.0 * share) / 180 * pi;
    const QPointF tip = m + QPointF(std::cos(a), -std::sin(a)) * r * 0.86;
    const QPointF tail = m - QPointF(std::cos(a), -std::sin(a)) * r * 0.2;
    p.setPen(QPen(QColor(0, 0, 0, 120), r * 0.05, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(tail + QPointF(r * 0.03, r * 0.05), tip + QPointF(r * 0.03, r * 0.05));
    p.setPen(QPen(QColor(236, 70, 30), r * 0.035, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(tail, tip);
    FillGlossy(p, Disc(m, r * 0.1), QColor(30, 30, 32));
    // The glass over it.
    const QPainterPath glass = Disc(m, r);
    p.save();
    p.setClipPath(glass);
    p.fillRect(QRectF(m.x() - r, m.y() - r, 2 * r, 2 * r),
               Linear(m - QPointF(r, r), m + QPointF(r * 0.3, r * 0.3),
                      Veil(Qt::white, {{0, 90}, {0.5, 12}, {0.52, 0}})));
    p.restore();
}

void PaintSteeringWheel(QPainter& p, const QPointF& m, double r, int generation)
{
    const bool wooden = generation <= 2;
    const QColor rim = wooden ? QColor(104, 54, 24) : QColor(24, 24, 25);
    QPainterPath ring = Ellipse(m, r, r * 0.96);
    ring.addEllipse(m, r * 0.89, r * 0.85);
    DropShadow(p, ring, r * 0.08, 0.65);
    const int spokes = generation >= 4 ? 4 : 3;
    for (int i = 0; i < spokes; ++i) {
        const double a = spokes == 3
                             ? (i == 0   ? 0.05
                                : i == 1 ? pi - 0.05
                                         : pi / 2)
                             : (i < 2 ? (i == 0 ? 0.15 : pi - 0.15) : (i == 2 ? pi * 0.33 : pi * 0.67));
        const QPointF way(std::cos(a), std::sin(a));
        const QPointF across(-way.y(), way.x());
        const QPainterPath spoke =
            Outline({m + across * r * 0.15,
                     {m + way * r * 0.5 + across * r * 0.05, m + way * r * 0.92 + across * r * 0.08},
                     m + way * r * 0.92 - across * r * 0.08,
                     {m + way * r * 0.5 - across * r * 0.05, m - across * r * 0.15}});
        DropShadow(p, spoke, r * 0.04, 0.5);
        if (generation <= 3) {
            FillMetal(p, spoke, QColor(190, 192, 198), a + 0.6);
            for (const double hole : {0.42, 0.56, 0.70}) {
                p.setBrush(QColor(16, 16, 17));
                p.setPen(QPen(QColor(110, 110, 112), r * 0.008));
                p.drawEllipse(m + way * r * hole, r * 0.034, r * 0.034);
            }
        } else {
            FillGlossy(p, spoke, QColor(34, 34, 36));
        }
    }
    p.setPen(Qt::NoPen);
    p.fillPath(ring,
               Conical(m, 120, Shades(rim, {{0, 190}, {0.15, 100}, {0.45, -200}, {0.75, 100}, {1, 190}})));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 60), r * 0.012));
    p.drawArc(QRectF(m.x() - r * 0.965, m.y() - r * 0.925, r * 1.93, r * 1.85), 60 * 16, 90 * 16);
    QPainterPath hub;
    const double h = r * (generation >= 5 ? 0.30 : 0.2);
    hub.addRoundedRect(QRectF(m.x() - h * 1.15, m.y() - h, h * 2.3, h * 2), h * 0.8, h * 0.8);
    LayGlossy(p, hub, r * 0.05, 0.6, QColor(30, 30, 32));
    FillMetal(p, ShieldPath(m, h * 0.55), QColor(206, 206, 210), 0.8);
    p.fillPath(ShieldPath(m, h * 0.46), QColor(140, 16, 24));
    p.fillPath(WingedT(m, h * 0.38), QColor(236, 236, 238));
}

} // namespace

QImage PaintDashboard(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const int generation = GenerationOfYear(photo.year);
    // Outside, beyond the windscreen.
    Scenery outside = MakeScenery(photo.place == Place::Showroom ? Place::Coast : photo.place, SeedOf(photo));
    const Camera camera = LookAt({-0.4, -0.36, 1.12}, {-8, -0.36, 0.62}, 36, photo.size);
    outside.backdropBlur = 7;
    QImage picture = PaintScenery(outside, camera, photo.size);
    SmoothPainter p(&picture);
    const QColor paint = PaintOf(photo).colour;
    // The bonnet.
    p.fillPath(ClosedOutline({{w * 0.02, h * 0.46},
                              {w * 0.2, h * 0.345, w * 0.36, h * 0.33, w * 0.5, h * 0.33},
                              {w * 0.66, h * 0.33, w * 0.86, h * 0.35, w * 1.02, h * 0.46},
                              {w, h * 0.6},
                              {0, h * 0.6}}),
               Linear({0, h * 0.33}, {0, h * 0.5}, Shades(paint, {{0, 190}, {0.3, 115}, {1, -260}})));
    p.fillPath(Outline({{w * 0.40, h * 0.46},
                        {w * 0.43, h * 0.325, w * 0.50, h * 0.32},
                        {w * 0.60, h * 0.325, w * 0.66, h * 0.46}}),
               Linear({w * 0.4, 0}, {w * 0.66, 0}, Shades(paint, {{0, -170}, {0.4, 170}, {1, -150}})));
    // Frame of the windscreen and the mirror.
    p.fillRect(QRectF(0, 0, w, h * 0.035), QColor(16, 15, 15));
    p.fillPath(Outline({{0, 0}, {w * 0.11, 0}, {w * 0.02, h * 0.5}, {0, h * 0.5}}), QColor(20, 19, 19));
    const QPainterPath mirror = Rounded(QRectF(w * 0.66, h * 0.05, w * 0.2, h * 0.085), h * 0.03);
    LayMetal(p, mirror, 6, 0.5, QColor(120, 128, 136), 1.2);
    p.strokePath(mirror, QPen(QColor(22, 22, 23), h * 0.014));
    // The padded top of the dashboard.
    const QColor trimTone = generation <= 2   ? QColor(30, 28, 27)
                            : generation == 3 ? QColor(92, 50, 30)
                            : generation == 4 ? QColor(66, 26, 30)
                            : generation == 5 ? QColor(74, 76, 82)
                                              : QColor(34, 34, 37);
    p.fillPath(
        ClosedOutline({{0, h * 0.50},
                       {w * 0.12, h * 0.40, w * 0.36, h * 0.385, w * 0.5, h * 0.43},
                       {w * 0.64, h * 0.455, w * 0.86, h * 0.43, w, h * 0.47},
                       {w, h},
                       {0, h}}),
        Linear({0, h * 0.39}, {0, h}, Shades(trimTone, {{0, 190}, {0.10, 112}, {0.22, -150}, {1, -240}})));
    // The panel: wood, brushed metal or plain.
    const QPainterPath panel = ClosedOutline({{w * 0.03, h * 0.60},
                                              {w * 0.2, h * 0.50, w * 0.42, h * 0.49, w * 0.54, h * 0.535},
                                              {w * 0.99, h * 0.545},
                                              {w * 0.99, h * 0.73},
                                              {w * 0.60, h * 0.78},
                                              {w * 0.4, h * 0.86, w * 0.2, h * 0.9, w * 0.04, h * 0.92}});
    p.save();
    p.setClipPath(panel);
    if (generation == 1 || generation == 3) {
        p.drawImage(0, static_cast<int>(h * 0.45),
                    WoodTable(QSize(static_cast<int>(w), static_cast<int>(h * 0.5)), QColor(150, 84, 40), 5));
        p.fillRect(QRectF(0, h * 0.45, w, h * 0.5), QColor(40, 16, 6, 70));
    } else if (generation == 2 || generation == 6) {
        p.fillRect(
            QRectF(0, h * 0.45, w, h * 0.5),
            Linear({0, h * 0.5}, {0, h * 0.9},
                   {{0, QColor(170, 172, 176)}, {0.5, QColor(120, 122, 126)}, {1, QColor(80, 82, 86)}}));
    } else {
        p.fillRect(QRectF(0, h * 0.45, w, h * 0.5), trimTone.darker(165));
    }
    p.restore();
    p.strokePath(panel, QPen(generation <= 3 ? QColor(176, 178, 182) : QColor(12, 12, 13), h * 0.006));
    const QColor ink = generation == 5 ? QColor(255, 176, 80) : QColor(226, 232, 226);
    const bool chrome = generation <= 3 || generation == 6;
    const double share = 0.05 + 0.12 * (photo.variant % 5);
    PaintDial(p, {w * 0.185, h * 0.66}, h * 0.125, generation >= 4 ? 140 : 120, u"MPH"_s, share * 0.4, chrome,
              ink);
    PaintDial(p, {w * 0.40, h * 0.66}, h * 0.125, 80, u"RPM x100"_s, 0.14, chrome, ink);
    PaintDial(p, {w * 0.62, h * 0.635}, h * 0.062, 100, u"OIL"_s, 0.55, chrome, ink);
    PaintDial(p, {w * 0.725, h * 0.63}, h * 0.062, 240, u"TEMP"_s, 0.48, chrome, ink);
    PaintDial(p, {w * 0.83, h * 0.625}, h * 0.062, 60, u"CLOCK"_s, 0.7, chrome, ink);
    // Radio.
    const QPainterPath radio = Rounded(QRectF(w * 0.61, h * 0.80, w * 0.26, h * 0.10), 6);
    LayFlat(p, radio, 5, 0.6, QColor(14, 14, 15));
    p.strokePath(radio, QPen(QColor(120, 122, 126), 2));
    p.fillRect(QRectF(w * 0.66, h * 0.82, w * 0.16, h * 0.045), QColor(224, 206, 150));
    p.setPen(QPen(QColor(60, 40, 20), 1.5));
    for (int i = 0; i < 24; ++i)
        p.drawLine(QPointF(w * 0.665 + i * w * 0.0065, h * 0.826),
                   QPointF(w * 0.665 + i * w * 0.0065, h * (i % 4 == 0 ? 0.846 : 0.838)));
    p.setPen(QPen(QColor(220, 30, 20), 2.5));
    p.drawLine(QPointF(w * (0.69 + 0.02 * (photo.variant % 6)), h * 0.822),
               QPointF(w * (0.69 + 0.02 * (photo.variant % 6)), h * 0.863));
    p.setPen(Qt::NoPen);
    for (const double x : {0.632, 0.848}) {
        LayMetal(p, Disc({w * x, h * 0.85}, h * 0.03), 4, 0.6, QColor(190, 190, 194), 0.8);
    }
    PaintSteeringWheel(p, {w * 0.295, h * 0.90}, h * 0.40, generation);
    return picture;
}

} // namespace torvik::sample
