#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace torvik {

/// Calls on the file system. All paths are drive paths (platform/paths/drives.h); failures are RunTimeError.

/// The names of the files (not folders) that match a pattern such as "E:\Torviks\*.jpg", without their
/// folder, in the order of the file system. `*` and `?` stand in the last component only and ignore letter
/// case; files that the host hides (their names begin with a point) match only a pattern that begins so too.
/// Names that differ in letter case alone count as one file, the one that a look-up would find.
/// A folder that is missing gives no names. A drive letter that stands for nothing is failure 68; a folder
/// that cannot be read is failure 75, Path/File access error.
QStringList FilesMatching(const QString& pattern);

/// The first of FilesMatching; for a path without wildcards the file's own name when it exists, else empty.
QString FindFile(const QString& patternOrPath);

/// Whether a file (not a folder) of that path exists. Never fails.
bool FileExists(const QString& path);

/// Length in bytes. Failures: 53 File not found (also for a folder), 76 Path not found (its folder is
/// missing), 70 Permission denied (a folder above it is closed), 68.
qint64 FileLength(const QString& path);

/// The whole content. Failures: 53, 76, 68, 70 Permission denied or 75 (not readable, a folder),
/// 57 Device I/O error while reading, 67 Too many files, 7 Out of memory (also for 2 GiB and more).
QByteArray ReadFile(const QString& path);

/// A file that is looked up now, to be read later on any thread. The look-up fails as ReadFile's does; the
/// reading fails by 53, 76, 68, 70, 75, 57, 67 and 7.
std::function<QByteArray()> FileToRead(const QString& path);

/// A text that tells one state of a folder from another: another medium, or other names in it. On an image
/// it is another one whenever the drives were read anew, since that opens what the image file is then. Empty
/// when there is no such folder. Never fails.
QString FolderMark(const QString& path);

/// Creates a folder. Failures: 75 when it exists already or cannot be made, 76 when its parent is missing.
void MakeFolder(const QString& path);

} // namespace torvik
