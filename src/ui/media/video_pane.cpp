#include "ui/media/video_pane.h"

#include <QEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace torvik {

VideoPane::VideoPane(QWidget& host) : QWidget(&host)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setObjectName(host.objectName() + u"(Video)"_s);
    setAccessibleName(u"Movie"_s);
    hide();
    setGeometry(host.contentsRect());
    host.installEventFilter(this);
}

void VideoPane::ShowPicture(const QImage& picture)
{
    picture_ = picture;
    update();
    if (isHidden()) {
        setGeometry(parentWidget()->contentsRect());
        raise();
        show();
    }
}

QRect VideoPane::PlaceOfPicture() const
{
    const QSize fitted = picture_.size().scaled(size(), Qt::KeepAspectRatio);
    return {QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted};
}

bool VideoPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        setGeometry(parentWidget()->contentsRect());
    return false;
}

void VideoPane::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(PlaceOfPicture(), picture_);
}

} // namespace torvik
