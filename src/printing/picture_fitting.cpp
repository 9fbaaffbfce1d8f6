#include "printing/picture_fitting.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <vector>

namespace torvik {

namespace {

/// A picture and the line that it stands on, in the pixels of the layout.
struct PlacedPicture {
    int position = 0; ///< of its character in the document
    QTextImageFormat format;
    QSizeF size;
    QRectF line;
    double ascent = 0; ///< of the line
};

QSizeF SizeOf(const QTextImageFormat& format, const QTextDocument& document)
{
    const QSizeF size(format.width(), format.height());
    if (size.width() > 0 && size.height() > 0)
        return size;
    const QVariant resource = document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    return resource.value<QImage>().size();
}

void AddPictures(const QTextBlock& block, double scale, std::vector<PlacedPicture>& pictures)
{
    const QTextDocument& document = *block.document();
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        const QTextImageFormat format = fragment.charFormat().toImageFormat();
        if (!format.isValid())
            continue;
        const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
        // Equal pictures in a row are one fragment of several characters.
        for (int position = fragment.position(); position < fragment.position() + fragment.length();
             ++position) {
            const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
            if (line.isValid())
                pictures.push_back({position, format, SizeOf(format, document) * scale,
                                    line.rect().translated(corner), line.ascent()});
        }
    }
}

std::vector<PlacedPicture> PicturesOf(const QTextDocument& document, double scale)
{
    std::vector<PlacedPicture> pictures;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        AddPictures(block, scale, pictures);
    return pictures;
}

/// By how much a picture must shrink; 1 where it stands well. The layout rounds a picture to whole units of
/// its format, `unit` pixels each, so it is given one less than there is room for.
double ShrinkingOf(const PlacedPicture& picture, const QSizeF& page, double unit)
{
    constexpr double oneStep = 0.97; // where only a new layout can tell whether it is enough
    if (picture.size.isEmpty())
        return 1;

    double factor = 1;
    const double widthRoom = page.width() - picture.line.left() - unit;
    if (picture.size.width() > widthRoom + unit && widthRoom > unit)
        factor = widthRoom / picture.size.width();

    // Only the tallest of a line's pictures can make it too tall.
    if (picture.size.height() < picture.ascent - unit)
        return factor;
    const double beside = std::max(0.0, picture.line.height() - picture.size.height());
    const double heightRoom = page.height() - beside - unit;
    if (picture.line.height() > page.height() && heightRoom > unit)
        return std::min(factor, heightRoom / picture.size.height());
    const bool cut = std::floor(picture.line.top() / page.height()) !=
                     std::floor((picture.line.bottom() - 1) / page.height());
    return cut ? std::min(factor, oneStep) : factor;
}

void Shrink(QTextDocument& document, const PlacedPicture& picture, double factor, double scale)
{
    QTextImageFormat format = picture.format;
    format.setWidth(picture.size.width() * factor / scale);
    format.setHeight(picture.size.height() * factor / scale);
    QTextCursor cursor(&document);
    cursor.setPosition(picture.position);
    cursor.setPosition(picture.position + 1, QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

} // namespace

void FitPicturesToPages(QTextDocument& document, double scale)
{
    constexpr int mostRounds = 30; // 0.97 to this power is less than a half: nothing needs more
    bool changed = true;
    for (int round = 0; changed && round < mostRounds; ++round) {
        changed = false;
        for (const PlacedPicture& picture : PicturesOf(document, scale)) {
            const double factor = ShrinkingOf(picture, document.pageSize(), scale);
            if (factor >= 1)
                continue;
            Shrink(document, picture, factor, scale);
            changed = true;
        }
    }
}

} // namespace torvik
