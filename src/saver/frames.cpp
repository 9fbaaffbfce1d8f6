#include "saver/frames.h"

#include "ui/pictures/picture.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr QColor wordColour{0xb8, 0xb0, 0xa0};

const QString word = u"There are no photos to show."_s;
const QString advice = u"Put the disc in, or choose photos with\nFile, Install Screen saver."_s;

/// Where the card stands at a turn, as parts of the room that it leaves free: neighbours lie well apart.
QPointF StandOf(int turn)
{
    constexpr std::array<QPointF, 5> stands{QPointF(0.5, 0.5), QPointF(0.2, 0.25), QPointF(0.8, 0.7),
                                            QPointF(0.25, 0.8), QPointF(0.75, 0.2)};
    return stands[static_cast<std::size_t>(turn) % stands.size()];
}

QImage TitlePicture(const QSize& area)
{
    return Picture::FromResource(u":/saver/title.png"_s).Fitted(area);
}

QFont WordFont(int pixels)
{
    QFont font;
    font.setPixelSize(std::max(1, pixels));
    return font;
}

/// The word in one line and the advice below it, in letters that stay readable across a room.
void DrawWords(QPainter& painter, const QRect& area, int letters)
{
    painter.setPen(wordColour);
    painter.setFont(WordFont(letters));
    painter.drawText(area, Qt::AlignHCenter | Qt::AlignTop, word);
    painter.setFont(WordFont(letters * 3 / 4));
    const QRect below = area.adjusted(0, letters * 3 / 2, 0, 0);
    painter.drawText(below, Qt::AlignHCenter | Qt::AlignTop, advice);
}

} // namespace

QImage BlackFrame(const QSize& pixels)
{
    QImage frame(pixels, QImage::Format_RGB32);
    frame.fill(Qt::black);
    return frame;
}

QImage PhotoFrame(const Picture& picture, const QSize& pixels)
{
    QImage frame = BlackFrame(pixels);
    const QImage photo = picture.Fitted(pixels);
    QPainter painter(&frame);
    painter.drawImage(QPoint((pixels.width() - photo.width()) / 2, (pixels.height() - photo.height()) / 2),
                      photo);
    return frame;
}

QImage CardFrame(const QSize& pixels, int turn)
{
    QImage frame = BlackFrame(pixels);
    const QImage title = TitlePicture(pixels / 2);
    const int letters = title.height() / 14;
    const QSize card(title.width(), title.height() + letters * 6);
    const QPointF stand = StandOf(turn);
    const QPoint corner(static_cast<int>((pixels.width() - card.width()) * stand.x()),
                        static_cast<int>((pixels.height() - card.height()) * stand.y()));
    QPainter painter(&frame);
    painter.drawImage(corner, title);
    DrawWords(painter, QRect(corner + QPoint(0, title.height() + letters), QSize(card.width(), letters * 5)),
              letters);
    return frame;
}

} // namespace torvik
