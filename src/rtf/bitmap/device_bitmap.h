#pragma once

#include <QImage>

#include <string_view>

namespace torvik::rtf {

/// A bitmap of the oldest kind: lines from top to bottom, each a whole number of 16-bit words.
struct DeviceBitmap {
    int width = 0;
    int height = 0;
    /// Bytes of a line; 0 for the smallest that holds it.
    int lineBytes = 0;
    int bitsPerPixel = 1;
    std::string_view pixels;
};

/// The image of a bitmap with 1, 24 or 32 bits for a pixel: the others need a device's palette and are null,
/// as are bitmaps that end early or would take more than `mostBytes` bytes.
QImage DecodeDeviceBitmap(const DeviceBitmap& bitmap, qint64 mostBytes);

} // namespace torvik::rtf
