#pragma once

#include <QtGlobal>

namespace torvik {

/// Where the bytes of a movie or sound come from.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// Reads up to `room` bytes; returns how many came, 0 at the end, -1 when reading failed.
    virtual qsizetype Read(char* target, qsizetype room) = 0;
    /// Goes to a byte, counted from 0; false when that failed.
    virtual bool SeekTo(qint64 place) = 0;
    /// Length in bytes.
    virtual qint64 Length() const = 0;
};

} // namespace torvik
