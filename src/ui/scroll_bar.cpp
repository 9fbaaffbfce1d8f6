#include "ui/scroll_bar.h"

#include "platform/failure.h"

#include <QScrollBar>

#include <algorithm>

namespace torvik {

ScrollBar::ScrollBar(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new QScrollBar(design.Width >= design.Height ? Qt::Horizontal : Qt::Vertical),
              design),
      bar_(static_cast<QScrollBar*>(&Widget()))
{
    bar_->setRange(0, max_);
    bar_->setFocusPolicy(Qt::StrongFocus);
    connect(bar_, &QScrollBar::valueChanged, this, [this] { Change.Fire(); });
}

int ScrollBar::Value() const
{
    return bar_->value();
}

void ScrollBar::SetValue(Integer value)
{
    if (value < 0 || value > std::max(0, max_))
        Fail(failure::invalidProperty);
    bar_->setValue(value);
}

void ScrollBar::SetMax(Integer max)
{
    max_ = max;
    bar_->setMaximum(std::max(0, max_));
}

int ScrollBar::LargeChange() const
{
    return bar_->pageStep();
}

void ScrollBar::SetLargeChange(Integer step)
{
    if (step < 1)
        Fail(failure::invalidProperty);
    bar_->setPageStep(step);
}

} // namespace torvik
