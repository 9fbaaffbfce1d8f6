#include "check/riff_chunks.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr qsizetype headLength = 8;
constexpr qsizetype indexEntry = 16;
constexpr int mostChunks = 10'000;
constexpr qint64 longestIndex = qint64{64} * 1024 * 1024;

struct Chunk {
    QByteArray name; ///< of a list the name of its kind, "movi"
    qint64 begin = 0;
    qint64 length = 0; ///< as it is told
};

class ChunkReader {
public:
    explicit ChunkReader(const Place& place) : file_(place.on->Open(place.path)) {}

    qint64 Length() const { return file_->Length(); }

    QByteArray Bytes(qint64 place, qint64 length)
    {
        QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
        file_->SeekTo(place);
        qsizetype filled = 0;
        while (filled < bytes.size()) {
            const qsizetype got = file_->Read(bytes.data() + filled, bytes.size() - filled);
            if (got == 0)
                break;
            filled += got;
        }
        bytes.truncate(filled);
        return bytes;
    }

    std::optional<Chunk> At(qint64 place)
    {
        const QByteArray head = Bytes(place, headLength + 4);
        if (head.size() < headLength)
            return std::nullopt;
        const bool isList = head.startsWith("LIST") || head.startsWith("RIFF");
        return Chunk{isList ? head.mid(headLength) : head.left(4), place + headLength,
                     qFromLittleEndian<quint32>(head.constData() + 4)};
    }

    /// The first chunk of that name inside the file's own.
    std::optional<Chunk> Find(const QByteArray& name)
    {
        qint64 place = headLength + 4;
        for (int count = 0; count < mostChunks; ++count) {
            auto chunk = At(place);
            if (!chunk || chunk->name == name)
                return chunk;
            place = chunk->begin + chunk->length + chunk->length % 2;
        }
        return std::nullopt;
    }

private:
    std::unique_ptr<OpenFile> file_;
};

/// Whether each entry leads to a chunk inside the pictures: some count from the beginning of these, some from
/// that of the file.
bool EntriesLeadInto(const Chunk& pictures, const QByteArray& index)
{
    qint64 first = -1;
    for (qsizetype entry = 0; entry + indexEntry <= index.size(); entry += indexEntry) {
        const qint64 place = qFromLittleEndian<quint32>(index.constData() + entry + 8);
        const qint64 length = qFromLittleEndian<quint32>(index.constData() + entry + 12);
        if (first < 0)
            first = place < pictures.begin ? pictures.begin : 0;
        const qint64 begin = first + place;
        if (begin < pictures.begin || begin + headLength + length > pictures.begin + pictures.length)
            return false;
    }
    return true;
}

} // namespace

QString MovieIndexProblem(const Place& place)
{
    ChunkReader reader(place);
    const auto pictures = reader.Find("movi");
    if (!pictures)
        return u"has no pictures where they should be"_s;
    if (pictures->begin + pictures->length > reader.Length())
        return u"ends early"_s;
    const auto index = reader.Find("idx1");
    if (!index || index->length < indexEntry)
        return u"has no index, so places in it are hard to find"_s;
    if (index->length > longestIndex || index->begin + index->length > reader.Length())
        return u"has a broken index"_s;
    const bool isRight = EntriesLeadInto(*pictures, reader.Bytes(index->begin, index->length));
    return isRight ? QString() : u"has a broken index"_s;
}

QString SoundLengthProblem(const Place& place)
{
    ChunkReader reader(place);
    const auto samples = reader.Find("data");
    // Programs that write without knowing the end leave all bits set.
    const bool isTold = samples && samples->length != 0xFFFFFFFF;
    return isTold && samples->begin + samples->length > reader.Length() ? u"ends early"_s : QString();
}

} // namespace torvik
