#pragma once

#include <QSize>

#include <optional>

namespace torvik {

class Control;

enum class MousePointer { Default = 0, Hourglass = 11 };

/// The screen that the program runs on.
class ScreenObject {
public:
    /// Size in twips: 15 to each of the desktop's pixels (those that windows are measured in, whatever the
    /// display's scale factor).
    double Width() const;
    double Height() const;

    MousePointer Pointer() const { return pointer_; }
    /// Sets the mouse pointer of all the program's windows.
    void SetMousePointer(MousePointer pointer);

    /// The control that has the keyboard focus; null when it is none of the program's forms' controls.
    Control* ActiveControl() const;

    /// Puts another size (pixels) in place of the machine's, for the tests; nothing brings the machine's
    /// back.
    void Pretend(std::optional<QSize> pixels) { pretended_ = pixels; }

private:
    QSize Pixels() const;

    MousePointer pointer_ = MousePointer::Default;
    std::optional<QSize> pretended_;
};

inline ScreenObject Screen;

} // namespace torvik
