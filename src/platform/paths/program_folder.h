#pragma once

#include <QString>

namespace torvik {

/// The folder of the running program, as a drive path without a closing backslash (but for the root, "C:\"):
/// the folder of the executable where it can be written to, else torvik2001 in the user's data folder (made
/// on first use).
QString ProgramFolder();

/// What ProgramFolder would be for an executable in this folder of the host.
QString ProgramFolderOf(const QString& executableFolder);

/// Puts another folder of the host in its place (--program-folder); it is made when it is missing.
/// An empty text brings the machine's own answer back. Failure 76 when the folder cannot be made.
void SetProgramFolder(const QString& hostFolder);

/// Whether SetProgramFolder has put a folder in its place.
bool IsProgramFolderChosen();

/// The counterpart of the Windows folder, as a drive path without a closing backslash; made on first use.
QString WindowsFolder();

/// The folder for this user's data of this program, as a host path; made on first use.
QString UserDataFolder();

} // namespace torvik
