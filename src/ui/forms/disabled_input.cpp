#include "ui/forms/disabled_input.h"

#include "ui/forms/form.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace torvik {

namespace {

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// The form that input to an object is meant for: that of its window, and for an open menu or an entry of one
/// the form whose menu bar it hangs from.
const Form* FormOf(const QObject* object)
{
    for (; object != nullptr; object = object->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(object);
        if (widget == nullptr || !widget->isWindow())
            continue;
        if (const Form* form = FormHandleBase::FormOfWindow(widget))
            return form;
        if (widget->windowType() != Qt::Popup)
            return nullptr;
    }
    return nullptr;
}

/// The widget of a window of the desktop when an event is about to move the focus in it: that comes before
/// the widget below the mouse gets the event. An open menu gets the press instead, and closes.
const QWidget* WidgetToFocus(const QObject& window, const QEvent& event)
{
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if ((!isPress && event.type() != QEvent::Wheel) || QApplication::activePopupWidget() != nullptr)
        return nullptr;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&window](const QWidget* widget) {
        return widget->windowHandle() == &window;
    });
    return found != widgets.end() ? *found : nullptr;
}

/// A modal window blocks all but itself and what was opened from it.
bool IsBlocked(const QWidget& widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* within = &widget;
    while (within != nullptr && within != modal)
        within = within->parentWidget();
    return modal != nullptr && within == nullptr;
}

class InputGuard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!IsInput(event->type()))
            return false;
        const Form* form = FormOf(watched->isWindowType() ? WidgetToFocus(*watched, *event) : watched);
        return form != nullptr && !form->Enabled();
    }
};

} // namespace

void WatchDisabledForms()
{
    static QPointer<QObject> guard; // goes with the application object
    if (guard != nullptr)
        return;
    guard = new InputGuard(qApp);
    qApp->installEventFilter(guard);
}

bool TakesInput(const QWidget& widget)
{
    const Form* form = FormOf(&widget);
    return !IsBlocked(widget) && (form == nullptr || form->Enabled());
}

} // namespace torvik
