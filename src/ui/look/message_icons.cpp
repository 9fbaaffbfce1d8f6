#include "ui/look/message_icons.h"

#include <QFont>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr double side = 32; // of the square on which the pictures are drawn, whatever their size

constexpr QColor red{0xc6, 0x1f, 0x24};
constexpr QColor yellow{0xff, 0xd0, 0x1c};
constexpr QColor blue{0x1c, 0x3f, 0xb4};
constexpr QColor edge{0x3a, 0x36, 0x30};

/// A character of that height, with its middle at a place.
QPainterPath Sign(const QString& character, double pixels, const QPointF& middle)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(int(pixels));
    font.setBold(true);
    QPainterPath path;
    path.addText(0, 0, font, character);
    path.translate(middle - path.boundingRect().center());
    return path;
}

void DrawBubble(QPainter& painter, const QString& character)
{
    QPainterPath bubble;
    bubble.addEllipse(QRectF(1.5, 1.5, 29, 24));
    QPainterPath tail;
    tail.addPolygon(QPolygonF({{10, 21}, {15, 30.5}, {20, 22}}));
    painter.setPen(QPen(edge, 1));
    painter.setBrush(Qt::white);
    painter.drawPath(bubble.united(tail));
    painter.fillPath(Sign(character, 19, {16, 13.5}), blue);
}

void DrawTriangle(QPainter& painter)
{
    painter.setPen(QPen(edge, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(yellow);
    painter.drawPolygon(QPolygonF({{16, 2.5}, {30.5, 29}, {1.5, 29}}));
    painter.fillPath(Sign(u"!"_s, 19, {16, 19}), edge);
}

void DrawCross(QPainter& painter)
{
    painter.setPen(QPen(edge, 1));
    painter.setBrush(red);
    painter.drawEllipse(QRectF(2, 2, 28, 28));
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(10, 10), QPointF(22, 22));
    painter.drawLine(QPointF(22, 10), QPointF(10, 22));
}

class MessageIconEngine : public QIconEngine {
public:
    explicit MessageIconEngine(QStyle::StandardPixmap kind) : kind_(kind) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(area.topLeft());
        painter->scale(area.width() / side, area.height() / side);
        switch (kind_) {
        case QStyle::SP_MessageBoxCritical:
            DrawCross(*painter);
            break;
        case QStyle::SP_MessageBoxWarning:
            DrawTriangle(*painter);
            break;
        case QStyle::SP_MessageBoxQuestion:
            DrawBubble(*painter, u"?"_s);
            break;
        default:
            DrawBubble(*painter, u"i"_s);
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }

    QIconEngine* clone() const override { return new MessageIconEngine(*this); }

private:
    QStyle::StandardPixmap kind_;
};

} // namespace

QIcon MessageIcon(QStyle::StandardPixmap kind)
{
    switch (kind) {
    case QStyle::SP_MessageBoxCritical:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxQuestion:
    case QStyle::SP_MessageBoxInformation:
        return QIcon(new MessageIconEngine(kind)); // takes it over
    default:
        return {};
    }
}

} // namespace torvik
