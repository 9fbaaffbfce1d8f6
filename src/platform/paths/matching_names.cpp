#include "platform/paths/matching_names.h"

#include "platform/folders/name_pattern.h"
#include "platform/paths/drives.h"

#include <algorithm>

namespace torvik {

qsizetype BeginOfName(const QString& path)
{
    return std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1;
}

MatchingNames NamesMatching(const QString& pattern)
{
    const qsizetype begin = BeginOfName(pattern);
    Place folder = PlaceOf(pattern.left(begin));
    const QStringView namePattern = QStringView(pattern).mid(begin);
    const NamePattern wanted(namePattern);
    const bool hiddenToo = namePattern.startsWith(u'.');
    std::vector<std::string> names = folder.on->Files(folder.path, [&](std::string_view name) {
        return (name.front() != '.' || hiddenToo) && wanted.Matches(name);
    });
    return {std::move(folder), std::move(names)};
}

} // namespace torvik
