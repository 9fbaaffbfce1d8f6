#include "ui/forms/control.h"

#include "runtime/failure.h"
#include "ui/forms/disabled_input.h"
#include "ui/forms/form.h"
#include "ui/forms/keys.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"

#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace torvik {

namespace {

int ToPixels(double twips)
{
    constexpr double reach = 16'000'000; // far outside any screen, inside what a widget can hold
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -reach, reach)));
}

int ButtonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return mouse::left;
    case Qt::RightButton:
        return mouse::right;
    case Qt::MiddleButton:
        return mouse::middle;
    default:
        return 0;
    }
}

bool IsMouse(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick;
}

QHash<const QWidget*, Control*>& AllControls()
{
    static QHash<const QWidget*, Control*> controls;
    return controls;
}

} // namespace

Control::Control(Container& container, const QString& name, QWidget* widget, const Twips& design)
    : container_(container), widget_(widget), place_(design)
{
    widget_->setParent(&container.Host());
    widget_->setObjectName(name);
    widget_->setAccessibleName(name);
    widget_->installEventFilter(this);
    // What happens on a control is the control's alone, not that of the panel or picture that it lies on.
    widget_->setAttribute(Qt::WA_NoMousePropagation);
    ApplyGeometry();
    widget_->show();
    AllControls().insert(widget_, this);
}

Control::~Control()
{
    AllControls().remove(widget_);
}

Control* Control::OfWidget(const QWidget* widget)
{
    return AllControls().value(widget);
}

Control* Control::AroundWidget(const QWidget* widget)
{
    while (widget != nullptr && OfWidget(widget) == nullptr)
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return OfWidget(widget);
}

QString Control::Name() const
{
    return widget_->objectName();
}

double Control::Left() const
{
    return place_.left / Unit();
}

double Control::Top() const
{
    return place_.top / Unit();
}

double Control::Width() const
{
    return place_.width / Unit();
}

double Control::Height() const
{
    return place_.height / Unit();
}

void Control::SetLeft(double left)
{
    place_.left = left * Unit();
    ApplyGeometry();
}

void Control::SetTop(double top)
{
    place_.top = top * Unit();
    ApplyGeometry();
}

void Control::SetWidth(double width)
{
    if (width < 0)
        Fail(failure::invalidProperty);
    place_.width = width * Unit();
    ApplyGeometry();
}

void Control::SetHeight(double height)
{
    if (height < 0)
        Fail(failure::invalidProperty);
    place_.height = height * Unit();
    ApplyGeometry();
}

void Control::Move(double left, double top)
{
    place_.left = left * Unit();
    place_.top = top * Unit();
    ApplyGeometry();
}

void Control::Move(double left, double top, double width, double height)
{
    if (width < 0 || height < 0)
        Fail(failure::invalidProperty);
    place_ = {left * Unit(), top * Unit(), width * Unit(), height * Unit()};
    ApplyGeometry();
}

void Control::TakePixelSize(double width, double height)
{
    place_.width = width * twipsPerPixel;
    place_.height = height * twipsPerPixel;
    ApplyGeometry();
}

void Control::ApplyGeometry()
{
    widget_->setGeometry(ToPixels(place_.left), ToPixels(place_.top), ToPixels(place_.width),
                         ToPixels(place_.height));
}

bool Control::Visible() const
{
    return !widget_->isHidden();
}

void Control::SetVisible(bool visible)
{
    widget_->setVisible(visible);
}

bool Control::Enabled() const
{
    return widget_->isEnabledTo(widget_->parentWidget());
}

void Control::SetEnabled(bool enabled)
{
    widget_->setEnabled(enabled);
}

void Control::SetFocus()
{
    const QWidget* window = widget_->window();
    if (!OwnerForm().Visible() || !widget_->isVisibleTo(window) || !widget_->isEnabledTo(window))
        Fail(failure::invalidCall);
    Screen.ActivatePicture(nullptr);
    widget_->setFocus(Qt::OtherFocusReason);
    LeaveIfEnding();
}

