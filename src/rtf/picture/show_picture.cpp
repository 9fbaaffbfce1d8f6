#include "rtf/picture/show_picture.h"

#include "rtf/bitmap/device_bitmap.h"
#include "rtf/bitmap/dib.h"
#include "rtf/bitmap/stored_picture.h"
#include "rtf/bounds/budget.h"
#include "rtf/bounds/limits.h"
#include "rtf/metafile/metafile.h"

#include <algorithm>
#include <cmath>

// From the description of a picture to what is seen of it.

namespace torvik::rtf {

namespace {

constexpr double largestShownSide = PixelsFromTwips(maxTwips);

bool IsMetafile(PictureKind kind)
{
    return kind == PictureKind::Wmf || kind == PictureKind::Emf;
}

std::string_view BytesOf(const PictureSource& source)
{
    return {source.data.constData(), static_cast<std::size_t>(source.data.size())};
}

/// Writers are not always true to the kind that they name, so the bytes have the last word.
PictureKind KindOf(const PictureSource& source)
{
    const std::string_view bytes = BytesOf(source);
    if (IsPng(bytes))
        return PictureKind::Png;
    if (IsJpeg(bytes))
        return PictureKind::Jpeg;
    constexpr std::size_t signatureAt = 40;
    if (bytes.size() > signatureAt + 4 && bytes.substr(signatureAt, 4) == " EMF")
        return PictureKind::Emf;
    return source.kind;
}

/// The size before scaling and cropping, pixels; empty when the document does not say.
QSizeF StatedSize(const PictureSource& source)
{
    double width = PixelsFromTwips(source.goalWidth);
    double height = PixelsFromTwips(source.goalHeight);
    const double unit = IsMetafile(source.kind) ? pixelsPerHundredthMillimetre : 1.0;
    if (source.goalWidth == 0)
        width = source.width * unit;
    if (source.goalHeight == 0)
        height = source.height * unit;
    return {width, height};
}

/// What the document leaves open follows from the picture itself, a single side from its proportions.
QSizeF Completed(const QSizeF& stated, const QSizeF& natural)
{
    if (!stated.isEmpty() || natural.isEmpty())
        return stated;
    if (stated.width() > 0)
        return {stated.width(), stated.width() * natural.height() / natural.width()};
    if (stated.height() > 0)
        return {stated.height() * natural.width() / natural.height(), stated.height()};
    return natural;
}

/// The part of 1 that a crop leaves: from `start` on, `length` long.
struct Kept {
    double start = 0;
    double length = 1;
};

Kept KeptPart(int cropStart, int cropEnd, double side)
{
    if (side <= 0)
        return {};
    const double start = std::max(0.0, PixelsFromTwips(cropStart)) / side;
    const double end = std::max(0.0, PixelsFromTwips(cropEnd)) / side;
    // A crop that leaves nothing is a mistake of the writer.
    return start + end < 0.99 ? Kept{start, 1 - start - end} : Kept{};
}

QImage Cropped(const QImage& image, const Kept& across, const Kept& down)
{
    if (across.length >= 1 && down.length >= 1)
        return image;
    const int left = static_cast<int>(std::lround(across.start * image.width()));
    const int top = static_cast<int>(std::lround(down.start * image.height()));
    const int width = std::max(1, static_cast<int>(std::lround(across.length * image.width())));
    const int height = std::max(1, static_cast<int>(std::lround(down.length * image.height())));
    return image.copy(QRect(left, top, width, height) & image.rect());
}

QImage DecodedPicture(const PictureSource& source, QSizeF& size, qint64 mostBytes)
{
    const std::string_view bytes = BytesOf(source);
    MetafileImage drawn;
    switch (KindOf(source)) {
    case PictureKind::Png:
    case PictureKind::Jpeg:
        return DecodeStoredPicture(bytes, mostBytes);
    case PictureKind::Dib:
        return DecodePackedDib(bytes, mostBytes);
    case PictureKind::DeviceBitmap:
        return DecodeDeviceBitmap({source.width, source.height, source.lineBytes, source.bitsPerPixel, bytes},
                                  mostBytes);
    case PictureKind::Wmf:
        drawn = DrawWmf(bytes, size, mostBytes);
        break;
    case PictureKind::Emf:
        drawn = DrawEmf(bytes, size, mostBytes);
        break;
    case PictureKind::Unknown:
        return DecodePackedDib(bytes, mostBytes);
    }
    size = Completed(size, drawn.naturalSize);
    return drawn.image;
}

} // namespace

ShownPicture ShowPicture(const PictureSource& source, Budget& budget)
{
    QSizeF size = StatedSize(source);
    ShownPicture shown;
    shown.image = DecodedPicture(source, size, budget.Left() / 2);
    if (shown.image.isNull() || !budget.Take(shown.image.sizeInBytes())) {
        shown.image = QImage();
        return shown;
    }
    size = Completed(size, shown.image.size());
    const Kept across = KeptPart(source.cropLeft, source.cropRight, size.width());
    const Kept down = KeptPart(source.cropTop, source.cropBottom, size.height());
    shown.image = Cropped(shown.image, across, down);
    shown.size = {std::clamp(size.width() * across.length * source.scaleX / 100.0, 1.0, largestShownSide),
                  std::clamp(size.height() * down.length * source.scaleY / 100.0, 1.0, largestShownSide)};
    return shown;
}

} // namespace torvik::rtf
