#include "ui/forms/keys.h"

#include "ui/forms/control.h"

#include <QKeyEvent>

namespace torvik {

int KeyCodeOf(const QKeyEvent& event)
{
    // The decimal key of the keypad is another key.
    const bool isKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
    // What assistive software types comes from no key of a keyboard: there the character alone tells.
    const bool isTyped = event.nativeScanCode() == 0;
    switch (event.key()) {
    case Qt::Key_Comma:
        return isKeypad ? 0 : key::comma;
    case Qt::Key_Period:
        return isKeypad ? 0 : key::period;
    case Qt::Key_Less:
        return isTyped ? key::comma : 0;
    case Qt::Key_Greater:
        return isTyped ? key::period : 0;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return key::enter;
    case Qt::Key_Escape:
        return key::escape;
    case Qt::Key_PageUp:
        return key::pageUp;
    case Qt::Key_PageDown:
        return key::pageDown;
    case Qt::Key_Up:
        return key::up;
    case Qt::Key_Down:
        return key::down;
    case Qt::Key_F3:
        return key::f3;
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
    const Qt::KeyboardModifiers keys = event.modifiers();
    return (keys.testFlag(Qt::ShiftModifier) ? held::shift : 0) +
           (keys.testFlag(Qt::ControlModifier) ? held::ctrl : 0) +
           (keys.testFlag(Qt::AltModifier) ? held::alt : 0);
}

} // namespace torvik
