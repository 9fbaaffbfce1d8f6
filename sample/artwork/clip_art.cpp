#include "sample/artwork/art_maker.h"
#include "sample/artwork/flat_drawing.h"
#include "sample/car/paints.h"
#include "sample/files/text_store.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/render/tabletop.h"

#include <array>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

const QSize stripSize(480, 80);
constexpr double groundLine = 68;

/// A few flat shapes behind the car, another place every year.
void DrawBackdrop(QPainter& p, const QRectF& box, int year)
{
    struct Tones {
        QRgb sky, far, near;
    };
    constexpr std::array<Tones, 5> tones = {{{0xFFCFE6F2, 0xFF8FB8C8, 0xFFD9CFA8},
                                             {0xFFFBE0B8, 0xFFC98F68, 0xFFE3C08A},
                                             {0xFFDCE8D4, 0xFF7FA37A, 0xFFC8BFA0},
                                             {0xFFDAD6EA, 0xFF8E88AC, 0xFFC4C0CC},
                                             {0xFFFFE9A8, 0xFFD8A24A, 0xFFE8D29A}}};
    const auto number = static_cast<std::size_t>(year - 1967);
    const Tones& tone = tones[number % tones.size()];
    p.save();
    const QPainterPath frame = Rounded(box, 8);
    p.setClipPath(frame);
    p.fillRect(box, QColor(tone.sky));
    const double x = box.left();
    const double w = box.width();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 250, 225));
    p.drawEllipse(QPointF(x + w * (0.2 + 0.12 * static_cast<double>(number % 6)), 21), 10, 10);
    QPainterPath far(QPointF(x, groundLine));
    switch (number % 4) {
    case 0: // hills
        far.cubicTo(x + w * 0.2, 18, x + w * 0.35, 44, x + w * 0.5, 46);
        far.cubicTo(x + w * 0.7, 20, x + w * 0.85, 40, x + w, 34);
        break;
    case 1: // houses
        for (int i = 0; i < 9; ++i) {
            const double top = 48 - ((i * 7 + year * 3) % 5) * 6.0;
            far.lineTo(x + w * i / 9, top);
            far.lineTo(x + w * (i + 1) / 9, top);
        }
        break;
    case 2: // peaks
        for (int i = 0; i < 5; ++i) {
            far.lineTo(x + w * (i + 0.5) / 5, 24 + ((i * 5 + year) % 3) * 7.0);
            far.lineTo(x + w * (i + 1) / 5, 50);
        }
        break;
    default: // the sea
        far.lineTo(x, 46);
        far.lineTo(x + w, 46);
        break;
    }
    far.lineTo(x + w, groundLine);
    p.fillPath(far, QColor(tone.far));
    p.fillRect(QRectF(x, groundLine - 8, w, 30), QColor(tone.near));
    p.restore();
    p.strokePath(frame, QPen(QColor(26, 24, 26), 1.4));
}

/// The year in the lettering of its decade, on a plate in the colour of the car.
void DrawYear(QPainter& p, const QRectF& box, int year, const QColor& paint)
{
    const QPainterPath plate = Rounded(box, 8);
    const bool pale = qGray(paint.rgb()) > 140;
    FillOutlined(p, plate, paint, 1.4);
    const QColor ink = pale ? QColor(30, 28, 32) : QColor(252, 248, 236);
    const std::array<Type, 4> types = {{{u"Liberation Serif"_s, true, true, 100, 1.0},
                                        {u"DejaVu Serif"_s, true, false, 100, 1.0},
                                        {u"Liberation Sans Narrow"_s, true, false, 110, 1.15},
                                        {u"Liberation Sans"_s, true, true, 100, 1.0}}};
    const auto decade = static_cast<std::size_t>(std::min(3, (year - 1960) / 10));
    p.fillPath(Centred(Lettering(QString::number(year), 19, types[decade]), box.center() - QPointF(0, 9)),
               ink);
    p.save();
    p.setPen(Qt::NoPen);
    p.fillPath(WingedT(box.center() + QPointF(0, 20), 12), ink);
    p.restore();
}

} // namespace

QImage PaintClipArt(const SmallPicture& strip)
{
    QImage picture(stripSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    SmoothPainter p(&picture);
    const std::map<QString, TextSection> icons = StoredSections(u"clip_icons"_s);
    DrawIcon(p, QRectF(8, 8, 64, 64), icons.at(QString::number(strip.year)).body);
    const std::vector<Paint>& card = PaintsOfYear(strip.year);
    const QColor paint = Cycled(card, strip.year * 3).colour;
    const QRectF scene(84, 5, 220, 70);
    DrawBackdrop(p, scene, strip.year);
    const CarShape shape = ShapeOfYear(strip.year);
    const double scale = 41;
    DrawCarSide(p, shape, paint, {scene.center().x() - shape.length * scale / 2, groundLine}, scale);
    DrawWheel(p, shape, {344, 40}, 30);
    DrawYear(p, QRectF(386, 5, 88, 70), strip.year, paint);
    return picture;
}

} // namespace torvik::sample
