#pragma once

#include <QString>

namespace torvik {

/// The Windows folder, cut out of the system's answer as it always was. Each blank of it is written as the
/// character that stands for one in paths, so that a folder with blanks is not cut short. Failure 5 for a
/// folder of 254 characters or more, which leaves no blank after it in the buffer.
QString WindowsFolderName();

/// A text that the system has put into a buffer of 255 blanks, cut out of it again: up to two characters
/// before the first blank. Failure 5 where that is no length.
QString CutOutOfBuffer(const QString& answer);

} // namespace torvik
