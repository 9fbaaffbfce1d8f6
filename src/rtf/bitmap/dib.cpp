#include "rtf/bitmap/dib.h"

#include "rtf/bitmap/byte_reader.h"
#include "rtf/bitmap/dib_runs.h"
#include "rtf/bitmap/stored_picture.h"
#include "rtf/bounds/limits.h"

#include <algorithm>
#include <bit>

namespace torvik::rtf {

namespace {

constexpr std::size_t coreHeaderBytes = 12;
constexpr std::size_t infoHeaderBytes = 40;
constexpr std::size_t fileHeaderBytes = 14;

enum Compression : quint32 { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3, Jpeg = 4, Png = 5 };

/// The bits of a pixel that a mask selects, spread over 0 to 255.
class Channel {
public:
    explicit Channel(quint32 mask)
        : mask_(mask), shift_(mask != 0 ? std::countr_zero(mask) : 0), most_(mask != 0 ? mask >> shift_ : 0)
    {}
    int Of(quint32 pixel) const
    {
        return most_ == 0 ? 0 : static_cast<int>(quint64((pixel & mask_) >> shift_) * 255 / most_);
    }

private:
    quint32 mask_;
    int shift_;
    quint32 most_;
};

bool ReadCoreHeader(const ByteReader& in, DibHeader& header)
{
    header.width = in.U16(4);
    header.height = in.U16(6);
    header.bitsPerPixel = in.U16(10);
    header.paletteAt = coreHeaderBytes;
    header.paletteEntryBytes = 3;
    header.paletteSize = header.bitsPerPixel <= 8 ? 1 << header.bitsPerPixel : 0;
    return true;
}

bool ReadInfoHeader(const ByteReader& in, DibHeader& header)
{
    const quint32 size = in.U32(0);
    const qint32 height = in.S32(8);
    if (size > in.Size() || height == INT32_MIN)
        return false;
    header.width = in.S32(4);
    header.topDown = height < 0;
    header.height = std::abs(height);
    header.bitsPerPixel = in.U16(14);
    header.compression = in.U32(16);
    header.paletteAt = size;
    if (header.compression == BitFields) {
        header.redMask = in.U32(infoHeaderBytes);
        header.greenMask = in.U32(infoHeaderBytes + 4);
        header.blueMask = in.U32(infoHeaderBytes + 8);
        if (size == infoHeaderBytes)
            header.paletteAt += 12;
    }
    const quint32 used = in.U32(32);
    int most = header.bitsPerPixel <= 8 ? 1 << header.bitsPerPixel : 256;
    // A stored picture inside leaves its depth open, and has its own palette.
    if (header.bitsPerPixel == 0)
        most = 0;
    if (used > static_cast<quint32>(most))
        header.paletteSize = header.bitsPerPixel <= 8 ? most : 0;
    else
        header.paletteSize = used != 0 ? static_cast<int>(used) : (header.bitsPerPixel <= 8 ? most : 0);
    return true;
}

void SetDefaultMasks(DibHeader& header)
{
    const bool has = (header.redMask | header.greenMask | header.blueMask) != 0;
    if (has && header.compression == BitFields)
        return;
    header.redMask = header.bitsPerPixel == 16 ? 0x7c00 : 0xff0000;
    header.greenMask = header.bitsPerPixel == 16 ? 0x03e0 : 0x00ff00;
    header.blueMask = header.bitsPerPixel == 16 ? 0x001f : 0x0000ff;
}

QList<QRgb> ReadPalette(const ByteReader& in, const DibHeader& header)
{
    // Pixels may name colours that the palette leaves out; those are black.
    QList<QRgb> palette(qsizetype(1) << header.bitsPerPixel, qRgb(0, 0, 0));
    const auto count = std::min<qsizetype>(header.paletteSize, palette.size());
    for (qsizetype i = 0; i < count; ++i) {
        const std::size_t at = header.paletteAt + static_cast<std::size_t>(i * header.paletteEntryBytes);
        palette[i] = qRgb(in.U8(at + 2), in.U8(at + 1), in.U8(at));
    }
    return palette;
}

void CopyIndexedLine(const ByteReader& in, std::size_t from, int bits, uchar* to, int width)
{
    for (int x = 0; x < width; ++x) {
        if (bits == 8)
            to[x] = in.U8(from + static_cast<std::size_t>(x));
        else
            to[x] = static_cast<uchar>(in.U8(from + static_cast<std::size_t>(x) / 2) >> (x % 2 == 0 ? 4 : 0) &
                                       15);
    }
}

void CopyColorLine(const ByteReader& in, std::size_t from, const DibHeader& header, QRgb* to)
{
    const Channel red(header.redMask);
    const Channel green(header.greenMask);
    const Channel blue(header.blueMask);
    const auto step = static_cast<std::size_t>(header.bitsPerPixel / 8);
    for (int x = 0; x < header.width; ++x, from += step) {
        if (step == 3) {
            to[x] = qRgb(in.U8(from + 2), in.U8(from + 1), in.U8(from));
            continue;
        }
        const quint32 pixel = step == 2 ? in.U16(from) : in.U32(from);
        to[x] = qRgb(red.Of(pixel), green.Of(pixel), blue.Of(pixel));
    }
}

QImage::Format FormatFor(int bits)
{
    return bits == 1 ? QImage::Format_Mono : bits <= 8 ? QImage::Format_Indexed8 : QImage::Format_RGB32;
}

void CopyLines(const ByteReader& in, const DibHeader& header, QImage& image)
{
    const std::size_t lineBytes = header.LineBytes();
    for (int line = 0; line < header.height; ++line) {
        uchar* to = image.scanLine(header.topDown ? line : header.height - 1 - line);
        const std::size_t from = lineBytes * static_cast<std::size_t>(line);
        if (header.bitsPerPixel == 1)
            std::copy_n(in.Slice(from).data(), (header.width + 7) / 8, to);
        else if (header.bitsPerPixel <= 8)
            CopyIndexedLine(in, from, header.bitsPerPixel, to, header.width);
        else
            CopyColorLine(in, from, header, reinterpret_cast<QRgb*>(to));
    }
}

} // namespace

std::size_t DibHeader::LineBytes() const
{
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 31) / 32 * 4;
}

