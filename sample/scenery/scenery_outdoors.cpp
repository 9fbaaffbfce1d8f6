#include "sample/scenery/scenery_outdoors.h"

#include "sample/geometry/noise.h"

namespace torvik::sample {

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
