#include "sample/artwork/ad_layouts.h"

#include "sample/artwork/ad_type.h"

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

} // namespace

void SetPictureOverText(const AdPage& page)
{
    QPainter& p = page.painter;
    const QRectF picture(56, 56, pageWidth - 112, 800);
    p.drawImage(picture, AdPhoto(page.plan, picture.size().toSize()));
    const QRectF head(56, 900, pageWidth - 112, 132);
    const QPainterPath headline =
        FittedHeadline(page.copy.headline, head, page.plan.headline, 1, 72, Qt::AlignHCenter);
    p.fillPath(headline, page.plan.ink);
    const double below = headline.boundingRect().bottom() + 18;
    SetLead(page, QRectF(56, below, pageWidth - 112, 40), LeadInk(page), 29, Qt::AlignHCenter);
    const QRectF text(56, below + 66, pageWidth - 112, 1440 - below - 66);
    const std::vector<QRectF> columns = ColumnsIn(text, 3, 34);
    SetColumns(p, page.copy.paragraphs, {columns[0], columns[1]}, BodyLook(page, 28, EdgeOf(page)));
    const QRectF last = columns[2];
    DrawEngines(page, QRectF(last.left(), last.top() + 6, last.width(), last.height() - 180), page.plan.ink);
    DrawPriceBox(page, QRectF(last.left(), last.bottom() - 156, last.width(), 150), page.plan.paper,
                 page.plan.ink);
    p.fillRect(QRectF(56, 1462, pageWidth - 112, 2), page.plan.accent);
    DrawSignature(page, QRectF(56, 1480, pageWidth - 112, 92), page.plan.ink);
}

void SetFullPicture(const AdPage& page)
{
    QPainter& p = page.painter;
    const double band = 1130;
    const QRectF picture(0, 0, pageWidth, band);
    p.drawImage(picture, AdPhoto(page.plan, picture.size().toSize()));
    DrawVeil(p, QRectF(0, 0, pageWidth, 380), page.plan.paper, true);
    DrawVeil(p, QRectF(0, band - 70, pageWidth, 70), page.plan.paper, false);
    const QPainterPath headline = FittedHeadline(page.copy.headline, QRectF(70, 70, pageWidth - 140, 200),
                                                 page.plan.headline, 2, 104, Qt::AlignLeft);
    p.fillPath(headline, page.plan.ink);
    SetLead(page, QRectF(72, headline.boundingRect().bottom() + 20, pageWidth - 340, 84), page.plan.ink, 28);
    p.fillRect(QRectF(70, band + 24, 120, 7), page.plan.accent);
    std::vector<QRectF> columns = ColumnsIn(QRectF(70, band + 50, pageWidth - 140, 280), 3, 36);
    const QRectF last = columns.back();
    columns.pop_back();
    SetColumns(p, page.copy.paragraphs, columns, BodyLook(page, 27, EdgeOf(page)));
    DrawPriceBox(page, QRectF(last.left(), last.top(), last.width(), 138), page.plan.accent,
                 qGray(page.plan.accent.rgb()) > 140 ? QColor(20, 20, 22) : QColor(255, 255, 255));
    DrawEngines(page, QRectF(last.left(), last.top() + 152, last.width(), 128), page.plan.ink);
    DrawSignature(page, QRectF(70, 1484, pageWidth - 140, 92), page.plan.ink);
}

void SetStripes(const AdPage& page)
{
    QPainter& p = page.painter;
    const std::array<QColor, 4> tones = {page.plan.accent, page.plan.accent.lighter(130),
                                         page.plan.accent.lighter(165), page.plan.accent.darker(160)};
    // Broad stripes that come down from the headline, turn and run out to the right.
    for (std::size_t i = 0; i < tones.size(); ++i) {
        const double inset = static_cast<double>(i) * 26;
        QPainterPath stripe(QPointF(70 + inset, 0));
        stripe.lineTo(70 + inset, 954 - inset);
        stripe.quadTo(70 + inset, 1070 - inset, 190, 1070 - inset);
        stripe.lineTo(pageWidth, 1070 - inset);
        p.strokePath(stripe, QPen(tones[i], 20, Qt::SolidLine, Qt::FlatCap));
    }
    const double left = 206;
    const QPainterPath headline =
        FittedHeadline(page.copy.headline, QRectF(left, 70, pageWidth - left - 60, 200), page.plan.headline,
                       2, 100, Qt::AlignLeft);
    p.fillPath(headline, page.plan.ink);
    const double below = std::max(200.0, headline.boundingRect().bottom() + 20);
    SetLead(page, QRectF(left, below, pageWidth - left - 60, 76), page.plan.ink, 28);
    const QRectF picture(left, below + 92, pageWidth - left - 60, 940 - below - 92);
    QPainterPath frame;
    frame.addRoundedRect(picture, 46, 46);
    p.save();
    p.setClipPath(frame);
    p.drawImage(picture, AdPhoto(page.plan, picture.size().toSize()));
    p.restore();
    p.strokePath(frame, QPen(page.plan.ink, 5));
    std::vector<QRectF> columns = ColumnsIn(QRectF(60, 1106, pageWidth - 120, 262), 3, 34);
    const QRectF last = columns.back();
    columns.pop_back();
    SetColumns(p, page.copy.paragraphs, columns, BodyLook(page, 27));
    DrawPriceBox(page, QRectF(last.left(), last.top() + 6, last.width(), 136), page.plan.ink,
                 page.plan.paper);
    DrawEngines(page, QRectF(last.left(), last.top() + 154, last.width(), 102), page.plan.ink);
    DrawColourRow(page, QRectF(60, 1376, pageWidth - 120, 96), page.plan.ink);
    DrawSignature(page, QRectF(60, 1488, pageWidth - 120, 92), page.plan.ink);
}

