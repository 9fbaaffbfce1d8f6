#include "ui/application.h"

#include "platform/environment.h"
#include "ui/event.h"
#include "ui/form.h"
#include "ui/look.h"
#include "ui/picture.h"
#include "ui/program_end.h"

#include <QApplication>
#include <QTimer>

namespace torvik {

namespace {

QApplication* MakeApplication(int& argc, char** argv)
{
    // Only asked for the sound devices, and it answers at once; a choice of the user's own wins.
    SetEnvironmentDefault("QT_MEDIA_BACKEND", "ffmpeg");
    return new QApplication(argc, argv);
}

} // namespace

Application::Application(int& argc, char** argv) : application_(MakeApplication(argc, argv))
{
    // No display name: the platform would append it to the title of every window and box.
    QApplication::setApplicationName(QStringLiteral("torvik2001"));
    QApplication::setDesktopFileName(QStringLiteral("torvik2001"));
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyLook();
    RaisePictureLimit();
}

Application::~Application()
{
    FormHandleBase::DiscardAll();
}

int Application::Run(const std::function<void()>& start)
{
    RunHandler(start);
    return ProgramIsEnding() ? 0 : QApplication::exec();
}

void DoEvents()
{
    QCoreApplication::processEvents();
    LeaveIfEnding();
}

void WaitForEvents()
{
    constexpr int moment = 20; // milliseconds
    QTimer::singleShot(moment, qApp, [] {});
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    LeaveIfEnding();
}

} // namespace torvik
