#include "sample/motifs/close_ups.h"

#include "sample/geometry/noise.h"
#include "sample/photos/photographer.h"
#include "sample/render/film.h"

namespace torvik::sample {

QImage LacquerCloseUp(const PlannedPhoto& photo)
{
    QImage picture(photo.size, QImage::Format_ARGB32_Premultiplied);
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    const Paint paint = PaintOf(photo);
    const Rgb base = LinearOfPixel(paint.colour.rgb());
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const double bow = (y - h * 0.44 + 46 * std::sin(x / w * 3.0 + 0.6)) / h;
            const Rgb sky = Mix(Rgb{0.34, 0.42, 0.55}, Rgb{0.85, 0.86, 0.86}, SmoothStep(-0.5, 0.0, bow));
            const Rgb land = Mix(Rgb{0.06, 0.065, 0.06}, Rgb{0.22, 0.21, 0.19}, SmoothStep(0.0, 0.5, bow));
            const double trees = 0.03 * Fractal(x * 0.012, 3.0, 4, seed);
            const Rgb seen = Mix(sky, land, SmoothStep(-0.01, 0.012, bow + trees));
            const double flake = paint.metallic * (Hash(x, y, seed) - 0.5) * 0.22;
            const double lit = 0.75 + 0.35 * SmoothStep(0.4, -0.4, bow);
            line[x] = PixelOf(Shoulder(base * (lit + flake) + seen * 0.16));
        }
    }
    return picture;
}

QImage BrickWall(QSize size, std::uint32_t seed)
{
    QImage wall(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(wall.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int row = Floor(y / 52.0);
            const double shift = row % 2 == 0 ? 0.0 : 64.0;
            const int column = Floor((x + shift) / 128.0);
            const double fx = x + shift - column * 128.0;
            const double fy = y - row * 52.0;
            const double rough = Fractal(x * 0.06, y * 0.06, 4, seed);
            const double edge = std::min({fx, 128 - fx, fy, 52 - fy}) + (rough - 0.5) * 5;
            const double own = Hash(column, row, seed + 2);
            const Rgb brick = Mix(Rgb{0.26, 0.085, 0.05}, Rgb{0.42, 0.19, 0.11}, own) * (0.55 + 0.8 * rough);
            const Rgb mortar = Rgb{0.30, 0.28, 0.25} * (0.4 + 0.5 * rough);
            const double lip = fy < 9 ? 1.25 : fy > 43 ? 0.7 : 1.0;
            const double light = 1.3 - 0.8 * std::hypot(x / 1280.0 - 0.3, y / 776.0 - 0.2);
            line[x] = PixelOf(Shoulder(Mix(mortar * 0.8, brick * lip, SmoothStep(3.0, 7.0, edge)) * light));
        }
    }
    return wall;
}

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

QImage ThroughWindscreen(const PlannedPhoto& photo)
{
    Scenery outside = MakeScenery(photo.place == Place::Showroom ? Place::Coast : photo.place, SeedOf(photo));
    const Camera camera = LookAt({-0.4, -0.36, 1.12}, {-8, -0.36, 0.62}, 36, photo.size);
    outside.backdropBlur = 7;
    return PaintScenery(outside, camera, photo.size);
}

} // namespace torvik::sample
