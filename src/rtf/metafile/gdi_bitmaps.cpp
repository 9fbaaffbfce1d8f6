#include "rtf/bitmap/dib.h"
#include "rtf/metafile/gdi_canvas.h"

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
    const QRect source = GdiSource(bitmap, image.size());
    return source == image.rect() || image.isNull() ? image : image.copy(source);
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

void GdiCanvas::Bitmap(const GdiBitmap& bitmap)
{
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
    survey_.combines = survey_.combines || ModeOf(bitmap.operation) != QPainter::CompositionMode_SourceOver;
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
    painter_->drawImage(place, image);
    painter_->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace torvik::rtf
