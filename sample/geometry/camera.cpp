#include "sample/geometry/camera.h"

namespace torvik::sample {

Camera::Spot Camera::Project(const Vec& point) const
{
    const Vec d = point - eye;
    const double depth = Dot(d, forward);
    const double safe = std::abs(depth) < 1e-9 ? 1e-9 : depth;
    return {middleX + focal * Dot(d, right) / safe, middleY - focal * Dot(d, up) / safe, depth};
}

Vec Camera::Ray(double x, double y) const
{
    return Unit(forward * focal + right * (x - middleX) + up * (middleY - y));
}

double Camera::HorizonRow() const
{
    const double flat = std::hypot(forward.x, forward.y);
    return middleY + focal * forward.z / std::max(1e-6, flat);
}

Camera Camera::Enlarged(double factor) const
{
    Camera larger = *this;
    larger.focal *= factor;
    larger.middleX *= factor;
    larger.middleY *= factor;
    return larger;
}

Camera LookAt(const Vec& eye, const Vec& target, double lens, QSize size)
{
    Camera camera;
    camera.eye = eye;
    camera.forward = Unit(target - eye);
    camera.right = Unit(Cross(camera.forward, {0, 0, 1}));
    camera.up = Cross(camera.right, camera.forward);
    camera.focal = lens / 36.0 * std::max(size.width(), size.height());
    camera.middleX = size.width() / 2.0;
    camera.middleY = size.height() / 2.0;
    return camera;
}

} // namespace torvik::sample
