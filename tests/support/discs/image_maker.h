#pragma once

#include <QByteArray>
#include <QList>

namespace torvik {

/// Lays out disc images byte by byte, also such as no program would write.
class ImageMaker {
public:
    static constexpr qsizetype block = 2048; ///< bytes

    /// A record of a folder as it shall stand there.
    struct Record {
        QByteArray name;
        quint32 block = 0;
        quint32 length = 0;
        quint8 flags = 0; ///< 2: folder, 128: goes on in the next record
        QByteArray system;
        quint8 attributeBlocks = 0;
    };
    static constexpr quint8 isFolder = 2;
    static constexpr quint8 goesOn = 128;

    ImageMaker();

    /// Makes a folder inside another one (0 is the root); returns its number. There is room for 40.
    int AddFolder(const QByteArray& name, int in = 0);
    /// Puts content on the disc and a record of it into a folder.
    void AddFile(const QByteArray& name, const QByteArray& content, int in = 0);
    void AddRecord(const Record& record, int in = 0);
    /// Puts content on the disc that no record tells of; returns its first block.
    quint32 AddContent(const QByteArray& content);
    /// The block at which a folder's records begin.
    static quint32 BlockOf(int folder);
    /// What stands behind a folder's own name.
    void SetOwnSystem(const QByteArray& system) { ownSystem_ = system; }

    /// The image with sectors of content alone.
    QByteArray Iso() const;

    /// The same content in raw sectors: 2352, 2336 or 2448 bytes of mode 1 or 2.
    static QByteArray Raw(const QByteArray& iso, int mode, int sectorSize);
    /// The content of a file with the table of an NRG behind it. `chunk` is the table's entry, made by Chunk.
    static QByteArray Nero(const QByteArray& content, const QByteArray& chunk, bool isNew);
    static QByteArray Chunk(const QByteArray& name, const QByteArray& content);
    /// A number of 4 or 8 bytes, the highest first.
    static QByteArray Big(quint64 number, int bytes);
    static QByteArray Little(quint32 number);

private:
    static QByteArray Bytes(const Record& record);

    QByteArray ownSystem_;
    QList<QList<Record>> folders_;
    QByteArray content_;
};

} // namespace torvik
