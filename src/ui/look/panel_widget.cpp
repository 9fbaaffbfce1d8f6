#include "ui/look/panel_widget.h"

#include <QAccessible>
#include <QPainter>

namespace torvik {

PanelWidget::PanelWidget(Bevel bevel, QWidget* parent) : QLabel(parent), bevel_(bevel)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
}

void PanelWidget::SetFlood(int percent)
{
    flood_ = percent;
    update();
    QAccessibleValueChangeEvent event(this, percent);
    QAccessible::updateAccessibility(&event);
}

void PanelWidget::SetCaptionColour(const QColor& colour)
{
    colour_ = colour;
    update();
}

void PanelWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF area = rect();
    const double rim = bevel_ == Bevel::None ? 0 : look::bevelDepth * ThinLine(painter);
    const QRectF face = Snapped(painter, area).adjusted(rim, rim, -rim, -rim);
    painter.fillRect(area, look::face);
    DrawBevel(painter, area, bevel_, look::bevelDepth);
    DrawCaption(painter, face.adjusted(2, 0, -2, 0), text(), static_cast<int>(alignment()), isEnabled(),
                colour_);
    if (flood_ > 0)
        PaintFlood(painter, face);
    if (hasFocus())
        DrawFocus(painter, face);
}

/// The filled part shows the caption in the colour of the bare one, so the number stays readable at its edge.
void PanelWidget::PaintFlood(QPainter& painter, const QRectF& face) const
{
    const QRectF filled =
        Snapped(painter, QRectF(face.left(), face.top(), face.width() * flood_ / 100, face.height()));
    painter.save();
    painter.setClipRect(filled);
    painter.fillRect(filled, look::accent);
    DrawCaption(painter, face.adjusted(2, 0, -2, 0), text(), static_cast<int>(alignment()), true,
                look::accentText);
    painter.restore();
}

} // namespace torvik
