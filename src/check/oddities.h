#pragma once

#include "check/asked_files.h"
#include "check/examine_file.h"
#include "check/finding.h"

#include <QList>

#include <vector>

namespace torvik {

/// The name of the photo that a path of the disc leads to; empty for all else.
QString PhotoIn(const QString& path);

/// The names of all photos on a disc, as the program has them: in capitals, in their order, each once.
QStringList NamesOfPhotos(const QList<ListedFile>& files);

/// The years, and the topics of the menus, for which a disc has no photo at all.
QStringList ScreensWithoutPhoto(const QStringList& photos);

/// What works but is hardly meant so, and files that no screen asks for: names that differ in letter case
/// alone, captions without photo and photos without caption, gaps in the numbers of photos, photos much
/// larger or smaller than the others of their screen. `examined` goes with `files`, place by place.
QList<Finding> Oddities(const QList<ListedFile>& files, const std::vector<Examination>& examined,
                        const QHash<QString, AskedFile>& asked);

} // namespace torvik
