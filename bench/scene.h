#pragma once

#include <QImage>

namespace torvik::bench {

/// Something with as much detail as a photograph: slow waves and a grain over them.
inline QImage Scene(const QSize& size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    unsigned grain = static_cast<unsigned>(seed) * 2654435761U + 1;
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            grain = grain * 1664525U + 1013904223U;
            const int noise = static_cast<int>(grain >> 28);
            line[x] = qRgb((x * 255 / size.width() + noise) & 255, (y * 255 / size.height() + noise) & 255,
                           ((x / 40 + y / 30 + seed) * 16 + noise) & 255);
        }
    }
    return image;
}

} // namespace torvik::bench
