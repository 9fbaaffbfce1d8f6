#pragma once

#include "platform/image/disc_sectors.h"

#include <QByteArray>

#include <functional>
#include <string>

namespace torvik {

/// Which of the names that an image carries are taken.
enum class NameKind {
    Plain,    ///< capitals with a version, "67TOR001.JPG;1"
    Joliet,   ///< a second tree of folders with names in UTF-16
    RockRidge ///< names of any bytes behind each plain one
};

/// What a folder of an image tells about one file or folder.
struct DirectoryRecord {
    std::string name; ///< as the program sees it: without a version or a lone closing point
    bool isFolder = false;
    bool goesOn = false; ///< the next record of this name is about the rest of the file
    qint64 place = 0;    ///< where its content begins, in bytes of the image
    qint64 length = 0;   ///< bytes
    qint64 written = 0;  ///< seconds since 1970, 0 when it is not known
};

/// Reads the folders of an image. Whatever stands there, nothing is read outside of what was given; a record
/// that makes no sense ends its sector.
class DirectoryReader {
public:
    /// `blockSize`: bytes of the blocks by which records count.
    DirectoryReader(const DiscSectors& sectors, NameKind kind, qint64 blockSize)
        : sectors_(sectors), kind_(kind), blockSize_(blockSize)
    {}

    /// Takes the root folder's content: whether its records carry names of any bytes (then these are read
    /// from now on), and how many bytes stand before them in each record.
    void FindRockRidge(const QByteArray& rootContent);
    NameKind Kind() const { return kind_; }

    /// Calls `visit` for each record of the folder's content but for itself and its parent, in their order.
    /// What can have no path (an empty name, "..", a name with a slash or a zero byte) and symbolic links are
    /// left out.
    void ForEach(const QByteArray& content, const std::function<void(const DirectoryRecord&)>& visit) const;

private:
    struct Extension;

    void Read(const QByteArray& record, const std::function<void(const DirectoryRecord&)>& visit) const;
    Extension ReadExtension(const QByteArray& record) const;
    QByteArray Continuation(const QByteArray& field) const;
    QByteArray BytesAt(qint64 place, qsizetype length) const;
    qint64 FolderLength(qint64 place) const;

    const DiscSectors& sectors_;
    NameKind kind_;
    qint64 blockSize_;
    qsizetype skipped_ = 0;
};

} // namespace torvik
