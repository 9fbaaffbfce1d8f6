#include "program/task_bar.h"

#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {
constexpr std::int32_t taskBarHandle = 1;
}

std::int32_t FindWindowByClass(const QString& className)
{
    return className == u"Shell_TrayWnd"_s ? taskBarHandle : 0;
}

std::int32_t ShowWindow(std::int32_t window, int how)
{
    if (window != taskBarHandle)
        return 0;
    const std::int32_t showing = Form1->CoversScreen() ? 0 : 1;
    Form1->CoverScreen(how == showWindow::hide);
    return showing;
}

} // namespace torvik
