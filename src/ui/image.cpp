#include "ui/image.h"

#include "platform/failure.h"

#include <QLabel>
#include <QPixmap>

namespace torvik {

Image::Image(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new QLabel, design), label_(static_cast<QLabel*>(&Widget()))
{
    label_->setAlignment(Qt::AlignCenter);
}

void Image::Load(const QString& path)
{
    Show(Picture::Load(path));
}

void Image::Show(const class Picture& picture)
{
    Fit(picture);
    picture_ = picture;
    UpdateAccessibleText();
}

void Image::Clear()
{
    picture_ = {};
    label_->clear();
    UpdateAccessibleText();
}

void Image::Fit(const class Picture& picture)
{
    const double factor = label_->devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(picture.Fitted((QSizeF(label_->size()) * factor).toSize()));
    pixmap.setDevicePixelRatio(factor);
    label_->setPixmap(pixmap);
}

/// The picture was whole when it was loaded, so a failure here leaves what is on show.
void Image::SizeChanged()
{
    if (!picture_.IsEmpty())
        ResumeNext([this] { Fit(picture_); });
}

QString Image::AccessibleText() const
{
    return picture_.IsEmpty() ? Control::AccessibleText() : picture_.FileName();
}

} // namespace torvik
