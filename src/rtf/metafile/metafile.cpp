#include "rtf/metafile/metafile.h"

#include "rtf/bounds/limits.h"
#include "rtf/metafile/emf.h"
#include "rtf/metafile/gdi_canvas.h"
#include "rtf/metafile/wmf.h"

#include <algorithm>
#include <cmath>

namespace torvik::rtf {

namespace {

/// The width and height of the survey's canvas.
constexpr double surveySide = 1000;
/// How much finer than the screen a drawing is made, for print and for large displays.
constexpr double fineness = 2;
constexpr double mostDrawnPixels = 4e6;
constexpr double mostBitmapPixels = 16e6;
constexpr double defaultSide = 300;

/// A bitmap whose edges are within this of the canvas's fills the drawing.
constexpr double edgeSlack = surveySide / 50;

bool FillsCanvas(const QRectF& place)
{
    return std::abs(place.left()) < edgeSlack && std::abs(place.top()) < edgeSlack &&
           std::abs(place.right() - surveySide) < edgeSlack &&
           std::abs(place.bottom() - surveySide) < edgeSlack;
}

QTransform CanvasOf(const QRectF& frame, const QSizeF& size)
{
    QTransform transform;
    transform.scale(size.width() / frame.width(), size.height() / frame.height());
    transform.translate(-frame.left(), -frame.top());
    return transform;
}

/// The size of the image in pixels: fine enough for the screen, and for every bitmap of the drawing.
QSize ImageSize(const GdiSurvey& survey, const QSizeF& shownSize, qint64 mostBytes)
{
    QSizeF size = shownSize * fineness;
    const double drawn = size.width() * size.height();
    if (drawn > mostDrawnPixels)
        size *= std::sqrt(mostDrawnPixels / drawn);
    if (survey.densityX > 0 && survey.densityY > 0)
        size = size.expandedTo({survey.densityX * surveySide, survey.densityY * surveySide});
    // Where bitmaps decide, their own pixels are what the eye compares.
    if (survey.shapes == 0 && survey.bitmaps > 0)
        size = {survey.densityX * surveySide, survey.densityY * surveySide};
    const double most = std::min(mostBitmapPixels, double(mostBytes) / 4);
    const double wanted = size.width() * size.height();
    if (!(wanted > 0) || most < 1)
        return {};
    if (wanted > most)
        size *= std::sqrt(most / wanted);
    // A drawing a million times as long as it is wide is not drawn at full length.
    const QSize rounded = size.boundedTo({maxPictureSide, maxPictureSide}).toSize().expandedTo({1, 1});
    return double(rounded.width()) * rounded.height() * 4 <= double(mostBytes) + 4096 ? rounded : QSize();
}

QImage Paint(const Drawing& drawing, const GdiSurvey& survey, const QSize& size, qint64 mostBytes)
{
    QImage image(size, survey.combines ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    // What combines with the paper needs paper to combine with.
    image.fill(survey.combines ? Qt::white : Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    GdiCanvas canvas(&painter, drawing.mapping, CanvasOf(drawing.frame, size), mostBytes);
    drawing.play(canvas);
    return image;
}

MetafileImage Draw(Drawing drawing, const QSizeF& shownSize, qint64 mostBytes)
{
    MetafileImage result;
    result.naturalSize = drawing.naturalSize;
    if (!drawing.play)
        return result;
    if (drawing.frame.isEmpty()) {
        GdiCanvas scale(nullptr, drawing.mapping, QTransform(), mostBytes);
        drawing.play(scale);
        drawing.frame = scale.Survey().bounds;
    }
    if (drawing.frame.isEmpty())
        return result;
    GdiCanvas stock(nullptr, drawing.mapping, CanvasOf(drawing.frame, {surveySide, surveySide}), mostBytes);
    drawing.play(stock);
    const GdiSurvey& survey = stock.Survey();
    if (survey.shapes + survey.bitmaps == 0)
        return result;
    if (survey.shapes == 0 && survey.bitmaps == 1 && !survey.changesBitmap &&
        FillsCanvas(survey.firstPlace)) {
        result.image = DecodeGdiBitmap(survey.first, mostBytes);
        if (survey.firstIsMirroredAcross || survey.firstIsMirroredDown)
            result.image = result.image.mirrored(survey.firstIsMirroredAcross, survey.firstIsMirroredDown);
        return result;
    }
    QSizeF shown = shownSize.isEmpty() ? drawing.naturalSize : shownSize;
    if (shown.isEmpty())
        shown = {defaultSide, defaultSide};
    const QSize size = ImageSize(survey, shown, mostBytes);
    if (!size.isEmpty())
        result.image = Paint(drawing, survey, size, mostBytes);
    return result;
}

} // namespace

MetafileImage DrawWmf(std::string_view bytes, const QSizeF& shownSize, qint64 mostBytes)
{
    return Draw(OpenWmf(bytes), shownSize, mostBytes);
}

MetafileImage DrawEmf(std::string_view bytes, const QSizeF& shownSize, qint64 mostBytes)
{
    return Draw(OpenEmf(bytes), shownSize, mostBytes);
}

} // namespace torvik::rtf
