#include "ui/pictures/picture_end.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace torvik {

namespace {

using Byte = unsigned char;

constexpr Byte startOfImage = 0xd8;
constexpr Byte endOfImage = 0xd9;
constexpr Byte startOfScan = 0xda;

bool StandsAlone(Byte marker)
{
    return marker == 0x01 || (marker >= 0xd0 && marker <= startOfImage);
}

/// From `at`, just behind the header of a scan, to the next marker that is not part of the scan's data.
const Byte* SkipScan(const Byte* at, const Byte* end)
{
    while (at < end) {
        at = static_cast<const Byte*>(std::memchr(at, 0xff, static_cast<std::size_t>(end - at)));
        if (at == nullptr || at + 1 >= end)
            return end;
        const Byte next = at[1];
        const bool restart = next >= 0xd0 && next <= 0xd7;
        if (next != 0x00 && next != 0xff && !restart)
            return at;
        at += next == 0xff ? 1 : 2;
    }
    return end;
}

/// Walks the segments: each tells its length, and each scan is followed by its data up to the next marker.
bool JpegHasItsEnd(const Byte* at, const Byte* end)
{
    at += 2;
    while (at + 1 < end) {
        if (at[0] != 0xff)
            return false;
        const Byte marker = at[1];
        if (marker == endOfImage)
            return true;
        if (marker == 0xff) {
            ++at; // a fill byte
            continue;
        }
        at += 2;
        if (StandsAlone(marker))
            continue;
        if (end - at < 2)
            return false;
        const int length = qFromBigEndian<quint16>(at);
        if (length < 2 || end - at < length)
            return false;
        at += length;
        if (marker == startOfScan)
            at = SkipScan(at, end);
    }
    return false;
}

/// An uncompressed bitmap tells where its rows begin and how large they are; a compressed one tells its size.
bool BmpHasItsEnd(const Byte* data, qint64 size)
{
    constexpr int smallestHeader = 26;
    if (size < smallestHeader)
        return false;
    const qint64 offset = qFromLittleEndian<quint32>(data + 10);
    const quint32 header = qFromLittleEndian<quint32>(data + 14);
    if (header == 12) {
        const qint64 row =
            (qint64{qFromLittleEndian<quint16>(data + 18)} * qFromLittleEndian<quint16>(data + 24) + 31) /
            32 * 4;
        return size >= offset + row * qFromLittleEndian<quint16>(data + 20);
    }
    if (size < 54)
        return false;
    const qint64 width = std::abs(qint64{qFromLittleEndian<qint32>(data + 18)});
    const qint64 height = std::abs(qint64{qFromLittleEndian<qint32>(data + 22)});
    const int bits = qFromLittleEndian<quint16>(data + 28);
    const quint32 compression = qFromLittleEndian<quint32>(data + 30);
    constexpr qint64 most =
        1'000'000'000; // pixels; none that large is shown, and no product below can overflow
    if (height > 0 && width > most / height)
        return false;
    const bool plain = compression == 0 || compression == 3;
    const qint64 needed =
        plain ? (width * bits + 31) / 32 * 4 * height : qint64{qFromLittleEndian<quint32>(data + 34)};
    return size >= offset + needed;
}

} // namespace

bool HasItsEnd(const QByteArray& bytes)
{
    const auto* data = reinterpret_cast<const Byte*>(bytes.constData());
    if (bytes.startsWith("\xff\xd8"))
        return JpegHasItsEnd(data, data + bytes.size());
    if (bytes.startsWith("BM"))
        return BmpHasItsEnd(data, bytes.size());
    return true;
}

} // namespace torvik
