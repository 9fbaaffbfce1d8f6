#include "saver/wake.h"

#include <QEnterEvent>
#include <QLineF>
#include <QMouseEvent>

namespace torvik {

bool Wake::IsCalledBy(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::Close:
        return true;
    case QEvent::MouseMove:
    case QEvent::Enter: // the first sight of the mouse, and what a jump to another screen begins with
        return IsFar(static_cast<const QSinglePointEvent&>(event).globalPosition());
    default:
        return false;
    }
}

bool Wake::IsFar(const QPointF& place)
{
    if (!firstPlace_)
        firstPlace_ = place;
    return QLineF(*firstPlace_, place).length() > farEnough;
}

} // namespace torvik
