#include "ui/forms/screen.h"

#include "ui/forms/control.h"
#include "ui/forms/form_window.h"
#include "ui/forms/units.h"

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

void ScreenObject::ActivatePicture(Control* picture)
{
    picture_ = picture;
    focusAtPress_ = picture != nullptr ? picture->Widget().window()->focusWidget() : nullptr;
}

Control* ScreenObject::ActiveControl() const
{
    if (auto* picture = static_cast<Control*>(picture_.data())) {
        const QWidget& widget = picture->Widget();
        if (widget.isVisible() && widget.window()->focusWidget() == focusAtPress_)
            return picture;
    }
    const QWidget* focused = QApplication::focusWidget();
    // Right after a box closed, the desktop has not made the form's window the active one again.
    const FormWindow* window = FormWindow::LastActive();
    if (focused == nullptr && window != nullptr && window->isVisible())
        focused = window->focusWidget();
    return Control::OfWidget(focused);
}

} // namespace torvik
