#pragma once

#include <QObject>

class QKeyEvent;
class QWheelEvent;

namespace torvik {

class Form;
class ScrollBar;

/// Lets the arrow keys, Page Up, Page Down, Home, End and the mouse wheel (sideways with Shift) move the two
/// scroll bars of a form, wherever on it the focus or the pointer is. A bar that is hidden or disabled does
/// not move; while both are, keys and wheel go their usual way. To be made after all controls of the form.
class ScrollInput : public QObject {
public:
    ScrollInput(Form& form, ScrollBar& across, ScrollBar& down);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool KeyPressed(const QKeyEvent& event);
    void Wheeled(const QWheelEvent& event);

    ScrollBar& across_;
    ScrollBar& down_;
};

} // namespace torvik
