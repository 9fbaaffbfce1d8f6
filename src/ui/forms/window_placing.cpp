#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvik {

namespace {

constexpr int captionHeight = 19; // pixels
constexpr int calm = 60;          // milliseconds without news after which a window is taken to be settled
constexpr int longestUnsettled = 2000; // milliseconds
constexpr int mostCorrections = 2;

/// The place nearest to the wanted one at which enough of the window is on one screen to be taken hold of.
QPoint KeptInReach(const QPoint& wanted, const QSize& size)
{
    constexpr int grip = 64;
    QPoint nearest = wanted;
    int shortest = std::numeric_limits<int>::max();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->geometry();
        const int x =
            std::clamp(wanted.x(), area.left() - std::max(0, size.width() - grip), area.right() - grip);
        const int y = std::clamp(wanted.y(), area.top(), std::max(area.top(), area.bottom() - grip));
        const int way = (QPoint(x, y) - wanted).manhattanLength();
        if (way < shortest) {
            shortest = way;
            nearest = {x, y};
        }
    }
    return nearest;
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
    const double caption = design_.border == FormBorder::None ? 0 : captionHeight;
    const double menu = design_.hasMenu ? FormWindow::menuHeight : 0;
    return (caption + menu) * twipsPerPixel;
}

/// Whether this is a form without a frame that takes the whole screen. Only the full-screen state of its
/// window then covers what the desktop keeps at the edges.
bool Form::FillsScreen() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return design_.border == FormBorder::None && screen != nullptr && WantedSize() == screen->size();
}

double Form::Left() const
{
    return place_.left;
}

double Form::Top() const
{
    return place_.top;
}

double Form::Width() const
{
    return place_.width;
}

double Form::Height() const
{
    return place_.height;
}

void Form::SetLeft(double left)
{
    place_.left = left;
    Place();
}

void Form::SetTop(double top)
{
    place_.top = top;
    Place();
}

void Form::SetWidth(double width)
{
    const bool changes = RoundPixels(width) != RoundPixels(place_.width);
    place_.width = width;
    Place();
    if (changes)
        Resize.Call();
}

void Form::SetHeight(double height)
{
    const bool changes = RoundPixels(height) != RoundPixels(place_.height);
    place_.height = height;
    Place();
    if (changes)
        Resize.Call();
}

double Form::ScaleWidth() const
{
    return place_.width / TwipsPerUnit();
}

double Form::ScaleHeight() const
{
    return (place_.height - FrameTwips()) / TwipsPerUnit();
}

/// The size of the window without the desktop's frame that stands for the form's measures.
QSize Form::WantedSize() const
{
    const int menu = design_.hasMenu ? FormWindow::menuHeight : 0;
    const int width = std::max(1, RoundPixels(place_.width));
    const int height = std::max(1, RoundPixels(place_.height - FrameTwips())) + menu;
    return {std::min(width, QWIDGETSIZE_MAX), std::min(height, QWIDGETSIZE_MAX)};
}

/// Where the corner of the window's frame stands for the form's place.
QPoint Form::WantedPlace() const
{
    return KeptInReach({RoundPixels(place_.left), RoundPixels(place_.top)}, window_->size());
}

/// A window that is on the screen is told all its changes in one, other windows have them at once.
void Form::Place()
{
    if (window_->isVisible()) {
        Change();
        return;
    }
    ApplySize();
    ApplyPlace();
}

void Form::ApplySize()
{
    if (design_.border == FormBorder::Sizable) {
        window_->resize(WantedSize());
    } else if (FillsScreen() || state_ == State::Maximized) {
        window_->setMinimumSize(0, 0); // that state may need another size
        window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        window_->resize(WantedSize());
    } else {
        window_->setFixedSize(WantedSize());
    }
}

/// The place is that of the frame, which the desktop may not have drawn yet: Qt's own reckoning of it would
/// put the caption above the place. A window that is about to be shown has to know its size as well, else
/// Qt tells both anew and takes the place for that of the client area.
void Form::ApplyPlace()
{
    const QPoint wanted = WantedPlace();
    window_->move(wanted);
    QWindow* const handle = window_->windowHandle();
    if (handle == nullptr)
        return;
    if (handle->size() != window_->size())
        handle->resize(window_->size());
    handle->setFramePosition(wanted);
}

/// Right after the program placed a window, the desktop frames and moves it in steps of its own. None of them
/// is the user's doing, so none becomes the form's measure; when it is calm again, the result is looked at.
void Form::Unsettle()
{
    Watch();
    placing_ = true;
    corrections_ = mostCorrections;
}

