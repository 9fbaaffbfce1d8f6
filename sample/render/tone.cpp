#include "sample/render/tone.h"

#include <array>

namespace torvik::sample {

namespace {

constexpr int toneSteps = 4096;

const std::array<float, 256>& ToLinear()
{
    static const std::array<float, 256> table = [] {
        std::array<float, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = static_cast<float>(std::pow(static_cast<double>(i) / 255.0, 2.2));
        return values;
    }();
    return table;
}

int ToByte(double light)
{
    static const std::array<unsigned char, toneSteps + 1> table = [] {
        std::array<unsigned char, toneSteps + 1> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            // The table runs over the square root of the light, so that the darks have enough steps.
            const double root = static_cast<double>(i) / toneSteps;
            values[i] = static_cast<unsigned char>(std::pow(root * root, 1.0 / 2.2) * 255.0 + 0.5);
        }
        return values;
    }();
    const double root = std::sqrt(Clamp01(light));
    return table[static_cast<std::size_t>(root * toneSteps + 0.5)];
}

} // namespace

Rgb LinearOfPixel(QRgb pixel)
{
    const auto& table = ToLinear();
    return {static_cast<double>(table[static_cast<std::size_t>(qRed(pixel))]),
            static_cast<double>(table[static_cast<std::size_t>(qGreen(pixel))]),
            static_cast<double>(table[static_cast<std::size_t>(qBlue(pixel))])};
}

Rgb Shoulder(const Rgb& light)
{
    const auto bend = [](double v) { return v < 0.8 ? v : 0.8 + 0.2 * (1.0 - std::exp(-(v - 0.8) / 0.45)); };
    return {bend(light.x), bend(light.y), bend(light.z)};
}

QRgb PixelOf(const Rgb& light, double cover)
{
    const int alpha = static_cast<int>(Clamp01(cover) * 255.0 + 0.5);
    return qRgba(std::min(ToByte(light.x), alpha), std::min(ToByte(light.y), alpha),
                 std::min(ToByte(light.z), alpha), alpha);
}

QRgb PixelOf(const Rgb& light)
{
    return qRgb(ToByte(light.x), ToByte(light.y), ToByte(light.z));
}

} // namespace torvik::sample
