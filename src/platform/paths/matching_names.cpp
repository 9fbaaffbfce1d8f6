#include "platform/paths/matching_names.h"

#include "platform/paths/drives.h"
#include "platform/paths/folder_reader.h"
#include "platform/paths/name_pattern.h"
#include "runtime/failure.h"

#include <algorithm>
#include <cerrno>

namespace torvik {

qsizetype BeginOfName(const QString& path)
{
    return std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1;
}

MatchingNames NamesMatching(const QString& pattern)
{
    const qsizetype begin = BeginOfName(pattern);
    MatchingNames matching{HostPathBytes(pattern.left(begin)), {}};
    const QStringView namePattern = QStringView(pattern).mid(begin);
    const NamePattern wanted(namePattern);
    const bool hiddenToo = namePattern.startsWith(u'.');

    FolderReader reader(matching.Folder);
    if (reader.Error() == ENOENT || reader.Error() == ENOTDIR)
        return {};
    reader.ForEach([&](std::string_view name, EntryKind kind) {
        const bool isHidden = name.front() == '.' && !hiddenToo;
        if (kind == EntryKind::Folder || kind == EntryKind::Other || isHidden || !wanted.Matches(name))
            return;
        std::string file(name);
        if (kind == EntryKind::File || reader.Look(file) == EntryKind::File)
            matching.Names.push_back(std::move(file));
    });
    if (reader.Error() != 0)
        Fail(failure::pathFileAccess);
    return matching;
}

} // namespace torvik
