#pragma once

#include <QString>

namespace torvik {

/// Measures the drive of the current directory, whatever drive is given; `drive` becomes its root, "C:\".
/// `total` and `free` come in about kilobytes, whole units of 1,024 clusters only. When the drive cannot be
/// measured a message says so and both stay as they are.
void GetDiskSpace(qint64& total, qint64& free, QString& drive);

/// The text without its last character; failure 5 when it is empty.
QString DropLastCharacter(const QString& text);

/// A whole number of 0 or more with a comma before each three digits, "1,234,567"; nothing at all for 0.
QString GroupedDigits(qint64 number);

} // namespace torvik