void SetGrid(const AdPage& page)
{
    QPainter& p = page.painter;
    p.fillRect(QRectF(0, 0, pageWidth, 26), page.plan.accent);
    const QPainterPath headline = FittedHeadline(page.copy.headline, QRectF(60, 78, pageWidth - 120, 190),
                                                 page.plan.headline, 1, 124, Qt::AlignLeft);
    p.fillPath(headline, page.plan.ink);
    const double below = headline.boundingRect().bottom() + 24;
    SetLead(page, QRectF(60, below, pageWidth - 120, 46), LeadInk(page), 31);
    const QRectF picture(0, below + 66, pageWidth, 1010 - below - 66);
    p.drawImage(picture, AdPhoto(page.plan, picture.size().toSize()));
    p.fillRect(QRectF(0, 1010, pageWidth, 8), page.plan.accent);
    p.setPen(QPen(page.plan.accent, 1));
    for (const double x : {pageWidth * 0.355, pageWidth * 0.655})
        p.drawLine(QPointF(x, 1046), QPointF(x, 1452));
    const std::vector<QRectF> columns = ColumnsIn(QRectF(60, 1046, pageWidth - 120, 400), 3, 44);
    SetColumns(p, page.copy.paragraphs, {columns[0], columns[1]}, BodyLook(page, 27, Qt::AlignLeft));
    const QRectF last = columns[2];
    DrawPriceBox(page, QRectF(last.left(), last.top(), last.width(), 150), page.plan.accent,
                 qGray(page.plan.accent.rgb()) > 140 ? QColor(20, 20, 22) : QColor(255, 255, 255));
    DrawEngines(page, QRectF(last.left(), last.top() + 170, last.width(), 136), page.plan.ink);
    DrawColourRow(page, QRectF(last.left(), last.top() + 316, last.width(), 92), page.plan.ink);
    DrawSignature(page, QRectF(60, 1482, pageWidth - 120, 92), page.plan.ink);
}

void SetSpread(const AdPage& page)
{
    QPainter& p = page.painter;
    const double width = 1600;
    const double height = 1200;
    const bool panorama = page.plan.year >= 1992;
    const QRectF picture = panorama ? QRectF(0, 0, width, 800) : QRectF(0, 0, 1010, height);
    p.drawImage(picture, AdPhoto(page.plan, picture.size().toSize()));
    if (panorama) {
        DrawVeil(p, QRectF(0, 0, width, 260), page.plan.paper, true);
        const QPainterPath headline = FittedHeadline(page.copy.headline, QRectF(64, 56, width - 128, 130),
                                                     page.plan.headline, 1, 88, Qt::AlignLeft);
        p.fillPath(headline, page.plan.ink);
        p.fillRect(QRectF(0, 800, width, 6), page.plan.accent);
        SetLead(page, QRectF(64, 832, width - 128, 42), LeadInk(page), 30);
        const std::vector<QRectF> columns = ColumnsIn(QRectF(64, 888, width - 128, 208), 4, 36);
        SetColumns(p, page.copy.paragraphs, {columns[0], columns[1], columns[2]},
                   BodyLook(page, 24, Qt::AlignLeft));
        DrawPriceBox(page, QRectF(columns[3].left(), 888, columns[3].width(), 140), page.plan.paper,
                     page.plan.ink);
        DrawEngines(page, QRectF(columns[3].left(), 1046, columns[3].width(), 118), page.plan.ink);
        DrawSignature(page, QRectF(64, 1100, 900, 88), page.plan.ink);
        return;
    }
    for (int i = 0; i < 3; ++i)
        p.fillRect(QRectF(1010 + i * 12.0, 0, 7, height), page.plan.accent);
    const QRectF side(1082, 64, width - 1082 - 60, height - 100);
    const QPainterPath headline =
        FittedHeadline(page.copy.headline, QRectF(side.left(), side.top(), side.width(), 250),
                       page.plan.headline, 3, 92, Qt::AlignLeft);
    p.fillPath(headline, page.plan.ink);
    const double below = headline.boundingRect().bottom() + 24;
    SetLead(page, QRectF(side.left(), below, side.width(), 84), LeadInk(page), 27);
    SetColumns(p, page.copy.paragraphs, {QRectF(side.left(), below + 100, side.width(), 810 - below - 100)},
               BodyLook(page, 27, Qt::AlignLeft));
    DrawPriceBox(page, QRectF(side.left(), 820, side.width(), 130), page.plan.paper, page.plan.ink);
    DrawEngines(page, QRectF(side.left(), 966, side.width(), 110), page.plan.ink);
    DrawSignature(page, QRectF(side.left(), 1092, side.width(), 92), page.plan.ink);
}

} // namespace torvik::sample
