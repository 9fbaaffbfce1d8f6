#pragma once

#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"

#include <QByteArray>
#include <QFile>
#include <QList>

namespace torvik {

/// Photos on the image of a disc that stands as drive E: while it lives. Unlike those of a folder they can
/// be spoilt and nothing tells it: name, length, time and medium stay.
class PhotoImage {
public:
    /// Puts a photo into the folder "Torviks".
    void Add(const QByteArray& name, const QByteArray& photo)
    {
        maker_.AddFile(name + ";1", photo, folder_);
        photos_.append(photo);
    }
    /// Lets it stand as drive E:.
    void Stand()
    {
        image_ = maker_.Iso();
        if (!drive_.Write(u"disc.iso"_s, image_))
            qFatal("cannot write an image");
        drive_.Stand(u"disc.iso"_s);
    }
    /// From now on every photo is read as zeros.
    void Spoil()
    {
        for (const QByteArray& photo : photos_)
            image_.replace(photo, QByteArray(photo.size(), '\0'));
        QFile file(drive_.PathOf(u"disc.iso"_s));
        if (!file.open(QIODevice::ReadWrite) || file.write(image_) != image_.size())
            qFatal("cannot write an image");
    }

private:
    ImageMaker maker_;
    int folder_ = maker_.AddFolder("TORVIKS");
    QList<QByteArray> photos_;
    QByteArray image_;
    ImageDrive drive_;
};

} // namespace torvik
