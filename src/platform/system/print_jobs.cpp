#include "platform/system/print_jobs.h"

#include "runtime/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

QString DocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString NextJobFile(const QString& hostFolder)
{
    const QDir folder(QDir::current().absoluteFilePath(hostFolder));
    if (!folder.mkpath(u"."_s))
        Fail(failure::pathNotFound);
    for (int number = 1;; ++number) {
        QString path = folder.filePath(u"job-%1.pdf"_s.arg(number));
        const QFileInfo taken(path);
        if (!taken.exists() && !taken.isSymLink())
            return path;
    }
}

QString UnfinishedJobFile(const QString& hostPath)
{
    return hostPath + u".part"_s;
}

bool KeepJobFile(const QString& hostPath)
{
    const QString unfinished = UnfinishedJobFile(hostPath);
    return IsWholeJobFile(unfinished) && QFile::rename(unfinished, hostPath);
}

void DropJobFile(const QString& hostPath)
{
    QFile::remove(UnfinishedJobFile(hostPath));
}

bool IsWholeJobFile(const QString& hostPath)
{
    constexpr qint64 tail = 32; // bytes
    QFile file(hostPath);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - tail)))
        return false;
    return file.readAll().trimmed().endsWith("%%EOF");
}

} // namespace torvik
