#pragma once

#include <QImage>

#include <string_view>

namespace torvik::rtf {

/// How a device-independent bitmap is laid out.
struct DibHeader {
    int width = 0;
    int height = 0;
    bool topDown = false;
    int bitsPerPixel = 0;
    quint32 compression = 0;
    quint32 redMask = 0;
    quint32 greenMask = 0;
    quint32 blueMask = 0;
    /// Where the colours of the palette stand, how many there are, and the bytes of each.
    std::size_t paletteAt = 0;
    int paletteSize = 0;
    int paletteEntryBytes = 4;
    /// Length of header, masks and palette, which is where the pixels of a packed bitmap begin.
    std::size_t bytesBeforePixels = 0;

    bool IsValid() const { return width > 0; }
    std::size_t LineBytes() const;
};

/// Reads a header; invalid when the bytes are none, or when its sides or colours are out of bounds.
DibHeader ReadDibHeader(std::string_view bytes);

/// The image of a bitmap whose header and pixels are apart. Null when the pixels end early or are none, and
/// when the image would take more than `mostBytes` bytes. No other bytes than those given are read.
QImage DecodeDib(std::string_view header, std::string_view pixels, qint64 mostBytes);
/// The same for header and pixels in one piece; a file header in front ("BM") is passed over.
QImage DecodePackedDib(std::string_view bytes, qint64 mostBytes);

} // namespace torvik::rtf
