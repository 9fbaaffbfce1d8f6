#pragma once

#include "platform/paths/volume.h"

#include <QList>
#include <QString>

namespace torvik {

/// A file of a volume, wherever it lies there.
struct ListedFile {
    QString path; ///< from the root on, "Torviks\67A.JPG"
    Place where;
    qint64 length = 0; ///< bytes; -1 when it cannot be told
};

/// All files of a volume, folder by folder, also those whose names differ in letter case alone. A folder that
/// cannot be read is left out. At most 10,000 folders are entered, none deeper than 32, so that links which
/// lead in a circle come to an end.
/// `root`: of a drive, "E:\". Failure 68, Device unavailable.
QList<ListedFile> AllFiles(const QString& root);

} // namespace torvik
