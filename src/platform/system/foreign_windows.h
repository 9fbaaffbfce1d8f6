#pragma once

#include <QString>

namespace torvik {

/// What a system's own screen savers are told about the window that they draw into.

/// The number of that window as the environment tells it ("0x1a00007"); empty when it tells none.
QString WindowOfScreenSaver();

/// Chooses the window system in which a program can draw into a window of another one. Called before
/// Qt's application object is made; a choice of the user's own wins.
void PreferForeignWindows();

} // namespace torvik
