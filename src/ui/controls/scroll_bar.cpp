#include "ui/controls/scroll_bar.h"

#include "runtime/failure.h"
#include "ui/forms/program_end.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace torvik {

namespace {

/// Qt's bar turns the left and right keys round when it lies flat.
class ScrollBarWidget : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Right)
            triggerAction(SliderSingleStepAdd);
        else if (event->key() == Qt::Key_Left)
            triggerAction(SliderSingleStepSub);
        else
            QScrollBar::keyPressEvent(event);
    }
};

} // namespace

ScrollBar::ScrollBar(Container& container, const QString& name, const Twips& design)
    : Control(container, name,
              new ScrollBarWidget(design.width >= design.height ? Qt::Horizontal : Qt::Vertical), design),
      bar_(static_cast<QScrollBar*>(&Widget()))
{
    bar_->setRange(0, max_);
    bar_->setPageStep(1);
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
    LeaveIfEnding();
}

void ScrollBar::SetMax(Integer max)
{
    max_ = max;
    bar_->setMaximum(std::max(0, max_));
    LeaveIfEnding();
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

int ScrollBar::SmallChange() const
{
    return bar_->singleStep();
}

void ScrollBar::SetSmallChange(Integer step)
{
    if (step < 1)
        Fail(failure::invalidProperty);
    bar_->setSingleStep(step);
}

} // namespace torvik
