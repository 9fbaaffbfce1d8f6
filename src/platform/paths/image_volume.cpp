#include "platform/paths/image_volume.h"

#include "platform/folders/host_name.h"
#include "platform/image/disc_image.h"
#include "runtime/failure.h"
#include "runtime/logging.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace torvik {

/// An image and, for each of its folders, where the names stand without regard to letter case.
class IndexedImage {
public:
    explicit IndexedImage(const std::string& imageFile) : image_(imageFile)
    {
        root_.isFolder = true;
        for (const std::vector<ImageEntry>& entries : image_.Folders()) {
            Names& names = names_.emplace_back();
            names.reserve(entries.size());
            for (const ImageEntry& entry : entries)
                names.emplace(FoldedName(entry.name), &entry);
        }
    }

    const DiscImage& Image() const { return image_; }
    const std::vector<ImageEntry>& EntriesOf(const ImageEntry& folder) const
    {
        return image_.Folders()[folder.folder];
    }

    /// What a path leads to; null when there is no such file or folder. The names are put into `spelling`
    /// as they are spelled, as far as they exist.
    const ImageEntry* Find(std::string_view path, std::string* spelling = nullptr) const
    {
        const ImageEntry* entry = &root_;
        while (!path.empty()) {
            const std::size_t end = std::min(path.find('/', 1), path.size());
            const std::string_view name = path.substr(1, end - 1);
            if (entry != nullptr)
                entry = entry->isFolder ? FindIn(*entry, name) : nullptr;
            if (spelling != nullptr)
                spelling->append("/").append(entry != nullptr ? std::string_view(entry->name) : name);
            if (entry == nullptr && spelling == nullptr)
                return nullptr;
            path.remove_prefix(end);
        }
        return entry;
    }

private:
    using Names = std::unordered_multimap<std::string, const ImageEntry*>;

    /// The exact name, else the first in binary order; of the same name twice the one that the disc has
    /// first.
    const ImageEntry* FindIn(const ImageEntry& folder, std::string_view name) const
    {
        const auto [first, last] = names_[folder.folder].equal_range(FoldedName(name));
        const ImageEntry* best = nullptr;
        for (auto found = first; found != last; ++found) {
            const ImageEntry* const entry = found->second;
            const auto rank = [name](const ImageEntry* one) {
                return std::tuple(one->name != name, std::string_view(one->name), one);
            };
            if (best == nullptr || rank(entry) < rank(best))
                best = entry;
        }
        return best;
    }

    DiscImage image_;
    ImageEntry root_;
    std::vector<Names> names_;
};

namespace {

/// A file of an image. The image stays open as long as the file.
class ImageFile : public OpenFile {
public:
    ImageFile(std::shared_ptr<const IndexedImage> image, const ImageEntry& entry)
        : image_(std::move(image)), entry_(entry)
    {}

    qint64 Length() const override { return entry_.length; }
    qsizetype Read(char* target, qsizetype room) override
    {
        const qsizetype got = image_->Image().Read(entry_, place_, target, room);
        place_ += got;
        return got;
    }
    void SeekTo(qint64 place) override
    {
        if (place < 0)
            Fail(failure::pathFileAccess);
        place_ = place;
    }

private:
    std::shared_ptr<const IndexedImage> image_;
    const ImageEntry& entry_;
    qint64 place_ = 0;
};

[[noreturn]] void FailAsMissing(const IndexedImage& image, const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const ImageEntry* const folder = image.Find(path.substr(0, slash == std::string::npos ? 0 : slash));
    Fail(folder != nullptr && folder->isFolder ? failure::fileNotFound : failure::pathNotFound);
}

std::vector<std::string> NamesIn(const IndexedImage& image, const std::string& folder, bool folders,
                                 const Volume::NameTest& isWanted)
{
    std::vector<std::string> names;
    const ImageEntry* const found = image.Find(folder);
    if (found == nullptr || !found->isFolder)
        return names;
    for (const ImageEntry& entry : image.EntriesOf(*found)) {
        if (entry.isFolder == folders && isWanted(entry.name))
            names.push_back(entry.name);
    }
    return names;
}

} // namespace

std::shared_ptr<const IndexedImage> ImageVolume::Image() const
{
    const std::scoped_lock lock(mutex_);
    if (!image_) {
        const int error = ResumeNext([&] { image_ = std::make_shared<const IndexedImage>(file_); });
        qCDebug(logDisc, "the image %s %s", file_.c_str(),
                error == 0 ? "was opened" : qUtf8Printable(RunTimeErrorText(error)));
        if (error != 0)
            Fail(error);
    }
    return image_;
}

std::string ImageVolume::Spelling(const std::string& path) const
{
    std::string spelling;
    Image()->Find(path, &spelling);
    return spelling;
}

EntryStatus ImageVolume::Status(const std::string& path) const
{
    const auto image = Image();
    const ImageEntry* const entry = image->Find(path);
    if (entry == nullptr)
        FailAsMissing(*image, path);
    return {!entry->isFolder, entry->isFolder, entry->length, entry->written, 0, 0};
}

std::vector<std::string> ImageVolume::Files(const std::string& folder, const NameTest& isWanted) const
{
    return NamesIn(*Image(), folder, false, isWanted);
}

std::vector<std::string> ImageVolume::Folders(const std::string& folder, const NameTest& isWanted) const
{
    return NamesIn(*Image(), folder, true, isWanted);
}

std::unique_ptr<OpenFile> ImageVolume::Open(const std::string& path) const
{
    auto image = Image();
    const ImageEntry* const entry = image->Find(path);
    if (entry == nullptr)
        FailAsMissing(*image, path);
    if (entry->isFolder)
        Fail(failure::pathFileAccess);
    return std::make_unique<ImageFile>(std::move(image), *entry);
}

} // namespace torvik
