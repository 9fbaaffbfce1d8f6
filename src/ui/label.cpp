#include "ui/label.h"

#include <QLabel>

namespace torvik {

Label::Label(Container& container, const QString& name, const Twips& design, const QString& caption)
    : Control(container, name, new QLabel, design), label_(static_cast<QLabel*>(&Widget()))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    SetCaption(caption);
}

QString Label::Caption() const
{
    return label_->text();
}

void Label::SetCaption(const QString& caption)
{
    label_->setText(caption);
    UpdateAccessibleText();
}

QString Label::AccessibleText() const
{
    return Caption().isEmpty() ? Control::AccessibleText() : Caption();
}

} // namespace torvik
