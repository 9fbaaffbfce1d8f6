#include "platform/image/directory_reader.h"

#include "runtime/failure.h"

#include <QString>
#include <QtEndian>

#include <algorithm>
#include <cdio/bytesex.h>
#include <cdio/iso9660.h>
#include <ctime>

namespace torvik {

namespace {

constexpr qsizetype fixedPart = sizeof(iso9660_dir_t); ///< of a record, up to the length of its name
constexpr qsizetype longestName = 1024;
constexpr int mostContinuations = 8;
/// Names of one byte, for a folder itself and its parent.
constexpr char lastOfOwnNames = 1;

/// The fixed part of a record that holds it.
iso9660_dir_t FixedPart(const QByteArray& record)
{
    iso9660_dir_t fixed;
    std::copy_n(record.constData(), fixedPart, reinterpret_cast<char*>(&fixed));
    return fixed;
}

/// The name as it stands in the record, and what stands behind it.
QByteArray NameField(const QByteArray& record)
{
    return record.mid(fixedPart, static_cast<unsigned char>(record[fixedPart - 1]));
}

QByteArray SystemField(const QByteArray& record)
{
    const qsizetype name = static_cast<unsigned char>(record[fixedPart - 1]);
    return record.mid(fixedPart + name + (name % 2 == 0 ? 1 : 0));
}

/// "67TOR001.JPG;1" is "67TOR001.JPG", and "README.;1" is "README".
std::string WithoutVersion(std::string name)
{
    const std::size_t semicolon = name.rfind(';');
    const bool isVersion = semicolon != std::string::npos && semicolon > 0 &&
                           name.find_first_not_of("0123456789", semicolon + 1) == std::string::npos;
    if (isVersion)
        name.resize(semicolon);
    if (name.size() > 1 && name.back() == '.')
        name.pop_back();
    return name;
}

std::string FromJoliet(const QByteArray& field)
{
    QString text;
    text.reserve(field.size() / 2);
    for (qsizetype i = 0; i + 1 < field.size(); i += 2)
        text.append(QChar(qFromBigEndian<char16_t>(field.constData() + i)));
    return text.toStdString();
}

bool CanHavePath(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

qint64 TimeOf(const iso9660_dir_t& record)
{
    std::tm time{};
    const bool isKnown = record.recording_time.dt_month != 0 &&
                         iso9660_get_dtime(&record.recording_time, /*b_localtime=*/false, &time);
    return isKnown ? timegm(&time) : 0;
}

quint32 NumberAt(const QByteArray& field, qsizetype place)
{
    return qFromLittleEndian<quint32>(field.constData() + place);
}

} // namespace

/// What the fields behind a plain name say.
struct DirectoryReader::Extension {
    QByteArray name;
    bool isLink = false;
    bool isMoved = false;   ///< stands here only because folders may not lie deeper; its place tells where
    qint64 movedFolder = 0; ///< where such a folder lies, in bytes
};

void DirectoryReader::FindRockRidge(const QByteArray& rootContent)
{
    // The first record is the folder's own. Behind its name stands the mark "SP", seven bytes long.
    const qsizetype length = rootContent.isEmpty() ? 0 : static_cast<unsigned char>(rootContent[0]);
    if (length <= fixedPart || length > rootContent.size())
        return;
    const QByteArray own = rootContent.left(length);
    const QByteArray field = SystemField(own);
    constexpr qsizetype longestHead = 16; // discs of the XA kind have 14 bytes of their own there
    const qsizetype mark = field.left(longestHead + 6).indexOf("SP\x07\x01\xBE\xEF");
    if (mark < 0 || mark + 6 >= field.size())
        return;
    skipped_ = static_cast<unsigned char>(field[mark + 6]);
    kind_ = NameKind::RockRidge;
}

void DirectoryReader::ForEach(const QByteArray& content,
                              const std::function<void(const DirectoryRecord&)>& visit) const
{
    constexpr qsizetype sector = ISO_BLOCKSIZE;
    for (qsizetype place = 0; place < content.size();) {
        const qsizetype length = static_cast<unsigned char>(content[place]);
        const qsizetype nextSector = (place / sector + 1) * sector;
        const bool isWhole = length > fixedPart && place + length <= std::min(nextSector, content.size()) &&
                             fixedPart + static_cast<unsigned char>(content[place + fixedPart - 1]) <= length;
        if (!isWhole) {
            place = nextSector; // records do not cross sectors; a zero stands where no more fit
            continue;
        }
        Read(content.mid(place, length), visit);
        place += length;
    }
}

void DirectoryReader::Read(const QByteArray& record,
                           const std::function<void(const DirectoryRecord&)>& visit) const
{
    const QByteArray name = NameField(record);
    if (name.isEmpty() || (name.size() == 1 && name[0] >= 0 && name[0] <= lastOfOwnNames))
        return;
    const iso9660_dir_t fixed = FixedPart(record);
    const Extension extension = kind_ == NameKind::RockRidge ? ReadExtension(record) : Extension();
    if (extension.isLink || extension.isMoved)
        return;

    DirectoryRecord read;
    if (!extension.name.isEmpty())
        read.name = extension.name.toStdString();
    else
        read.name = WithoutVersion(kind_ == NameKind::Joliet ? FromJoliet(name) : name.toStdString());
    if (!CanHavePath(read.name))
        return;
    read.isFolder = (fixed.file_flags & ISO_DIRECTORY) != 0;
    read.goesOn = (fixed.file_flags & ISO_MULTIEXTENT) != 0;
    read.place = (qint64{from_733(fixed.extent)} + fixed.xa_length) * blockSize_;
    read.length = from_733(fixed.size);
    read.written = TimeOf(fixed);
    if (extension.movedFolder != 0) {
        read.isFolder = true;
        read.place = extension.movedFolder;
        read.length = FolderLength(extension.movedFolder);
    }
    visit(read);
}

DirectoryReader::Extension DirectoryReader::ReadExtension(const QByteArray& record) const
{
    Extension extension;
    QByteArray fields = SystemField(record).mid(skipped_);
    for (int continuation = 0; continuation < mostContinuations && !fields.isEmpty(); ++continuation) {
        QByteArray rest;
        for (qsizetype place = 0; place + 4 <= fields.size();) {
            const qsizetype length = static_cast<unsigned char>(fields[place + 2]);
            if (length < 4 || place + length > fields.size())
                break;
            const QByteArray field = fields.mid(place, length);
            if (field.startsWith("NM") && length > 5 && extension.name.size() < longestName)
                extension.name += field.mid(5);
            else if (field.startsWith("SL"))
                extension.isLink = true;
            else if (field.startsWith("RE"))
                extension.isMoved = true;
            else if (field.startsWith("CL") && length >= 12)
                extension.movedFolder = NumberAt(field, 4) * blockSize_;
            else if (field.startsWith("CE") && length >= 28)
                rest = Continuation(field);
            place += length;
        }
        fields = rest;
    }
    return extension;
}

/// The fields for which there was no room in a record.
QByteArray DirectoryReader::Continuation(const QByteArray& field) const
{
    const qint64 place = NumberAt(field, 4) * blockSize_ + NumberAt(field, 12);
    return BytesAt(place, std::min<quint32>(NumberAt(field, 20), ISO_BLOCKSIZE));
}

/// What can be read of these bytes.
QByteArray DirectoryReader::BytesAt(qint64 place, qsizetype length) const
{
    QByteArray bytes(length, Qt::Uninitialized);
    qsizetype got = 0;
    ResumeNext([&] { got = sectors_.Read(place, bytes.data(), length); });
    bytes.truncate(got);
    return bytes;
}

/// A folder's own first record tells its length.
qint64 DirectoryReader::FolderLength(qint64 place) const
{
    const QByteArray own = BytesAt(place, fixedPart);
    return own.size() == fixedPart ? from_733(FixedPart(own).size) : 0;
}

} // namespace torvik
