#pragma once

#include <QString>

namespace torvik {

/// Starts a program and waits until it has ended, while pending events of the user interface go on.
/// Failures are those of starting it: 53, 5, 68.
void RunAndWait(const QString& commandLine);

} // namespace torvik
