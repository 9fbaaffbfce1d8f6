#include "ui/application.h"

#include "platform/system/environment.h"
#include "ui/forms/event.h"
#include "ui/forms/form.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "ui/look/look.h"
#include "ui/pictures/picture.h"
#include "ui/scale.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

#include <vector>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The icon at the sizes in which desktops show it; they would shrink a large one roughly.
QIcon ProgramIcon()
{
    const QImage drawn(u":/assets/icon.png"_s);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128})
        icon.addPixmap(
            QPixmap::fromImage(drawn.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    return icon;
}

/// How the desktop shows programs that ask for nothing.
struct DesktopView {
    double factor = 1;
    QSizeF workArea; ///< in the display's own pixels
};

/// The factor must be known before the application object is made, and the screen is known only to one.
DesktopView LookAtDesktop(int argc, char** argv)
{
    std::vector<char*> arguments(argv, argv + argc + 1);
    const QGuiApplication glance(argc, arguments.data());
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return {};
    const double factor = screen->devicePixelRatio();
    return {factor, QSizeF(screen->availableSize()) * factor};
}

QApplication* MakeApplication(int& argc, char** argv, const QString& scale)
{
    constexpr const char* factorOfQt = "QT_SCALE_FACTOR";
    const DesktopView desktop = LookAtDesktop(argc, argv);
    Screen.SetScaledByDesktop(desktop.factor != 1);
    const double wanted = ScaleFactor(scale, desktop.factor, desktop.workArea);
    // Held only while Qt reads it: what the program starts is not enlarged.
    const double further = FactorInEnvironment(factorOfQt) * wanted / desktop.factor;
    const HeldVariable held(factorOfQt, QByteArray::number(further));
    // Only asked for the sound devices, and it answers at once; a choice of the user's own wins.
    SetEnvironmentDefault("QT_MEDIA_BACKEND", "ffmpeg");
    return new QApplication(argc, argv);
}

} // namespace

Application::Application(int& argc, char** argv, const QString& scale)
    : application_(MakeApplication(argc, argv, scale))
{
    // No display name: Qt would append it to the title of every window and box.
    QApplication::setApplicationName(u"torvik2001"_s);
    QApplication::setDesktopFileName(u"torvik2001"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(ProgramIcon());
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
