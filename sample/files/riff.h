#pragma once

#include <QByteArray>

#include <cstdint>
#include <initializer_list>

namespace torvik::sample {

/// Appends the lowest `count` bytes (1 to 4) of `value`, the lowest first.
void AppendNumber(QByteArray& bytes, std::uint32_t value, int count);
/// Numbers of two bytes each, and of four, as the formats of the time store them.
QByteArray Words(std::initializer_list<qint64> values);
QByteArray Longs(std::initializer_list<qint64> values);
/// A chunk of a RIFF file: name of four letters, size, content, and a filling byte after an odd size.
QByteArray RiffChunk(const char* name, const QByteArray& content);
/// A chunk "RIFF" or "LIST" that holds others; `kind` has four letters.
QByteArray RiffList(const char* name, const char* kind, const QByteArray& chunks);

} // namespace torvik::sample
