#include "ui/controls/button.h"

#include "ui/look/button_widget.h"

#include <QIcon>
#include <QPixmap>

namespace torvik {

Button::Button(Container& container, const QString& name, const Twips& design, const QString& caption)
    : Control(container, name, new ButtonWidget, design), button_(static_cast<ButtonWidget*>(&Widget()))
{
    connect(button_, &QAbstractButton::clicked, this, [this] { Pressed(Click); });
    SetCaption(caption);
}

QString Button::Caption() const
{
    return button_->text();
}

void Button::SetCaption(const QString& caption)
{
    button_->setText(caption);
    UpdateAccessibleText();
}

void Button::SetPicture(const QString& resource, const QString& spokenAs)
{
    // A pixmap is kept for the next form, an icon would read the file anew.
    button_->setIcon(QPixmap(resource));
    spokenAs_ = spokenAs;
    UpdateAccessibleText();
}

QString Button::AccessibleText() const
{
    if (!Caption().isEmpty())
        return Caption();
    return spokenAs_.isEmpty() || !ToolTip().isEmpty() ? Control::AccessibleText() : spokenAs_;
}

} // namespace torvik
