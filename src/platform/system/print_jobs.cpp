#include "platform/system/print_jobs.h"

#include "runtime/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

QString DocumentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

bool TakesJobs(const QString& printer)
{
    constexpr int patience = 5000; // milliseconds
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(u"LC_ALL"_s, u"C"_s);
    QProcess tool;
    tool.setProcessEnvironment(surroundings);
    tool.start(u"lpstat"_s, {u"-a"_s, printer});
    return !tool.waitForFinished(patience) || !tool.readAllStandardOutput().startsWith(QByteArray(
                                                  printer.toLocal8Bit() + " not accepting requests"));
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
