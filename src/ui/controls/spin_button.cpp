#include "ui/controls/spin_button.h"

#include "ui/look/button_widget.h"
#include "ui/look/group_widget.h"

using namespace Qt::StringLiterals;

namespace torvik {

SpinButton::SpinButton(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new GroupWidget, design), up_(MakeArrow(u"Up"_s)), down_(MakeArrow(u"Down"_s))
{
    connect(up_, &QAbstractButton::clicked, this, [this] { Pressed(SpinUp); });
    connect(down_, &QAbstractButton::clicked, this, [this] { Pressed(SpinDown); });
    SpinButton::SizeChanged();
}

ButtonWidget* SpinButton::MakeArrow(const QString& part)
{
    auto* arrow = new ButtonWidget(&Widget());
    arrow->setObjectName(u"%1(%2)"_s.arg(Name(), part));
    arrow->setAccessibleName(arrow->objectName());
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::TabFocus);
    return arrow;
}

void SpinButton::SetSpokenAs(const QString& up, const QString& down)
{
    up_->setAccessibleName(up);
    down_->setAccessibleName(down);
}

void SpinButton::SizeChanged()
{
    if (down_ == nullptr)
        return;
    const QSize size = Widget().size();
    if (size.height() > size.width()) {
        const int half = size.height() / 2;
        up_->SetSymbol(ButtonWidget::Symbol::Up);
        down_->SetSymbol(ButtonWidget::Symbol::Down);
        up_->setGeometry(0, 0, size.width(), half);
        down_->setGeometry(0, half, size.width(), size.height() - half);
    } else {
        const int half = size.width() / 2;
        up_->SetSymbol(ButtonWidget::Symbol::Right);
        down_->SetSymbol(ButtonWidget::Symbol::Left);
        down_->setGeometry(0, 0, half, size.height());
        up_->setGeometry(half, 0, size.width() - half, size.height());
    }
}

} // namespace torvik
