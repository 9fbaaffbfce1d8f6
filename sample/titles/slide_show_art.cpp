#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/render/tabletop.h"
#include "sample/titles/title_art.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// A framed transparency: which photo, where its middle lies (parts of the whole), how far it is turned.
struct Transparency {
    const char* prefix;
    int number;
    const char* label;
    double x, y, degrees;
};

// The lowest in the pile first.
constexpr Transparency pile[] = {
    {"74", 1, "1974", 0.150, 0.500, -9}, {"A1", 2, "2001", 0.855, 0.495, 8},
    {"79", 1, "1979", 0.345, 0.755, 6},  {"94", 2, "1994", 0.665, 0.760, -7},
    {"85", 2, "1985", 0.618, 0.445, 4},  {"67", 1, "1967", 0.382, 0.450, -4},
};

const QSizeF apertureOfFrame(0.81, 0.57); // parts of the frame's width

QImage PhotoFor(const Transparency& slide, QSize size)
{
    const std::vector<PlannedPhoto> photos = PlanPhotos();
    auto found = std::find_if(photos.begin(), photos.end(), [&](const PlannedPhoto& photo) {
        return photo.prefix == QLatin1String(slide.prefix) && photo.number == slide.number;
    });
    PlannedPhoto photo = *found;
    photo.size = size;
    return TakePhoto(photo);
}

/// A dark room: a table that the light of the projector falls on.
void PaintRoom(QPainter& p, QSize size)
{
    const double w = size.width();
    const double h = size.height();
    p.drawImage(0, 0, WoodTable(size, QColor(92, 58, 36), 29));
    p.fillRect(QRectF(0, 0, w, h),
               Radial({w * 0.5, h * 0.62}, w * 0.62,
                      {{0, QColor(10, 6, 4, 20)}, {0.45, QColor(10, 6, 4, 110)}, {1, QColor(6, 4, 4, 238)}}));
    p.fillRect(QRectF(0, 0, w, h), Radial({w * 0.5, h * 0.66}, w * 0.42,
                                          {{0, QColor(255, 214, 150, 84)}, {1, QColor(255, 190, 110, 0)}}));
}

void PaintTransparency(QPainter& p, const Transparency& slide, QSize size)
{
    const double frame = size.width() * 0.25;
    const QRectF body(-frame / 2, -frame * 0.44, frame, frame * 0.88);
    const QRectF aperture(-frame * apertureOfFrame.width() / 2, -frame * apertureOfFrame.height() * 0.58,
                          frame * apertureOfFrame.width(), frame * apertureOfFrame.height());
    const QPainterPath card = Rounded(body, frame * 0.035);
    p.save();
    p.translate(size.width() * slide.x, size.height() * slide.y);
    p.rotate(slide.degrees);
    LayFlat(
        p, card, frame * 0.035, 0.85,
        Linear(body.topLeft(), body.bottomRight(), {{0, QColor(252, 249, 240)}, {1, QColor(214, 206, 190)}}));
    p.setPen(QPen(QColor(120, 108, 90), frame * 0.004));
    p.drawPath(card);
    const QRectF rim = aperture.adjusted(-frame * 0.012, -frame * 0.012, frame * 0.012, frame * 0.012);
    p.fillRect(rim, QColor(52, 46, 40));
    p.drawImage(aperture, PhotoFor(slide, (aperture.size() * 1.0).toSize()));
    p.setFont(FontOf("Liberation Serif", frame * 0.08, true, true));
    p.setPen(QColor(142, 27, 31));
    p.drawText(QRectF(body.left(), rim.bottom(), frame, body.bottom() - rim.bottom()), Qt::AlignCenter,
               QString::fromLatin1(slide.label));
    p.restore();
}

} // namespace

QImage PaintSlideShow(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    SmoothPainter p(&picture);
    PaintRoom(p, size);
    for (const Transparency& slide : pile)
        PaintTransparency(p, slide, size);
    const double w = size.width();
    const double h = size.height();
    p.fillRect(QRectF(0, 0, w, h * 0.26),
               Linear({0, 0}, {0, h * 0.26}, Veil(QColor(8, 5, 4), {{0, 220}, {0.6, 120}, {1, 0}})));
    TitleText(p, u"The Torvik Vollandry"_s, {w * 0.5, h * 0.085}, h * 0.105, u"Liberation Serif"_s, true,
              100);
    TitleText(p, u"SLIDE SHOW"_s, {w * 0.5, h * 0.172}, h * 0.045, u"Liberation Sans"_s, false, 150);
    p.end();
    return picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace torvik::sample
