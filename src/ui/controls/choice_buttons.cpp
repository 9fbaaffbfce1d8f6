#include "ui/controls/choice_buttons.h"

#include <QCheckBox>
#include <QRadioButton>

namespace torvik {

namespace {

/// A button that is pressed anywhere on its area, not only on its mark and its letters.
template <typename Base>
class WholeArea : public Base {
protected:
    bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
};

} // namespace

ChoiceButton::ChoiceButton(Container& container, const QString& name, QAbstractButton* button,
                           const Twips& design, const QString& caption)
    : Control(container, name, button, design), button_(button)
{
    SetCaption(caption);
    connect(button_, &QAbstractButton::clicked, this, [this] { Pressed(Click); });
}

QString ChoiceButton::Caption() const
{
    return button_->text();
}

void ChoiceButton::SetCaption(const QString& caption)
{
    button_->setText(caption);
    UpdateAccessibleText();
}

bool ChoiceButton::Value() const
{
    return button_->isChecked();
}

void ChoiceButton::SetValue(bool value)
{
    if (value == Value())
        return;
    const bool exclusive = button_->autoExclusive(); // Qt keeps the last choice of a group otherwise
    button_->setAutoExclusive(exclusive && value);
    button_->setChecked(value);
    button_->setAutoExclusive(exclusive);
    if (value || !exclusive)
        Click.Call();
}

QString ChoiceButton::AccessibleText() const
{
    return Caption().isEmpty() ? Control::AccessibleText() : Caption();
}

OptionButton::OptionButton(Container& container, const QString& name, const Twips& design,
                           const QString& caption)
    : ChoiceButton(container, name, new WholeArea<QRadioButton>, design, caption)
{}

CheckBox::CheckBox(Container& container, const QString& name, const Twips& design, const QString& caption)
    : ChoiceButton(container, name, new WholeArea<QCheckBox>, design, caption)
{}

} // namespace torvik
