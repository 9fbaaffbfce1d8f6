#include "ui/controls/image.h"

#include "runtime/failure.h"
#include "ui/controls/label.h"
#include "ui/pictures/picture_widget.h"
#include "ui/pictures/pictures_ahead.h"

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
    if (const auto ready = aheadFor_.isEmpty() ? std::nullopt : PictureReadAhead(path, Area())) {
        Put(ready->drawn);
        Take(ready->file);
    } else {
        Show(path.isEmpty() ? torvik::Picture() : Picture::Load(path));
    }
    path_ = path;
}

void Image::ReadAhead(const QStringList& paths)
{
    if (fit_ != Fit::Proportions)
        return;
    aheadFor_ = Area();
    ReadPicturesAhead(paths, path_, aheadFor_);
}

bool Image::HasReadAhead(const QString& path) const
{
    return !aheadFor_.isEmpty() && IsReadAhead(path, Area());
}

void Image::Show(const class Picture& picture)
{
    Put(DrawnFor(Area(), picture));
    Take(picture);
}

void Image::ShowWhenSeen(const class Picture& picture, const QImage& pixels)
{
    label_->clear();
    drawnFor_ = {};
    Take(picture);
    pixels_ = pixels;
}

void Image::Take(const class Picture& picture)
{
    picture_ = picture;
    pixels_ = {};
    path_.clear();
    UpdateAccessibleText();
}

void Image::Clear()
{
    path_.clear();
    picture_ = {};
    pixels_ = {};
    label_->clear();
    UpdateAccessibleText();
}

/// The rectangle in the screen's own pixels.
QSize Image::Area() const
{
    return (QSizeF(label_->size()) * label_->devicePixelRatioF()).toSize();
}

QImage Image::DrawnFor(const QSize& area, const class Picture& picture) const
{
    return fit_ == Fit::Stretch ? picture.Stretched(area) : picture.Fitted(area);
}

QImage Image::DrawnFor(const QSize& area, const QImage& pixels) const
{
    const auto mode = fit_ == Fit::Stretch ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio;
    return pixels.scaled(area, mode, Qt::SmoothTransformation);
}

void Image::Put(const QImage& drawn)
{
    QPixmap pixmap = QPixmap::fromImage(drawn);
    pixmap.setDevicePixelRatio(label_->devicePixelRatioF());
    label_->setPixmap(pixmap);
    drawnFor_ = Area();
}

/// A form that comes up tells each size once more, also such as are no news.
void Image::SizeChanged()
{
    if (aheadFor_.isEmpty() || aheadFor_ == Area())
        return;
    aheadFor_ = {};
    ForgetPicturesAhead();
}

/// However often the size changes, the picture is drawn anew once, when it is seen. It was whole when it was
/// loaded, so a failure here leaves what is on show.
bool Image::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && !picture_.IsEmpty() && drawnFor_ != Area()) {
        drawnFor_ = Area();
        ResumeNext(
            [this] { Put(pixels_.isNull() ? DrawnFor(drawnFor_, picture_) : DrawnFor(drawnFor_, pixels_)); });
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
