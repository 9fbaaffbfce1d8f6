#include "sample/car/skin.h"

#include <array>

namespace torvik::sample {

namespace {

const std::array<double, 256>& LinearTable()
{
    static const std::array<double, 256> table = [] {
        std::array<double, 256> values{};
        for (std::size_t i = 0; i < 256; ++i)
            values[i] = std::pow(static_cast<double>(i) / 255.0, 2.2);
        return values;
    }();
    return table;
}

} // namespace

Rgb LinearOf(const QColor& colour)
{
    const auto& table = LinearTable();
    return {table[static_cast<std::size_t>(colour.red())], table[static_cast<std::size_t>(colour.green())],
            table[static_cast<std::size_t>(colour.blue())]};
}

SkinMap::SkinMap(const QImage& colour, const QImage& material, const QImage& relief, double left,
                 double bottom, double pixelsPerMetre)
    : width_(colour.width()), height_(colour.height()), left_(left), bottom_(bottom), scale_(pixelsPerMetre)
{
    points_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
    for (int y = 0; y < height_; ++y) {
        const auto* c = reinterpret_cast<const QRgb*>(colour.constScanLine(y));
        const auto* m = reinterpret_cast<const QRgb*>(material.constScanLine(y));
        const auto* r = reinterpret_cast<const QRgb*>(relief.constScanLine(y));
        // Row 0 of the points is the lowest, as v grows upward.
        Point* row = &points_[static_cast<std::size_t>(height_ - 1 - y) * static_cast<std::size_t>(width_)];
        for (int x = 0; x < width_; ++x) {
            const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
            row[x] = {byte(qRed(c[x])),   byte(qGreen(c[x])), byte(qBlue(c[x])), byte(qRed(m[x])),
                      byte(qGreen(m[x])), byte(qBlue(m[x])),  byte(qRed(r[x])),  byte(qGreen(r[x]))};
        }
    }
}

const SkinMap::Point& SkinMap::PointAt(int x, int y) const
{
    const int cx = std::clamp(x, 0, width_ - 1);
    const int cy = std::clamp(y, 0, height_ - 1);
    return points_[static_cast<std::size_t>(cy) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(cx)];
}

Material SkinMap::At(double u, double v) const
{
    const double px = (u - left_) * scale_ - 0.5;
    const double py = (v - bottom_) * scale_ - 0.5;
    const int ix = Floor(px);
    const int iy = Floor(py);
    const double fx = px - ix;
    const double fy = py - iy;
    const std::array<const Point*, 4> p = {&PointAt(ix, iy), &PointAt(ix + 1, iy), &PointAt(ix, iy + 1),
                                           &PointAt(ix + 1, iy + 1)};
    const std::array<double, 4> w = {(1 - fx) * (1 - fy), fx * (1 - fy), (1 - fx) * fy, fx * fy};
    const auto& linear = LinearTable();
    Material material;
    for (std::size_t i = 0; i < 4; ++i) {
        material.colour =
            material.colour + Rgb{linear[p[i]->red], linear[p[i]->green], linear[p[i]->blue]} * w[i];
        material.metal += p[i]->metal * w[i] / 255.0;
        material.glass += p[i]->glass * w[i] / 255.0;
        material.rough += p[i]->rough * w[i] / 255.0;
        material.glow += p[i]->glow * w[i] / 255.0;
    }
    // One step of relief is 0.1 mm.
    const double step = 0.0001 * scale_;
    const auto height = [this](int x, int y) { return static_cast<double>(PointAt(x, y).relief); };
    material.slopeU =
        step * Mix(height(ix + 1, iy) - height(ix, iy), height(ix + 1, iy + 1) - height(ix, iy + 1), fy);
    material.slopeV =
        step * Mix(height(ix, iy + 1) - height(ix, iy), height(ix + 1, iy + 1) - height(ix + 1, iy), fx);
    return material;
}

double SkinMap::GlassAt(double u, double v) const
{
    const Point& p = PointAt(Floor((u - left_) * scale_), Floor((v - bottom_) * scale_));
    return p.glass / 255.0;
}

} // namespace torvik::sample
