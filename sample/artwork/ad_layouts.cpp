#include "sample/artwork/ad_layouts.h"

#include "sample/artwork/ad_type.h"
#include "sample/geometry/shapes.h"

#include <array>

namespace torvik::sample {

namespace {

constexpr double pageWidth = 1232; // of a standing page

TextLook BodyLook(const AdPage& page, double largest, Qt::Alignment alignment = Qt::AlignJustify)
{
    return {page.plan.body, page.plan.ink, largest, alignment};
}

/// Fashion: columns with two straight edges to the end of the seventies, with one since.
Qt::Alignment EdgeOf(const AdPage& page)
{
    return page.plan.year < 1979 ? Qt::AlignJustify : Qt::AlignLeft;
}

void SetLead(const AdPage& page, const QRectF& box, const QColor& ink, double largest,
             Qt::Alignment alignment = Qt::AlignLeft)
{
    Type type = page.plan.body;
    type.italic = page.plan.year < 1979;
    type.bold = page.plan.year >= 1979;
    SetColumns(page.painter, {page.copy.lead}, {box}, {type, ink, largest, alignment});
}

/// The page's colour where it can be read on the paper, else that of the text.
QColor LeadInk(const AdPage& page)
{
    const int contrast = std::abs(qGray(page.plan.accent.rgb()) - qGray(page.plan.paper.rgb()));
    return contrast > 105 ? page.plan.accent : page.plan.ink;
}

/// Sets the headline into the box and tells where it ends.
double SetHeadline(const AdPage& page, const QRectF& box, int lines, double tallest,
                   Qt::Alignment alignment = Qt::AlignLeft)
{
    const QPainterPath headline =
        FittedHeadline(page.copy.headline, box, page.plan.headline, lines, tallest, alignment);
    page.painter.fillPath(headline, page.plan.ink);
    return headline.boundingRect().bottom();
}

void SetPhoto(const AdPage& page, const QRectF& box)
{
    page.painter.drawImage(box, AdPhoto(page.plan, box.size().toSize()));
}

/// A part of a column, so far from its top and so high.
QRectF Below(const QRectF& column, double from, double height)
{
    return QRectF(column.left(), column.top() + from, column.width(), height);
}

/// A soft veil, so that words can be read on a picture.
void DrawVeil(QPainter& p, const QRectF& box, const QColor& colour, bool fromTop)
{
    QLinearGradient veil(box.topLeft(), box.bottomLeft());
    QColor clear = colour;
    clear.setAlpha(0);
    QColor dense = colour;
    dense.setAlpha(225);
    veil.setColorAt(fromTop ? 0 : 1, dense);
    dense.setAlpha(165);
    veil.setColorAt(fromTop ? 0.6 : 0.4, dense);
    veil.setColorAt(fromTop ? 1 : 0, clear);
    p.fillRect(box, veil);
}

void SetPictureOverText(const AdPage& page)
{
    const auto& [p, plan, copy] = page;
    const QRectF picture(56, 56, pageWidth - 112, 800);
    SetPhoto(page, picture);
    const QRectF head(56, 900, pageWidth - 112, 132);
    const double bottom = SetHeadline(page, head, 1, 72, Qt::AlignHCenter);
    const double below = bottom + 18;
    SetLead(page, QRectF(56, below, pageWidth - 112, 40), LeadInk(page), 29, Qt::AlignHCenter);
    const QRectF text(56, below + 66, pageWidth - 112, 1440 - below - 66);
    const std::vector<QRectF> columns = ColumnsIn(text, 3, 34);
    SetColumns(p, copy.paragraphs, {columns[0], columns[1]}, BodyLook(page, 28, EdgeOf(page)));
    const QRectF last = columns[2];
    DrawEngines(page, QRectF(last.left(), last.top() + 6, last.width(), last.height() - 180), plan.ink);
    DrawPriceBox(page, QRectF(last.left(), last.bottom() - 156, last.width(), 150), plan.paper, plan.ink);
    p.fillRect(QRectF(56, 1462, pageWidth - 112, 2), plan.accent);
    DrawSignature(page, QRectF(56, 1480, pageWidth - 112, 92), plan.ink);
}

void SetFullPicture(const AdPage& page)
{
    const auto& [p, plan, copy] = page;
    const double band = 1130;
    const QRectF picture(0, 0, pageWidth, band);
    SetPhoto(page, picture);
    DrawVeil(p, QRectF(0, 0, pageWidth, 380), plan.paper, true);
    DrawVeil(p, QRectF(0, band - 70, pageWidth, 70), plan.paper, false);
    const double bottom = SetHeadline(page, QRectF(70, 70, pageWidth - 140, 200), 2, 104);
    SetLead(page, QRectF(72, bottom + 20, pageWidth - 340, 84), plan.ink, 28);
    p.fillRect(QRectF(70, band + 24, 120, 7), plan.accent);
    std::vector<QRectF> columns = ColumnsIn(QRectF(70, band + 50, pageWidth - 140, 280), 3, 36);
    const QRectF last = columns.back();
    columns.pop_back();
    SetColumns(p, copy.paragraphs, columns, BodyLook(page, 27, EdgeOf(page)));
    DrawPriceBox(page, Below(last, 0, 138), plan.accent,
                 qGray(plan.accent.rgb()) > 140 ? QColor(20, 20, 22) : QColor(255, 255, 255));
    DrawEngines(page, Below(last, 152, 128), plan.ink);
    DrawSignature(page, QRectF(70, 1484, pageWidth - 140, 92), plan.ink);
}

void SetStripes(const AdPage& page)
{
    const auto& [p, plan, copy] = page;
    const std::array<QColor, 4> tones = {plan.accent, plan.accent.lighter(130), plan.accent.lighter(165),
                                         plan.accent.darker(160)};
    // Broad stripes that come down from the headline, turn and run out to the right.
    for (std::size_t i = 0; i < tones.size(); ++i) {
        const double inset = static_cast<double>(i) * 26;
        p.strokePath(Outline({{70 + inset, 0},
                              {70 + inset, 954 - inset},
                              {70 + inset, 1070 - inset, 190, 1070 - inset},
                              {pageWidth, 1070 - inset}}),
                     QPen(tones[i], 20, Qt::SolidLine, Qt::FlatCap));
    }
    const double left = 206;
    const double bottom = SetHeadline(page, QRectF(left, 70, pageWidth - left - 60, 200), 2, 100);
    const double below = std::max(200.0, bottom + 20);
    SetLead(page, QRectF(left, below, pageWidth - left - 60, 76), plan.ink, 28);
    const QRectF picture(left, below + 92, pageWidth - left - 60, 940 - below - 92);
    const QPainterPath frame = Rounded(picture, 46);
    p.save();
    p.setClipPath(frame);
    SetPhoto(page, picture);
    p.restore();
    p.strokePath(frame, QPen(plan.ink, 5));
    std::vector<QRectF> columns = ColumnsIn(QRectF(60, 1106, pageWidth - 120, 262), 3, 34);
    const QRectF last = columns.back();
    columns.pop_back();
    SetColumns(p, copy.paragraphs, columns, BodyLook(page, 27));
    DrawPriceBox(page, Below(last, 6, 136), plan.ink, plan.paper);
    DrawEngines(page, Below(last, 154, 102), plan.ink);
    DrawColourRow(page, QRectF(60, 1376, pageWidth - 120, 96), plan.ink);
    DrawSignature(page, QRectF(60, 1488, pageWidth - 120, 92), plan.ink);
}

void SetGrid(const AdPage& page)
{
    const auto& [p, plan, copy] = page;
    p.fillRect(QRectF(0, 0, pageWidth, 26), plan.accent);
    const double bottom = SetHeadline(page, QRectF(60, 78, pageWidth - 120, 190), 1, 124);
    const double below = bottom + 24;
    SetLead(page, QRectF(60, below, pageWidth - 120, 46), LeadInk(page), 31);
    const QRectF picture(0, below + 66, pageWidth, 1010 - below - 66);
    SetPhoto(page, picture);
    p.fillRect(QRectF(0, 1010, pageWidth, 8), plan.accent);
    p.setPen(QPen(plan.accent, 1));
    for (const double x : {pageWidth * 0.355, pageWidth * 0.655})
        p.drawLine(QPointF(x, 1046), QPointF(x, 1452));
    const std::vector<QRectF> columns = ColumnsIn(QRectF(60, 1046, pageWidth - 120, 400), 3, 44);
    SetColumns(p, copy.paragraphs, {columns[0], columns[1]}, BodyLook(page, 27, Qt::AlignLeft));
    const QRectF last = columns[2];
    DrawPriceBox(page, Below(last, 0, 150), plan.accent,
                 qGray(plan.accent.rgb()) > 140 ? QColor(20, 20, 22) : QColor(255, 255, 255));
    DrawEngines(page, Below(last, 170, 136), plan.ink);
    DrawColourRow(page, Below(last, 316, 92), plan.ink);
    DrawSignature(page, QRectF(60, 1482, pageWidth - 120, 92), plan.ink);
}

void SetSpread(const AdPage& page)
{
    const auto& [p, plan, copy] = page;
    const double width = 1600;
    const double height = 1200;
    const bool panorama = plan.year >= 1992;
    const QRectF picture = panorama ? QRectF(0, 0, width, 800) : QRectF(0, 0, 1010, height);
    SetPhoto(page, picture);
    if (panorama) {
        DrawVeil(p, QRectF(0, 0, width, 260), plan.paper, true);
        p.fillPath(FittedHeadline(copy.headline, QRectF(64, 56, width - 128, 130), plan.headline, 1, 88,
                                  Qt::AlignLeft),
                   plan.ink);
        p.fillRect(QRectF(0, 800, width, 6), plan.accent);
        SetLead(page, QRectF(64, 832, width - 128, 42), LeadInk(page), 30);
        const std::vector<QRectF> columns = ColumnsIn(QRectF(64, 888, width - 128, 208), 4, 36);
        SetColumns(p, copy.paragraphs, {columns[0], columns[1], columns[2]},
                   BodyLook(page, 24, Qt::AlignLeft));
        DrawPriceBox(page, QRectF(columns[3].left(), 888, columns[3].width(), 140), plan.paper, plan.ink);
        DrawEngines(page, QRectF(columns[3].left(), 1046, columns[3].width(), 118), plan.ink);
        DrawSignature(page, QRectF(64, 1100, 900, 88), plan.ink);
        return;
    }
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(1010 + i * 12.0, 0, 7, height), plan.accent);
    const QRectF side(1082, 64, width - 1082 - 60, height - 100);
    const double bottom = SetHeadline(page, QRectF(side.left(), side.top(), side.width(), 250), 3, 92);
    const double below = bottom + 24;
    SetLead(page, QRectF(side.left(), below, side.width(), 84), LeadInk(page), 27);
    SetColumns(p, copy.paragraphs, {QRectF(side.left(), below + 100, side.width(), 810 - below - 100)},
               BodyLook(page, 27, Qt::AlignLeft));
    DrawPriceBox(page, QRectF(side.left(), 820, side.width(), 130), plan.paper, plan.ink);
    DrawEngines(page, QRectF(side.left(), 966, side.width(), 110), plan.ink);
    DrawSignature(page, QRectF(side.left(), 1092, side.width(), 92), plan.ink);
}

} // namespace

QImage PaintAd(const PlannedAd& plan)
{
    QImage sheet(plan.Size(), QImage::Format_RGB32);
    sheet.fill(plan.paper);
    SmoothPainter painter(&sheet);
    const AdCopy copy = AdCopyOf(plan.year);
    const AdPage page{painter, plan, copy};
    // In the order of the layouts.
    constexpr void (*setters[])(const AdPage&) = {SetPictureOverText, SetFullPicture, SetStripes, SetGrid,
                                                  SetSpread};
    setters[static_cast<std::size_t>(plan.layout)](page);
    return sheet;
}

} // namespace torvik::sample
