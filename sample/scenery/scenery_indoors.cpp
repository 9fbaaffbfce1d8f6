#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/scenery/backdrop.h"
#include "sample/scenery/scenery.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// Rows of long soft boxes under a ceiling 4 m high.
Rgb CeilingLamps(const Vec& from, const Vec& way, double strength)
{
    if (way.z < 0.05)
        return {};
    const double reach = (4.0 - from.z) / way.z;
    const double x = from.x + way.x * reach;
    const double y = from.y + way.y * reach;
    if (std::abs(x) > 7.5 || std::abs(y) > 6)
        return {};
    const double row = y / 2.4 - Floor(y / 2.4) - 0.5;
    const double tube = 1.0 - SmoothStep(0.10, 0.16, std::abs(row));
    const double ends = 1.0 - SmoothStep(6.9, 7.2, std::abs(x));
    return Rgb{1.0, 0.98, 0.93} * (strength * tube * ends);
}

} // namespace

Scenery ShowroomScenery(std::uint32_t seed)
{
    Scenery s;
    Random random(seed);
    static const Rgb walls[] = {
        {0.36, 0.30, 0.22}, {0.16, 0.22, 0.28}, {0.30, 0.12, 0.10}, {0.24, 0.26, 0.20}};
    const Rgb wall = walls[random.Below(4)];
    s.light = Daylight{.toSun = Unit({-0.25, -0.45, 0.9}),
                       .sun = {0.85, 0.80, 0.72},
                       .zenith = {0.32, 0.31, 0.29},
                       .horizon = wall * 1.1,
                       .ground = {0.22, 0.19, 0.16},
                       .band = wall * 0.35,
                       .bandHeight = 0.12,
                       .clouds = 0,
                       .seed = seed};
    s.light.lamps = [](const Vec& from, const Vec& way) { return CeilingLamps(from, way, 3.2); };
    s.haze = wall;
    s.hazeReach = 60;
    s.floorShine = 0.34;
    s.shadowStrength = 0.35;
    s.ground = [seed, wall](double x, double y, double distance) {
        // Large tiles in two tones, and the lamps of the ceiling mirrored in them.
        const double tile = 1.1;
        const int cx = Floor(x / tile);
        const int cy = Floor(y / tile);
        const double tone = (cx + cy) % 2 == 0 ? 1.0 : 0.72;
        const double vein = Fractal(x * 1.7, y * 1.7, 4, seed + 3);
        Rgb floor = Rgb{0.30, 0.27, 0.23} * (tone * (0.85 + 0.3 * vein));
        const double fx = x / tile - cx;
        const double fy = y / tile - cy;
        const double joint = std::min(std::min(fx, 1 - fx), std::min(fy, 1 - fy)) * tile;
        floor = floor * Mix(0.45, 1.0, SmoothStep(0.0, 0.012 + distance * 0.001, joint));
        return Mix(floor, wall * 0.9, SmoothStep(6.0, 9.0, y) * 0.6);
    };
    s.backdrop = [seed, wall](QPainter& painter, const Camera& camera) {
        painter.setPen(Qt::NoPen);
        const auto toColour = [](const Rgb& c) {
            const auto byte = [](double v) { return static_cast<int>(std::pow(Clamp01(v), 1 / 2.2) * 255); };
            return QColor(byte(c.x), byte(c.y), byte(c.z));
        };
        const double width = painter.device()->width();
        const double horizon = camera.HorizonRow();
        // The rear wall 9 m behind the car, lit from above in cones.
        const Standing foot = StandAt(camera, 0, 9);
        const QLinearGradient shade =
            Linear({0, 0}, {0, std::max(horizon + 4, foot.y)},
                   {{0, toColour(wall * 0.5)}, {0.6, toColour(wall * 1.15)}, {1, toColour(wall * 0.6)}});
        const double low = foot.visible && foot.y > horizon ? foot.y : horizon + 4;
        painter.fillRect(QRectF(0, 0, width, low), shade);
        for (double x = -18; x <= 18; x += 4.5) {
            const Standing top = StandAt(camera, x, 8.9, 3.9);
            if (!top.visible)
                continue;
            const double m = top.metre;
            painter.fillRect(QRectF(top.x - 2.6 * m, top.y, 5.2 * m, std::max(0.0, low - top.y)),
                             Radial({top.x, top.y + 0.3 * m}, 2.6 * m,
                                    {{0, QColor(255, 236, 196, 190)},
                                     {0.3, QColor(255, 220, 170, 70)},
                                     {1, QColor(255, 210, 150, 0)}}));
        }
        // Framed pictures, a curtain at one end, the maker's name in brass.
        Random random(seed + 5);
        for (double x = -13.5; x <= 14; x += 4.5) {
            const Standing a = StandAt(camera, x - 0.9, 8.85, 1.2);
            const Standing b = StandAt(camera, x + 0.9, 8.85, 2.4);
            if (!a.visible || !b.visible)
                continue;
            const QRectF frame = QRectF(QPointF(a.x, a.y), QPointF(b.x, b.y)).normalized();
            painter.fillRect(frame, QColor(58, 42, 24));
            const double rim = frame.height() * 0.08;
            const QRectF inner = frame.adjusted(rim, rim, -rim, -rim);
            const QLinearGradient art = Linear(inner.topLeft(), inner.bottomLeft(),
                                               {{0, QColor::fromHsv(random.Below(360), 70, 220)},
                                                {0.6, QColor::fromHsv(random.Below(360), 50, 200)},
                                                {1, QColor::fromHsv(random.Below(360), 90, 110)}});
            painter.fillRect(inner, art);
            painter.setBrush(QColor::fromHsv(random.Below(360), 170, 140));
            painter.drawEllipse(QPointF(inner.center().x(), inner.bottom() - inner.height() * 0.3),
                                inner.width() * 0.3, inner.height() * 0.1);
        }
        const Standing sign = StandAt(camera, 0, 8.8, 3.0);
        if (sign.visible) {
            painter.setFont(
                FontOf("Liberation Serif", std::max(8, static_cast<int>(0.75 * sign.metre)), true, true));
            painter.setPen(QColor(236, 206, 140));
            painter.drawText(
                QRectF(sign.x - 5 * sign.metre, sign.y - 0.7 * sign.metre, 10 * sign.metre, 1.0 * sign.metre),
                Qt::AlignCenter, u"Torvik Vollandry"_s);
            painter.setPen(Qt::NoPen);
        }
        // Plants in tubs.
        for (const double x : {-6.6, 6.9, -15.0, 15.5}) {
            const Standing at = StandAt(camera, x, 7.6);
            if (!at.visible)
                continue;
            PaintTree(painter, StandAt(camera, x, 7.6, 0.4), 2.2, QColor(86, 130, 62), QColor(20, 42, 24),
                      seed + static_cast<std::uint32_t>(x + 40));
            painter.fillRect(
                QRectF(at.x - 0.32 * at.metre, at.y - 0.55 * at.metre, 0.64 * at.metre, 0.55 * at.metre),
                QColor(70, 54, 42));
        }
    };
    s.backdropBlur = 2.4;
    return s;
}

