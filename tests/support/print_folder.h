#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace torvik {

/// A folder that the program prints to for as long as this lives, and what lies in it, read back from the PDF
/// files. At the end the printer is as it was at the start of the program.
class PrintFolder {
public:
    PrintFolder();
    ~PrintFolder();
    PrintFolder(const PrintFolder&) = delete;
    PrintFolder& operator=(const PrintFolder&) = delete;

    QString Path() const { return folder_.path(); }
    /// The file names, in order.
    QStringList Files() const;
    QString FileOf(int job) const;
    /// How many jobs have gone out.
    int Jobs() const;

    /// The text of each page of a job, as it is read from top to bottom.
    QStringList Pages(int job) const;
    /// A page (from 1) as a picture of 72 pixels to the inch, so that a pixel is 20 twips.
    QImage Image(int job, int page) const;
    /// The pictures of a job in the order in which they were painted, in their own pixels.
    QList<QSize> PictureSizes(int job) const;
    /// How each of them is stored: "jpeg", or "image" for bare pixels.
    QStringList PictureEncodings(int job) const;
    /// The numbers of the objects that hold them: one that is painted twice is the same object.
    QStringList PictureObjects(int job) const;
    /// The size of the paper in twips.
    QSizeF Paper(int job) const;

    static constexpr double twipsPerPixel = 20;

private:
    QList<QStringList> PictureRows(int job) const;

    QTemporaryDir folder_;
};

/// The smallest rectangle that holds all pixels of an image that `counts` says yes to, in twips; empty
/// without any.
template <typename Counts>
QRectF InkOf(const QImage& image, Counts&& counts)
{
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!counts(image.pixelColor(x, y)))
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0)
        return {};
    constexpr double twips = PrintFolder::twipsPerPixel;
    return {left * twips, top * twips, (right - left + 1) * twips, (bottom - top + 1) * twips};
}

/// The same for everything that is not paper.
QRectF InkOf(const QImage& image);

} // namespace torvik