void Control::ZOrder()
{
    widget_->raise();
}

QString Control::ToolTip() const
{
    return widget_->toolTip();
}

void Control::SetToolTip(const QString& text)
{
    widget_->setToolTip(text);
    UpdateAccessibleText();
}

QString Control::AccessibleText() const
{
    return ToolTip().isEmpty() ? Name() : ToolTip();
}

void Control::UpdateAccessibleText()
{
    widget_->setAccessibleName(AccessibleText());
}

void Control::WatchInput(QWidget* inner)
{
    inner_ = inner;
    inner_->installEventFilter(this);
    inner_->setAttribute(Qt::WA_NoMousePropagation);
}

bool Control::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != widget_ && watched != inner_)
        return QObject::eventFilter(watched, event);
    if (IsMouse(event->type()) && !widget_->isEnabled())
        return true;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return MousePressed(ButtonNumber(static_cast<QMouseEvent*>(event)->button()));
    case QEvent::MouseButtonDblClick:
        // Where nobody waits for a double click, quick clicking is just clicking.
        if (!DblClick.IsBound())
            return MousePressed(ButtonNumber(static_cast<QMouseEvent*>(event)->button()));
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            DblClick.Fire();
            return true;
        }
        return false;
    case QEvent::MouseButtonRelease: {
        const auto* released = static_cast<QMouseEvent*>(event);
        MouseReleased(ButtonNumber(released->button()), widget_->rect().contains(released->pos()));
        return false;
    }
    case QEvent::KeyPress: {
        const auto* pressed = static_cast<QKeyEvent*>(event);
        if (tabStop_ && PressedByKey(*pressed))
            return true;
        return KeyPressed(KeyCodeOf(*pressed), ShiftStateOf(*pressed));
    }
    case QEvent::Resize:
    case QEvent::ScreenChangeInternal:
        SizeChanged();
        return false;
    default:
        return false;
    }
}

bool Control::MousePressed(int button)
{
    Screen.ActivatePicture(IsPicture() ? this : nullptr);
    pressed_ = button == mouse::left;
    if (!MouseDown.IsBound())
        return false;
    MouseDown.Fire(button);
    return false;
}

void Control::MouseReleased(int button, bool inside)
{
    const bool click = pressed_ && button == mouse::left && inside && ClicksByMouse();
    pressed_ = pressed_ && button != mouse::left;
    if (click)
        Click.Fire();
}

void Control::SetTabStop()
{
    tabStop_ = true;
    widget_->setFocusPolicy(Qt::TabFocus);
}

/// A key that is held is one press.
bool Control::PressedByKey(const QKeyEvent& event)
{
    const bool isMenuKey = event.key() == Qt::Key_Menu ||
                           (event.key() == Qt::Key_F10 && event.modifiers().testFlag(Qt::ShiftModifier));
    const bool isLeft =
        event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if ((!isMenuKey && !isLeft) || event.isAutoRepeat())
        return isMenuKey || isLeft;
    if (isLeft && DblClick.IsBound()) {
        DblClick.Fire();
        return true;
    }
    const QPointer<Control> self(this);
    MousePressed(isLeft ? mouse::left : mouse::right);
    if (self != nullptr)
        MouseReleased(isLeft ? mouse::left : mouse::right, true);
    return true;
}

void Control::Pressed(const Event<>& event) const
{
    if (TakesInput(*widget_))
        event.Fire();
}

void Control::PressKey(int code, int shift)
{
    KeyPressed(code, shift);
}

/// A handler that moved the focus away has used the key up: it must not act on this control as well.
bool Control::KeyPressed(int code, int shift)
{
    Screen.ActivatePicture(nullptr);
    if (!KeyDown.IsBound() || code == 0)
        return false;
    KeyDown.Fire(code, shift);
    return !widget_->hasFocus();
}

} // namespace torvik