DibHeader ReadDibHeader(std::string_view bytes)
{
    const ByteReader in(bytes);
    DibHeader header;
    const quint32 size = in.U32(0);
    const bool isCore = size == coreHeaderBytes && in.Has(0, coreHeaderBytes);
    const bool isInfo = size >= infoHeaderBytes && in.Has(0, infoHeaderBytes);
    const quint16 bits = in.U16(isCore ? 10 : 14);
    const bool isStored = isInfo && (in.U32(16) == Jpeg || in.U32(16) == Png);
    const bool hasKnownDepth = bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    if ((!isCore && !isInfo) || !(hasKnownDepth || isStored))
        return {};
    if (!(isCore ? ReadCoreHeader(in, header) : ReadInfoHeader(in, header)))
        return {};
    if (header.width <= 0 || header.height <= 0 || header.width > maxPictureSide ||
        header.height > maxPictureSide || header.compression > Png)
        return {};
    SetDefaultMasks(header);
    header.bytesBeforePixels =
        header.paletteAt + static_cast<std::size_t>(header.paletteSize * header.paletteEntryBytes);
    return header;
}

QImage DecodeDib(std::string_view headerBytes, std::string_view pixels, qint64 mostBytes)
{
    const DibHeader header = ReadDibHeader(headerBytes);
    if (!header.IsValid())
        return {};
    if (header.compression == Jpeg || header.compression == Png)
        return DecodeStoredPicture(pixels, mostBytes);
    const bool isRuns = header.compression == Rle8 || header.compression == Rle4;
    if (isRuns && header.bitsPerPixel != (header.compression == Rle8 ? 8 : 4))
        return {};
    const ByteReader in(pixels);
    const std::size_t wanted = header.LineBytes() * static_cast<std::size_t>(header.height);
    if (!isRuns && !in.Has(0, wanted))
        return {};
    if (qint64(header.width) * header.height * 4 > mostBytes)
        return {};
    QImage image(header.width, header.height, FormatFor(header.bitsPerPixel));
    if (image.isNull())
        return {};
    if (header.bitsPerPixel <= 8)
        image.setColorTable(ReadPalette(ByteReader(headerBytes), header));
    if (isRuns) {
        image.fill(0);
        DecodeRuns(pixels, header.bitsPerPixel, header.topDown, image);
    } else {
        CopyLines(in, header, image);
    }
    return image;
}

QImage DecodePackedDib(std::string_view bytes, qint64 mostBytes)
{
    const std::string_view packed =
        bytes.starts_with("BM") ? ByteReader(bytes).Slice(fileHeaderBytes) : bytes;
    const DibHeader header = ReadDibHeader(packed);
    if (!header.IsValid())
        return {};
    return DecodeDib(packed, ByteReader(packed).Slice(header.bytesBeforePixels), mostBytes);
}

} // namespace torvik::rtf
