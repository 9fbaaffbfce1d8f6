#include "rtf/bitmap/stored_picture.h"

#include "rtf/bounds/limits.h"

#include <QBuffer>
#include <QImageReader>

#include <cmath>

namespace torvik::rtf {

namespace {

/// Decoding holds a second copy for a while, and a reader's pixels may be twice as wide as the image's.
constexpr qint64 bytesPerPixel = 4;
constexpr qint64 bytesPerDeepPixel = 8;

bool EndsEarly(std::string_view bytes)
{
    const std::string_view end = IsPng(bytes) ? std::string_view("IEND") : std::string_view("\xff\xd9");
    return bytes.rfind(end) == std::string_view::npos;
}

} // namespace

bool IsPng(std::string_view bytes)
{
    return bytes.starts_with("\x89PNG\r\n\x1a\n");
}

bool IsJpeg(std::string_view bytes)
{
    return bytes.starts_with("\xff\xd8\xff");
}

QImage DecodeStoredPicture(std::string_view bytes, qint64 mostBytes)
{
    const bool isJpeg = IsJpeg(bytes);
    if ((!isJpeg && !IsPng(bytes)) || EndsEarly(bytes))
        return {};
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, isJpeg ? "jpeg" : "png");
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty() || size.width() > maxPictureSide || size.height() > maxPictureSide)
        return {};
    const bool isDeep =
        reader.imageFormat() == QImage::Format_RGBX64 || reader.imageFormat() == QImage::Format_RGBA64;
    const qint64 cost = qint64(size.width()) * size.height() * (isDeep ? bytesPerDeepPixel : bytesPerPixel);
    if (cost > mostBytes) {
        if (!isJpeg || mostBytes <= 0)
            return {};
        const double shrink = std::sqrt(double(mostBytes) / double(cost));
        reader.setScaledSize((QSizeF(size) * shrink).toSize().expandedTo({1, 1}));
    }
    QImage image;
    if (!reader.read(&image))
        return {};
    return image;
}

} // namespace torvik::rtf
