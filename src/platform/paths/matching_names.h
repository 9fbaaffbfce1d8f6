#pragma once

#include "platform/paths/volume.h"

#include <QString>

#include <string>
#include <vector>

namespace torvik {

/// The files of a folder whose names match a pattern.
struct MatchingNames {
    Place folder;
    std::vector<std::string> names;
};

/// Where the last component of a path begins.
qsizetype BeginOfName(const QString& path);

/// All files (not folders) that match a drive path such as "E:\Torviks\*.jpg", in the order of the file
/// system, also names that differ in letter case alone. Rules and failures are those of FilesMatching.
MatchingNames NamesMatching(const QString& pattern);

} // namespace torvik
