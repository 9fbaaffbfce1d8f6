#include "saver/show_window.h"

#include <QPainter>

namespace torvik {

QSize ShowWindow::Pixels() const
{
    return (QSizeF(size()) * devicePixelRatio()).toSize().expandedTo({1, 1});
}

bool ShowWindow::event(QEvent* event)
{
    if (Noticed)
        Noticed(*event);
    return QRasterWindow::event(event);
}

void ShowWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fade_.Paint(painter, QRect(QPoint(), size()));
}

void ShowWindow::resizeEvent(QResizeEvent* event)
{
    QRasterWindow::resizeEvent(event);
    if (SizeChanged)
        SizeChanged(*this);
}

} // namespace torvik
