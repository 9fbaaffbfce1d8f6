#include "saver/fade.h"

#include <QPainter>

#include <utility>

namespace torvik {

void Fade::To(const QImage& frame)
{
    going_ = std::exchange(coming_, frame);
    progress_ = 0;
}

void Fade::Replace(const QImage& frame)
{
    coming_ = frame;
    going_ = QImage();
    progress_ = 1;
}

void Fade::Paint(QPainter& painter, const QRect& area) const
{
    if (progress_ < 1 || coming_.isNull()) {
        if (going_.isNull())
            painter.fillRect(area, Qt::black);
        else
            painter.drawImage(area, going_);
    }
    painter.save();
    painter.setOpacity(progress_);
    painter.drawImage(area, coming_);
    painter.restore();
}

} // namespace torvik
