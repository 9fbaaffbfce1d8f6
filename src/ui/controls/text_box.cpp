#include "ui/controls/text_box.h"

#include <QLineEdit>

namespace torvik {

TextBox::TextBox(Container& container, const QString& name, const Twips& design, const QString& text)
    : Control(container, name, new QLineEdit, design), edit_(static_cast<QLineEdit*>(&Widget()))
{
    edit_->setReadOnly(true);
    SetText(text);
}

QString TextBox::Text() const
{
    return edit_->text();
}

void TextBox::SetText(const QString& text)
{
    edit_->setText(text);
    edit_->setCursorPosition(0);
    UpdateAccessibleText();
}

QString TextBox::SelText() const
{
    return edit_->selectedText();
}

QString TextBox::AccessibleText() const
{
    return Text().trimmed().isEmpty() ? Control::AccessibleText() : Text();
}

} // namespace torvik
