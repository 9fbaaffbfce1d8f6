#include "ui/look/button_widget.h"

#include "ui/look/look.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>

namespace torvik {

namespace {

constexpr int lowestWithDots = 20; // pixels

int DegreesOf(ButtonWidget::Symbol symbol)
{
    switch (symbol) {
    case ButtonWidget::Symbol::Right:
        return 90;
    case ButtonWidget::Symbol::Down:
        return 180;
    case ButtonWidget::Symbol::Left:
        return 270;
    default:
        return 0;
    }
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

/// The button with the focus has a dark line around itself besides the dotted one, as seen from across a
/// room. On a low button the dotted one would run through the caption.
void ButtonWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF area = rect();
    const double thin = ThinLine(painter);
    painter.fillRect(area, look::face);
    QRectF raised = area;
    if (hasFocus()) {
        DrawOutline(painter, area, look::text);
        raised.adjust(thin, thin, -thin, -thin);
    }
    DrawBevel(painter, raised, isDown() ? Bevel::Sunken : Bevel::Raised, look::bevelDepth);

    QRectF content =
        area.adjusted(look::bevelDepth + 2, look::bevelDepth, -look::bevelDepth - 2, -look::bevelDepth);
    if (isDown())
        content.translate(1, 1);
    PaintContent(painter, content);
    if (hasFocus() && height() >= lowestWithDots)
        DrawFocus(painter, area.adjusted(4, 4, -4, -4));
}

void ButtonWidget::PaintContent(QPainter& painter, const QRectF& area) const
{
    if (symbol_ != Symbol::None)
        DrawArrow(painter, area, DegreesOf(symbol_), isEnabled());
    else if (!icon().isNull())
        icon().paint(&painter, area.toRect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    else
        DrawCaption(painter, area, text(), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                    isEnabled());
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
