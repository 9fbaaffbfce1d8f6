#include "rtf/bitmap/device_bitmap.h"
#include "rtf/bitmap/dib.h"
#include "rtf/metafile/wmf_player.h"

// The records of the older metafiles that carry a bitmap.

namespace torvik::rtf {

namespace {

constexpr std::size_t deviceBitmapHeaderBytes = 10;
/// Behind the header of a brush's bitmap stand a pointer and 18 more bytes without meaning.
constexpr std::size_t pixelsOfOldPattern = 32;
constexpr quint16 patternOfDevice = 3;
constexpr qint64 mostDeviceBitmapBytes = 16LL * 1024 * 1024;

struct Places {
    QRect source;
    QRectF target;
};

/// With scaling: source height, width, y, x, then target height, width, y, x. Without: source y, x, then the
/// size that both share, then target y, x. `at` is where the first of these numbers stands.
Places ReadPlaces(const ByteReader& in, std::size_t at, bool scales)
{
    if (scales) {
        return {{in.S16(at + 6), in.S16(at + 4), in.S16(at + 2), in.S16(at)},
                QRectF(in.S16(at + 14), in.S16(at + 12), in.S16(at + 10), in.S16(at + 8))};
    }
    const int width = in.S16(at + 6);
    const int height = in.S16(at + 4);
    return {{in.S16(at + 2), in.S16(at), width, height},
            QRectF(in.S16(at + 10), in.S16(at + 8), width, height)};
}

DeviceBitmap DeviceBitmapAt(const ByteReader& in, std::size_t at, std::size_t pixelsAt)
{
    DeviceBitmap bitmap;
    bitmap.width = in.S16(at + 2);
    bitmap.height = in.S16(at + 4);
    bitmap.lineBytes = in.S16(at + 6);
    bitmap.bitsPerPixel = in.U8(at + 9);
    bitmap.pixels = in.Slice(pixelsAt);
    return bitmap;
}

} // namespace

bool WmfPlayer::PlayBitmap(WmfFunction function, const ByteReader& in)
{
    switch (function) {
    case WmfFunction::StretchDib:
        PlayDib(in, 6, 22, true);
        return true;
    case WmfFunction::DibStretchBlt:
        PlayDib(in, 4, 20, true);
        return true;
    case WmfFunction::DibBitBlt:
        PlayDib(in, 4, 16, false);
        return true;
    case WmfFunction::SetDibToDev: {
        // The operation is missing here, and two numbers of scan lines stand before the places.
        GdiBitmap bitmap;
        const Places places = ReadPlaces(in, 6, false);
        bitmap.header = in.Slice(18);
        const DibHeader header = ReadDibHeader(bitmap.header);
        bitmap.source = places.source;
        bitmap.sourceFromBottom = !header.topDown;
        bitmap.target = places.target;
        bitmap.pixels = ByteReader(bitmap.header).Slice(header.bytesBeforePixels);
        canvas_.Bitmap(bitmap);
        return true;
    }
    case WmfFunction::StretchBlt:
        PlayDeviceBitmap(in, 4, 20, true);
        return true;
    case WmfFunction::BitBlt:
        PlayDeviceBitmap(in, 4, 16, false);
        return true;
    default:
        return false;
    }
}

void WmfPlayer::AddPattern(WmfFunction function, const ByteReader& in)
{
    QImage pattern;
    bool takesColors = true;
    if (function == WmfFunction::CreatePatternBrush) {
        pattern = DecodeDeviceBitmap(DeviceBitmapAt(in, 0, pixelsOfOldPattern), mostPatternBytes);
    } else {
        // The kind of brush tells where the bitmap came from; then comes the use of the palette.
        takesColors = in.U16(0) == patternOfDevice;
        pattern = DecodePackedDib(in.Slice(4), mostPatternBytes);
    }
    // Runs make a large pattern out of few bytes.
    canvas_.Spend(workOfPatternPixel * pattern.width() * pattern.height());
    objects_.Add(GdiPatternBrush(pattern, takesColors));
}

void WmfPlayer::FillBlock(const ByteReader& in, bool scales)
{
    // A number without meaning stands before the size of the target.
    const std::size_t sizeAt = scales ? 14 : 10;
    const QRectF target(in.S16(sizeAt + 6), in.S16(sizeAt + 4), in.S16(sizeAt + 2), in.S16(sizeAt));
    canvas_.Fill(target, static_cast<RasterOperation>(in.U32(0)));
}

void WmfPlayer::PlayDib(const ByteReader& in, std::size_t sizesAt, std::size_t dibAt, bool scales)
{
    const bool isStretchDib = sizesAt == 6;
    if (!isStretchDib && in.Size() <= dibAt + 2)
        return FillBlock(in, scales);
    const std::string_view dib = in.Slice(dibAt);
    const DibHeader header = ReadDibHeader(dib);
    const Places places = ReadPlaces(in, sizesAt, scales);
    if (!header.IsValid())
        return;
    GdiBitmap bitmap;
    bitmap.header = dib;
    bitmap.pixels = ByteReader(dib).Slice(header.bytesBeforePixels);
    bitmap.source = places.source;
    bitmap.sourceFromBottom = isStretchDib && !header.topDown;
    bitmap.target = places.target;
    bitmap.operation = static_cast<RasterOperation>(in.U32(0));
    canvas_.Bitmap(bitmap);
}

void WmfPlayer::PlayDeviceBitmap(const ByteReader& in, std::size_t sizesAt, std::size_t bitmapAt, bool scales)
{
    if (in.Size() <= bitmapAt + 2)
        return FillBlock(in, scales);
    const Places places = ReadPlaces(in, sizesAt, scales);
    GdiBitmap bitmap;
    bitmap.image = DecodeDeviceBitmap(DeviceBitmapAt(in, bitmapAt, bitmapAt + deviceBitmapHeaderBytes),
                                      mostDeviceBitmapBytes);
    bitmap.source = places.source;
    bitmap.target = places.target;
    bitmap.operation = static_cast<RasterOperation>(in.U32(0));
    if (!bitmap.image.isNull())
        canvas_.Bitmap(bitmap);
}

} // namespace torvik::rtf
