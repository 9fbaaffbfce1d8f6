#include "rtf/bitmap/dib.h"
#include "rtf/metafile/emf_player.h"
#include "rtf/metafile/gdi_numbers.h"

#include <algorithm>

// The records of enhanced metafiles that carry a bitmap.

namespace torvik::rtf {

namespace {

/// Where a record holds the offsets of a bitmap's header and pixels.
constexpr std::size_t placesOfBlt = 84;
constexpr std::size_t placesOfDibits = 48;
constexpr std::size_t placesOfPattern = 16;
constexpr std::size_t placesOfMask = 112;
constexpr qint64 mostMaskBytes = 16LL * 1024 * 1024;
/// The operation that changes nothing.
constexpr quint8 leavesTarget = 0xaa;

RasterOperation OperationAt(const ByteReader& in, std::size_t at)
{
    return static_cast<RasterOperation>(in.U32(at));
}

QRect SourceRect(const ByteReader& in, std::size_t placeAt, std::size_t sizeAt)
{
    const auto side = [&](std::size_t at) { return std::clamp(in.S32(at), -100000, 100000); };
    return {side(placeAt), side(placeAt + 4), side(sizeAt), side(sizeAt + 4)};
}

QRectF TargetRect(const ByteReader& in, std::size_t placeAt, std::size_t sizeAt)
{
    return {double(in.S32(placeAt)), double(in.S32(placeAt + 4)), double(in.S32(sizeAt)),
            double(in.S32(sizeAt + 4))};
}

GdiBitmap BitmapAt(const ByteReader& in, std::size_t placesAt)
{
    GdiBitmap bitmap;
    bitmap.header = in.Slice(in.U32(placesAt), in.U32(placesAt + 4));
    bitmap.pixels = in.Slice(in.U32(placesAt + 8), in.U32(placesAt + 12));
    return bitmap;
}

} // namespace

bool EmfPlayer::PlayBitmap(EmfRecord type, const ByteReader& in)
{
    switch (type) {
    case EmfRecord::BitBlt:
        PutBitmap(in, placesOfBlt, SourceRect(in, 44, 32), TargetRect(in, 24, 32), OperationAt(in, 40));
        return true;
    case EmfRecord::MaskBlt:
        PutMaskedBitmap(in);
        return true;
    case EmfRecord::StretchBlt:
        PutBitmap(in, placesOfBlt, SourceRect(in, 44, 100), TargetRect(in, 24, 32), OperationAt(in, 40));
        return true;
    case EmfRecord::AlphaBlend: {
        // In place of the operation: what to do, flags, how much of the whole is seen, and whether pixels say
        // so too.
        GdiBitmap bitmap = BitmapAt(in, placesOfBlt);
        bitmap.source = SourceRect(in, 44, 100);
        bitmap.target = TargetRect(in, 24, 32);
        bitmap.opacity = in.U8(42) / 255.0;
        bitmap.hasAlpha = in.U8(43) == 1;
        canvas_.Bitmap(bitmap);
        return true;
    }
    case EmfRecord::SetDibitsToDevice:
        PutBitmap(in, placesOfDibits, SourceRect(in, 32, 40), TargetRect(in, 24, 40),
                  RasterOperation::SourceCopy);
        return true;
    case EmfRecord::StretchDibits:
        PutBitmap(in, placesOfDibits, SourceRect(in, 32, 40), TargetRect(in, 24, 72), OperationAt(in, 68));
        return true;
    default:
        return false;
    }
}

void EmfPlayer::PutPattern(const ByteReader& in, bool takesColors)
{
    const GdiBitmap bitmap = BitmapAt(in, placesOfPattern);
    const QImage pattern = DecodeDib(bitmap.header, bitmap.pixels, mostPatternBytes);
    // Runs make a large pattern out of few bytes.
    canvas_.Spend(workOfPatternPixel * pattern.width() * pattern.height());
    objects_.Put(in.U32(8), GdiPatternBrush(pattern, takesColors));
}

void EmfPlayer::PutMaskedBitmap(const ByteReader& in)
{
    // Two operations in one number: the highest byte is for the pixels that the mask leaves out.
    const auto operation = static_cast<RasterOperation>(in.U32(40) & 0xffffffU);
    const QRectF target = TargetRect(in, 24, 32);
    if (in.U32(placesOfBlt + 4) == 0)
        return canvas_.Fill(target, operation);
    GdiBitmap bitmap = BitmapAt(in, placesOfBlt);
    bitmap.source = SourceRect(in, 44, 32);
    bitmap.target = target;
    bitmap.operation = operation;
    const GdiBitmap mask = BitmapAt(in, placesOfMask);
    if (in.U8(43) == leavesTarget && ReadDibHeader(mask.header).bitsPerPixel == 1) {
        bitmap.mask = DecodeDib(mask.header, mask.pixels, mostMaskBytes);
        bitmap.maskOrigin = SourceRect(in, 100, 100).topLeft();
    }
    canvas_.Bitmap(bitmap);
}

void EmfPlayer::PutBitmap(const ByteReader& in, std::size_t placesAt, const QRect& source,
                          const QRectF& target, RasterOperation operation)
{
    if (in.U32(placesAt + 4) == 0)
        return canvas_.Fill(target, operation);
    GdiBitmap bitmap = BitmapAt(in, placesAt);
    bitmap.source = source;
    bitmap.target = target;
    bitmap.operation = operation;
    // Only the two records that take pixels straight from memory count their lines from below, as these are
    // stored.
    bitmap.sourceFromBottom = placesAt == placesOfDibits && !ReadDibHeader(bitmap.header).topDown;
    canvas_.Bitmap(bitmap);
}

} // namespace torvik::rtf
