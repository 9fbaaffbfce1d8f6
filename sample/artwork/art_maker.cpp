#include "art_maker.h"

#include "booklet_art.h"
#include "sample/jpeg_file.h"

#include <QBuffer>

#include <stdexcept>

namespace torvik::sample {

namespace {

QByteArray BmpBytes(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
        throw std::runtime_error("A picture cannot be encoded as a bitmap.");
    return bytes;
}

} // namespace

void MakeBookletArt(const QString& disc)
{
    const QString folder = disc + QStringLiteral("/graphics/");
    WriteFile(folder + QStringLiteral("logo.jpg"), JpegBytes(PaintBookletLogo(), 92));
    WriteFile(folder + QStringLiteral("bklettxt.jpg"), JpegBytes(PaintBookletTitle(), 92));
    WriteFile(folder + QStringLiteral("quillon3.bmp"), BmpBytes(PaintPublisherMark()));
}

} // namespace torvik::sample
