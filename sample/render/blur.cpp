#include "sample/render/blur.h"

#include <algorithm>
#include <vector>

namespace torvik::sample {

namespace {

/// The mean over 2 * radius + 1 pixels along lines of `count` pixels that lie `step` apart.
void BoxLine(QRgb* pixels, int count, std::ptrdiff_t step, int radius, std::vector<QRgb>& copy)
{
    const auto at = [&](int i) { return copy[static_cast<std::size_t>(std::clamp(i, 0, count - 1))]; };
    for (int i = 0; i < count; ++i)
        copy[static_cast<std::size_t>(i)] = pixels[i * step];
    int sum[4] = {0, 0, 0, 0};
    const auto add = [&sum](QRgb pixel, int sign) {
        sum[0] += sign * qRed(pixel);
        sum[1] += sign * qGreen(pixel);
        sum[2] += sign * qBlue(pixel);
        sum[3] += sign * qAlpha(pixel);
    };
    for (int i = -radius; i <= radius; ++i)
        add(at(i), 1);
    const int size = 2 * radius + 1;
    for (int i = 0; i < count; ++i) {
        pixels[i * step] = qRgba((sum[0] + radius) / size, (sum[1] + radius) / size, (sum[2] + radius) / size,
                                 (sum[3] + radius) / size);
        add(at(i - radius), -1);
        add(at(i + radius + 1), 1);
    }
}

} // namespace

QImage Blurred(const QImage& picture, double radius)
{
    QImage soft = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int reach = static_cast<int>(radius * 0.75 + 0.5);
    if (reach < 1)
        return soft;
    const std::ptrdiff_t stride = soft.bytesPerLine() / 4;
    auto* pixels = reinterpret_cast<QRgb*>(soft.bits());
    std::vector<QRgb> copy(static_cast<std::size_t>(std::max(soft.width(), soft.height())));
    for (int pass = 0; pass < 2; ++pass) {
        for (int y = 0; y < soft.height(); ++y)
            BoxLine(pixels + y * stride, soft.width(), 1, reach, copy);
        for (int x = 0; x < soft.width(); ++x)
            BoxLine(pixels + x, soft.height(), stride, reach, copy);
    }
    return soft;
}

} // namespace torvik::sample
