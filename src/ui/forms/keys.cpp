#include "ui/forms/keys.h"

#include "ui/forms/control.h"

#include <QKeyEvent>

namespace torvik {

int KeyCodeOf(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Comma:
    case Qt::Key_Less:
        return key::comma;
    case Qt::Key_Period:
    case Qt::Key_Greater:
        return key::period;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    default:
        break;
    }
    const int code = event.key();
    const bool plain = code == Qt::Key_Space || (code >= Qt::Key_0 && code <= Qt::Key_9) ||
                       (code >= Qt::Key_A && code <= Qt::Key_Z);
    return plain ? code : 0;
}

int ShiftStateOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) + (held.testFlag(Qt::ControlModifier) ? 2 : 0) +
           (held.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace torvik
