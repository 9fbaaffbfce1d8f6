#include "ui/pictures/picture.h"

#include "platform/files/files.h"
#include "platform/system/large_memory.h"
#include "runtime/failure.h"
#include "ui/pictures/picture_end.h"

#include <QBuffer>
#include <QImageReader>
#include <QResource>

#include <utility>

namespace torvik {

namespace {

constexpr qint64 mostPixels = 300'000'000;
constexpr int allocationLimit = 1300; // MiB: mostPixels of four bytes, and some room

QString NameWithoutFolder(const QString& path)
{
    return path.mid(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

/// What a large photo is decoded into; no image for other pictures, whose decoders take memory by themselves.
QImage RoomFor(const QImageReader& reader, const QSize& size)
{
    constexpr qint64 large = 8LL * 1024 * 1024; // bytes
    const qint64 row = qint64{size.width()} * 4;
    const qint64 bytes = row * size.height();
    if (reader.format() != "jpeg" || reader.imageFormat() != QImage::Format_RGB32 || bytes < large)
        return {};
    void* memory = TakeLargeMemory(static_cast<std::size_t>(bytes));
    if (memory == nullptr)
        return {};
    return {static_cast<uchar*>(memory), size.width(),    size.height(), row,
            QImage::Format_RGB32,        FreeLargeMemory, memory};
}

} // namespace

void RaisePictureLimit()
{
    QImageReader::setAllocationLimit(allocationLimit);
}

Picture Picture::Load(const QString& path)
{
    return FromFile(ReadFile(path), path);
}

Picture Picture::FromFile(QByteArray bytes, const QString& path)
{
    return {std::move(bytes), NameWithoutFolder(path)};
}

Picture Picture::FromResource(const QString& resource)
{
    const QResource artwork(resource);
    if (!artwork.isValid())
        Fail(failure::fileNotFound);
    return {artwork.uncompressedData(), NameWithoutFolder(resource)};
}

Picture::Picture(QByteArray bytes, QString fileName)
    : bytes_(std::move(bytes)), fileName_(std::move(fileName))
{
    QBuffer buffer(&bytes_);
    QImageReader reader(&buffer);
    size_ = reader.size();
    const bool tooLarge = static_cast<qint64>(size_.width()) * size_.height() > mostPixels;
    if (size_.isEmpty() || tooLarge || !HasItsEnd(bytes_))
        Fail(failure::invalidPicture);
    sideways_ = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    if (sideways_)
        size_.transpose();
}

QImage Picture::Decode(const QSize& upright) const
{
    QBuffer buffer;
    buffer.setData(bytes_);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize stored = sideways_ ? upright.transposed() : upright;
    if (upright != size_)
        reader.setScaledSize(stored);
    QImage image = RoomFor(reader, stored);
    if (!reader.read(&image))
        Fail(failure::invalidPicture);
    return image;
}

QImage Picture::Natural() const
{
    return IsEmpty() ? QImage() : Decode(size_);
}

QImage Picture::Fitted(const QSize& area) const
{
    if (IsEmpty() || area.isEmpty())
        return {};
    return Decode(size_.scaled(area, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

QImage Picture::Stretched(const QSize& area) const
{
    return IsEmpty() || area.isEmpty() ? QImage() : Decode(area);
}

} // namespace torvik
