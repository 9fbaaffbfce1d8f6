#include "platform/folders/case_insensitive_lookup.h"

#include "platform/folders/folder_index.h"
#include "runtime/failure.h"

#include <chrono>
#include <optional>
#include <sys/stat.h>
#include <unordered_map>

namespace torvik {

namespace {

using Clock = std::chrono::steady_clock;

/// More folders than a disc has are not held, so that a long run takes no more and more memory.
constexpr std::size_t mostFolders = 256;
/// How long a folder's other spelling is used before the folder is looked for under its exact one again.
constexpr std::chrono::seconds spellingLife{2};

struct Spelling {
    std::string onHost;
    Clock::time_point found;
};

// Each thread has its own: one that waits for a disc holds up no other.
thread_local std::unordered_map<std::string, FolderIndex> indices;
thread_local std::unordered_map<std::string, Spelling> spellings;

/// A folder as it is spelled on the host, and its present stamp where it exists.
struct Folder {
    std::string path;
    std::optional<FolderStamp> stamp;
};

bool Exists(const std::string& path)
{
    struct stat status {};
    return stat(path.empty() ? "/" : path.c_str(), &status) == 0;
}

/// The existing name in `folder` for `name`, `name` itself where there is none.
std::string NameIn(const Folder& folder, const std::string& name)
{
    auto known = indices.find(folder.path);
    if (known == indices.end() || !known->second.HoldsFor(*folder.stamp)) {
        const bool isKnown = known != indices.end();
        FolderIndex fresh(folder.path, isKnown ? &known->second : nullptr);
        if (!isKnown && indices.size() >= mostFolders)
            indices.clear();
        known = indices.insert_or_assign(folder.path, std::move(fresh)).first;
    }
    const std::string found = known->second.Find(folder.path, name);
    return found.empty() ? name : found;
}

std::string Child(const Folder& parent, const std::string& path)
{
    const std::string name = path.substr(path.rfind('/') + 1);
    return parent.path + '/' + (parent.stamp ? NameIn(parent, name) : name);
}

Folder FindFolder(const std::string& root, const std::string& path)
{
    if (path.size() <= root.size()) {
        const auto stamp = StampOf(root);
        if (!stamp)
            Fail(failure::deviceUnavailable);
        return {root, stamp};
    }
    const auto known = spellings.find(path);
    if (known != spellings.end()) {
        if (Clock::now() - known->second.found < spellingLife) {
            if (const auto stamp = StampOf(known->second.onHost))
                return {known->second.onHost, stamp};
        }
        spellings.erase(known);
    }
    if (const auto stamp = StampOf(path))
        return {path, stamp};
    Folder folder;
    folder.path = Child(FindFolder(root, path.substr(0, path.rfind('/'))), path);
    folder.stamp = StampOf(folder.path);
    if (folder.stamp && folder.path != path) {
        if (spellings.size() >= mostFolders)
            spellings.clear();
        spellings.insert_or_assign(path, Spelling{folder.path, Clock::now()});
    }
    return folder;
}

} // namespace

std::string SpellingOnHost(const std::string& root, const std::string& path)
{
    if (Exists(path))
        return path;
    if (path.size() <= root.size())
        Fail(failure::deviceUnavailable);
    return Child(FindFolder(root, path.substr(0, path.rfind('/'))), path);
}

void NameAdded(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const std::string folder = path.substr(0, slash);
    const auto known = indices.find(folder);
    if (known != indices.end())
        known->second.Add(folder, path.substr(slash + 1));
}

void NameRemoved(const std::string& path)
{
    indices.erase(path.substr(0, path.rfind('/')));
}

void ForgetFolders()
{
    indices.clear();
    spellings.clear();
}

} // namespace torvik
