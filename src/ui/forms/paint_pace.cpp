#include "ui/forms/paint_pace.h"

#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QCoreApplication>
#include <QEvent>

namespace torvik {

namespace {
constexpr int shortestPause = 25; // milliseconds
}

PaintPace::PaintPace(Form& form) : window_(&form.Window())
{
    later_.setSingleShot(true);
    QObject::connect(&later_, &QTimer::timeout, this, [this] { PaintNow(); });
    window_->installEventFilter(this);
}

PaintPace::~PaintPace()
{
    window_->removeEventFilter(this);
    if (later_.isActive())
        PaintNow();
}

void PaintPace::PaintNow()
{
    sincePaint_.invalidate();
    QCoreApplication::postEvent(window_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
}

/// The window's request to be painted waits until the last painting is long enough ago.
bool PaintPace::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest)
        return false;
    const qint64 pause = sincePaint_.isValid() ? sincePaint_.elapsed() : shortestPause;
    if (pause < shortestPause) {
        if (!later_.isActive())
            later_.start(static_cast<int>(shortestPause - pause));
        return true;
    }
    later_.stop();
    sincePaint_.start();
    return false;
}

} // namespace torvik
