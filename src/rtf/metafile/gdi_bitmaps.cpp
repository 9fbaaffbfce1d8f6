#include "rtf/bitmap/byte_reader.h"
#include "rtf/bitmap/dib.h"
#include "rtf/metafile/gdi_canvas.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>

// How bitmaps come onto a canvas.

namespace torvik::rtf {

namespace {

QPainter::CompositionMode ModeOf(RasterOperation operation)
{
    switch (operation) {
    case RasterOperation::SourceInvert:
        return QPainter::RasterOp_SourceXorDestination;
    case RasterOperation::SourceAnd:
        return QPainter::RasterOp_SourceAndDestination;
    case RasterOperation::SourcePaint:
        return QPainter::RasterOp_SourceOrDestination;
    case RasterOperation::MergePaint:
        return QPainter::RasterOp_NotSourceOrDestination;
    case RasterOperation::NotSourceCopy:
        return QPainter::RasterOp_NotSource;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

/// Whether an operation makes no use of the bitmap that comes with it.
bool LeavesBitmap(RasterOperation operation)
{
    return operation == RasterOperation::Blackness || operation == RasterOperation::Whiteness ||
           operation == RasterOperation::PatternCopy;
}

/// The same bitmap with a source of positive sides; what that mirrors is mirrored in the target.
GdiBitmap Straightened(const GdiBitmap& bitmap)
{
    GdiBitmap straight = bitmap;
    QRect& source = straight.source;
    QRectF& target = straight.target;
    if (source.width() < 0) {
        source.setRect(source.x() + source.width(), source.y(), -source.width(), source.height());
        target.setRect(target.x() + target.width(), target.y(), -target.width(), target.height());
    }
    if (source.height() < 0) {
        source.setRect(source.x(), source.y() + source.height(), source.width(), -source.height());
        target.setRect(target.x(), target.y() + target.height(), target.width(), -target.height());
    }
    return straight;
}

/// The pixels of a bitmap of 32 bits with their fourth bytes. Their colours are already as dark as these make
/// them.
QImage WithAlpha(const GdiBitmap& bitmap, const QImage& image)
{
    const DibHeader header = ReadDibHeader(bitmap.header);
    const ByteReader in(bitmap.pixels);
    if (image.isNull() || header.bitsPerPixel != 32 || header.compression != 0)
        return image;
    QImage clear(image.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < clear.height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(clear.scanLine(y));
        const int line = header.topDown ? y : header.height - 1 - y;
        std::size_t at = header.LineBytes() * static_cast<std::size_t>(line);
        for (int x = 0; x < clear.width(); ++x, at += 4) {
            const int alpha = in.U8(at + 3);
            to[x] = qRgba(std::min<int>(in.U8(at + 2), alpha), std::min<int>(in.U8(at + 1), alpha),
                          std::min<int>(in.U8(at), alpha), alpha);
        }
    }
    return clear;
}

/// The pixels that a mask leaves; beyond its edges it leaves all.
QImage Masked(const QImage& image, const GdiBitmap& bitmap)
{
    QImage masked = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < masked.height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(masked.scanLine(y));
        for (int x = 0; x < masked.width(); ++x) {
            const QPoint at = bitmap.maskOrigin + QPoint(x, y);
            if (bitmap.mask.valid(at) && bitmap.mask.pixelIndex(at) == 0)
                to[x] = 0;
        }
    }
    return masked;
}

QSize SizeOf(const GdiBitmap& bitmap)
{
    if (!bitmap.image.isNull())
        return bitmap.image.size();
    const DibHeader header = ReadDibHeader(bitmap.header);
    return header.IsValid() ? QSize(header.width, header.height) : QSize();
}

} // namespace

QImage DecodeGdiBitmap(const GdiBitmap& bitmap, qint64 mostBytes)
{
    QImage image = bitmap.image;
    if (image.isNull())
        image = DecodeDib(bitmap.header, bitmap.pixels, mostBytes);
    if (bitmap.hasAlpha)
        image = WithAlpha(bitmap, image);
    const QRect source = GdiSource(bitmap, image.size());
    if (source != image.rect() && !image.isNull())
        image = image.copy(source);
    return bitmap.mask.isNull() || image.isNull() ? image : Masked(image, bitmap);
}

QRect GdiSource(const GdiBitmap& bitmap, const QSize& size)
{
    const QRect all({0, 0}, size);
    if (bitmap.source.isEmpty())
        return all;
    QRect source = bitmap.source;
    if (bitmap.sourceFromBottom && source.height() < size.height())
        source.moveTop(size.height() - source.top() - source.height());
    source &= all;
    return source.isEmpty() ? all : source;
}

void GdiCanvas::Bitmap(const GdiBitmap& given)
{
    if (LeavesBitmap(given.operation))
        return Fill(given.target, given.operation);
    const GdiBitmap bitmap = Straightened(given);
    const QSize size = SizeOf(bitmap);
    if (size.isEmpty())
        return;
    const QPointF start = Map(bitmap.target.topLeft());
    const QPointF end = Map(bitmap.target.bottomRight());
    const QRectF place = QRectF(start, end).normalized();
    const QRect source = GdiSource(bitmap, size);
    const bool isMirroredAcross = end.x() < start.x();
    const bool isMirroredDown = end.y() < start.y();
    if (survey_.bitmaps++ == 0) {
        survey_.first = bitmap;
        survey_.firstPlace = place;
        survey_.firstIsMirroredAcross = isMirroredAcross;
        survey_.firstIsMirroredDown = isMirroredDown;
    }
    const bool combines = ModeOf(bitmap.operation) != QPainter::CompositionMode_SourceOver;
    // Clips are often a little narrower than the picture that they are meant to let through.
    const QMarginsF slack(place.width() / 50, place.height() / 50, place.width() / 50, place.height() / 50);
    const bool isCut = state_.isClipped && !state_.clip.contains(place.marginsRemoved(slack));
    survey_.combines = survey_.combines || combines;
    survey_.changesBitmap = survey_.changesBitmap || combines || isCut || bitmap.opacity < 1;
    if (place.width() > 0 && place.height() > 0) {
        survey_.densityX = std::max(survey_.densityX, source.width() / place.width());
        survey_.densityY = std::max(survey_.densityY, source.height() / place.height());
    }
    const QRectF seen = painter_ != nullptr ? place & QRectF(painter_->viewport()) : QRectF();
    if (!Note(place, 2.0 * size.width() * size.height() + 2 * seen.width() * seen.height()) || seen.isEmpty())
        return;
    QImage image = DecodeGdiBitmap(bitmap, mostBytes_);
    if (image.isNull())
        return;
    if (isMirroredAcross || isMirroredDown)
        image = image.mirrored(isMirroredAcross, isMirroredDown);
    const bool isSameSize =
        std::abs(place.width() - image.width()) < 0.01 && std::abs(place.height() - image.height()) < 0.01;
    painter_->setRenderHint(QPainter::SmoothPixmapTransform, !isSameSize);
    painter_->setCompositionMode(ModeOf(bitmap.operation));
    painter_->setOpacity(bitmap.opacity);
    painter_->drawImage(place, image);
    painter_->setOpacity(1);
    painter_->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace torvik::rtf
