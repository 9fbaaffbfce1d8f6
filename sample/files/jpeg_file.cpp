#include "sample/files/jpeg_file.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>

#include <stdexcept>

namespace torvik::sample {

QByteArray JpegBytes(const QImage& picture, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.setOptimizedWrite(true);
    if (!writer.write(picture))
        throw std::runtime_error(writer.errorString().toStdString());
    return bytes;
}

QByteArray WithTurnTag(const QByteArray& jpeg)
{
    // An application segment with one directory of one entry: orientation (0x0112), a short, once, value 6.
    static const char segment[] = "\xFF\xE1\x00\x22"
                                  "Exif\x00\x00"
                                  "MM\x00\x2A\x00\x00\x00\x08"
                                  "\x00\x01"
                                  "\x01\x12\x00\x03\x00\x00\x00\x01\x00\x06\x00\x00"
                                  "\x00\x00\x00\x00";
    return jpeg.left(2) + QByteArray(segment, sizeof(segment) - 1) + jpeg.mid(2);
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
}

} // namespace torvik::sample
