#include "support/print_folder.h"

#include "runtime/failure.h"
#include "ui/printer/printer.h"

#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s does not read the printed file", qPrintable(program));
    return process.readAllStandardOutput();
}

} // namespace

PrintFolder::PrintFolder()
{
    Printer.PrintTo(folder_.path());
}

PrintFolder::~PrintFolder()
{
    ResumeNext([] { Printer.EndDoc(); });
    Printer.PrintTo({});
    Printer.SetUp(std::nullopt);
}

QStringList PrintFolder::Files() const
{
    return QDir(folder_.path()).entryList(QDir::Files, QDir::Name);
}

QString PrintFolder::FileOf(int job) const
{
    return folder_.filePath(u"job-%1.pdf"_s.arg(job));
}

int PrintFolder::Jobs() const
{
    return static_cast<int>(QDir(folder_.path()).entryList({u"job-*.pdf"_s}).size());
}

QStringList PrintFolder::Pages(int job) const
{
    QStringList pages =
        QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-layout"_s, FileOf(job), u"-"_s})).split(u'\f');
    pages.removeLast(); // each page ends with a form feed
    return pages;
}

QImage PrintFolder::Image(int job, int page) const
{
    const QString number = QString::number(page);
    return QImage::fromData(
        OutputOf(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-f"_s, number, u"-l"_s, number, FileOf(job)}));
}

QList<QStringList> PrintFolder::PictureRows(int job) const
{
    constexpr int heading = 2; // lines
    QList<QStringList> rows;
    const QStringList lines = QString::fromUtf8(OutputOf(u"pdfimages"_s, {u"-list"_s, FileOf(job)}))
                                  .split(u'\n', Qt::SkipEmptyParts)
                                  .mid(heading);
    for (const QString& line : lines)
        rows.append(line.split(u' ', Qt::SkipEmptyParts));
    return rows;
}

QList<QSize> PrintFolder::PictureSizes(int job) const
{
    QList<QSize> sizes;
    for (const QStringList& columns : PictureRows(job))
        sizes.append({columns.at(3).toInt(), columns.at(4).toInt()});
    return sizes;
}

QStringList PrintFolder::PictureEncodings(int job) const
{
    QStringList encodings;
    for (const QStringList& columns : PictureRows(job))
        encodings.append(columns.at(8));
    return encodings;
}

QStringList PrintFolder::PictureObjects(int job) const
{
    QStringList objects;
    for (const QStringList& columns : PictureRows(job))
        objects.append(columns.at(10));
    return objects;
}

QSizeF PrintFolder::Paper(int job) const
{
    return QSizeF(Image(job, 1).size()) * twipsPerPixel;
}

QRectF InkOf(const QImage& image)
{
    return InkOf(image, [](const QColor& colour) { return colour != QColor(Qt::white); });
}

} // namespace torvik
