#pragma once

#include <string>

namespace torvik {

/// Look-up of host paths without regard to letter case. Paths are bytes, begin with a slash, and have neither
/// empty components nor "." or ".."; the root of the host is the empty text. What has been learned about
/// folders is kept, for each thread by itself, and checked against the folder's time stamps.

/// How `path`, which lies in the folder `root` or is it, is spelled on the host. The path as it stands wins
/// when it exists; otherwise each component that does not exist as written gives way to the name that differs
/// in letter case alone, the first in binary order of several. From the first component on that exists in no
/// spelling the rest stays as it is written. Failure 68, Device unavailable, when `root` is no folder.
std::string SpellingOnHost(const std::string& root, const std::string& path);

/// Tells that the program has just made the file or folder `path`. Needless for the result, but where many
/// files are made one after the other it saves the reading of their folder for each.
void NameAdded(const std::string& path);

/// Tells that the program has just removed the file or folder `path`: its folder may have changed under one
/// time stamp, and what was learned about it does not hold any more.
void NameRemoved(const std::string& path);

/// Forgets all that the thread has learned, as when other media come under the same folders.
void ForgetFolders();

} // namespace torvik
