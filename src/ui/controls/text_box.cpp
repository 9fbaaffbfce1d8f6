#include "ui/controls/text_box.h"

#include <QLineEdit>

namespace torvik {

TextBox::TextBox(Container& container, const QString& name, const Twips& design, const QString& text)
    : Control(container, name, new QLineEdit, design), edit_(static_cast<QLineEdit*>(&Widget()))
{
    edit_->setReadOnly(true);
    SetText(text);
    connect(edit_, &QLineEdit::textChanged, this, [this] { Change.Fire(); });
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

void TextBox::SelectAll()
{
    edit_->selectAll();
}

void TextBox::SetLocked(bool locked)
{
    edit_->setReadOnly(locked);
}

void TextBox::SetHint(const QString& hint)
{
    edit_->setPlaceholderText(hint);
    UpdateAccessibleText();
}

QString TextBox::AccessibleText() const
{
    if (!edit_->placeholderText().isEmpty())
        return edit_->placeholderText(); // its text is told as the content of the box
    return Text().trimmed().isEmpty() ? Control::AccessibleText() : Text();
}

} // namespace torvik
