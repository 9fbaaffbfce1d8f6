#pragma once

#include <QtEndian>

#include <cstddef>
#include <string_view>

namespace torvik::rtf {

/// Reads little-endian numbers out of bytes, at any place. What lies outside the bytes reads as zero.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    std::size_t Size() const { return bytes_.size(); }
    bool Has(std::size_t at, std::size_t count) const
    {
        return at <= bytes_.size() && count <= bytes_.size() - at;
    }

    quint8 U8(std::size_t at) const { return Number<quint8>(at); }
    quint16 U16(std::size_t at) const { return Number<quint16>(at); }
    qint16 S16(std::size_t at) const { return Number<qint16>(at); }
    quint32 U32(std::size_t at) const { return Number<quint32>(at); }
    qint32 S32(std::size_t at) const { return Number<qint32>(at); }
    float F32(std::size_t at) const { return Number<float>(at); }
    /// At most `count` bytes from a place on; fewer, or none, where the bytes end.
    std::string_view Slice(std::size_t at, std::size_t count = std::string_view::npos) const
    {
        return at <= bytes_.size() ? bytes_.substr(at, count) : std::string_view();
    }

private:
    template <typename T>
    T Number(std::size_t at) const
    {
        return Has(at, sizeof(T)) ? qFromLittleEndian<T>(bytes_.data() + at) : T();
    }

    std::string_view bytes_;
};

} // namespace torvik::rtf
