#include "support/discs/test_disc.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

using namespace Qt::StringLiterals;

namespace torvik {

TestDisc::TestDisc() = default;

void TestDisc::AddFile(const QString& relative, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(PathOf(relative)).path());
    QFile file(PathOf(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file of the test disc");
}

QByteArray TestDisc::Jpeg(const QColor& colour, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 90);
    return bytes;
}

void TestDisc::AddPhoto(const QString& name, const QColor& colour, const QSize& size)
{
    AddFile(u"Torviks/"_s + name, Jpeg(colour, size));
}

void TestDisc::AddGroup(const QString& prefix, int count)
{
    for (int number = 0; number < count; ++number)
        AddPhoto(prefix + QChar(u'A' + number) + u".JPG"_s);
}

void TestDisc::AddDocument(const QString& name, const QString& text)
{
    AddFile(u"RichText/"_s + name,
            QByteArray("{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 ") + text.toLatin1() + "}");
}

void TestDisc::Remove(const QString& relative)
{
    const QFileInfo info(PathOf(relative));
    if (info.isDir())
        QDir(info.filePath()).removeRecursively();
    else
        QFile::remove(info.filePath());
}

} // namespace torvik
