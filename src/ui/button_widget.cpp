#include "ui/button_widget.h"

#include "ui/look.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace torvik {

namespace {

constexpr int bevelDepth = 2; // pixels

QPainterPath Arrow(ButtonWidget::Symbol symbol, const QPointF& centre, double size)
{
    const double half = size / 2;
    QPainterPath path;
    path.moveTo(-size, half);
    path.lineTo(size, half);
    path.lineTo(0, -half);
    path.closeSubpath();
    double angle = 0;
    switch (symbol) {
    case ButtonWidget::Symbol::Right:
        angle = 90;
        break;
    case ButtonWidget::Symbol::Down:
        angle = 180;
        break;
    case ButtonWidget::Symbol::Left:
        angle = 270;
        break;
    default:
        break;
    }
    return QTransform().translate(centre.x(), centre.y()).rotate(angle).map(path);
}

} // namespace

ButtonWidget::ButtonWidget(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ButtonWidget::SetSymbol(Symbol symbol)
{
    symbol_ = symbol;
    update();
}

void ButtonWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF area = rect();
    painter.fillRect(area, isDown() ? look::halfLight : look::face);
    DrawBevel(painter, area, isDown() ? Bevel::Sunken : Bevel::Raised, bevelDepth);

    QRectF content = area.adjusted(bevelDepth + 1, bevelDepth, -bevelDepth - 1, -bevelDepth);
    if (isDown())
        content.translate(1, 1);
    PaintContent(painter, content);
    if (hasFocus()) {
        painter.setPen(QPen(look::text, 1, Qt::DotLine));
        painter.drawRect(area.adjusted(bevelDepth + 1.5, bevelDepth + 1.5, -bevelDepth - 1.5, -bevelDepth - 1.5));
    }
}

void ButtonWidget::PaintContent(QPainter& painter, const QRectF& area) const
{
    if (symbol_ != Symbol::None) {
        painter.setRenderHint(QPainter::Antialiasing);
        const double size = std::clamp(std::min(area.width(), area.height()) / 3, 2.0, 8.0);
        painter.fillPath(Arrow(symbol_, area.center(), size), isEnabled() ? look::text : look::faded);
        painter.setRenderHint(QPainter::Antialiasing, false);
        return;
    }
    if (!icon().isNull()) {
        icon().paint(&painter, area.toRect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        return;
    }
    DrawCaption(painter, area, text(), Qt::AlignCenter | Qt::TextSingleLine, isEnabled());
}

void ButtonWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (event->key() == Qt::Key_Escape)
        event->ignore(); // the form's Cancel button answers it
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace torvik
