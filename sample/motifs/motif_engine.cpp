#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void Hose(QPainter& p, const QPainterPath& way, double thick, const QColor& colour)
{
    p.save();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0, 0, 0, 110), thick * 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.translate(thick * 0.3, thick * 0.45);
    p.drawPath(way);
    p.translate(-thick * 0.3, -thick * 0.45);
    for (int i = 0; i < 6; ++i) {
        const double share = 1.0 - i / 6.0;
        p.setPen(
            QPen(colour.lighter(70 + i * 22), thick * share, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.translate(-thick * 0.03, -thick * 0.045);
        p.drawPath(way);
    }
    p.restore();
}

void RockerCover(QPainter& p, const QRectF& box, const QColor& colour)
{
    LayFlat(p, Rounded(box, box.width() * 0.25), 16, 0.7,
            Linear(box.topLeft(), box.topRight(),
                   Shades(colour, {{0, -210}, {0.25, 150}, {0.4, 112}, {0.8, -140}, {1, -260}})));
    for (int i = 0; i < 6; ++i) {
        const double x = box.left() + box.width() * (0.26 + 0.1 * i);
        p.setPen(QPen(QColor(0, 0, 0, 90), 3));
        p.drawLine(QPointF(x + 2, box.top() + 34), QPointF(x + 2, box.bottom() - 34));
        p.setPen(QPen(colour.lighter(170), 2.4));
        p.drawLine(QPointF(x, box.top() + 34), QPointF(x, box.bottom() - 34));
    }
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 5; ++i) {
        for (const double x : {box.left() + 11, box.right() - 11}) {
            FillMetal(p, Disc({x, box.top() + 26 + i * (box.height() - 52) / 4}, 7), QColor(200, 200, 204),
                      0.8);
        }
    }
}

} // namespace

