#include "platform/paths/program_folder.h"

#include "platform/folders/writable_folder.h"
#include "platform/paths/drives.h"
#include "runtime/failure.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

QString chosenFolder;

/// Makes the folder where it is missing; whether it is there afterwards.
bool Make(const QString& folder)
{
    return QDir().mkpath(folder) && QFileInfo(folder).isDir();
}

/// The answer for this executable; what its folder allows is found out once.
bool RunsFromWritableFolder(const QString& folder)
{
    static QString asked;
    static bool answer = false;
    if (asked != folder) {
        asked = folder;
        answer = IsWritableFolder(folder);
    }
    return answer;
}

} // namespace

QString ProgramFolder()
{
    if (!chosenFolder.isEmpty())
        return DrivePath(chosenFolder);
    return ProgramFolderOf(QCoreApplication::applicationDirPath());
}

QString ProgramFolderOf(const QString& executableFolder)
{
    const bool isFit = !executableFolder.isEmpty() && RunsFromWritableFolder(executableFolder);
    return DrivePath(isFit ? executableFolder : UserDataFolder());
}

void SetProgramFolder(const QString& hostFolder)
{
    if (hostFolder.isEmpty()) {
        chosenFolder.clear();
        return;
    }
    const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(hostFolder));
    if (!Make(absolute))
        Fail(failure::pathNotFound);
    chosenFolder = absolute;
}

bool IsProgramFolderChosen()
{
    return !chosenFolder.isEmpty();
}

QString WindowsFolder()
{
    const QString folder = UserDataFolder() + u"/windows"_s;
    Make(folder);
    return DrivePath(folder);
}

QString UserDataFolder()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QString folder = base + u"/torvik2001"_s;
    Make(folder);
    return folder;
}

} // namespace torvik
