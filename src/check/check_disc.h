#pragma once

#include "check/asked_files.h"
#include "check/examine_file.h"
#include "check/finding.h"

#include <functional>
#include <vector>

namespace torvik {

/// Called from the caller's thread now and then: how many of the files were looked at.
using CheckProgress = std::function<void(int done, int all)>;

/// What the screens ask for and the disc does not have. `asked`: by AskedFiles.
QList<Finding> MissingFiles(const QList<ListedFile>& files, const QHash<QString, AskedFile>& asked);

/// What can be said of the files of a disc. `examined` goes with `files`, place by place.
QList<Finding> FindingsOf(const QList<ListedFile>& files, const std::vector<Examination>& examined);

/// Checks the disc of a drive: what the screens ask for against what is there, and each file to its last
/// byte, on two processors. Failure 68, Device unavailable, when there is no disc in the drive.
CheckResult CheckDisc(QChar letter, const CheckProgress& progress);

} // namespace torvik
