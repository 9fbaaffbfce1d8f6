#pragma once

#include "platform/paths/volume.h"

namespace torvik {

/// A folder of the host as a volume.
class FolderVolume : public Volume {
public:
    /// `root`: without a closing slash; the host's own root is the empty text.
    explicit FolderVolume(std::string root) : root_(std::move(root)) {}

    std::string Spelling(const std::string& path) const override;
    EntryStatus Status(const std::string& path) const override;
    std::vector<std::string> Files(const std::string& folder, const NameTest& isWanted) const override;
    std::vector<std::string> Folders(const std::string& folder, const NameTest& isWanted) const override;
    std::unique_ptr<OpenFile> Open(const std::string& path) const override;
    std::optional<std::string> HostPath(const std::string& path) const override { return root_ + path; }

private:
    std::string root_;
};

} // namespace torvik
