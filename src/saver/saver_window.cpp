#include "saver/saver_window.h"

#include <QPainter>

namespace torvik {

QSize SaverWindow::Pixels() const
{
    return (QSizeF(size()) * devicePixelRatio()).toSize().expandedTo({1, 1});
}

bool SaverWindow::event(QEvent* event)
{
    if (noticed)
        noticed(*event);
    return QRasterWindow::event(event);
}

void SaverWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fade_.Paint(painter, QRect(QPoint(), size()));
}

void SaverWindow::resizeEvent(QResizeEvent* event)
{
    QRasterWindow::resizeEvent(event);
    if (sizeChanged)
        sizeChanged(*this);
}

} // namespace torvik