/// Waits until the window is calm and looks at it then.
void Form::Watch()
{
    settled_ = false;
    unsettledUntil_.setRemainingTime(longestUnsettled);
    settling_->start(calm);
}

void Form::Settle()
{
    const bool onScreen = window_->isVisible() && !window_->isMinimized();
    // On the way from maximized to full screen some desktops stay in between for a moment.
    const bool isOnTheWay = placing_ && covering_ && !window_->isFullScreen();
    if (onScreen && (isOnTheWay || !window_->windowHandle()->isExposed()) && !unsettledUntil_.hasExpired()) {
        settling_->start(calm);
        return;
    }
    if (onScreen && !changing_) {
        if (covering_ && !window_->isFullScreen()) { // the desktop has ended it, or refuses it
            covering_ = false;
            uncovering_ = true;
        }
        if (IsOrdinary() && !SettleOrdinary())
            return;
        if (!window_->isFullScreen())
            state_ = WindowState();
        TakeMeasures();
        uncovering_ = false;
    }
    placing_ = false;
    settled_ = true;
}

/// A place that went wrong on the way is put right, but a size that differs was given by the user or is one
/// that the desktop insists on, and with it its place. False while the window is on its way again.
bool Form::SettleOrdinary()
{
    QWindow& handle = *window_->windowHandle();
    const QPoint now = handle.framePosition();
    const QMargins frame = handle.frameMargins();
    plainFrame_ = frame;
    if (!placing_)
        return true;
    const bool sized = window_->size() != WantedSize();
    if (!sized && now != WantedPlace() && corrections_ > 0 && !unsettledUntil_.hasExpired()) {
        --corrections_;
        handle.setPosition(WantedPlace() + QPoint(frame.left(), frame.top()));
        settling_->start(calm);
        return false;
    }
    restsAt_ = sized ? WantedPlace() : now; // a desktop may insist on a place; the form's own stays
    return true;
}

/// What the user or the desktop made of the window is the form's measures from now on.
void Form::TakeMeasures()
{
    if (covering_ || FillsScreen())
        return;
    const QPoint now = window_->windowHandle()->framePosition();
    Twips taken = place_;
    if (!IsOrdinary()) {
        taken = CoveredMeasures();
    } else {
        if (window_->size() != WantedSize()) {
            const int menu = design_.hasMenu ? FormWindow::menuHeight : 0;
            taken.width = window_->width() * twipsPerPixel;
            taken.height = (window_->height() - menu) * twipsPerPixel + FrameTwips();
        }
        if (now != restsAt_) {
            taken.left = now.x() * twipsPerPixel;
            taken.top = now.y() * twipsPerPixel;
        }
    }
    restsAt_ = now;
    const bool resized = RoundPixels(taken.width) != RoundPixels(place_.width) ||
                         RoundPixels(taken.height) != RoundPixels(place_.height);
    place_ = taken;
    if (resized && !uncovering_)
        Resize.Fire();
}

/// The measures of an ordinary window that covers, with the frame that the desktop draws around it,
/// what the maximized window covers now. A form that takes them over stands exactly on it, and when they are
/// taken up again at the next start nothing runs off the screen.
Twips Form::CoveredMeasures() const
{
    const QWindow& window = *window_->windowHandle();
    const QRect covered = window.frameGeometry();
    const QSize inside = covered.marginsRemoved(plainFrame_.value_or(window.frameMargins())).size();
    const int menu = design_.hasMenu ? FormWindow::menuHeight : 0;
    return {covered.x() * twipsPerPixel, covered.y() * twipsPerPixel, inside.width() * twipsPerPixel,
            (inside.height() - menu) * twipsPerPixel + FrameTwips()};
}

void Form::WindowMoved()
{
    if (!settled_)
        settling_->start(calm);
    else if (!window_->isVisible() || changing_ || window_->isMinimized())
        return;
    else if (!IsOrdinary())
        Watch();
    else if (window_->windowHandle()->framePosition() != restsAt_)
        TakeMeasures();
}

/// The program's own sizing has told its measures before.
void Form::WindowResized()
{
    if (!window_->isVisible() || changing_ || window_->isMinimized() || window_->size() == WantedSize())
        return;
    if (!settled_)
        settling_->start(calm);
    else if (!IsOrdinary())
        Watch();
    else
        TakeMeasures();
}

/// The desktop tells of a new state before or after it sized the window.
void Form::WindowStateChanged()
{
    if (!settled_)
        settling_->start(calm);
    else if (window_->isVisible() && !changing_)
        Watch();
}

} // namespace torvik
