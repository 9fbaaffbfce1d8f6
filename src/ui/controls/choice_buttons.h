#pragma once

#include "ui/forms/control.h"

class QAbstractButton;

namespace torvik {

/// A button that keeps a state: the common part of option buttons and check boxes.
class ChoiceButton : public Control {
public:
    QString Caption() const;
    void SetCaption(const QString& caption);
    bool Value() const;
    /// Sets the state. A change runs Click, as if the user had made it; only an option that loses the choice,
    /// to another one or to none, runs nothing.
    void SetValue(bool value);

protected:
    ChoiceButton(Container& container, const QString& name, QAbstractButton* button, const Twips& design,
                 const QString& caption);

    QString AccessibleText() const override;
    bool ClicksByMouse() const override { return false; }

private:
    QAbstractButton* button_;
};

/// One of several choices: choosing it takes the choice from its siblings on the same container.
class OptionButton : public ChoiceButton {
public:
    OptionButton(Container& container, const QString& name, const Twips& design, const QString& caption = {});
};

/// A box that is ticked or not.
class CheckBox : public ChoiceButton {
public:
    CheckBox(Container& container, const QString& name, const Twips& design, const QString& caption = {});
};

} // namespace torvik
