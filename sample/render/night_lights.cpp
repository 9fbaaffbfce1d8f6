#include "sample/render/night_lights.h"

#include "sample/geometry/shapes.h"
#include "sample/geometry/wide_registers.h"
#include "sample/render/film.h"

#include <QPainter>

namespace torvik::sample {

void PaintBeams(QImage& picture, const CarShape& shape, const Camera& camera)
{
    LetGoOfWideRegisters();
    const double half = shape.length / 2;
    const int horizon = std::clamp(Floor(camera.HorizonRow()) + 1, 0, picture.height());
    for (int y = horizon; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const Vec way = camera.Ray(x + 0.5, y + 0.5);
            const double reach = camera.eye.z / std::max(1e-5, -way.z);
            if (reach > 60)
                continue;
            const Vec at = camera.eye + way * reach;
            double white = 0;
            const double ahead = -half - at.x;
            if (ahead > 0.1) {
                for (const double lamp : {-0.55, 0.55}) {
                    const double spread = (at.y - lamp) / (0.35 + 0.22 * ahead);
                    white +=
                        std::exp(-spread * spread) * SmoothStep(0.1, 2.2, ahead) * std::exp(-ahead / 9.0);
                }
            }
            const double behind = at.x - half;
            double red = 0;
            if (behind > -0.2 && behind < 4)
                red = 0.10 * std::exp(-(behind * behind) / 1.6 - at.y * at.y / 0.9);
            if (white > 0.004 || red > 0.004)
                line[x] = PixelOf(Shoulder(LinearOfPixel(line[x]) + Rgb{0.46, 0.42, 0.33} * white +
                                           Rgb{1.0, 0.06, 0.03} * red));
        }
    }
}

void PaintFlares(QImage& picture, const CarShape& shape, const Camera& camera)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    const double half = shape.length / 2;
    const double lampY = shape.lamps == Lamps::RoundInGrille ? shape.grilleHalf - shape.lampRadius - 0.03
                                                             : shape.grilleHalf + 0.15;
    const double lampZ = (shape.grilleLow + shape.grilleHigh) / 2;
    const bool front = camera.eye.x < -half;
    for (const double side : {-1.0, 1.0}) {
        const Vec lamp = front ? Vec{-half + 0.05, side * lampY, lampZ}
                               : Vec{half - 0.02, side * (shape.halfWidth(shape.length) - 0.22),
                                     shape.shoulder(shape.length) - 0.17};
        const Vec toEye = Unit(camera.eye - lamp);
        const double facing = front ? -toEye.x : toEye.x;
        if (facing < 0.15)
            continue;
        const Camera::Spot spot = camera.Project(lamp);
        const double radius = camera.focal / spot.depth * (front ? 0.75 : 0.4) * (0.5 + 0.5 * facing);
        QRadialGradient glare(QPointF(spot.x, spot.y), radius);
        const QColor core = front ? QColor(255, 246, 218) : QColor(255, 70, 40);
        QColor at = core;
        at.setAlpha(front ? 235 : 120);
        glare.setColorAt(0, at);
        at.setAlpha(front ? 110 : 50);
        glare.setColorAt(0.18, at);
        at.setAlpha(front ? 34 : 16);
        glare.setColorAt(0.45, at);
        at.setAlpha(0);
        glare.setColorAt(1, at);
        painter.fillRect(QRectF(spot.x - radius, spot.y - radius, 2 * radius, 2 * radius), glare);
        if (front) {
            // The streak that an old lens draws through a bright lamp.
            const QRadialGradient streak =
                Radial({0, 0}, 1.0, Veil(QColor(255, 244, 214), {{0, 120}, {1, 0}}));
            painter.save();
            painter.translate(spot.x, spot.y);
            painter.scale(radius * 2.0, radius * 0.045);
            painter.fillRect(QRectF(-1, -1, 2, 2), streak);
            painter.restore();
        }
    }
}

} // namespace torvik::sample
