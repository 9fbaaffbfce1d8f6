#include "rtf/bitmap/device_bitmap.h"

#include "rtf/bitmap/byte_reader.h"
#include "rtf/bounds/limits.h"

#include <algorithm>

namespace torvik::rtf {

QImage DecodeDeviceBitmap(const DeviceBitmap& bitmap, qint64 mostBytes)
{
    const int bits = bitmap.bitsPerPixel;
    const bool isKnown = bits == 1 || bits == 24 || bits == 32;
    if (!isKnown || bitmap.width <= 0 || bitmap.height <= 0 || bitmap.width > maxPictureSide ||
        bitmap.height > maxPictureSide)
        return {};
    const qint64 needed = (qint64(bitmap.width) * bits + 15) / 16 * 2;
    const qint64 line = std::max<qint64>(needed, bitmap.lineBytes);
    const ByteReader in(bitmap.pixels);
    if (qint64(in.Size()) / line < bitmap.height || qint64(bitmap.width) * bitmap.height * 4 > mostBytes)
        return {};
    QImage image(bitmap.width, bitmap.height, bits == 1 ? QImage::Format_Mono : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    if (bits == 1)
        image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int y = 0; y < bitmap.height; ++y) {
        const auto from = static_cast<std::size_t>(line * y);
        if (bits == 1) {
            std::copy_n(in.Slice(from).data(), (bitmap.width + 7) / 8, image.scanLine(y));
            continue;
        }
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < bitmap.width; ++x) {
            const std::size_t at = from + static_cast<std::size_t>(x * bits / 8);
            to[x] = qRgb(in.U8(at + 2), in.U8(at + 1), in.U8(at));
        }
    }
    return image;
}

} // namespace torvik::rtf