QImage PaintEngine(const PlannedPhoto& photo)
{
    QImage picture(photo.size, QImage::Format_ARGB32_Premultiplied);
    const double w = photo.size.width();
    const double h = photo.size.height();
    const int generation = GenerationOfYear(photo.year);
    Random random(SeedOf(photo));
    const QColor paint = PaintOf(photo).colour;
    SmoothPainter p(&picture);
    p.fillRect(picture.rect(),
               Linear({0, 0}, {0, h},
                      {{0, QColor(38, 38, 40)}, {0.5, QColor(22, 22, 23)}, {1, QColor(10, 10, 11)}}));
    // Body-coloured inner wings on both sides, with the light of the sky along their edges.
    for (const double side : {-1.0, 1.0}) {
        const auto x = [&](double v) { return side < 0 ? w * v : w * (1 - v); };
        p.fillPath(ClosedOutline({{x(-0.01), 0},
                                  {x(0.13), 0},
                                  {x(0.15), h * 0.3, x(0.11), h * 0.7, x(0.09), h},
                                  {x(-0.01), h}}),
                   Linear({x(0), 0}, {x(0.15), 0},
                          Shades(paint, {{0, 125}, {0.5, 100}, {0.72, 180}, {0.8, -150}, {1, -320}})));
        LayGlossy(p, Disc({x(0.165), h * 0.44}, w * 0.062), 14, 0.6, paint.darker(150));
        for (int i = 0; i < 3; ++i) {
            QPainterPath nut;
            const double a = 2 * pi * i / 3 + 0.4;
            nut.addEllipse(QPointF(x(0.165) + std::cos(a) * w * 0.035, h * 0.44 + std::sin(a) * w * 0.035), 8,
                           8);
            FillMetal(p, nut, QColor(196, 196, 200), 0.9);
        }
    }
    // Radiator with its cap, at the lower edge; the bulkhead at the upper one.
    p.fillPath(Rounded(QRectF(w * 0.12, -20, w * 0.76, h * 0.13), 14),
               Linear({0, 0}, {0, h * 0.12}, Shades(paint, {{0, -170}, {1, -300}})));
    LayFlat(p, Rounded(QRectF(w * 0.22, h * 0.90, w * 0.56, h * 0.13), 12), 12, 0.6,
            Linear({0, h * 0.9}, {0, h},
                   {{0, QColor(74, 74, 77)}, {0.3, QColor(30, 30, 31)}, {1, QColor(14, 14, 15)}}));
    // The block and its covers.
    LayFlat(p, Rounded(QRectF(w * 0.29, h * 0.16, w * 0.42, h * 0.64), 40), 30, 0.8, QColor(46, 47, 50));
    const QColor covers = generation <= 2   ? QColor(26, 74, 160)
                          : generation == 3 ? QColor(30, 100, 140)
                          : generation == 4 ? QColor(150, 152, 156)
                                            : QColor(28, 28, 31);
    RockerCover(p, QRectF(w * 0.265, h * 0.19, w * 0.11, h * 0.57), covers);
    RockerCover(p, QRectF(w * 0.625, h * 0.19, w * 0.11, h * 0.57), covers);
    if (generation >= 4) {
        // Intake runners of an injected engine.
        for (int i = 0; i < 4; ++i) {
            for (const double side : {-1.0, 1.0}) {
                QPainterPath runner;
                const double y = h * (0.29 + 0.12 * i);
                runner.moveTo(w * 0.5, y - 14);
                runner.cubicTo(w * (0.5 + side * 0.06), y - 24, w * (0.5 + side * 0.09), y,
                               w * (0.5 + side * 0.125), y + 18);
                Hose(p, runner, h * 0.062, QColor(176, 178, 182));
            }
        }
        LayMetal(p, Rounded(QRectF(w * 0.445, h * 0.20, w * 0.11, h * 0.54), 26), 18, 0.7,
                 QColor(168, 170, 174), 0.15);
        p.save();
        p.translate(w * 0.5, h * 0.47);
        p.rotate(-90);
        p.setFont(FontOf("Liberation Sans", h * 0.06, true));
        p.setPen(QColor(24, 24, 26));
        p.drawText(QRectF(-h * 0.26, -h * 0.05, h * 0.52, h * 0.1), Qt::AlignCenter, u"TORVIK V8"_s);
        p.restore();
    } else {
        // The round air cleaner.
        const QPointF m(w * 0.5, h * 0.46);
        const QPainterPath cleaner = Disc(m, w * 0.125);
        DropShadow(p, cleaner, 34, 0.8);
        QConicalGradient lid(m, 30);
        const QColor tone = generation == 1   ? QColor(176, 178, 184)
                            : generation == 2 ? QColor(214, 112, 30)
                                              : QColor(34, 84, 150);
        for (int i = 0; i <= 8; ++i)
            lid.setColorAt(i / 8.0, i % 2 == 0 ? tone.lighter(i % 4 == 0 ? 165 : 125) : tone.darker(165));
        p.fillPath(cleaner, lid);
        p.setPen(QPen(QColor(0, 0, 0, 70), 3));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(m, w * 0.110, w * 0.110);
        p.setPen(QPen(QColor(255, 255, 255, 70), 2));
        p.drawEllipse(m, w * 0.1075, w * 0.1075);
        p.fillPath(Disc(m, w * 0.066), QColor(18, 18, 20));
        QFont font = FontOf("Liberation Sans", w * 0.022, true);
        p.setFont(font);
        p.setPen(QColor(232, 206, 120));
        p.drawText(QRectF(m.x() - 120, m.y() - w * 0.05, 240, w * 0.03), Qt::AlignCenter, u"TORVIK"_s);
        font.setPixelSize(static_cast<int>(w * 0.016));
        p.setFont(font);
        p.drawText(QRectF(m.x() - 120, m.y() + w * 0.018, 240, w * 0.03), Qt::AlignCenter,
                   generation == 3 ? u"2.3 LITRE"_s : u"V8 351"_s);
        p.setPen(Qt::NoPen);
        LayMetal(p, Disc(m, 15), 5, 0.6, QColor(210, 210, 214), 0.8);
    }
    // Fan, pulley and belt.
    const QPointF hub(w * 0.5, h * 0.84);
    for (int i = 0; i < 7; ++i) {
        p.save();
        p.translate(hub);
        p.rotate(i * 360.0 / 7 + 11);
        p.fillPath(
            Outline({{-10, 0}, {-30, -h * 0.06, -22, -h * 0.12}, {22, -h * 0.115}, {20, -h * 0.05, 10, 0}}),
            QColor(150 + i * 8, 150 + i * 8, 156 + i * 8));
        p.restore();
    }
    FillMetal(p, Disc(hub, h * 0.05), QColor(190, 190, 196), 0.7);
    // Hoses and ignition leads.
    Hose(p, Outline({{w * 0.44, h * 0.78}, {w * 0.38, h * 0.86, w * 0.34, h * 0.80, w * 0.33, h * 0.93}}),
         h * 0.05, QColor(40, 40, 42));
    Hose(p, Outline({{w * 0.60, h * 0.80}, {w * 0.80, h * 0.78, w * 0.79, h * 0.36, w * 0.72, h * 0.09}}),
         h * 0.026, QColor(34, 34, 36));
    for (int i = 0; i < 4; ++i) {
        for (const double side : {-1.0, 1.0}) {
            QPainterPath lead;
            lead.moveTo(w * (0.5 + 0.01 * i * side), h * 0.17);
            const double y = h * (0.27 + 0.125 * i);
            lead.cubicTo(w * (0.5 + side * (0.16 + random.Between(-0.02, 0.02))), h * 0.10,
                         w * (0.5 + side * 0.29), y - h * 0.12, w * (0.5 + side * 0.238), y);
            Hose(p, lead, h * 0.013, generation <= 3 ? QColor(160, 30, 26) : QColor(40, 60, 120));
        }
    }
    LayGlossy(p, Disc({w * 0.5, h * 0.165}, w * 0.03), 10, 0.7, QColor(120, 52, 30));
    // Battery, washer bottle, brake cylinder.
    LayGlossy(p, Rounded(QRectF(w * 0.125, h * 0.64, w * 0.12, h * 0.24), 8), 14, 0.7, QColor(30, 30, 32));
    p.fillRect(QRectF(w * 0.13, h * 0.71, w * 0.11, h * 0.07), QColor(196, 30, 30));
    for (const double y : {0.665, 0.845}) {
        FillMetal(p, Disc({w * 0.15, h * y}, 11), QColor(176, 172, 160), 0.8);
    }
    LayGlossy(p, Rounded(QRectF(w * 0.765, h * 0.64, w * 0.085, h * 0.2), 20), 12, 0.6,
              QColor(196, 206, 206));
    p.fillRect(QRectF(w * 0.77, h * 0.74, w * 0.075, h * 0.09), QColor(50, 130, 200, 110));
    LayMetal(p, Disc({w * 0.225, h * 0.17}, w * 0.055), 12, 0.7, QColor(150, 138, 96), 0.8);
    return picture;
}

} // namespace torvik::sample
