#include "ui/help/help_system.h"

#include "platform/files/files.h"
#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "ui/forms/message_box.h"
#include "ui/help/help_viewer.h"

#include <QApplication>
#include <QTextDocument>

#include <memory>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The help windows that are open, foremost the program's one.
QWidgetList OpenWindows()
{
    QWidgetList open;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->objectName() == u"HelpViewer"_s && window->isVisible())
            open.append(window);
    }
    return open;
}

bool Quit()
{
    bool closed = false;
    const QWidgetList windows = OpenWindows();
    for (QWidget* window : windows)
        closed = window->close() || closed;
    return closed;
}

/// Null when the file cannot be read or holds nothing.
std::unique_ptr<QTextDocument> ReadHelp(const QString& helpFile)
{
    QByteArray bytes;
    if (ResumeNext([&] { bytes = ReadFile(helpFile); }) != 0 || bytes.isEmpty())
        return nullptr;
    auto document = std::make_unique<QTextDocument>();
    rtf::ReadRichText(bytes, *document);
    return document;
}

bool ShowContents(const QString& helpFile)
{
    if (const QWidgetList open = OpenWindows(); !open.isEmpty()) {
        open.first()->raise();
        open.first()->activateWindow();
        return true;
    }
    std::unique_ptr<QTextDocument> document = ReadHelp(helpFile);
    if (document == nullptr) {
        MsgBox(u"Help cannot be shown, because this file is missing or cannot be read:\r\n\r\n"_s + helpFile,
               msgbox::exclamation);
        return false;
    }
    auto* window = new HelpViewer(document.release()); // goes when it is closed
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, &QWidget::close);
    window->show();
    return true;
}

} // namespace

bool WinHelp(std::int32_t /*window*/, const QString& helpFile, int command, const QString& /*data*/)
{
    switch (command) {
    case winHelp::quit:
        return Quit();
    case winHelp::contents:
        return ShowContents(helpFile);
    default:
        return false;
    }
}

} // namespace torvik
