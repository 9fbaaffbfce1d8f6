#pragma once

#include <QString>

namespace torvik {

/// The Windows folder, as the program has always cut it out of the platform's answer: up to two characters
/// before the first blank. A folder whose own name has a blank is cut short there. Failure 5 for a folder of
/// 254 characters or more, which leaves no blank behind.
QString WindowsFolderName();

} // namespace torvik
