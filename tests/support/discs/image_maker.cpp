#include "support/discs/image_maker.h"

#include <QtEndian>

namespace torvik {

namespace {

constexpr qsizetype firstFolderBlock = 20;
constexpr qsizetype blocksOfFolder = 4;
constexpr qsizetype mostFolders = 40;
constexpr qsizetype firstContentBlock = firstFolderBlock + mostFolders * blocksOfFolder;

QByteArray Both(quint32 number)
{
    return ImageMaker::Little(number) + ImageMaker::Big(number, 4);
}

QByteArray Padded(QByteArray bytes, qsizetype length)
{
    return bytes.append(QByteArray(length - bytes.size(), '\0'));
}

} // namespace

ImageMaker::ImageMaker() : folders_(1) {}

QByteArray ImageMaker::Big(quint64 number, int bytes)
{
    QByteArray text(8, '\0');
    qToBigEndian(number, text.data());
    return text.right(bytes);
}

QByteArray ImageMaker::Little(quint32 number)
{
    QByteArray text(4, '\0');
    qToLittleEndian(number, text.data());
    return text;
}

quint32 ImageMaker::BlockOf(int folder)
{
    return static_cast<quint32>(firstFolderBlock + folder * blocksOfFolder);
}

int ImageMaker::AddFolder(const QByteArray& name, int in)
{
    const int number = static_cast<int>(folders_.size());
    Q_ASSERT(number < mostFolders);
    folders_.append(QList<Record>());
    AddRecord({name, BlockOf(number), blocksOfFolder * block, isFolder, {}, 0}, in);
    return number;
}

quint32 ImageMaker::AddContent(const QByteArray& content)
{
    const auto first = static_cast<quint32>(firstContentBlock + content_.size() / block);
    content_ += Padded(content, (content.size() + block - 1) / block * block);
    return first;
}

void ImageMaker::AddFile(const QByteArray& name, const QByteArray& content, int in)
{
    AddRecord({name, AddContent(content), static_cast<quint32>(content.size()), 0, {}, 0}, in);
}

void ImageMaker::AddRecord(const Record& record, int in)
{
    folders_[in].append(record);
}

QByteArray ImageMaker::Bytes(const Record& record)
{
    constexpr int fixedPart = 33;
    QByteArray bytes = QByteArray(1, '\0') + static_cast<char>(record.attributeBlocks) + Both(record.block) +
                       Both(record.length);
    bytes += QByteArray("\x65\x0B\x15\x0C\x1E\x0F\x04", 7); // 21 November 2001, 12:30:15, an hour east
    bytes += static_cast<char>(record.flags);
    bytes += QByteArray("\0\0\1\0\0\1", 6);
    bytes += static_cast<char>(record.name.size());
    bytes += record.name;
    if ((fixedPart + record.name.size()) % 2 != 0)
        bytes += '\0';
    bytes += record.system;
    if (bytes.size() % 2 != 0)
        bytes += '\0';
    bytes[0] = static_cast<char>(bytes.size());
    return bytes;
}

QByteArray ImageMaker::Iso() const
{
    const Record root{QByteArray(1, '\0'), BlockOf(0), blocksOfFolder * block, isFolder, {}, 0};
    QByteArray primary = QByteArray("\1CD001\1\0", 8);
    primary = Padded(primary, 80) + Both(static_cast<quint32>(firstContentBlock + content_.size() / block));
    primary = Padded(primary, 128) + QByteArray("\0\x08\x08\0", 4);
    primary += Both(0x7FFFFFFF) + Little(0x7FFFFFF0); // a table of folders that lies; nobody needs it
    primary = Padded(primary, 156) + Bytes(root);

    QByteArray iso(qsizetype{16} * block, '\0');
    iso += Padded(primary, block);
    iso += Padded(QByteArray("\xFF"
                             "CD001\1",
                             7),
                  block);
    iso = Padded(iso, firstFolderBlock * block);
    for (const QList<Record>& records : folders_) {
        Record own = root;
        own.system = ownSystem_;
        QByteArray folder =
            Bytes(own) + Bytes({QByteArray(1, '\1'), BlockOf(0), blocksOfFolder * block, isFolder, {}, 0});
        for (const Record& record : records) {
            const QByteArray bytes = Bytes(record);
            if (folder.size() % block + bytes.size() > block)
                folder = Padded(folder, (folder.size() / block + 1) * block);
            folder += bytes;
        }
        Q_ASSERT(folder.size() <= blocksOfFolder * block);
        iso += Padded(folder, blocksOfFolder * block);
    }
    return Padded(iso, firstContentBlock * block) + content_;
}

QByteArray ImageMaker::Raw(const QByteArray& iso, int mode, int sectorSize)
{
    const QByteArray sync = QByteArray(1, '\0') + QByteArray(10, '\xFF') + QByteArray(1, '\0');
    QByteArray raw;
    for (qsizetype place = 0; place < iso.size(); place += block) {
        QByteArray sector;
        if (sectorSize != 2336)
            sector = sync + QByteArray("\0\2\0", 3) + static_cast<char>(mode);
        if (mode == 2)
            sector += QByteArray(8, '\0');
        raw += Padded(sector + iso.mid(place, block), sectorSize);
    }
    return raw;
}

QByteArray ImageMaker::Chunk(const QByteArray& name, const QByteArray& content)
{
    return name + Big(static_cast<quint64>(content.size()), 4) + content;
}

QByteArray ImageMaker::Nero(const QByteArray& content, const QByteArray& chunk, bool isNew)
{
    const auto place = static_cast<quint64>(content.size());
    return content + chunk + Chunk("END!", {}) + (isNew ? "NER5" + Big(place, 8) : "NERO" + Big(place, 4));
}

} // namespace torvik
