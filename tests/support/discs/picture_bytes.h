#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>

#include <string_view>

namespace torvik {

using namespace Qt::StringLiterals;

/// An upright picture that no turn and no mirror leaves alike: red upper left, green upper right, blue lower
/// left, white lower right.
inline QImage FourCorners(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const int halfWidth = size.width() / 2;
    const int halfHeight = size.height() / 2;
    painter.fillRect(0, 0, halfWidth, halfHeight, Qt::red);
    painter.fillRect(halfWidth, 0, size.width() - halfWidth, halfHeight, Qt::green);
    painter.fillRect(0, halfHeight, halfWidth, size.height() - halfHeight, Qt::blue);
    return image;
}

inline QByteArray Encoded(const QImage& image, const char* format, bool progressive = false)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.setQuality(95);
    if (!writer.write(image))
        qFatal("Qt cannot write such a picture");
    return bytes;
}

/// A JPEG with an orientation tag, 1 to 8, put behind its first marker.
inline QByteArray WithOrientation(QByteArray jpeg, char orientation)
{
    using namespace std::literals;
    constexpr std::string_view segment = "\xff\xe1\x00\x22"
                                         "Exif\0\0"
                                         "MM\0\x2a\0\0\0\x08"
                                         "\0\x01"
                                         "\x01\x12\0\x03\0\0\0\x01\0?\0\0"
                                         "\0\0\0\0"sv;
    QByteArray tag(segment.data(), static_cast<qsizetype>(segment.size()));
    tag[tag.indexOf('?')] = orientation;
    return jpeg.insert(2, tag);
}

/// A JPEG whose header tells a size of its own; the data does not hold that much.
inline QByteArray WithSize(QByteArray jpeg, quint16 width, quint16 height)
{
    const auto at = jpeg.indexOf("\xff\xc0");
    if (at < 0)
        qFatal("no start of frame");
    qToBigEndian(height, jpeg.data() + at + 5);
    qToBigEndian(width, jpeg.data() + at + 7);
    return jpeg;
}

/// Files in a temporary folder, named as the program names them.
class PictureFolder {
public:
    QString Add(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder_.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a picture");
        return PathOf(name);
    }
    void Remove(const QString& name)
    {
        if (!QFile::remove(folder_.filePath(name)))
            qFatal("cannot remove a file");
    }
    /// The drive path of a file.
    QString PathOf(const QString& name) const
    {
        return u"C:"_s + QDir::cleanPath(folder_.filePath(name)).replace(u'/', u'\\');
    }

private:
    QTemporaryDir folder_;
};

/// Whether two colours are as alike as the compression leaves them.
inline bool Alike(const QColor& one, const QColor& other)
{
    constexpr int tolerance = 24;
    return std::abs(one.red() - other.red()) <= tolerance &&
           std::abs(one.green() - other.green()) <= tolerance &&
           std::abs(one.blue() - other.blue()) <= tolerance;
}

} // namespace torvik
