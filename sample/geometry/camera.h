#pragma once

#include "sample/geometry/vec.h"

#include <QSize>

namespace torvik::sample {

/// A level pinhole camera.
struct Camera {
    Vec eye;
    Vec right;
    Vec up;
    Vec forward;
    double focal = 1000; ///< pixels
    double middleX = 0;  ///< where the optical axis meets the picture, pixels
    double middleY = 0;

    struct Spot {
        double x;
        double y;
        double depth; ///< metres along the axis; what is not positive lies behind the camera
    };

    Spot Project(const Vec& point) const;
    /// The direction, of length 1, in which the pixel looks.
    Vec Ray(double x, double y) const;
    /// The row of the horizon.
    double HorizonRow() const;
    /// The same view on a picture `factor` times as large.
    Camera Enlarged(double factor) const;
};

/// A camera at `eye` that has `target` in the middle; `lens` in millimetres of a 36 mm wide film, measured on
/// the longer side of the picture.
Camera LookAt(const Vec& eye, const Vec& target, double lens, QSize size);

} // namespace torvik::sample
