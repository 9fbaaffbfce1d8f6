#include "ui/disabled_input.h"

#include "ui/form.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

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

class InputGuard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!IsInput(event->type()) || !watched->isWidgetType())
            return false;
        const Form* form = FormHandleBase::FormOfWindow(static_cast<QWidget*>(watched)->window());
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

} // namespace torvik
