#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace torvik {

/// A picture file in memory, decoded at the size in which it is asked for.
class Picture {
public:
    /// No picture.
    Picture() = default;

    /// Reads a file of the disc. Failures: those of reading a file (53, 76, 68, 70, 75, 57), and 481, Invalid
    /// picture, for a file that is no picture, ends early, or has more than 300 million pixels.
    static Picture Load(const QString& path);
    /// The same from the bytes of a file, on any thread. Failure 481 as above.
    static Picture FromFile(QByteArray bytes, const QString& path);
    /// A picture of the program's own artwork, by its resource path. Failure 53 when there is none.
    static Picture FromResource(const QString& resource);

    bool IsEmpty() const { return bytes_.isEmpty(); }
    /// The length of its file.
    qint64 Bytes() const { return bytes_.size(); }
    /// The name of its file without the folder.
    const QString& FileName() const { return fileName_; }
    /// Width and height in pixels, as its orientation tag turns it.
    QSize NaturalSize() const { return size_; }

    /// The whole picture at its natural size. Failure 481 when its data is damaged.
    QImage Natural() const;
    /// The picture as large as fits into `area` pixels with its proportions kept. Failure 481 as above.
    QImage Fitted(const QSize& area) const;
    /// The picture drawn out to `area` pixels, proportions or not. Failure 481 as above.
    QImage Stretched(const QSize& area) const;

private:
    Picture(QByteArray bytes, QString fileName);
    QImage Decode(const QSize& upright) const;

    QByteArray bytes_;
    QString fileName_;
    QSize size_;
    bool sideways_ = false; // stored with width and height exchanged
};

/// Lets Qt's loader take pictures as large as Picture allows.
void RaisePictureLimit();

} // namespace torvik
