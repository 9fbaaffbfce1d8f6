#pragma once

#include "ui/forms/control.h"

namespace torvik {

class ButtonWidget;

/// Two arrows in one frame that step something; held down they repeat. Taller than wide it stands upright
/// (up above down), else it lies flat (down left, up right). Its parts are named like array members,
/// "SpinButton1(Up)" and "SpinButton1(Down)".
class SpinButton : public Control {
public:
    SpinButton(Container& container, const QString& name, const Twips& design);

    Event<> SpinUp;
    Event<> SpinDown;

    /// What a screen reader says of the two arrows.
    void SetSpokenAs(const QString& up, const QString& down);

protected:
    void SizeChanged() override;

private:
    ButtonWidget* MakeArrow(const QString& part);

    ButtonWidget* up_ = nullptr;
    ButtonWidget* down_ = nullptr;
};

} // namespace torvik
