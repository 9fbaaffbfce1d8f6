#include "platform/files/program_files.h"

#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr const char* files[] = {
    "passby.wav",
    "Torvik2001.HLP",
    "Torvik2001.scr",
    "graphics/ClassicTorviks.jpg",
};

/// Beside its place first, so that a full disk leaves no half a file.
void Supply(const QString& from, const QString& to)
{
    const QFileInfo shipped(from);
    const QFileInfo own(to);
    if (!shipped.isFile() || (own.exists() && own.lastModified() >= shipped.lastModified()))
        return;
    const QString beside = to + u".new"_s;
    QFile::remove(beside);
    if (QDir().mkpath(own.path()) && QFile::copy(from, beside)) {
        QFile::remove(to);
        QFile::rename(beside, to);
    } else {
        QFile::remove(beside);
    }
}

} // namespace

void SupplyProgramFolder()
{
    const QString shipped = QCoreApplication::applicationDirPath();
    if (IsProgramFolderChosen() || ProgramFolder() == DrivePath(shipped))
        return;
    SupplyFolder(shipped, UserDataFolder());
}

void SupplyFolder(const QString& from, const QString& to)
{
    for (const char* file : files)
        Supply(from + u'/' + QLatin1String(file), to + u'/' + QLatin1String(file));
}

} // namespace torvik
