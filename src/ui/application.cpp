#include "ui/application.h"

#include "platform/system/environment.h"
#include "ui/forms/event.h"
#include "ui/forms/form.h"
#include "ui/forms/program_end.h"
#include "ui/look/look.h"
#include "ui/pictures/picture.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

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
    QApplication::setApplicationName(u"torvik2001"_s);
    QApplication::setDesktopFileName(u"torvik2001"_s);
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
