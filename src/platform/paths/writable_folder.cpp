#include "platform/paths/writable_folder.h"

#include <QDir>
#include <QTemporaryFile>

#include <unistd.h>

namespace torvik {

bool IsWritableFolder(const QString& hostFolder)
{
    const QByteArray folder = QFile::encodeName(hostFolder);
    if (!QFileInfo(hostFolder).isDir() || access(folder.constData(), W_OK | X_OK) != 0)
        return false;
    QTemporaryFile trial(QDir(hostFolder).filePath(QStringLiteral(".torvik2001-XXXXXX")));
    return trial.open();
}

} // namespace torvik
