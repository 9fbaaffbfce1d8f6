#include "ui/controls/frame.h"

#include "ui/look/look.h"

#include <QGroupBox>
#include <QPainter>

namespace torvik {

namespace {

class FrameWidget : public QGroupBox {
public:
    explicit FrameWidget(const QString& caption) : QGroupBox(caption) {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (title().isEmpty())
            QPainter(this).fillRect(rect(), look::face);
        else
            QGroupBox::paintEvent(event);
    }
};

} // namespace

Frame::Frame(Container& container, const QString& name, const Twips& design, const QString& caption)
    : Control(container, name, new FrameWidget(caption), design)
{
    UpdateAccessibleText();
}

QString Frame::Caption() const
{
    return static_cast<QGroupBox&>(Widget()).title();
}

QString Frame::AccessibleText() const
{
    return Caption().isEmpty() ? Control::AccessibleText() : Caption();
}

} // namespace torvik
