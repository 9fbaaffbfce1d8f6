#pragma once

#include "sample/geometry/camera.h"
#include "sample/geometry/vec.h"

#include <QPainter>
#include <QPainterPath>

#include <cstdint>
#include <functional>
#include <vector>

namespace torvik::sample {

/// A chain of hills round the horizon. `height` gives the tangent of its angle by azimuth.
void PaintRidge(QPainter& painter, const Camera& camera, const std::function<double(double azimuth)>& height,
                const QColor& top, const QColor& foot);

/// A standing thing: where its foot meets the picture, and how many pixels a metre measures there.
struct Standing {
    double x;
    double y;
    double metre;
    double depth;
    bool visible;
};
Standing StandAt(const Camera& camera, double x, double y, double z = 0);

/// A leafy crown with its trunk; `light` is the colour of the lit leaves.
void PaintTree(QPainter& painter, const Standing& at, double tall, const QColor& light, const QColor& dark,
               std::uint32_t seed);
/// A fir, snowed on when `snow` is above 0 (to 1).
void PaintFir(QPainter& painter, const Standing& at, double tall, const QColor& colour, double snow,
              std::uint32_t seed);
/// A straight line between two places in the world, `thick` metres wide.
void PaintBar(QPainter& painter, const Camera& camera, const Vec& from, const Vec& to, double thick,
              const QColor& colour);
/// A tree of a wood: where it stands, how tall it is and of which of five kinds.
struct Trunk {
    double x;
    double y;
    double tall;
    int kind;
};
/// Trees on both sides of a lane along x that is free so far to each side, the farthest first.
std::vector<Trunk> Grove(std::uint32_t seed, int count, double free, const Camera& camera);
/// The colour as it looks through `share` (0 to 1) of haze.
QColor Hazed(const QColor& colour, const QColor& haze, double share);

/// Asphalt seen at a place, grained and patched; `distance` metres off, where the grain melts away.
Rgb Asphalt(double x, double y, double distance, std::uint32_t seed);
/// 1 on a painted line of the given width round `middle`, 0 beside it, softened by distance.
double LineMark(double at, double middle, double width, double distance);

} // namespace torvik::sample
