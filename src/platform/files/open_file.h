#pragma once

#include <QtGlobal>

#include <string>

namespace torvik {

/// A file of the host that is open for reading. Failures are RunTimeError.
class OpenFile {
public:
    /// Failures: those of FailureOfSystem; 75 for what is no file (a folder, a device, a pipe).
    explicit OpenFile(const std::string& hostPath);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// The length in bytes that the system tells; some special files hold more than they say.
    qint64 Length() const { return length_; }
    /// Reads up to `room` bytes; returns how many came, 0 at the end.
    qsizetype Read(char* target, qsizetype room);
    /// Reads on from a byte, counted from 0; one behind the end is followed by nothing.
    void SeekTo(qint64 place);

private:
    [[noreturn]] void CloseAndFail(int number);

    std::string path_;
    int descriptor_ = -1;
    qint64 length_ = 0;
};

} // namespace torvik
