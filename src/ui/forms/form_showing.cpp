#include "runtime/failure.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace torvik {

namespace {

constexpr Qt::WindowStates shapes = Qt::WindowFullScreen | Qt::WindowMaximized | Qt::WindowMinimized;

bool AreEqual(const Twips& one, const Twips& other)
{
    return one.left == other.left && one.top == other.top && one.width == other.width &&
           one.height == other.height;
}

} // namespace

/// Whether the window is neither minimized nor maximized nor full screen.
bool Form::IsOrdinary() const
{
    return (window_->windowState() & shapes) == Qt::WindowNoState;
}

Form::State Form::WindowState() const
{
    if (!window_->isVisible() || changing_)
        return state_;
    if (window_->isMinimized())
        return State::Minimized;
    return window_->isMaximized() ? State::Maximized : State::Normal;
}

void Form::SetWindowState(State state)
{
    state_ = state;
    Change();
}

void Form::CoverScreen(bool cover)
{
    if (cover == covering_)
        return;
    covering_ = cover;
    uncovering_ = !cover;
    Change();
}

Qt::WindowStates Form::WantedState() const
{
    if (covering_ || FillsScreen())
        return Qt::WindowFullScreen;
    switch (state_) {
    case State::Minimized:
        return Qt::WindowMinimized;
    case State::Maximized:
        return Qt::WindowMaximized;
    default:
        return Qt::WindowNoState;
    }
}

/// Has the desktop told what the handlers made of the form, as soon as the event loop turns.
void Form::Change()
{
    if (shown_ && !std::exchange(changing_, true))
        QCoreApplication::postEvent(window_, new QEvent(FormWindow::changeWaits));
}

void Form::MakeChange()
{
    if (!std::exchange(changing_, false) || !shown_)
        return;
    if (window_->isVisible())
        ChangeWindow();
    else
        PutWindowOnScreen();
    Unsettle();
}

void Form::PutWindowOnScreen()
{
    ApplySize();
    ApplyPlace();
    if (FillsScreen())
        window_->move(QApplication::primaryScreen()->geometry().topLeft());
    window_->setWindowState(WantedState());
    window_->show();
    window_->raise();
    window_->activateWindow();
}

/// Tells the place and size while the window is an ordinary one: these are what the desktop goes back to when
/// it ends the full-screen state.
void Form::ChangeWindow()
{
    const Qt::WindowStates wanted = WantedState();
    if ((window_->windowState() & shapes & ~wanted) != Qt::WindowNoState)
        window_->setWindowState(Qt::WindowNoState);
    if (IsOrdinary()) {
        ApplySize();
        ApplyPlace();
    }
    if ((window_->windowState() & shapes) != wanted)
        window_->setWindowState(wanted);
}

void Form::PutAllOnScreen()
{
    QCoreApplication::sendPostedEvents(nullptr, FormWindow::changeWaits);
}

/// For the handlers the form is on the screen from now on.
void Form::ComeUp()
{
    shown_ = true;
    Change();
    if (!std::exchange(shownBefore_, true))
        QMetaObject::invokeMethod(
            this, [this] { Resize.Fire(); }, Qt::QueuedConnection);
}

void Form::Show()
{
    if (!shown_) {
        window_->setWindowModality(Qt::NonModal);
        ComeUp();
    }
    QueueActivate();
    LeaveIfEnding();
}

void Form::ShowOver(const Form& owner)
{
    if (!window_->isVisible()) {
        window_->setWindowFlag(Qt::Dialog); // of other windows desktops do not ask over which they stand
        PutOver(owner.window_);
    }
    Show();
}

/// Tells the desktop of it; that has to be done before the window is on the screen.
void Form::PutOver(const FormWindow* below)
{
    window_->winId();
    if (below != nullptr && below != window_ && below->windowHandle() != nullptr)
        window_->windowHandle()->setTransientParent(below->windowHandle());
}

void Form::ShowModal()
{
    if (shown_ || leaveModal_)
        Fail(failure::alreadyModal);
    PutAllOnScreen();
    const QPointer<FormWindow> below(FormWindow::ToStandOver());
    const QPointer<Form> self(this);
    QEventLoop loop;
    leaveModal_ = [&loop] { loop.quit(); };
    window_->setWindowModality(Qt::ApplicationModal);
    PutOver(below);
    // A form that takes the measures of a maximized one is shown as that one is: the desktop draws another
    // frame around a maximized window, and may want none around an ordinary window that is as large.
    const Form* owner = below != nullptr ? below->Owner() : nullptr;
    if (owner != nullptr && owner->WindowState() == State::Maximized && AreEqual(owner->place_, place_)) {
        state_ = State::Maximized;
        plainFrame_ = owner->plainFrame_;
        window_->windowHandle()->setFlag(Qt::WindowMaximizeButtonHint); // without it some managers refuse
    }
    ComeUp();
    MakeChange();
    QueueActivate();

    loop.exec(); // this form may be gone from here on
    if (self != nullptr)
        self->leaveModal_ = nullptr;
    LeaveIfEnding();
    if (below != nullptr && below->Owner() != nullptr) {
        below->activateWindow();
        below->Owner()->QueueActivate();
    }
}

void Form::Hide()
{
    shown_ = false;
    window_->hide();
    if (leaveModal_)
        std::exchange(leaveModal_, nullptr)();
}

void Form::ZOrder()
{
    window_->raise();
}

void Form::SetFocus()
{
    ZOrder();
    window_->activateWindow();
}

void Form::SetTopmost(bool topmost)
{
    if (window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topmost)
        return;
    const bool onScreen = window_->isVisible();
    window_->setWindowFlag(Qt::WindowStaysOnTopHint, topmost); // takes the window off the screen
    if (!onScreen)
        return;
    window_->show();
    Unsettle();
}

void Form::Refresh()
{
    MakeChange();
    const QDeadlineTimer patience(250);
    do
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    while (!patience.hasExpired() && window_->windowHandle() != nullptr &&
           !window_->windowHandle()->isExposed());
    LeaveIfEnding();
}

} // namespace torvik
