#include "platform/system/foreign_windows.h"

#include "platform/system/environment.h"

namespace torvik {

QString WindowOfScreenSaver()
{
    return qEnvironmentVariable("XSCREENSAVER_WINDOW");
}

void PreferForeignWindows()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // Such windows are X windows, on a Wayland desktop as well.
    SetEnvironmentDefault("QT_QPA_PLATFORM", "xcb");
#endif
}

} // namespace torvik
