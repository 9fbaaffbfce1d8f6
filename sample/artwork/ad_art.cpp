#include "sample/artwork/ad_art.h"

#include "sample/artwork/ad_layouts.h"

namespace torvik::sample {

QImage PaintAd(const PlannedAd& plan)
{
    QImage sheet(plan.Size(), QImage::Format_RGB32);
    sheet.fill(plan.paper);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const AdCopy copy = AdCopyOf(plan.year);
    const AdPage page{painter, plan, copy};
    switch (plan.layout) {
    case AdLayout::PictureOverText:
        SetPictureOverText(page);
        break;
    case AdLayout::FullPicture:
        SetFullPicture(page);
        break;
    case AdLayout::Stripes:
        SetStripes(page);
        break;
    case AdLayout::Grid:
        SetGrid(page);
        break;
    case AdLayout::Spread:
        SetSpread(page);
        break;
    }
    return sheet;
}

} // namespace torvik::sample
