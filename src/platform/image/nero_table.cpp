#include "platform/image/nero_table.h"

#include <QByteArray>
#include <QtEndian>

namespace torvik {

namespace {

constexpr qint64 longestTable = 64LL * 1024;
constexpr qsizetype chunkHead = 8; ///< name and length
constexpr std::size_t mostEntriesRead = 99;

template <typename Number>
qint64 NumberAt(const QByteArray& bytes, qsizetype place)
{
    return static_cast<qint64>(qFromBigEndian<Number>(bytes.constData() + place));
}

QByteArray ReadBytes(const ImageBytes& file, qint64 place, qint64 length)
{
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    bytes.truncate(file.Read(place, bytes.data(), bytes.size()));
    return bytes;
}

/// The table: chunks of a name of four letters, a length and content, up to "END!".
QByteArray TableOf(const ImageBytes& file)
{
    constexpr qint64 footLength = 12;
    if (file.Length() < footLength)
        return {};
    const QByteArray foot = ReadBytes(file, file.Length() - footLength, footLength);
    if (foot.size() != footLength)
        return {};
    const bool isNew = foot.startsWith("NER5");
    if (!isNew && foot.mid(4, 4) != "NERO")
        return {};
    const qint64 begin = isNew ? NumberAt<quint64>(foot, 4) : NumberAt<quint32>(foot, 8);
    const qint64 end = file.Length() - (isNew ? 12 : 8);
    if (begin < 0 || begin > end || end - begin > longestTable)
        return {};
    return ReadBytes(file, begin, end - begin);
}

/// The beginnings that stand in entries of one size, `place` bytes into each.
template <typename Number>
void TakeEntries(const QByteArray& content, qsizetype first, qsizetype size, qsizetype place,
                 std::vector<qint64>& beginnings)
{
    for (qsizetype entry = first; entry + size <= content.size() && beginnings.size() < mostEntriesRead;
         entry += size) {
        const qint64 beginning = NumberAt<Number>(content, entry + place);
        if (beginning >= 0)
            beginnings.push_back(beginning);
    }
}

} // namespace

std::vector<qint64> NeroTrackBeginnings(const ImageBytes& file)
{
    // Both kinds of disc-at-once tables begin with 22 bytes about the disc; each entry holds, behind 18 bytes
    // about the recording, where the pause before the track, the track, and what follows it begin.
    constexpr qsizetype aboutDisc = 22;
    constexpr qsizetype aboutTrack = 18;
    const QByteArray table = TableOf(file);
    std::vector<qint64> beginnings;
    for (qsizetype chunk = 0; chunk + chunkHead <= table.size();) {
        const QByteArray name = table.mid(chunk, 4);
        const qint64 length = NumberAt<quint32>(table, chunk + 4);
        if (length > table.size() - chunk - chunkHead)
            break;
        const QByteArray content = table.mid(chunk + chunkHead, static_cast<qsizetype>(length));
        if (name == "ETNF")
            TakeEntries<quint32>(content, 0, 20, 0, beginnings);
        else if (name == "ETN2")
            TakeEntries<quint64>(content, 0, 32, 0, beginnings);
        else if (name == "DAOI")
            TakeEntries<quint32>(content, aboutDisc, aboutTrack + 12, aboutTrack + 4, beginnings);
        else if (name == "DAOX")
            TakeEntries<quint64>(content, aboutDisc, aboutTrack + 24, aboutTrack + 8, beginnings);
        chunk += chunkHead + static_cast<qsizetype>(length);
    }
    return beginnings;
}

} // namespace torvik
