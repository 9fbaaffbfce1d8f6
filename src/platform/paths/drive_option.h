#pragma once

#include "platform/paths/drives.h"

#include <optional>

namespace torvik {

/// Reads the value of --drive: a letter from D to Z and a folder or a disc image of the host,
/// "E=/media/disc" or "e:=/media/disc". Nothing when the text is no such thing.
std::optional<DriveOption> ReadDriveOption(const QString& text);

/// What is wrong with a text that ReadDriveOption does not take, in words for the user.
QString DriveOptionProblem(const QString& text);

} // namespace torvik
