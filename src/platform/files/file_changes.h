#pragma once

#include <QString>

namespace torvik {

/// Calls that change the file system. All paths are drive paths (platform/paths/drives.h); failures are
/// RunTimeError. A link is deleted itself, never what it leads to.

/// Deletes a file. Failures: 53 File not found (also for a folder), 76 Path not found, 70 Permission denied,
/// 75 Path/File access error (a read-only medium, a file in use), 68 Device unavailable.
void DeleteFile(const QString& path);

/// Deletes the files that match a pattern such as "C:\Torviks\*.jpg" by the rules of FilesMatching, all of
/// those whose names differ in letter case alone. One that cannot be deleted does not keep the others; the
/// first such failure is told at the end. Failure 53 when nothing matches; for the rest see DeleteFile.
void DeleteFilesMatching(const QString& pattern);

/// Removes an empty folder. Failures: 75 when something is left in it, when it is in use or is no folder, 76
/// when it is missing, 70, 68.
void RemoveFolder(const QString& path);

/// Copies a file with its permissions and puts the copy in place of what `target` is. On a failure the
/// earlier target stays as it was. Failures: those of ReadFile for the source, those of BinaryOutput for the
/// target; 75 when both are the same file.
void ReplaceByCopy(const QString& source, const QString& target);

/// Whether both paths lead to one existing file or folder of the host, be it through links or other letter
/// case; what lies on an image cannot be written over, so it does not count. Never fails.
bool IsSameFile(const QString& one, const QString& other);

} // namespace torvik
