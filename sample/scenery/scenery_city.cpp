#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

Scenery CityScenery(std::uint32_t seed)
{
    Scenery s;
    s.night = true;
    s.light = Daylight{.toSun = Unit({-0.3, -0.5, 0.85}),
                       .sun = {0.55, 0.46, 0.34},
                       .zenith = {0.010, 0.014, 0.035},
                       .horizon = {0.16, 0.10, 0.11},
                       .ground = {0.05, 0.045, 0.045},
                       .band = {0.03, 0.03, 0.045},
                       .bandHeight = 0.35,
                       .clouds = 0.0,
                       .seed = seed};
    // Lit windows, street lamps and coloured signs, as they glide over the lacquer.
    s.light.lamps = [seed](const Vec&, const Vec& way) -> Rgb {
        if (way.z < 0)
            return {};
        const double flat = std::max(1e-4, std::hypot(way.x, way.y));
        const double height = way.z / flat;
        const double azimuth = std::atan2(way.y, way.x) / pi * 26.0;
        if (height < 0.34 && height > 0.02) {
            const int column = Floor(azimuth);
            const int row = Floor(height * 30);
            const double lit = Hash(column, row, seed + 21);
            const double fx = azimuth - column;
            if (lit > 0.55 && fx > 0.15 && fx < 0.85)
                return Hash(column, row, seed + 22) > 0.75 ? Rgb{0.15, 0.55, 1.0} * 0.7
                                                           : Rgb{1.1, 0.72, 0.32} * 0.8;
        }
        // Two rows of street lamps overhead.
        if (way.z > 0.25) {
            const double x = way.x / way.z * 5.0;
            const double y = way.y / way.z * 5.0;
            const double along = x / 6.0 - Floor(x / 6.0) - 0.5;
            const double away = std::hypot(along * 6.0, std::abs(y) - 3.2);
            return Rgb{3.4, 2.5, 1.5} * std::exp(-away * away / 0.55);
        }
        return {};
    };
    s.haze = {0.06, 0.045, 0.06};
    s.hazeReach = 260;
    s.floorShine = 0.42;
    s.shadowStrength = 0.35;
    s.ground = [seed](double x, double y, double distance) {
        const double wet = SmoothStep(0.40, 0.62, Fractal(x * 0.5, y * 0.9, 3, seed + 31));
        Rgb road = Asphalt(x, y, distance, seed) * Mix(0.42, 0.22, wet);
        // Pools of lamp light, and the long reflections of coloured signs across the road.
        const double along = x / 12.0 - Floor(x / 12.0) - 0.5;
        const double pool = std::exp(-(along * along * 144.0 + (y - 5) * (y - 5)) / 26.0);
        road = road + Rgb{0.11, 0.075, 0.04} * pool;
        const double sign = Noise(x * 0.55, 2.2, seed + 33);
        const Rgb tint = sign > 0.6    ? Rgb{0.26, 0.03, 0.08}
                         : sign < 0.35 ? Rgb{0.02, 0.10, 0.20}
                                       : Rgb{0.16, 0.10, 0.03};
        road = road +
               tint * (wet * SmoothStep(-2.0, 8.0, y) * (0.25 + 0.75 * Noise(x * 2.2, y * 0.25, seed + 34)));
        const double kerb = LineMark(y, 6.4, 0.25, distance);
        return Mix(road, Rgb{0.10, 0.09, 0.085}, kerb);
    };
    s.backdrop = [seed](QPainter& painter, const Camera& camera) {
        painter.setPen(Qt::NoPen);
        // Three rows of houses, the nearest last.
        for (int row = 2; row >= 0; --row) {
            const double depth = 13.0 + 24.0 * row;
            Random random(seed + static_cast<std::uint32_t>(row) * 101);
            for (double x = -130; x < 130;) {
                const double wide = random.Between(7, 13);
                const double tall = random.Between(9, 20) + 12 * row;
                const Standing left = StandAt(camera, x, depth);
                const Standing right = StandAt(camera, x + wide, depth);
                const double next = x + wide + (row == 0 ? 0.4 : 2.0);
                if (left.visible && right.visible && right.x > -200 &&
                    left.x < painter.device()->width() + 200) {
                    const QColor wall =
                        Hazed(QColor(20 + random.Below(16), 18 + random.Below(10), 26 + random.Below(14)),
                              QColor(46, 34, 44), 0.3 * row);
                    QPainterPath front;
                    const Standing leftTop = StandAt(camera, x, depth, tall);
                    const Standing rightTop = StandAt(camera, x + wide, depth, tall);
                    front.moveTo(left.x, left.y);
                    front.lineTo(leftTop.x, leftTop.y);
                    front.lineTo(rightTop.x, rightTop.y);
                    front.lineTo(right.x, right.y);
                    front.closeSubpath();
                    painter.fillPath(front, wall);
                    const int columns = static_cast<int>(wide / 1.9);
                    const int floors = static_cast<int>((tall - 4.4) / 2.9);
                    for (int f = 0; f < floors; ++f) {
                        for (int c = 0; c < columns; ++c) {
                            const double chance = random.Unit();
                            const double hue = random.Unit();
                            if (chance < 0.48)
                                continue;
                            const double wx = x + (c + 0.25) * wide / columns;
                            const double wz = 4.6 + f * 2.9;
                            const Standing a = StandAt(camera, wx, depth - 0.05, wz);
                            const Standing b =
                                StandAt(camera, wx + 0.55 * wide / columns, depth - 0.05, wz + 1.7);
                            QColor light = hue > 0.85 ? QColor(150, 196, 255) : QColor(255, 204, 128);
                            light = Hazed(light, wall, chance < 0.7 ? 0.6 : 0.15 + 0.15 * row);
                            painter.fillRect(QRectF(QPointF(a.x, a.y), QPointF(b.x, b.y)).normalized(),
                                             light);
                        }
                    }
                    if (row == 0) {
                        // A lit shop with its sign.
                        const Standing a = StandAt(camera, x + 0.7, depth - 0.1, 0.5);
                        const Standing b = StandAt(camera, x + wide - 0.7, depth - 0.1, 2.9);
                        const QRectF shop = QRectF(QPointF(a.x, a.y), QPointF(b.x, b.y)).normalized();
                        QLinearGradient glow(shop.topLeft(), shop.bottomLeft());
                        const QColor warm =
                            random.Below(3) == 0 ? QColor(160, 210, 255) : QColor(255, 214, 140);
                        glow.setColorAt(0, warm);
                        glow.setColorAt(1, warm.darker(260));
                        painter.fillRect(shop, glow);
                        for (int k = 0; k < 5; ++k)
                            painter.fillRect(QRectF(shop.left() + shop.width() * random.Unit(),
                                                    shop.top() + shop.height() * random.Between(0.35, 0.6),
                                                    shop.width() * 0.07, shop.height())
                                                 .intersected(shop),
                                             QColor(50, 34, 24));
                        const Standing c = StandAt(camera, x + 1.2, depth - 0.2, 3.2);
                        const Standing d = StandAt(camera, x + wide - 1.2, depth - 0.2, 4.0);
                        const QColor neon = QColor::fromHsv(random.Below(360), 215, 255);
                        const QRectF sign = QRectF(QPointF(c.x, c.y), QPointF(d.x, d.y)).normalized();
                        painter.setFont(FontOf("Liberation Sans",
                                               std::max(6, static_cast<int>(sign.height() * 0.9)), true));
                        painter.setPen(neon);
                        static const char* const names[] = {"CINEMA", "HOTEL AVEREL", "DINER",  "RECORDS",
                                                            "BAR 41", "ROXY",         "FLOWERS"};
                        painter.drawText(sign, Qt::AlignCenter, QString::fromLatin1(names[random.Below(7)]));
                        painter.setPen(Qt::NoPen);
                    }
                }
                x = next;
            }
        }
        // Lamps and traffic melt into discs of light.
        Random random(seed + 900);
        for (int i = 0; i < 34; ++i) {
            const Standing at = StandAt(camera, random.Between(-70, 70), random.Between(8, 46),
                                        i % 3 == 0 ? 0.8 : random.Between(4.5, 6.5));
            if (!at.visible)
                continue;
            const double radius = std::clamp(camera.focal / 90.0 * random.Between(0.5, 1.0), 3.0, 60.0);
            QColor colour = i % 3 == 0   ? (i % 2 == 0 ? QColor(255, 60, 50) : QColor(255, 244, 214))
                            : i % 7 == 0 ? QColor(90, 255, 170)
                                         : QColor(255, 190, 104);
            colour.setAlpha(70 + random.Below(80));
            painter.setBrush(colour);
            painter.drawEllipse(QPointF(at.x, at.y), radius, radius);
        }
    };
    s.backdropBlur = 3.4;
    return s;
}

} // namespace torvik::sample
