#pragma once

#include <QtGlobal>

#include <string>

namespace torvik {

/// A file of the host that is read at any place, also by several threads at once. It is never written.
class ImageBytes {
public:
    /// Failures: 68 Device unavailable when it cannot be opened, for whatever reason: to the program it is a
    /// drive. What is no regular file counts as such too.
    explicit ImageBytes(const std::string& file);
    ~ImageBytes();
    ImageBytes(const ImageBytes&) = delete;
    ImageBytes& operator=(const ImageBytes&) = delete;

    /// Bytes, as it was when it was opened.
    qint64 Length() const { return length_; }
    /// Reads up to `room` bytes from a place, counted from 0; fewer only where the file ends now. Failure 57,
    /// Device I/O error.
    qsizetype Read(qint64 place, char* target, qsizetype room) const;

private:
    int descriptor_ = -1;
    qint64 length_ = 0;
};

} // namespace torvik
