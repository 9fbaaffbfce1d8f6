#pragma once

#include <chrono>
#include <ctime>
#include <optional>
#include <string>
#include <sys/types.h>
#include <unordered_map>

namespace torvik {

/// What tells one state of a folder from another.
struct FolderStamp {
    dev_t device = 0;
    ino_t number = 0;
    std::timespec written{}; ///< the last change of its names
    std::timespec altered{}; ///< the last change of anything; nobody can set it back
};
bool operator==(const FolderStamp& a, const FolderStamp& b);

/// The stamp of a folder as it is now; nothing when there is no such folder.
std::optional<FolderStamp> StampOf(const std::string& folder);

/// Time stamps are coarse (two seconds on some media): a folder may change twice under one stamp. Names that
/// were read under a stamp can be trusted for as long as the stamp stays only when the stamp was already old
/// at the time of reading: by the clock, or, where the clocks of the medium and of the machine disagree,
/// because it had been seen unchanged for that long. `now` is the machine's clock in seconds since 1970,
/// `seenFor` how long the stamp has been seen before.
bool IsSettled(const FolderStamp& stamp, std::time_t now, std::chrono::milliseconds seenFor);

/// The names of one folder, to be found without regard to letter case.
class FolderIndex {
public:
    using Clock = std::chrono::steady_clock;

    /// Reads the folder's names. `before` is what was known of it, if anything.
    FolderIndex(const std::string& folder, const FolderIndex* before);

    /// Whether the names can be relied on while the folder has this stamp.
    bool HoldsFor(const FolderStamp& stamp) const;
    /// The existing name that equals `name` but for letter case, the first in binary order where there are
    /// several; empty when there is none. A link that leads nowhere does not count.
    std::string Find(const std::string& folder, const std::string& name) const;
    /// Takes over a name that the program itself has just added, so that the folder need not be read again
    /// after each of many new files. For a second this is believed to have been the only change.
    void Add(const std::string& folder, const std::string& name);

private:
    std::optional<FolderStamp> stamp_;
    Clock::time_point firstSeen_;
    Clock::time_point readAt_;
    bool settled_ = false;
    bool ownChanges_ = false;
    std::unordered_map<std::string, std::string> names_;
    std::unordered_multimap<std::string, std::string> links_;
};

} // namespace torvik
