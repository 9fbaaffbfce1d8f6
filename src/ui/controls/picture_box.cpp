#include "ui/controls/picture_box.h"

#include "ui/pictures/picture_widget.h"

#include <QPixmap>

#include <utility>

namespace torvik {

PictureBox::PictureBox(Container& container, const QString& name, const Twips& design, Scale scale)
    : Control(container, name, new PictureWidget, design), label_(static_cast<QLabel*>(&Widget())),
      scale_(scale)
{
    label_->setAutoFillBackground(true);
}

void PictureBox::Load(const QString& path)
{
    class Picture loaded = Picture::Load(path);
    label_->setPixmap(QPixmap::fromImage(loaded.Natural()));
    picture_ = std::move(loaded);
    TakePixelSize(picture_.NaturalSize().width(), picture_.NaturalSize().height());
    UpdateAccessibleText();
}

void PictureBox::Clear()
{
    picture_ = {};
    label_->clear();
    UpdateAccessibleText();
}

QImage PictureBox::Pixels() const
{
    return label_->pixmap(Qt::ReturnByValue).toImage();
}

QString PictureBox::AccessibleText() const
{
    return picture_.IsEmpty() ? Control::AccessibleText() : picture_.FileName();
}

} // namespace torvik
