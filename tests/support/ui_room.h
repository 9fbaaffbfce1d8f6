#pragma once

#include "runtime/failure.h"
#include "ui/forms/clock.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "ui/look/look.h"

#include <QApplication>
#include <QTest>

namespace torvik {

/// The forms layer in a test: the program's look, no form loaded before and after, a program that is not
/// ending.
class UiRoom {
public:
    UiRoom()
    {
        static const bool looks = [] {
            ApplyLook();
            return true;
        }();
        Q_UNUSED(looks)
        ForgetProgramEnd();
    }
    ~UiRoom()
    {
        FormHandleBase::DiscardAll();
        Clock::Run();
        Screen.Pretend(std::nullopt);
        Screen.SetMousePointer(MousePointer::Default);
        ForgetProgramEnd();
    }
    UiRoom(const UiRoom&) = delete;
    UiRoom& operator=(const UiRoom&) = delete;

    /// Shows a form and waits until it takes input.
    static bool Open(Form& form)
    {
        form.Show();
        Form::PutAllOnScreen();
        const bool active = QTest::qWaitForWindowActive(&form.Window());
        Settle();
        return active;
    }
    /// Lets all that is pending happen, the end of forms that were unloaded included.
    static void Settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    /// Runs when the next event loop turns, which may be the one of a modal form or box.
    static void Soon(std::function<void()> work)
    {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
    }
};

/// A design of 400 by 300 pixels.
inline FormDesign DesignOf(const QString& name, Scale scale = Scale::Twips,
                           FormBorder border = FormBorder::Sizable, bool hasMenu = false)
{
    FormDesign design;
    design.name = name;
    design.caption = name;
    design.clientWidth = 6000;
    design.clientHeight = 4500;
    design.border = border;
    design.scaleMode = scale;
    design.hasMenu = hasMenu;
    return design;
}

} // namespace torvik
