#include "ui/forms/form.h"

#include "runtime/failure.h"
#include "ui/forms/control.h"
#include "ui/forms/disabled_input.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace torvik {

Form::Form(FormDesign design)
    : design_(std::move(design)), settling_(new QTimer(this)), window_(new FormWindow(*this))
{
    WatchDisabledForms();
    settling_->setSingleShot(true);
    connect(settling_, &QTimer::timeout, this, &Form::Settle);
    place_.Width = design_.ClientWidth;
    place_.Height = design_.ClientHeight + FrameTwips();
    ApplySize();
}

Form::~Form()
{
    window_->LetGo();
    delete window_;
}

QWidget& Form::Host()
{
    return window_->Client();
}

void Form::Adopt(QObject& unseen)
{
    unseen.setParent(window_);
}

QString Form::Caption() const
{
    return window_->windowTitle();
}

void Form::SetCaption(const QString& caption)
{
    window_->setWindowTitle(caption);
    window_->setAccessibleName(caption.isEmpty() ? design_.Name : caption);
}

Form::State Form::WindowState() const
{
    if (window_->isMinimized())
        return State::Minimized;
    return window_->isMaximized() ? State::Maximized : State::Normal;
}

void Form::SetWindowState(State state)
{
    if (covering_ || state == WindowState())
        return;
    switch (state) {
    case State::Normal:
        window_->setWindowState(Qt::WindowNoState);
        break;
    case State::Minimized:
        window_->setWindowState(Qt::WindowMinimized);
        break;
    case State::Maximized:
        window_->setWindowState(Qt::WindowMaximized);
        break;
    }
}

void Form::CoverScreen(bool cover)
{
    if (cover == covering_)
        return;
    covering_ = cover;
    window_->setWindowState(cover ? Qt::WindowFullScreen : Qt::WindowNoState);
    if (!cover)
        ApplySize();
}

std::int32_t Form::WindowNumber() const
{
    return static_cast<std::int32_t>(window_->winId());
}

bool Form::Visible() const
{
    return window_->isVisible();
}

void Form::SetEnabled(bool enabled)
{
    enabled_ = enabled;
    if (!enabled)
        window_->ReleaseButtons();
}

void Form::ShowWindow()
{
    ApplyPlace();
    if (FillsScreen())
        window_->move(QApplication::primaryScreen()->geometry().topLeft());
    window_->setWindowState(window_->windowState().setFlag(Qt::WindowFullScreen, covering_ || FillsScreen()));
    window_->show();
    window_->raise();
    window_->activateWindow();
    Unsettle();
    if (!std::exchange(shownBefore_, true))
        QMetaObject::invokeMethod(
            this, [this] { Resize.Fire(); }, Qt::QueuedConnection);
}

void Form::Show()
{
    if (!Visible()) {
        window_->setWindowModality(Qt::NonModal);
        ShowWindow();
    }
    QueueActivate();
    LeaveIfEnding();
}

void Form::ShowModal()
{
    if (Visible() || leaveModal_)
        Fail(failure::alreadyModal);
    const QPointer<FormWindow> below(dynamic_cast<FormWindow*>(QApplication::activeWindow()));
    const QPointer<Form> self(this);
    QEventLoop loop;
    leaveModal_ = [&loop] { loop.quit(); };
    window_->setWindowModality(Qt::ApplicationModal);
    ApplyPlace();
    window_->winId();
    if (below != nullptr && below != window_ && below->windowHandle() != nullptr)
        window_->windowHandle()->setTransientParent(below->windowHandle());
    ShowWindow();
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
    window_->hide();
    if (leaveModal_)
        std::exchange(leaveModal_, nullptr)();
}

void Form::ZOrder()
{
    window_->raise();
}

void Form::SetTopmost(bool topmost)
{
    if (window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == topmost)
        return;
    const bool shown = Visible();
    window_->setWindowFlag(Qt::WindowStaysOnTopHint, topmost); // takes the window off the screen
    if (!shown)
        return;
    window_->show();
    Unsettle();
}

void Form::Refresh()
{
    const QDeadlineTimer patience(250);
    do
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    while (!patience.hasExpired() && window_->windowHandle() != nullptr &&
           !window_->windowHandle()->isExposed());
    LeaveIfEnding();
}

MousePointer Form::Pointer() const
{
    return window_->cursor().shape() == Qt::WaitCursor ? MousePointer::Hourglass : MousePointer::Default;
}

void Form::SetMousePointer(MousePointer pointer)
{
    if (pointer == MousePointer::Hourglass)
        window_->setCursor(Qt::WaitCursor);
    else
        window_->unsetCursor();
}

void Form::WindowActivated()
{
    if (!Visible())
        return; // hidden again before the desktop answered
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == window_)
        Activate.Fire();
}

void Form::QueueActivate()
{
    QMetaObject::invokeMethod(
        this, [this] { WindowActivated(); }, Qt::QueuedConnection);
}

void Form::EscapePressed()
{
    if (cancelButton_ != nullptr && cancelButton_->Visible() && cancelButton_->Enabled())
        cancelButton_->Click.Fire();
}

/// With its last form the program is over: without a window nobody could end it any more.
void Form::CloseRequested()
{
    if (handle_ == nullptr)
        return;
    RunHandler([this] {
        if (handle_->Unload() && !FormHandleBase::IsAnyLoaded())
            EndProgram();
    });
}

/// The form is over: it leaves the screen and its name now, and goes when the handlers that are running are
/// done.
void Form::Retire()
{
    window_->setObjectName({});
    window_->ReleaseButtons();
    window_->hide();
    window_->LetGo();
    handle_ = nullptr;
    if (leaveModal_)
        std::exchange(leaveModal_, nullptr)();
    HandlerScope::WhenAllAreDone([this] { deleteLater(); });
}

} // namespace torvik
