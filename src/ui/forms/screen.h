#pragma once

#include <QPointer>
#include <QSize>

#include <optional>

class QWidget;

namespace torvik {

class Control;

enum class MousePointer { Default = 0, Hourglass = 11 };

/// The screen that the program runs on.
class ScreenObject {
public:
    /// Size in twips: 15 to each of the pixels that the program's windows are measured in, whatever the
    /// factor by which they are enlarged.
    double Width() const;
    double Height() const;

    /// Whether the desktop itself enlarges all programs, so that its pixels are not those of the display.
    bool IsScaledByDesktop() const { return scaledByDesktop_; }
    void SetScaledByDesktop(bool scaled) { scaledByDesktop_ = scaled; }

    MousePointer Pointer() const { return pointer_; }
    /// Sets the mouse pointer of all the program's windows.
    void SetMousePointer(MousePointer pointer);

    /// The control that the user is at: the picture on which a mouse button was pressed last, until another
    /// control is pressed, typed on or given the focus, and before and after that the one with the keyboard
    /// focus; null when that is none of the program's forms' controls.
    Control* ActiveControl() const;
    /// Makes a picture the active control; the keyboard focus stays where it is. Null takes that back.
    void ActivatePicture(Control* picture);

    /// Puts another size (pixels) in place of the machine's, for the tests; nothing brings the machine's
    /// back.
    void Pretend(std::optional<QSize> pixels) { pretended_ = pixels; }

private:
    QSize Pixels() const;

    MousePointer pointer_ = MousePointer::Default;
    QPointer<QObject> picture_;
    QPointer<QWidget> focusAtPress_; // in the picture's window
    std::optional<QSize> pretended_;
    bool scaledByDesktop_ = false;
};

inline ScreenObject Screen;

} // namespace torvik
