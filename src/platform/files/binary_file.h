#pragma once

#include "platform/paths/volume.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>

namespace torvik {

/// A file that is read from its beginning on, in pieces of known length. Paths are drive paths; failures are
/// RunTimeError. The file is closed at the end of its life.
class BinaryInput {
public:
    /// Failures: 53 File not found, 76 Path not found, 70 Permission denied, 75 for what is no file, 67 Too
    /// many files, 68 Device unavailable.
    explicit BinaryInput(const QString& path);

    /// Reads the next `length` bytes into the beginning of `buffer`, which holds at least as many. Failures:
    /// 62 Input past end of file when fewer are left, 57 Device I/O error.
    void Read(QByteArray& buffer, qsizetype length);

private:
    std::unique_ptr<OpenFile> file_;
};

/// A new file that is written from its beginning on. Paths are drive paths; failures are RunTimeError.
class BinaryOutput {
public:
    /// Makes the file, or empties the one that exists. Failures: 76 when its folder is missing, 70, 75 for a
    /// folder, a special file or a read-only medium, 61 Disk full, 67, 68.
    explicit BinaryOutput(const QString& path);
    /// The same for a path of the host; `mode` holds the permissions of a new file.
    BinaryOutput(const std::string& hostPath, unsigned mode);
    /// Closes the file without a word of what may have failed; Close tells.
    ~BinaryOutput();
    BinaryOutput(const BinaryOutput&) = delete;
    BinaryOutput& operator=(const BinaryOutput&) = delete;

    /// Writes the first `length` bytes of `buffer`. Failures: 61 Disk full (also at the machine's limit for
    /// one file), 57 Device I/O error.
    void Write(const QByteArray& buffer, qsizetype length);
    /// Ends the writing. Failures as for Write: some systems tell only now that the disk is full.
    void Close();

private:
    std::string path_;
    int descriptor_ = -1;
};

} // namespace torvik
