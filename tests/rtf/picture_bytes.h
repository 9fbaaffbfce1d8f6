#pragma once

#include <QByteArray>
#include <QtEndian>

#include <initializer_list>

namespace torvik::rtf {

/// Little-endian numbers, one after the other.
class Bytes {
public:
    Bytes& U8(int value) { return Append(static_cast<quint8>(value)); }
    Bytes& U16(int value) { return Append(static_cast<quint16>(value)); }
    Bytes& U32(qint64 value) { return Append(static_cast<quint32>(value)); }
    Bytes& Words(std::initializer_list<int> values)
    {
        for (const int value : values)
            U16(value);
        return *this;
    }
    Bytes& Longs(std::initializer_list<qint64> values)
    {
        for (const qint64 value : values)
            U32(value);
        return *this;
    }
    Bytes& Raw(const QByteArray& bytes)
    {
        bytes_ += bytes;
        return *this;
    }
    const QByteArray& Data() const { return bytes_; }
    std::string_view View() const { return {bytes_.constData(), static_cast<std::size_t>(bytes_.size())}; }

private:
    template <typename T>
    Bytes& Append(T value)
    {
        const T little = qToLittleEndian(value);
        bytes_.append(reinterpret_cast<const char*>(&little), sizeof little);
        return *this;
    }
    QByteArray bytes_;
};

inline std::string_view ViewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A packed bitmap: header, palette of whole entries (blue, green, red, 0) and pixels.
inline QByteArray Dib(int width, int height, int bits, const QByteArray& palette, const QByteArray& pixels,
                      int compression = 0)
{
    Bytes bytes;
    bytes.U32(40).U32(width).U32(height).U16(1).U16(bits).U32(compression).U32(pixels.size());
    bytes.U32(0).U32(0).U32(palette.size() / 4).U32(0).Raw(palette).Raw(pixels);
    return bytes.Data();
}

/// 2 x 2 pixels of 24 bits; upper line red, green, lower line blue, white.
inline QByteArray FourColors()
{
    return Dib(2, 2, 24, {},
               QByteArray::fromHex("ff0000ffffff0000"
                                   "0000ff00ff000000"));
}

inline QByteArray WmfRecord(int function, const QByteArray& parameters)
{
    return Bytes().U32(3 + parameters.size() / 2).U16(function).Raw(parameters).Data();
}

/// A metafile of the older kind with a window and records.
inline QByteArray Wmf(int width, int height, const QByteArray& records)
{
    const QByteArray all = WmfRecord(0x020b, Bytes().Words({0, 0}).Data()) +
                           WmfRecord(0x020c, Bytes().Words({height, width}).Data()) + records +
                           WmfRecord(0, {});
    return Bytes().Words({1, 9, 0x300}).U32(9 + all.size() / 2).U16(8).U32(200).U16(0).Raw(all).Data();
}

inline QByteArray EmfRecord(quint32 type, const QByteArray& parameters)
{
    return Bytes().U32(type).U32(8 + parameters.size()).Raw(parameters).Data();
}

/// An enhanced metafile whose device has 10 units to the millimetre, and whose picture is `width` by `height`
/// units.
inline QByteArray Emf(int width, int height, const QByteArray& records)
{
    Bytes header;
    header.Longs({1, 100, 0, 0, width, height, 0, 0, width * 10LL, height * 10LL, 0x464d4520, 0x10000, 0, 0});
    header.U16(16).U16(0).Longs({0, 0, 0, 1000, 1000, 100, 100, 0, 0, 0});
    QByteArray bytes = header.Data().left(100);
    return bytes + records + EmfRecord(14, Bytes().Longs({0, 16, 20}).Data());
}

} // namespace torvik::rtf
