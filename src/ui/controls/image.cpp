#include "ui/controls/image.h"

#include "runtime/failure.h"
#include "ui/controls/label.h"
#include "ui/pictures/picture_widget.h"

#include <QEvent>
#include <QLabel>
#include <QPixmap>

namespace torvik {

Image::Image(Container& container, const QString& name, const Twips& design, Fit fit)
    : Control(container, name, new PictureWidget, design), label_(static_cast<QLabel*>(&Widget())), fit_(fit)
{
    label_->setAlignment(Qt::AlignCenter);
}

void Image::Load(const QString& path)
{
    Show(path.isEmpty() ? torvik::Picture() : Picture::Load(path));
}

void Image::Show(const class Picture& picture)
{
    Draw(picture);
    picture_ = picture;
    UpdateAccessibleText();
}

void Image::Clear()
{
    picture_ = {};
    label_->clear();
    UpdateAccessibleText();
}

void Image::Draw(const class Picture& picture)
{
    const double factor = label_->devicePixelRatioF();
    const QSize area = (QSizeF(label_->size()) * factor).toSize();
    QPixmap pixmap =
        QPixmap::fromImage(fit_ == Fit::Stretch ? picture.Stretched(area) : picture.Fitted(area));
    pixmap.setDevicePixelRatio(factor);
    label_->setPixmap(pixmap);
    outgrown_ = false;
}

void Image::SizeChanged()
{
    outgrown_ = !picture_.IsEmpty();
}

/// However often the size changes, the picture is drawn anew once, when it is seen. It was whole when it was
/// loaded, so a failure here leaves what is on show.
bool Image::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && outgrown_) {
        outgrown_ = false;
        ResumeNext([this] { Draw(picture_); });
    }
    return Control::eventFilter(watched, event);
}

void Image::ZOrder()
{
    const QObjectList& siblings = label_->parentWidget()->children(); // from the back to the front
    for (QObject* each : siblings) {
        auto* widget = qobject_cast<QWidget*>(each);
        const Control* control = Control::OfWidget(widget);
        if (control == nullptr || dynamic_cast<const Image*>(control) != nullptr ||
            dynamic_cast<const Label*>(control) != nullptr)
            continue;
        label_->stackUnder(widget);
        return;
    }
    label_->raise();
}

QString Image::AccessibleText() const
{
    return picture_.IsEmpty() ? Control::AccessibleText() : picture_.FileName();
}

} // namespace torvik
