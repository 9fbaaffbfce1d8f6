#pragma once

#include "check/finding.h"
#include "platform/files/all_files.h"

#include <QSize>

namespace torvik {

/// What a look into one file brought.
struct Examination {
    bool isWhole = true;
    FindingKind kind = FindingKind::Damaged; ///< of what is wrong
    QString what;                            ///< in words for the user
    QSize pixels;                            ///< of a picture
};

/// A file whose content is not what it should be.
inline Examination Damaged(const QString& what)
{
    return {false, FindingKind::Damaged, what, {}};
}

/// Reads a file to its end and, by the ending of its name, decodes what is in it: pictures, articles, movies
/// and sounds. Touches neither record nor forms, so several threads may call it at once. Never fails.
Examination Examine(const ListedFile& file);

} // namespace torvik
