#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace torvik {

namespace {

constexpr int captionHeight = 19; // pixels
constexpr int calm = 60;          // milliseconds without news after which a window is taken to be settled
constexpr int longestUnsettled = 2000; // milliseconds
constexpr int mostCorrections = 2;

/// Enough of a window stays on the desktop to be taken hold of, whatever place was asked for.
QPoint KeptInReach(const QPoint& wanted, const QSize& size)
{
    constexpr int grip = 64;
    const QScreen* screen = QApplication::primaryScreen();
    const QRect desktop = screen != nullptr ? screen->virtualGeometry() : QRect(wanted, size);
    const int x =
        std::clamp(wanted.x(), desktop.left() - std::max(0, size.width() - grip), desktop.right() - grip);
    const int y = std::clamp(wanted.y(), desktop.top(), std::max(desktop.top(), desktop.bottom() - grip));
    return {x, y};
}

int RoundPixels(double twips)
{
    constexpr double reach = 16'000'000;
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -reach, reach)));
}

} // namespace

/// Twips that the form's height holds beside the client area.
double Form::FrameTwips() const
{
    const double caption = design_.Border == FormBorder::None ? 0 : captionHeight;
    const double menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    return (caption + menu) * twipsPerPixel;
}

/// Whether this is a form without a frame that takes the whole screen. Only the full-screen state of its
/// window then covers what the desktop keeps at the edges.
bool Form::FillsScreen() const
{
    const QScreen* screen = QApplication::primaryScreen();
    return design_.Border == FormBorder::None && screen != nullptr && WantedSize() == screen->size();
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

/// The size of the window without the desktop's frame that stands for the form's measures.
QSize Form::WantedSize() const
{
    const int menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    const int width = std::max(1, RoundPixels(place_.Width));
    const int height = std::max(1, RoundPixels(place_.Height - FrameTwips())) + menu;
    return {std::min(width, QWIDGETSIZE_MAX), std::min(height, QWIDGETSIZE_MAX)};
}

/// Where the corner of the window's frame stands for the form's place.
QPoint Form::WantedPlace() const
{
    return KeptInReach({RoundPixels(place_.Left), RoundPixels(place_.Top)}, window_->size());
}

/// A window on the screen is told its place along with its size: a size alone would count from the client
/// area, and before the desktop has framed the window its caption would end above the place.
void Form::ApplySize()
{
    if (covering_)
        return;
    if (design_.Border == FormBorder::Sizable) {
        window_->resize(WantedSize());
    } else if (FillsScreen()) {
        window_->setMinimumSize(0, 0); // the full-screen state may need another size
        window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        window_->resize(WantedSize());
    } else {
        window_->setFixedSize(WantedSize());
    }
    if (window_->isVisible())
        ApplyPlace();
}

void Form::ApplyPlace()
{
    if (covering_)
        return;
    const QPoint wanted = WantedPlace();
    window_->move(wanted);
    if (!window_->isVisible())
        return;
    window_->windowHandle()->setFramePosition(wanted);
    Unsettle();
}

/// Right after the program placed a window, the desktop frames and moves it in steps of its own. None of them
/// is the user's doing, so none becomes the form's measure; when it is calm again, the result is looked at: a
/// place that went wrong on the way is put right, but a size that differs then was given by the user or is
/// one that the desktop insists on.
void Form::Unsettle()
{
    settled_ = false;
    corrections_ = mostCorrections;
    unsettledUntil_.setRemainingTime(longestUnsettled);
    settling_->start(calm);
}

void Form::Settle()
{
    const bool ordinary = window_->isVisible() && !window_->isFullScreen() && WindowState() == State::Normal;
    if (ordinary && !unsettledUntil_.hasExpired()) {
        if (!window_->windowHandle()->isExposed()) {
            settling_->start(calm);
            return;
        }
        const bool sized = window_->size() != WantedSize();
        if (!sized && window_->pos() != WantedPlace() && corrections_ > 0) {
            --corrections_;
            window_->move(WantedPlace());
            settling_->start(calm);
            return;
        }
        if (sized)
            TakePlace();
    }
    settled_ = true;
    restsAt_ = window_->pos(); // a desktop may insist on a place; the form's own stays what the program said
    WindowResized();
}

/// The user moved the window: from now on that is the form's place.
void Form::WindowMoved()
{
    if (!settled_) {
        settling_->start(calm);
        return;
    }
    const QPoint now = window_->pos();
    if (window_->isFullScreen() || !window_->isVisible() || WindowState() != State::Normal || now == restsAt_)
        return;
    restsAt_ = now;
    TakePlace();
}

void Form::TakePlace()
{
    place_.Left = window_->pos().x() * twipsPerPixel;
    place_.Top = window_->pos().y() * twipsPerPixel;
}

/// The desktop or the user sized the window; the program's own sizing has told its measures before.
void Form::WindowResized()
{
    if (window_->size() == WantedSize())
        return;
    if (!settled_) {
        settling_->start(calm);
        return;
    }
    if (covering_ || !window_->isVisible() || window_->isMinimized())
        return;
    const int menu = design_.HasMenu ? FormWindow::menuHeight : 0;
    place_.Width = window_->width() * twipsPerPixel;
    place_.Height = (window_->height() - menu) * twipsPerPixel + FrameTwips();
    Resize.Fire();
}

} // namespace torvik
