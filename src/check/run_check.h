#pragma once

#include <QString>

namespace torvik {

/// How the check of a disc ends.
namespace checkend {
inline constexpr int whole = 0;
inline constexpr int findings = 1;
inline constexpr int noDisc = 2;
} // namespace checkend

/// Checks a disc and prints the report; the exit code of the program. `disc`: a folder, an image, or a letter
/// with a colon, "E:"; empty for the disc that the program itself would find. The drives of the command line
/// hold already.
int RunCheck(const QString& disc, bool asJson);

} // namespace torvik
