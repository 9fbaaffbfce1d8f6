#include "platform/image/disc_sectors.h"

#include "platform/image/image_tracks.h"
#include "runtime/failure.h"

#include <algorithm>
#include <array>
#include <cdio/cdio.h>
#include <cdio/iso9660.h>
#include <cstring>

namespace torvik {

namespace {

constexpr int content = ISO_BLOCKSIZE;
constexpr int subchannel = 96; ///< what some programs keep behind a raw sector

/// The forms in which a sector's content is kept: alone; raw with the head of mode 1; raw with the longer
/// head of mode 2; without the first part of that head; both raw ones with the subchannel.
constexpr std::array<SectorForm, 6> forms{{
    {content, 0},
    {CDIO_CD_FRAMESIZE_RAW, CDIO_CD_SYNC_SIZE + CDIO_CD_HEADER_SIZE},
    {CDIO_CD_FRAMESIZE_RAW, CDIO_CD_XA_SYNC_HEADER},
    {M2RAW_SECTOR_SIZE, CDIO_CD_SUBHEADER_SIZE},
    {CDIO_CD_FRAMESIZE_RAW + subchannel, CDIO_CD_SYNC_SIZE + CDIO_CD_HEADER_SIZE},
    {CDIO_CD_FRAMESIZE_RAW + subchannel, CDIO_CD_XA_SYNC_HEADER},
}};

/// Raw sectors are read in pieces of this many.
constexpr std::size_t sectorsAtOnce = 16;

} // namespace

std::unique_ptr<DiscSectors> DiscSectors::Open(const std::string& imageFile)
{
    for (const ImageTrack& track : TracksOf(imageFile)) {
        for (const SectorForm& form : forms) {
            std::unique_ptr<DiscSectors> sectors(
                new DiscSectors(std::make_unique<ImageBytes>(track.file), track.firstByte, form));
            if (sectors->HasMark())
                return sectors;
        }
    }
    Fail(failure::deviceUnavailable);
}

DiscSectors::DiscSectors(std::unique_ptr<ImageBytes> file, qint64 firstByte, const SectorForm& form)
    : file_(std::move(file)), firstByte_(firstByte), form_(form)
{
    const qint64 bytes = std::max<qint64>(0, file_->Length() - firstByte_);
    const qint64 cut = bytes % form_.size - form_.dataAt;
    length_ = bytes / form_.size * content + std::clamp<qint64>(cut, 0, content);
}

bool DiscSectors::HasMark() const
{
    constexpr int markLength = 5;
    std::array<char, markLength> mark{};
    const qsizetype got = Read(qint64{ISO_PVD_SECTOR} * content + 1, mark.data(), markLength);
    return got == markLength && std::memcmp(mark.data(), "CD001", markLength) == 0;
}

qsizetype DiscSectors::Read(qint64 place, char* target, qsizetype room) const
{
    if (place < 0 || place >= length_)
        return 0;
    room = static_cast<qsizetype>(std::min<qint64>(room, length_ - place));
    if (form_.size == content)
        return file_->Read(firstByte_ + place, target, room);
    qsizetype filled = 0;
    while (filled < room) {
        const qsizetype got = ReadSectors(place + filled, target + filled, room - filled);
        if (got == 0)
            break;
        filled += got;
    }
    return filled;
}

/// Reads what lies in the next few sectors.
qsizetype DiscSectors::ReadSectors(qint64 place, char* target, qsizetype room) const
{
    std::array<char, sectorsAtOnce*(CDIO_CD_FRAMESIZE_RAW + subchannel)> raw;
    const qint64 first = place / content;
    const qint64 last = std::min((place + room - 1) / content, first + qint64{sectorsAtOnce} - 1);
    const auto length = static_cast<qsizetype>((last - first + 1) * form_.size);
    const qsizetype got = file_->Read(firstByte_ + first * form_.size, raw.data(), length);

    qsizetype filled = 0;
    for (qsizetype sector = form_.dataAt; sector < got && filled < room; sector += form_.size) {
        const qsizetype skipped = filled == 0 ? static_cast<qsizetype>(place % content) : 0;
        const qsizetype there = std::min<qsizetype>(content, got - sector) - skipped;
        if (there <= 0)
            break;
        const qsizetype taken = std::min(there, room - filled);
        std::memcpy(target + filled, raw.data() + sector + skipped, static_cast<std::size_t>(taken));
        filled += taken;
        if (there < content - skipped)
            break; // the file ends inside this sector
    }
    return filled;
}

} // namespace torvik
