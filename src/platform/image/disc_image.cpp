#include "platform/image/disc_image.h"

#include "platform/image/directory_reader.h"
#include "runtime/failure.h"

#include <algorithm>
#include <cdio/bytesex.h>
#include <cdio/iso9660.h>
#include <cstring>
#include <optional>
#include <unordered_set>

namespace torvik {

namespace {

constexpr int mostDescriptors = 64;
constexpr int deepest = 64;
constexpr std::size_t mostEntries = 200'000;
constexpr qint64 mostFolderBytes = 64LL * 1024 * 1024;

using Folders = std::vector<std::vector<ImageEntry>>;

/// What a descriptor tells of the tree that it stands for.
struct Tree {
    NameKind kind = NameKind::Plain;
    qint64 blockSize = ISO_BLOCKSIZE;
    ImageEntry::Extent root;
};

Tree TreeOf(const iso9660_pvd_t& descriptor, NameKind kind)
{
    Tree tree;
    tree.kind = kind;
    const int blockSize = from_723(descriptor.logical_block_size);
    if (blockSize == 512 || blockSize == 1024)
        tree.blockSize = blockSize;
    const iso9660_dir_t& root = descriptor.root_directory_record;
    tree.root = {(qint64{from_733(root.extent)} + root.xa_length) * tree.blockSize, from_733(root.size)};
    return tree;
}

bool IsJoliet(const iso9660_pvd_t& descriptor)
{
    // Where the primary descriptor has nothing, this kind names its characters: "%/@", "%/C" or "%/E".
    const auto* marks = reinterpret_cast<const char*>(descriptor.unused3);
    return std::memcmp(marks, "%/", 2) == 0 && std::strchr("@CE", marks[2]) != nullptr && marks[2] != '\0';
}

/// The plain tree and, where there is one, that of the longer names.
struct Trees {
    std::optional<Tree> plain;
    std::optional<Tree> joliet;
};

Trees FindTrees(const DiscSectors& sectors)
{
    Trees trees;
    for (int sector = ISO_PVD_SECTOR; sector < ISO_PVD_SECTOR + mostDescriptors; ++sector) {
        iso9660_pvd_t descriptor;
        constexpr qsizetype length = sizeof descriptor;
        const qint64 place = qint64{sector} * ISO_BLOCKSIZE;
        if (sectors.Read(place, reinterpret_cast<char*>(&descriptor), length) != length ||
            std::memcmp(descriptor.id, "CD001", sizeof descriptor.id) != 0 || descriptor.type == ISO_VD_END)
            break;
        if (descriptor.type == ISO_VD_PRIMARY && !trees.plain)
            trees.plain = TreeOf(descriptor, NameKind::Plain);
        else if (descriptor.type == ISO_VD_SUPPLEMENTARY && !trees.joliet && IsJoliet(descriptor))
            trees.joliet = TreeOf(descriptor, NameKind::Joliet);
    }
    return trees;
}

/// Goes through all folders of a tree, those near the root first.
class TreeReader {
public:
    TreeReader(const DiscSectors& sectors, const Tree& tree)
        : sectors_(sectors), reader_(sectors, tree.kind, tree.blockSize), root_(tree.root)
    {
        rootContent_ = ContentOf(root_);
        if (tree.kind == NameKind::Plain)
            reader_.FindRockRidge(rootContent_);
    }

    NameKind Kind() const { return reader_.Kind(); }

    Folders Read()
    {
        Enter(root_, 0);
        TakeRecords(rootContent_, 0);
        for (std::size_t folder = 1; folder < waiting_.size(); ++folder)
            TakeRecords(ContentOf(waiting_[folder].extent), folder);
        return std::move(folders_);
    }

private:
    struct Waiting {
        ImageEntry::Extent extent;
        int depth = 0;
    };

    QByteArray ContentOf(const ImageEntry::Extent& extent)
    {
        const qint64 there = std::max<qint64>(0, sectors_.Length() - extent.place);
        const qint64 length = std::min({extent.length, there, mostFolderBytes - bytesRead_});
        QByteArray content(static_cast<qsizetype>(length), Qt::Uninitialized);
        qsizetype got = 0;
        ResumeNext([&] { got = sectors_.Read(extent.place, content.data(), content.size()); });
        content.truncate(got);
        bytesRead_ += got;
        return content;
    }

    /// Gives a folder its number.
    std::size_t Enter(const ImageEntry::Extent& extent, int depth)
    {
        seen_.insert(extent.place);
        waiting_.push_back({extent, depth});
        folders_.emplace_back();
        return folders_.size() - 1;
    }

    void TakeRecords(const QByteArray& content, std::size_t folder)
    {
        bool goesOn = false;
        reader_.ForEach(content, [&](const DirectoryRecord& record) {
            std::vector<ImageEntry>& entries = folders_[folder];
            const ImageEntry::Extent extent{record.place, record.length};
            if (goesOn && !record.isFolder && entries.back().name == record.name) {
                entries.back().extents.push_back(extent);
                entries.back().length += record.length;
                goesOn = record.goesOn;
                ++count_;
                return;
            }
            goesOn = false;
            const bool isLoop = record.isFolder && seen_.count(record.place) != 0;
            if (isLoop || (record.isFolder && waiting_[folder].depth >= deepest) || count_ >= mostEntries)
                return;
            ++count_;
            ImageEntry entry{record.name, record.isFolder, 0, record.length, record.written, {extent}};
            if (record.isFolder) {
                entry.folder = Enter(extent, waiting_[folder].depth + 1);
                entry.extents.clear();
            }
            folders_[folder].push_back(std::move(entry)); // Enter may have moved `entries`
            goesOn = record.goesOn && !record.isFolder;
        });
    }

    const DiscSectors& sectors_;
    DirectoryReader reader_;
    ImageEntry::Extent root_;
    QByteArray rootContent_;
    Folders folders_;
    std::vector<Waiting> waiting_;
    std::unordered_set<qint64> seen_;
    std::size_t count_ = 0;
    qint64 bytesRead_ = 0;
};

} // namespace

DiscImage::DiscImage(const std::string& imageFile) : sectors_(DiscSectors::Open(imageFile))
{
    const Trees trees = FindTrees(*sectors_);
    if (!trees.plain && !trees.joliet)
        Fail(failure::deviceUnavailable);
    if (trees.plain) {
        TreeReader plain(*sectors_, *trees.plain);
        if (plain.Kind() == NameKind::RockRidge || !trees.joliet) {
            folders_ = plain.Read();
            return;
        }
    }
    folders_ = TreeReader(*sectors_, *trees.joliet).Read();
}

qsizetype DiscImage::Read(const ImageEntry& file, qint64 place, char* target, qsizetype room) const
{
    if (place < 0 || place >= file.length)
        return 0;
    qint64 begin = 0;
    for (const ImageEntry::Extent& extent : file.extents) {
        if (place < begin + extent.length) {
            const qint64 inside = place - begin;
            const auto wanted = static_cast<qsizetype>(std::min<qint64>(room, extent.length - inside));
            const qsizetype got = sectors_->Read(extent.place + inside, target, wanted);
            if (got == 0 && wanted > 0)
                Fail(failure::deviceIo);
            return got;
        }
        begin += extent.length;
    }
    return 0;
}

} // namespace torvik
