#include "sample/movies/cards.h"

#include "sample/geometry/shapes.h"
#include "sample/geometry/vec.h"
#include "sample/movies/stage.h"
#include "sample/photos/photographer.h"

#include <QPainter>
#include <QPainterPath>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

void Write(QPainter& painter, const QString& text, const QPointF& middle, double height,
           const QString& family, const QBrush& brush)
{
    QFont font(family);
    font.setBold(true);
    font.setItalic(family.contains("Serif"_L1));
    font.setPixelSize(100);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF box = path.boundingRect();
    QTransform place;
    place.translate(middle.x(), middle.y());
    place.scale(height / 100, height / 100);
    place.translate(-box.center().x(), -box.center().y());
    path = place.map(path);
    painter.fillPath(path.translated(1.2, 1.4), QColor(0, 0, 0, 190));
    painter.fillPath(path, brush);
}

/// A strip of film from edge to edge: dark, with a row of holes on each side.
void PaintFilmEdges(QPainter& painter, double width, double top, double bottom, double hole)
{
    painter.fillRect(QRectF(0, top, width, bottom - top), QColor(22, 19, 18));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(214, 206, 190));
    for (double x = hole * 0.5; x < width; x += hole * 1.7) {
        painter.drawRoundedRect(QRectF(x, top + hole * 0.3, hole, hole * 0.72), 1.5, 1.5);
        painter.drawRoundedRect(QRectF(x, bottom - hole * 1.02, hole, hole * 0.72), 1.5, 1.5);
    }
}

} // namespace

QImage DrawCard(const Card& card, double age, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    SmoothPainter painter(&picture);
    const double w = size.width();
    const double h = size.height();
    painter.fillRect(picture.rect(),
                     Radial({w / 2, h * 0.45}, w * 0.65, Shades(card.colour, {{0, 100}, {1, -420}})));
    painter.setPen(QPen(QColor(236, 214, 160, 170), 1.5));
    painter.drawRect(QRectF(10.5, 10.5, w - 21, h - 21));
    painter.drawLine(QPointF(w * 0.28, h * 0.66), QPointF(w * 0.72, h * 0.66));
    const QString serif = u"Liberation Serif"_s;
    const QString plain = u"Liberation Sans"_s;
    Write(painter, card.small, {w / 2, h * 0.27}, h * 0.058, plain, QColor(232, 220, 190));
    Write(painter, card.large, {w / 2, h * 0.47}, h * (card.large.size() > 12 ? 0.125 : 0.175), serif,
          Linear({w * (age * 0.9 - 0.5), 0}, {w * (age * 0.9), h * 0.3},
                 {{0, QColor(238, 206, 136)}, {0.5, QColor(255, 255, 246)}, {1, QColor(238, 206, 136)}}));
    Write(painter, card.below, {w / 2, h * 0.76}, h * 0.058, plain, QColor(232, 220, 190));
    return picture;
}

QImage PaintMovieOpening(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    const double w = size.width();
    const double h = size.height();
    SmoothPainter painter(&picture);
    QLinearGradient curtain(0, 0, w, 0);
    for (int fold = 0; fold <= 16; ++fold)
        curtain.setColorAt(fold / 16.0, fold % 2 == 0 ? QColor(74, 8, 16) : QColor(128, 20, 28));
    painter.fillRect(picture.rect(), curtain);
    painter.fillRect(picture.rect(), Linear({0, 0}, {0, h}, Veil(Qt::black, {{0, 20}, {1, 170}})));
    const double top = h * 0.30;
    const double bottom = h * 0.84;
    PaintFilmEdges(painter, w, top, bottom, h * 0.055);
    const Trim trim{.plate = u"1967"_s, .whiteWalls = true};
    const Stage stage(ShapeOfYear(1967), PaintsOfYear(1967)[0], trim, CoastScenery(4));
    const QSizeF frame(w * 0.46, (bottom - top) - h * 0.15);
    const QSize drawn = (frame * 2).toSize();
    for (int i = 0; i < 3; ++i) {
        const QImage car = stage.Draw({{-4.4 + 2.4 * i, -5.6, 1.25}, {-0.1, 0, 0.66}, 46, 3.0 * i}, drawn);
        const QRectF place(
            QPointF(w / 2 + (i - 1.5) * (frame.width() + w * 0.02) + w * 0.01, top + h * 0.075), frame);
        painter.drawImage(place, car);
    }
    Write(painter, u"Torvik Movies"_s, {w / 2, h * 0.15}, h * 0.155, u"Liberation Serif"_s,
          Linear({0, h * 0.08}, {0, h * 0.22}, {{0, QColor(255, 246, 214)}, {1, QColor(226, 178, 96)}}));
    Write(painter, u"The Vollandry in motion"_s, {w / 2, h * 0.92}, h * 0.058, u"Liberation Sans"_s,
          QColor(236, 224, 200));
    return picture;
}

} // namespace torvik::sample
