#pragma once

#include "platform/paths/volume.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <string>

namespace torvik {

/// What tells one state of a file from another: other content, another file under its name, another medium,
/// the same medium after the drives were read anew. It holds no medium.
class FileMark {
public:
    /// The mark of no file; it equals no other.
    FileMark() = default;

    /// Of a file as it is now; on any thread. Failures: 53, 76, 70.
    static FileMark Of(const Place& place);
    /// The same for a drive path, which is looked up; also 68. For the user-interface thread.
    static FileMark Of(const QString& path);

    bool operator==(const FileMark& other) const;

private:
    quint64 volume_ = 0; ///< its number; 0 for no file
    std::string path_;
    EntryStatus status_;
};

/// What a file held, and the mark that it had then.
struct MarkedContent {
    QByteArray bytes;
    FileMark mark;
};

/// A file that is looked up and read when this is called, on any thread; nothing touches its medium before.
/// Failure 68 at once when the letter stands for nothing; the call fails as reading a file does. It keeps
/// the image of a disc open for as long as it lives.
std::function<MarkedContent()> FileToFindAndRead(const QString& path);

} // namespace torvik
