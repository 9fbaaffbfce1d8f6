#include "ui/screen.h"

#include "ui/control.h"
#include "ui/units.h"

#include <QApplication>
#include <QScreen>

namespace torvik {

QSize ScreenObject::Pixels() const
{
    const QScreen* screen = QApplication::primaryScreen();
    return pretended_.value_or(screen != nullptr ? screen->size() : QSize());
}

double ScreenObject::Width() const
{
    return Pixels().width() * twipsPerPixel;
}

double ScreenObject::Height() const
{
    return Pixels().height() * twipsPerPixel;
}

void ScreenObject::SetMousePointer(MousePointer pointer)
{
    if (pointer == pointer_)
        return;
    pointer_ = pointer;
    if (pointer == MousePointer::Hourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

Control* ScreenObject::ActiveControl() const
{
    return Control::OfWidget(QApplication::focusWidget());
}

} // namespace torvik
