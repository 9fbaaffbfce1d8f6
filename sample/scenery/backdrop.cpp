#include "sample/scenery/backdrop.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"

namespace torvik::sample {

void PaintRidge(QPainter& painter, const Camera& camera, const std::function<double(double)>& height,
                const QColor& top, const QColor& foot)
{
    const double width = painter.device()->width();
    const double horizon = camera.HorizonRow();
    QPainterPath path;
    path.moveTo(-4, horizon + 3);
    double highest = horizon;
    for (double x = -4; x <= width + 4; x += 3) {
        const Vec way = camera.Ray(x, horizon);
        const double flat = std::hypot(way.x, way.y);
        const double tall = height(std::atan2(way.y, way.x));
        const Camera::Spot spot = camera.Project(camera.eye + Vec{way.x / flat, way.y / flat, tall});
        path.lineTo(x, spot.y);
        highest = std::min(highest, spot.y);
    }
    path.lineTo(width + 4, horizon + 3);
    path.closeSubpath();
    painter.fillPath(path, Linear({0, highest}, {0, horizon}, {{0, top}, {1, foot}}));
}

Standing StandAt(const Camera& camera, double x, double y, double z)
{
    const Camera::Spot spot = camera.Project({x, y, z});
    return {spot.x, spot.y, spot.depth > 0.1 ? camera.focal / spot.depth : 0.0, spot.depth, spot.depth > 0.5};
}

void PaintTree(QPainter& painter, const Standing& at, double tall, const QColor& light, const QColor& dark,
               std::uint32_t seed)
{
    if (!at.visible)
        return;
    Random random(seed);
    const double m = at.metre;
    painter.setPen(Qt::NoPen);
    painter.fillPath(
        Outline({{at.x - 0.18 * m, at.y},
                 {at.x - 0.10 * m, at.y - tall * 0.3 * m, at.x - 0.05 * m, at.y - tall * 0.7 * m},
                 {at.x + 0.08 * m, at.y - tall * 0.7 * m},
                 {at.x + 0.12 * m, at.y - tall * 0.3 * m, at.x + 0.22 * m, at.y}}),
        Hazed(QColor(44, 34, 28), dark, 0.2));
    const int blobs = std::clamp(static_cast<int>(tall * m * 1.6), 40, 420);
    for (int i = 0; i < blobs; ++i) {
        const double angle = random.Between(0, 2 * pi);
        const double away = std::sqrt(random.Unit());
        const double px = std::cos(angle) * away * tall * 0.34;
        const double pz = tall * 0.66 + std::sin(angle) * away * tall * 0.34;
        const double size = tall * random.Between(0.014, 0.042);
        // Leaves are lit from above; the lower ones lie in the shade of the others.
        const double lit =
            Clamp01(0.25 + 0.55 * (pz / tall - 0.4) / 0.6 + random.Between(-0.15, 0.3) + px / tall * 0.3);
        QColor colour(static_cast<int>(Mix(dark.red(), light.red(), lit)),
                      static_cast<int>(Mix(dark.green(), light.green(), lit)),
                      static_cast<int>(Mix(dark.blue(), light.blue(), lit)));
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(at.x + px * m, at.y - pz * m), size * m, size * m * 0.8);
    }
}

