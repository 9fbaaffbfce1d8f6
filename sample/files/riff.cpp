#include "sample/files/riff.h"

namespace torvik::sample {

void AppendNumber(QByteArray& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xFFU);
}

QByteArray Words(std::initializer_list<qint64> values)
{
    QByteArray bytes;
    for (const qint64 value : values)
        AppendNumber(bytes, static_cast<std::uint32_t>(value), 2);
    return bytes;
}

QByteArray Longs(std::initializer_list<qint64> values)
{
    QByteArray bytes;
    for (const qint64 value : values)
        AppendNumber(bytes, static_cast<std::uint32_t>(value), 4);
    return bytes;
}

QByteArray RiffChunk(const char* name, const QByteArray& content)
{
    QByteArray chunk(name, 4);
    chunk.reserve(content.size() + 9);
    AppendNumber(chunk, static_cast<std::uint32_t>(content.size()), 4);
    chunk += content;
    if (content.size() % 2 != 0)
        chunk += '\0';
    return chunk;
}

QByteArray RiffList(const char* name, const char* kind, const QByteArray& chunks)
{
    QByteArray content(kind, 4);
    content += chunks;
    return RiffChunk(name, content);
}

} // namespace torvik::sample
