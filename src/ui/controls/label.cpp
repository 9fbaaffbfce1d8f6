#include "ui/controls/label.h"

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

void Label::SetCaptionFont(int pixels, bool bold, const QColor& colour)
{
    QFont font = label_->font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    label_->setFont(font);
    QPalette palette = label_->palette();
    palette.setColor(QPalette::WindowText, colour);
    label_->setPalette(palette);
}

QString Label::AccessibleText() const
{
    return Caption().isEmpty() ? Control::AccessibleText() : Caption();
}

} // namespace torvik
