#pragma once

#include "platform/paths/volume.h"

#include <mutex>

namespace torvik {

class IndexedImage;

/// An image of a disc as a volume. It is opened at the first look at it, and closed with the volume and the
/// last of its open files. An image that cannot be opened is tried again at the next look.
class ImageVolume : public Volume {
public:
    explicit ImageVolume(std::string imageFile) : file_(std::move(imageFile)) {}

    std::string Spelling(const std::string& path) const override;
    EntryStatus Status(const std::string& path) const override;
    std::vector<std::string> Files(const std::string& folder, const NameTest& isWanted) const override;
    std::vector<std::string> Folders(const std::string& folder, const NameTest& isWanted) const override;
    std::unique_ptr<OpenFile> Open(const std::string& path) const override;
    std::optional<std::string> HostPath(const std::string& /*path*/) const override { return std::nullopt; }

private:
    std::shared_ptr<const IndexedImage> Image() const;

    std::string file_;
    mutable std::mutex mutex_;
    mutable std::shared_ptr<const IndexedImage> image_;
};

} // namespace torvik
