#include "ui/controls/scroll_input.h"

#include "ui/controls/scroll_bar.h"
#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

namespace torvik {

namespace {

bool Moves(const ScrollBar& bar)
{
    return bar.Visible() && bar.Enabled();
}

void ScrollBy(ScrollBar& bar, int distance)
{
    if (Moves(bar))
        bar.SetValue(std::clamp(bar.Value() + distance, 0, std::max(0, bar.Max())));
}

/// Three small steps to a notch of the wheel unless the desktop says otherwise; fine wheels and touch pads
/// tell parts of a notch.
int WheelDistance(const ScrollBar& bar, int angle)
{
    constexpr int notch = 120;
    return angle * QApplication::wheelScrollLines() * bar.SmallChange() / notch;
}

} // namespace

ScrollInput::ScrollInput(Form& form, ScrollBar& across, ScrollBar& down) : across_(across), down_(down)
{
    form.Window().installEventFilter(this);
    const auto widgets = form.Window().findChildren<QWidget*>();
    for (QWidget* each : widgets)
        each->installEventFilter(this);
}

bool ScrollInput::eventFilter(QObject* watched, QEvent* event)
{
    if (!Moves(across_) && !Moves(down_))
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return KeyPressed(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::Wheel) {
        Wheeled(*static_cast<QWheelEvent*>(event));
        return true;
    }
    return false;
}

bool ScrollInput::KeyPressed(const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Left:
        ScrollBy(across_, -across_.SmallChange());
        return true;
    case Qt::Key_Right:
        ScrollBy(across_, across_.SmallChange());
        return true;
    case Qt::Key_Up:
        ScrollBy(down_, -down_.SmallChange());
        return true;
    case Qt::Key_Down:
        ScrollBy(down_, down_.SmallChange());
        return true;
    case Qt::Key_PageUp:
        ScrollBy(down_, -down_.LargeChange());
        return true;
    case Qt::Key_PageDown:
        ScrollBy(down_, down_.LargeChange());
        return true;
    case Qt::Key_Home:
        ScrollBy(down_, -down_.Value());
        return true;
    case Qt::Key_End:
        ScrollBy(down_, down_.Max());
        return true;
    default:
        return false;
    }
}

void ScrollInput::Wheeled(const QWheelEvent& event)
{
    QPoint angle = event.angleDelta();
    if (event.modifiers().testFlag(Qt::ShiftModifier) && angle.x() == 0)
        angle = angle.transposed();
    ScrollBy(across_, -WheelDistance(across_, angle.x()));
    ScrollBy(down_, -WheelDistance(down_, angle.y()));
}

} // namespace torvik
