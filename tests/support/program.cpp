#include "support/program.h"

#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "platform/system/single_instance.h"
#include "program/program_state.h"
#include "support/bind_room.h"
#include "ui/forms/clock.h"
#include "ui/forms/event.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/splash.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace torvik {

namespace {

void BindOnce()
{
    static const bool bound = [] {
        BindRoom();
        return true;
    }();
    Q_UNUSED(bound)
}

} // namespace

Program::Program()
{
    BindOnce();
    state = ProgramState();
    ForgetProgramEnd();
    Screen.SetMousePointer(MousePointer::Default);
    SetScreen({800, 600});
    SetVolumeLister([] { return QList<QString>(); });
    SetProgramFolder(folder_.path());
    PutDiscIn(u'G');
    Clock::StopAt(QDateTime(QDate(2001, 6, 17), QTime(14, 5, 9)));
}

Program::~Program()
{
    FormHandleBase::DiscardAll();
    Clock::Run();
    ReleaseInstance();
    SetDriveOptions({});
    SetVolumeLister({});
    SetProgramFolder({});
    Screen.Pretend(std::nullopt);
    Screen.SetMousePointer(MousePointer::Default);
    ForgetProgramEnd();
    state = ProgramState();
}

void Program::AddToProgramFolder(const QString& relative, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(InProgramFolder(relative)).path());
    QFile file(InProgramFolder(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file of the program folder");
}

void Program::SetScreen(const QSize& pixels)
{
    Screen.Pretend(pixels);
}

void Program::PutDiscIn(QChar letter)
{
    if (letter.isNull())
        SetDriveOptions({});
    else
        SetDriveOptions({{letter, disc.Folder()}});
    RefreshDrives();
}

void Program::Start()
{
    RunHandler([] { Form2.LoadForm(); });
    QCoreApplication::processEvents();
}

void Program::PassSplash()
{
    Clock::Turn(5000);
    Settle();
    if (!Form1.IsLoaded())
        return;
    Form1->Window().activateWindow();
    Settle();
}

void Program::StartBrowsing()
{
    Start();
    PassSplash();
}

void Program::Click(Control& control, Qt::MouseButton button)
{
    QTest::mouseClick(&control.Widget(), button);
    Settle();
}

void Program::DoubleClick(Control& control)
{
    QTest::mouseDClick(&control.Widget(), Qt::LeftButton);
    Settle();
}

void Program::Press(Control& control, Qt::Key key)
{
    QTest::keyClick(&control.Widget(), key);
    Settle();
}

void Program::Press(Qt::Key key)
{
    QWidget* focused = QApplication::focusWidget();
    QVERIFY2(focused != nullptr, "no control has the focus");
    QTest::keyClick(focused, key);
    Settle();
}

void Program::Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

QString Program::Focus()
{
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr ? focused->objectName() : QString();
}

} // namespace torvik
