#include "sample/render/film.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/wide_registers.h"

#include <algorithm>
#include <array>
#include <vector>

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
            values[i] = static_cast<unsigned char>(Floor(std::pow(root * root, 1.0 / 2.2) * 255.0 + 0.5));
        }
        return values;
    }();
    const double root = std::sqrt(Clamp01(light));
    return table[static_cast<std::size_t>(Floor(root * toneSteps + 0.5))];
}

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

/// The curve of one colour layer of the film: lifted darks, a soft top and a cast.
std::array<int, 256> Layer(double low, double high, double contrast)
{
    std::array<int, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double v = static_cast<double>(i) / 255.0;
        const double s = v * v * (3 - 2 * v);
        table[i] =
            static_cast<int>(std::clamp(Mix(low, high, Mix(v, s, contrast)) * 255.0 + 0.5, 0.0, 255.0));
    }
    return table;
}

/// Adds the glow round lights: what is brighter than `threshold`, blurred.
void Bleed(QImage& picture)
{
    QImage bright = picture.scaled(picture.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < bright.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(bright.scanLine(y));
        for (int x = 0; x < bright.width(); ++x) {
            const auto over = [](int v) { return std::max(0, v - 205) * 2; };
            line[x] = qRgb(over(qRed(line[x])), over(qGreen(line[x])), over(qBlue(line[x])));
        }
    }
    const double scale = std::max(picture.width(), picture.height()) / 1280.0;
    const QImage glow = Blurred(bright, 5.0 * scale)
                            .scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const auto* more = reinterpret_cast<const QRgb*>(glow.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const auto screen = [](int a, int b) { return 255 - (255 - a) * (255 - b * 45 / 100) / 255; };
            line[x] = qRgb(screen(qRed(line[x]), qRed(more[x])), screen(qGreen(line[x]), qGreen(more[x])),
                           screen(qBlue(line[x]), qBlue(more[x])));
        }
    }
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
    const int alpha = Floor(Clamp01(cover) * 255.0 + 0.5);
    return qRgba(std::min(ToByte(light.x), alpha), std::min(ToByte(light.y), alpha),
                 std::min(ToByte(light.z), alpha), alpha);
}

QRgb PixelOf(const Rgb& light)
{
    return qRgb(ToByte(light.x), ToByte(light.y), ToByte(light.z));
}

QImage Blurred(const QImage& picture, double radius)
{
    QImage soft = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int reach = Floor(radius * 0.75 + 0.5);
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

void Develop(QImage& picture, int year, std::uint32_t seed)
{
    Bleed(picture);
    LetGoOfWideRegisters();
    std::array<int, 256> red = Layer(0.01, 1.0, 0.22);
    std::array<int, 256> green = Layer(0.01, 1.0, 0.22);
    std::array<int, 256> blue = Layer(0.012, 1.0, 0.22);
    double grain = 5.0;
    if (year < 1971) {
        red = Layer(0.045, 1.0, 0.30);
        green = Layer(0.03, 0.975, 0.26);
        blue = Layer(0.05, 0.90, 0.18);
        grain = 9.0;
    } else if (year < 1980) {
        red = Layer(0.05, 1.0, 0.20);
        green = Layer(0.04, 0.965, 0.22);
        blue = Layer(0.06, 0.88, 0.14);
        grain = 9.0;
    } else if (year < 1990) {
        red = Layer(0.02, 0.99, 0.28);
        green = Layer(0.02, 0.99, 0.26);
        blue = Layer(0.035, 0.985, 0.22);
        grain = 7.0;
    }
    Random random(seed);
    const double halfX = picture.width() / 2.0;
    const double halfY = picture.height() / 2.0;
    int before = 0;
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const double dy = (y - halfY) / halfY;
        std::uint64_t bits = 0;
        for (int x = 0; x < picture.width(); ++x) {
            if (x % 8 == 0)
                bits = random.Bits();
            // Neighbouring grains hang together a little.
            const int fresh = static_cast<int>((bits >> (8 * (x % 8))) & 255U) - 128;
            before = (before + fresh * 2) / 3;
            const double dx = (x - halfX) / halfX;
            const double away = dx * dx * 0.75 + dy * dy * 0.5;
            const double fall = 1.0 - 0.26 * away * away - 0.05 * away;
            const double speck = before * grain / 128.0;
            const auto out = [&](const std::array<int, 256>& layer, int value) {
                return static_cast<int>(
                    std::clamp(layer[static_cast<std::size_t>(value)] * fall + speck, 0.0, 255.0));
            };
            line[x] = qRgb(out(red, qRed(line[x])), out(green, qGreen(line[x])), out(blue, qBlue(line[x])));
        }
    }
}

} // namespace torvik::sample
