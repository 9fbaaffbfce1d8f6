#include "rtf/picture/picture_store.h"

#include <QTextDocument>
#include <QUrl>
#include <QVariant>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

int PictureStore::Add(const QImage& image, const QSizeF& size)
{
    pictures_.push_back({image, size});
    return Count();
}

QString PictureStore::NameOf(int number)
{
    return u"rtf-picture:%1"_s.arg(number);
}

QSizeF PictureStore::SizeOf(int number) const
{
    return pictures_.at(static_cast<std::size_t>(number) - 1).size;
}

void PictureStore::GiveTo(QTextDocument& document)
{
    int number = 0;
    for (const Picture& picture : pictures_)
        document.addResource(QTextDocument::ImageResource, QUrl(NameOf(++number)), picture.image);
    pictures_.clear();
}

} // namespace torvik::rtf
