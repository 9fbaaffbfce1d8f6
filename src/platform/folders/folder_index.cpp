#include "platform/folders/folder_index.h"

#include "platform/folders/folder_reader.h"
#include "platform/folders/host_name.h"

#include <algorithm>
#include <sys/stat.h>

namespace torvik {

namespace {

using namespace std::chrono_literals;

/// The coarsest time stamps in use count two seconds; the rest is for clocks that tick late.
constexpr std::chrono::milliseconds granularity = 2500ms;
constexpr std::chrono::milliseconds trustInOwnChanges = 1000ms;

FolderStamp StampFrom(const struct stat& status)
{
    return {status.st_dev, status.st_ino, status.st_mtim, status.st_ctim};
}

bool SameTime(const std::timespec& a, const std::timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// Puts `name` under `folded` unless a name that comes first in binary order stands there.
void Keep(std::unordered_map<std::string, std::string>& names, std::string folded, std::string_view name)
{
    const auto [place, isNew] = names.try_emplace(std::move(folded), name);
    if (!isNew && name < place->second)
        place->second = name;
}

} // namespace

bool operator==(const FolderStamp& a, const FolderStamp& b)
{
    return a.device == b.device && a.number == b.number && SameTime(a.written, b.written) &&
           SameTime(a.altered, b.altered);
}

std::optional<FolderStamp> StampOf(const std::string& folder)
{
    struct stat status {};
    if (stat(folder.empty() ? "/" : folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return StampFrom(status);
}

bool IsSettled(const FolderStamp& stamp, std::time_t now, std::chrono::milliseconds seenFor)
{
    const std::time_t changed = std::max(stamp.written.tv_sec, stamp.altered.tv_sec);
    // Whole seconds on both sides: one more on the difference makes up for what was cut off.
    const bool oldByTheClock = std::chrono::seconds(now - changed) >= granularity + 1s;
    return oldByTheClock || seenFor >= granularity;
}

FolderIndex::FolderIndex(const std::string& folder, const FolderIndex* before) : readAt_(Clock::now())
{
    firstSeen_ = readAt_;
    FolderReader reader(folder);
    struct stat status {};
    if (reader.Status(status))
        stamp_ = StampFrom(status);
    if (before && before->stamp_ && stamp_ && *before->stamp_ == *stamp_)
        firstSeen_ = before->firstSeen_;
    const auto seenFor = std::chrono::duration_cast<std::chrono::milliseconds>(readAt_ - firstSeen_);
    settled_ = stamp_ && IsSettled(*stamp_, std::time(nullptr), seenFor);

    const bool whole = reader.ForEach([this](std::string_view name, EntryKind kind) {
        if (kind == EntryKind::Unknown)
            links_.emplace(FoldedName(name), name);
        else
            Keep(names_, FoldedName(name), name);
    });
    if (!whole)
        settled_ = false;
}

bool FolderIndex::HoldsFor(const FolderStamp& stamp) const
{
    if (!stamp_ || !(*stamp_ == stamp))
        return false;
    return settled_ || (ownChanges_ && Clock::now() - readAt_ < trustInOwnChanges);
}

std::string FolderIndex::Find(const std::string& folder, const std::string& name) const
{
    const std::string folded = FoldedName(name);
    const auto found = names_.find(folded);
    std::string best = found == names_.end() ? std::string() : found->second;
    const auto [first, last] = links_.equal_range(folded);
    for (auto link = first; link != last; ++link) {
        struct stat status {};
        const bool better = best.empty() || link->second < best;
        if (better && stat((folder + '/' + link->second).c_str(), &status) == 0)
            best = link->second;
    }
    return best;
}

void FolderIndex::Add(const std::string& folder, const std::string& name)
{
    Keep(names_, FoldedName(name), name);
    stamp_ = StampOf(folder);
    settled_ = false;
    ownChanges_ = true;
}

} // namespace torvik
