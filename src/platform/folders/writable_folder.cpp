#include "platform/folders/writable_folder.h"

#include <QDir>
#include <QTemporaryFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace torvik {

bool IsWritableFolder(const QString& hostFolder)
{
    const QByteArray folder = QFile::encodeName(hostFolder);
    if (!QFileInfo(hostFolder).isDir() || access(folder.constData(), W_OK | X_OK) != 0)
        return false;
    QTemporaryFile trial(QDir(hostFolder).filePath(u".torvik2001-XXXXXX"_s));
    return trial.open();
}

} // namespace torvik
