#include "ui/pictures/picture.h"

#include "platform/files/files.h"
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
    if (upright != size_)
        reader.setScaledSize(sideways_ ? upright.transposed() : upright);
    QImage image = reader.read();
    if (image.isNull())
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