void PaintFir(QPainter& painter, const Standing& at, double tall, const QColor& colour, double snow,
              std::uint32_t seed)
{
    if (!at.visible)
        return;
    Random random(seed);
    const double m = at.metre;
    const int layers = 9;
    for (int i = 0; i < layers; ++i) {
        const double t = static_cast<double>(i) / layers;
        const double half = tall * 0.22 * (1.0 - t) + tall * 0.02;
        const double low = tall * (0.08 + 0.84 * t);
        const double high = low + tall * 0.2;
        QPainterPath branch;
        branch.moveTo(at.x, at.y - high * m);
        const double right = half * random.Between(0.85, 1.15);
        const double left = half * random.Between(0.85, 1.15);
        branch.quadTo(at.x + right * 0.35 * m, at.y - (low + tall * 0.05) * m, at.x + right * m,
                      at.y - low * m);
        branch.quadTo(at.x, at.y - (low + tall * 0.03) * m, at.x - left * m, at.y - low * m);
        branch.quadTo(at.x - left * 0.35 * m, at.y - (low + tall * 0.05) * m, at.x, at.y - high * m);
        painter.fillPath(branch, colour.lighter(85 + static_cast<int>(40 * random.Unit())));
        if (snow > 0) {
            const QPainterPath cap =
                Outline({{at.x, at.y - high * m},
                         {at.x + right * 0.3 * m, at.y - (low + tall * 0.07) * m, at.x + right * 0.95 * m,
                          at.y - (low + tall * 0.008) * m},
                         {at.x + right * 0.1 * m, at.y - (low + tall * 0.06) * m, at.x - left * 0.75 * m,
                          at.y - (low + tall * 0.015) * m},
                         {at.x - left * 0.3 * m, at.y - (low + tall * 0.07) * m, at.x, at.y - high * m}});
            QColor white(238, 243, 250);
            white.setAlphaF(static_cast<float>(snow * 0.85));
            painter.fillPath(cap, white);
        }
    }
}

void PaintBar(QPainter& painter, const Camera& camera, const Vec& from, const Vec& to, double thick,
              const QColor& colour)
{
    const Camera::Spot a = camera.Project(from);
    const Camera::Spot b = camera.Project(to);
    if (a.depth < 0.3 || b.depth < 0.3)
        return;
    const double wa = camera.focal / a.depth * thick / 2;
    const double wb = camera.focal / b.depth * thick / 2;
    const double length = std::max(1e-6, std::hypot(b.x - a.x, b.y - a.y));
    const double nx = -(b.y - a.y) / length;
    const double ny = (b.x - a.x) / length;
    painter.fillPath(ClosedOutline({{a.x + nx * wa, a.y + ny * wa},
                                    {b.x + nx * wb, b.y + ny * wb},
                                    {b.x - nx * wb, b.y - ny * wb},
                                    {a.x - nx * wa, a.y - ny * wa}}),
                     colour);
}

std::vector<Trunk> Grove(std::uint32_t seed, int count, double free, const Camera& camera)
{
    Random random(seed);
    std::vector<Trunk> trunks;
    for (int i = 0; i < count; ++i) {
        const double side = random.Unit() < 0.75 ? 1.0 : -1.0;
        const double x = random.Between(-75, 75);
        const double y = side * (free + std::pow(random.Unit(), 1.6) * 42);
        trunks.push_back({x, y, random.Between(6, 13), random.Below(5)});
    }
    // Nothing stands between the camera and the car.
    std::erase_if(trunks,
                  [&](const Trunk& t) { return std::hypot(t.x - camera.eye.x, t.y - camera.eye.y) < 9.0; });
    std::sort(trunks.begin(), trunks.end(), [&](const Trunk& a, const Trunk& b) {
        return std::hypot(a.x - camera.eye.x, a.y - camera.eye.y) >
               std::hypot(b.x - camera.eye.x, b.y - camera.eye.y);
    });
    return trunks;
}

QColor Hazed(const QColor& colour, const QColor& haze, double share)
{
    const double t = Clamp01(share);
    return QColor(static_cast<int>(Mix(colour.red(), haze.red(), t)),
                  static_cast<int>(Mix(colour.green(), haze.green(), t)),
                  static_cast<int>(Mix(colour.blue(), haze.blue(), t)));
}

Rgb Asphalt(double x, double y, double distance, std::uint32_t seed)
{
    const double patches = Fractal(x * 0.35, y * 0.8, 3, seed);
    const double near = std::exp(-distance / 14.0);
    const double grain = (Noise(x * 55, y * 55, seed + 3) - 0.5) * near;
    const double wear = 0.5 * SmoothStep(0.35, 0.0, std::abs(std::abs(y) - 0.85));
    const double level = 0.115 * (0.78 + 0.42 * patches + 0.55 * grain + 0.12 * wear);
    return {level * 1.02, level, level * 0.99};
}

double LineMark(double at, double middle, double width, double distance)
{
    const double soft = 0.006 + distance * 0.0016;
    return 1.0 - SmoothStep(width / 2 - soft, width / 2 + soft, std::abs(at - middle));
}

} // namespace torvik::sample
