#include "sample/car/wheel_mesh.h"

namespace torvik::sample {

void AddWheel(std::vector<Mesh>& parts, const Vec& hub, double radius, double rimRadius, double side,
              double turn)
{
    // From the middle of the face outward over the side wall and the tread to the inner side; the second
    // number is the distance from the wheel's middle plane, positive toward the viewer of the face.
    const std::vector<std::pair<double, double>> profile = {{0.004, 0.088},
                                                            {0.03, 0.088},
                                                            {0.06, 0.082},
                                                            {0.10, 0.068},
                                                            {rimRadius * 0.70, 0.052},
                                                            {rimRadius * 0.86, 0.060},
                                                            {rimRadius * 0.93, 0.085},
                                                            {rimRadius * 0.965, 0.100},
                                                            {rimRadius, 0.104},
                                                            {rimRadius + 0.006, 0.098},
                                                            {rimRadius + 0.02, 0.106},
                                                            {Mix(rimRadius, radius, 0.5), 0.116},
                                                            {Mix(rimRadius, radius, 0.8), 0.110},
                                                            {radius - 0.012, 0.098},
                                                            {radius - 0.002, 0.084},
                                                            {radius, 0.05},
                                                            {radius, 0.0},
                                                            {radius, -0.06},
                                                            {radius - 0.02, -0.10},
                                                            {rimRadius, -0.10},
                                                            {0.05, -0.09}};
    Mesh wheel;
    wheel.finish = Finish::Wheel;
    wheel.centre = hub;
    wheel.turn = turn;
    std::vector<std::vector<Vec>> rows;
    for (const auto& [r, out] : profile) {
        std::vector<Vec> ring;
        for (int k = 0; k <= 56; ++k) {
            const double a = 2 * pi * k / 56;
            ring.push_back(hub + Vec{r * std::cos(a), side * out, r * std::sin(a)});
        }
        rows.push_back(ring);
    }
    AddGrid(wheel, rows, hub);
    // The dished part of the face points toward the hub's outside, not away from the hub itself.
    for (std::size_t i = 0; i < 9U * 57U; ++i) {
        if (wheel.vertices[i].normal.y * side < 0)
            wheel.vertices[i].normal = wheel.vertices[i].normal * -1.0;
    }
    parts.push_back(wheel);
}

} // namespace torvik::sample
