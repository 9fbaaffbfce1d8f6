#include "ui/form.h"

#include "platform/failure.h"
#include "ui/button.h"
#include "ui/disabled_input.h"
#include "ui/form_window.h"
#include "ui/program_end.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvik {

namespace {

constexpr int captionHeight = 19; // pixels

/// Enough of a window stays on the desktop to be taken hold of, whatever place was asked for.
QPoint KeptInReach(const QPoint& wanted, const QSize& size)
{
    constexpr int grip = 64;
    const QScreen* screen = QApplication::primaryScreen();
    const QRect desktop = screen != nullptr ? screen->virtualGeometry() : QRect(wanted, size);
    const int x = std::clamp(wanted.x(), desktop.left() - std::max(0, size.width() - grip), desktop.right() - grip);
    const int y = std::clamp(wanted.y(), desktop.top(), std::max(desktop.top(), desktop.bottom() - grip));
    return {x, y};
}

int RoundPixels(double twips)
{
    constexpr double reach = 16'000'000;
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -reach, reach)));
}

} // namespace

Form::Form(FormDesign design) : design_(std::move(design)), window_(new FormWindow(*this))
{
    WatchDisabledForms();
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

QString Form::Caption() const
{
    return window_->windowTitle();
}

void Form::SetCaption(const QString& caption)
{
    window_->setWindowTitle(caption);
    window_->setAccessibleName(caption);
}

/// Twips that the form's height holds beside the client area.
double Form::FrameTwips() const
{
    const double caption = design_.Border == FormBorder::None ? 0 : captionHeight;
    const double menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    return (caption + menu) * twipsPerPixel;
}

double Form::Left() const
{
    return place_.Left;
}

double Form::Top() const
{
    return place_.Top;
}

double Form::Width() const
{
    return place_.Width;
}

double Form::Height() const
{
    return place_.Height;
}

void Form::SetLeft(double left)
{
    place_.Left = left;
    ApplyPlace();
}

void Form::SetTop(double top)
{
    place_.Top = top;
    ApplyPlace();
}

void Form::SetWidth(double width)
{
    const bool changes = RoundPixels(width) != RoundPixels(place_.Width);
    place_.Width = width;
    ApplySize();
    if (changes)
        Resize.Call();
}

void Form::SetHeight(double height)
{
    const bool changes = RoundPixels(height) != RoundPixels(place_.Height);
    place_.Height = height;
    ApplySize();
    if (changes)
        Resize.Call();
}

double Form::ScaleWidth() const
{
    return place_.Width / TwipsPerUnit();
}

double Form::ScaleHeight() const
{
    return (place_.Height - FrameTwips()) / TwipsPerUnit();
}

void Form::ApplySize()
{
    const int menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    const int width = std::max(1, RoundPixels(place_.Width));
    const int height = std::max(1, RoundPixels(place_.Height - FrameTwips())) + menu;
    const QSize size(std::min(width, QWIDGETSIZE_MAX), std::min(height, QWIDGETSIZE_MAX));
    if (covering_)
        return;
    if (design_.Border == FormBorder::Sizable)
        window_->resize(size);
    else
        window_->setFixedSize(size);
}

void Form::ApplyPlace()
{
    if (covering_)
        return;
    const QPoint wanted(RoundPixels(place_.Left), RoundPixels(place_.Top));
    window_->move(KeptInReach(wanted, window_->size()));
}

/// The desktop moved the window: from now on that is the form's place.
void Form::WindowMoved()
{
    if (covering_ || uncovering_ || !window_->isVisible() || WindowState() != State::Normal)
        return;
    const QPoint wanted(RoundPixels(place_.Left), RoundPixels(place_.Top));
    const QPoint now = window_->pos();
    if (now == KeptInReach(wanted, window_->size()))
        return;
    place_.Left = now.x() * twipsPerPixel;
    place_.Top = now.y() * twipsPerPixel;
}

/// The desktop or the user sized the window; the program's own sizing has told its measures before.
void Form::WindowResized()
{
    const int menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    const QSize known(std::max(1, RoundPixels(place_.Width)),
                      std::max(1, RoundPixels(place_.Height - FrameTwips())) + menu);
    if (window_->size() == known) {
        uncovering_ = false;
        return;
    }
    if (covering_ || uncovering_ || !window_->isVisible() || window_->isMinimized())
        return;
    place_.Width = window_->width() * twipsPerPixel;
    place_.Height = (window_->height() - menu) * twipsPerPixel + FrameTwips();
    Resize.Fire();
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
    uncovering_ = !cover;
    window_->setWindowState(cover ? Qt::WindowFullScreen : Qt::WindowNoState);
    if (!cover) {
        ApplySize();
        ApplyPlace();
        WindowResized();
    }
}

bool Form::Visible() const
{
    return window_->isVisible();
}

void Form::ShowWindow()
{
    ApplyPlace();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void Form::Show()
{
    if (!Visible())
        ShowWindow();
    QueueActivate();
    LeaveIfEnding();
}

void Form::ShowModal()
{
    if (leaveModal_)
        Fail(failure::alreadyModal);
    const QPointer<FormWindow> below(dynamic_cast<FormWindow*>(QApplication::activeWindow()));
    QEventLoop loop;
    leaveModal_ = [&loop] { loop.quit(); };
    window_->hide();
    window_->setWindowModality(Qt::ApplicationModal);
    window_->winId();
    if (below != nullptr && below != window_ && below->windowHandle() != nullptr)
        window_->windowHandle()->setTransientParent(below->windowHandle());
    ShowWindow();
    QueueActivate();

    loop.exec(); // this form may be gone from here on
    if (below != nullptr && below->Owner() != nullptr) {
        below->activateWindow();
        below->Owner()->QueueActivate();
    }
    LeaveIfEnding();
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
    if (shown)
        window_->show();
}

void Form::Refresh()
{
    const QDeadlineTimer patience(250);
    do
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    while (!patience.hasExpired() && window_->windowHandle() != nullptr && !window_->windowHandle()->isExposed());
    LeaveIfEnding();
}

void Form::WindowActivated()
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == window_)
        Activate.Fire();
}

void Form::QueueActivate()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (Visible())
                WindowActivated();
        },
        Qt::QueuedConnection);
}

void Form::EscapePressed()
{
    if (cancelButton_ != nullptr && cancelButton_->Visible() && cancelButton_->Enabled())
        cancelButton_->Click.Fire();
}

void Form::CloseRequested()
{
    if (handle_ != nullptr)
        RunHandler([this] { handle_->Unload(); });
}

/// The form is over: it leaves the screen and its name now, and goes when the handler that ended it is done.
void Form::Retire()
{
    window_->setObjectName({});
    window_->hide();
    window_->LetGo();
    handle_ = nullptr;
    if (leaveModal_)
        std::exchange(leaveModal_, nullptr)();
    deleteLater();
}

} // namespace torvik