Scenery StudioScenery(std::uint32_t seed)
{
    Scenery s;
    s.light = Daylight{.toSun = Unit({-0.5, -0.6, 0.8}),
                       .sun = {1.1, 1.05, 0.95},
                       .zenith = {0.30, 0.31, 0.33},
                       .horizon = {0.42, 0.42, 0.42},
                       .ground = {0.30, 0.30, 0.29},
                       .band = {0.25, 0.25, 0.25},
                       .bandHeight = 0.05,
                       .clouds = 0,
                       .seed = seed};
    s.light.lamps = [](const Vec& from, const Vec& way) { return CeilingLamps(from, way, 1.6); };
    s.haze = {0.34, 0.34, 0.34};
    s.hazeReach = 22;
    s.floorShine = 0.10;
    s.ground = [seed](double x, double y, double) {
        const double pool = std::exp(-(x * x * 0.6 + y * y) / 40.0);
        const double dust = 0.94 + 0.12 * Fractal(x * 3, y * 3, 3, seed + 2);
        return Rgb{0.36, 0.355, 0.345} * ((0.45 + 0.75 * pool) * dust);
    };
    s.backdrop = [](QPainter& painter, const Camera& camera) {
        const double horizon = camera.HorizonRow();
        const QLinearGradient wall =
            Linear({0, 0}, {0, horizon + 40},
                   {{0, QColor(66, 67, 70)}, {0.7, QColor(150, 150, 150)}, {1, QColor(158, 157, 155, 0)}});
        painter.fillRect(QRectF(0, 0, painter.device()->width(), horizon + 40), wall);
        // Drawings on the wall of the styling studio.
        painter.setPen(Qt::NoPen);
        for (double x = -9; x <= 9; x += 2.6) {
            const Standing a = StandAt(camera, x - 0.95, 6.5, 1.5);
            const Standing b = StandAt(camera, x + 0.95, 6.5, 2.6);
            if (!a.visible || !b.visible)
                continue;
            const QRectF sheet = QRectF(QPointF(a.x, a.y), QPointF(b.x, b.y)).normalized();
            painter.fillRect(sheet, QColor(226, 220, 204));
            painter.setPen(QPen(QColor(70, 74, 90), std::max(1.0, sheet.height() * 0.02)));
            painter.drawPath(
                ClosedOutline({{sheet.left() + sheet.width() * 0.1, sheet.top() + sheet.height() * 0.62},
                               {sheet.left() + sheet.width() * 0.35, sheet.top() + sheet.height() * 0.5,
                                sheet.left() + sheet.width() * 0.45, sheet.top() + sheet.height() * 0.2,
                                sheet.left() + sheet.width() * 0.65, sheet.top() + sheet.height() * 0.3},
                               {sheet.left() + sheet.width() * 0.8, sheet.top() + sheet.height() * 0.42,
                                sheet.left() + sheet.width() * 0.9, sheet.top() + sheet.height() * 0.6}}));
            painter.setPen(Qt::NoPen);
        }
    };
    s.backdropBlur = 2.0;
    return s;
}

} // namespace torvik::sample
