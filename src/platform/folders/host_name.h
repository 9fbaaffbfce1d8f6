#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace torvik {

/// One name of a folder, between the bytes of the host's file system and the text that the program handles.
/// Every sequence of bytes has a text of its own and comes back from it: a byte that is no valid UTF-8, and a
/// backslash inside a name, stand as a private character (U+F700 plus the byte), which survives a change of
/// letter case; a name that holds such a character itself is written byte by byte.

/// Stands for a blank where a path must have none: a name in which it takes a blank's place names the same
/// file. No name of the host reads so by itself.
inline constexpr QChar standInBlank = char16_t{0xF720};

/// The text of a name of the host.
QString NameFromHost(std::string_view name);
/// The bytes of a name. A whole path of the host may be given as well.
std::string NameToHost(QStringView name);
/// The text of a whole path of the host; here a backslash stands for itself.
QString HostText(std::string_view path);

/// Whether all bytes are ASCII.
bool IsAscii(std::string_view bytes);
/// What names that differ in letter case alone have in common, in any script.
std::string FoldedName(std::string_view name);

} // namespace torvik
