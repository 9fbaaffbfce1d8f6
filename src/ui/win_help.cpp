#include "ui/win_help.h"

#include <QApplication>
#include <QWidget>

namespace torvik {

bool WinHelp(std::int32_t /*window*/, const QString& /*helpFile*/, int command, const QString& /*data*/)
{
    if (command != winHelp::quit)
        return false;
    bool closed = false;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->objectName() == QStringLiteral("HelpWindow"))
            closed = window->close() || closed;
    }
    return closed;
}

} // namespace torvik
