#include "sample/render/film.h"

#include "sample/geometry/noise.h"
#include "sample/geometry/vec.h"
#include "sample/render/blur.h"

#include <array>

namespace torvik::sample {

namespace {

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

void Develop(QImage& picture, int year, std::uint32_t seed)
{
    Bleed(picture);
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
