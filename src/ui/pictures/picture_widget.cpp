#include "ui/pictures/picture_widget.h"

#include "ui/look/look.h"

#include <QPainter>

namespace torvik {

/// Dark dots on a light line, so that they stand out of any photo.
void PictureWidget::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    DrawOutline(painter, rect(), look::light);
    DrawFocus(painter, rect());
}

} // namespace torvik
