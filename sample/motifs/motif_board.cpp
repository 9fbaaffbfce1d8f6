#include "sample/geometry/noise.h"
#include "sample/geometry/shapes.h"
#include "sample/motifs/motifs.h"
#include "sample/photos/photographer.h"
#include "sample/render/tabletop.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

constexpr int boardSide = 900;

/// The board seen straight from above.
QImage Board()
{
    QImage board(boardSide, boardSide, QImage::Format_ARGB32_Premultiplied);
    SmoothPainter p(&board);
    p.fillRect(board.rect(), QColor(214, 226, 208));
    static const QColor groups[] = {QColor(110, 60, 36),  QColor(120, 186, 220), QColor(190, 60, 130),
                                    QColor(232, 140, 40), QColor(200, 34, 36),   QColor(236, 208, 50),
                                    QColor(38, 130, 74),  QColor(34, 60, 140)};
    static const char* const fields[] = {"Ridley Wood", "Tern Point",  "Ninth Quay",
                                         "Callow Road", "Spare Parts", "Cape Orrin",
                                         "Lantern St.", "Hessel Pass", "Saltmarsh"};
    static const char* const corners[] = {"START", "PIT STOP", "PARKING", "TOW-AWAY"};
    const double corner = 120;
    const double field = (boardSide - 2 * corner) / 9;
    QFont font(u"Liberation Sans"_s);
    for (int side = 0; side < 4; ++side) {
        p.save();
        p.translate(boardSide / 2.0, boardSide / 2.0);
        p.rotate(90 * side);
        p.translate(-boardSide / 2.0, -boardSide / 2.0);
        for (int i = 0; i < 9; ++i) {
            const QRectF box(corner + i * field, boardSide - corner, field, corner);
            p.setPen(QPen(QColor(24, 26, 24), 3));
            p.setBrush(Qt::NoBrush);
            p.drawRect(box);
            if (i != 4)
                p.fillRect(QRectF(box.left() + 1.5, box.top() + 1.5, field - 3, 26),
                           groups[(side * 2 + i / 5) % 8]);
            font.setPixelSize(11);
            font.setBold(true);
            p.setFont(font);
            p.drawText(QRectF(box.left() + 2, box.top() + 30, field - 4, 40),
                       Qt::AlignHCenter | Qt::TextWordWrap, QString::fromLatin1(fields[(i + side * 2) % 9]));
            p.drawText(QRectF(box.left(), box.bottom() - 24, field, 20), Qt::AlignCenter,
                       u"%1"_s.arg(60 + 20 * (i + side * 9)));
        }
        const QRectF box(boardSide - corner, boardSide - corner, corner, corner);
        p.drawRect(box);
        font.setPixelSize(19);
        p.setFont(font);
        p.translate(box.center());
        p.rotate(-45);
        p.drawText(QRectF(-70, -16, 140, 32), Qt::AlignCenter, QString::fromLatin1(corners[side]));
        p.restore();
    }
    // The middle: the name across, two piles of cards.
    p.translate(boardSide / 2.0, boardSide / 2.0);
    p.rotate(-45);
    p.fillRect(QRectF(-290, -52, 580, 104), QColor(176, 24, 32));
    p.setPen(QPen(QColor(250, 240, 214), 4));
    p.drawRect(QRectF(-284, -46, 568, 92));
    font.setPixelSize(54);
    p.setFont(font);
    p.setPen(QColor(252, 244, 222));
    p.drawText(QRectF(-290, -52, 580, 104), Qt::AlignCenter, u"VOLLANDRY"_s);
    for (const double y : {-190.0, 120.0}) {
        p.setPen(QPen(QColor(40, 40, 40), 2));
        p.setBrush(y < 0 ? QColor(238, 170, 60) : QColor(120, 180, 206));
        p.drawRoundedRect(QRectF(-90, y, 180, 96), 8, 8);
        font.setPixelSize(18);
        p.setFont(font);
        p.drawText(QRectF(-90, y, 180, 96), Qt::AlignCenter, y < 0 ? u"BREAKDOWN"_s : u"GOOD FORTUNE"_s);
    }
    return board;
}

void PaintDie(QPainter& p, double size, int points)
{
    LayGlossy(p, Rounded(QRectF(-size, -size, 2 * size, 2 * size), size * 0.3), size * 0.5, 0.7,
              QColor(240, 236, 226));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 20, 22));
    const auto dot = [&](double x, double y) {
        p.drawEllipse(QPointF(x * size * 0.5, y * size * 0.5), size * 0.16, size * 0.16);
    };
    if (points % 2 == 1)
        dot(0, 0);
    if (points > 1) {
        dot(-1, -1);
        dot(1, 1);
    }
    if (points > 3) {
        dot(1, -1);
        dot(-1, 1);
    }
    if (points > 5) {
        dot(-1, 0);
        dot(1, 0);
    }
}

} // namespace

QImage PaintBoardGame(const PlannedPhoto& photo)
{
    const double w = photo.size.width();
    const double h = photo.size.height();
    const std::uint32_t seed = SeedOf(photo);
    Random random(seed);
    QImage picture = WoodTable(photo.size, QColor(112, 66, 38), seed);
    SmoothPainter p(&picture);
    // The board lies in perspective.
    static const QPolygonF corners[] = {
        QPolygonF({{0.24, 0.06}, {0.80, 0.10}, {1.02, 0.92}, {0.03, 0.86}}),
        QPolygonF({{-0.10, 0.10}, {0.70, -0.12}, {1.18, 0.62}, {0.10, 1.16}}),
        QPolygonF({{0.18, 0.02}, {0.86, -0.02}, {1.12, 1.02}, {-0.14, 1.06}})};
    QPolygonF target;
    for (const QPointF& corner : corners[photo.variant % 3])
        target << QPointF(corner.x() * w, corner.y() * h);
    QTransform lie;
    QTransform::quadToQuad(QPolygonF({{0, 0}, {boardSide, 0}, {boardSide, boardSide}, {0, boardSide}}),
                           target, lie);
    QPainterPath outline;
    outline.addPolygon(target);
    outline.closeSubpath();
    DropShadow(p, outline, 16, 0.7);
    p.fillPath(outline.translated(3, 9), QColor(60, 44, 30));
    p.setTransform(lie);
    p.drawImage(0, 0, Board());
    p.resetTransform();
    p.fillPath(
        outline,
        Linear({0, 0}, {w, h},
               {{0, QColor(255, 246, 220, 60)}, {0.5, QColor(255, 246, 220, 0)}, {1, QColor(0, 0, 10, 80)}}));
    // The tokens: small cars of pewter.
    Trim trim;
    static const int years[] = {1967, 1972, 1985, 1999};
    for (int i = 0; i < 4; ++i) {
        const QPointF on =
            lie.map(QPointF(boardSide * (0.18 + 0.2 * i), boardSide * (i % 2 == 0 ? 0.93 : 0.72)));
        const double wide = w * (0.17 + 0.06 * on.y() / h);
        const Paint pewter{QString(), QColor(126, 128, 132), 1.0};
        const QImage car =
            CutOutCar(ShapeOfYear(years[i]), i == 0 ? Paint{QString(), QColor(206, 166, 70), 1.0} : pewter,
                      trim, i % 2 == 0 ? View::FrontLeft : View::FrontRight,
                      QSize(static_cast<int>(wide * 1.5), static_cast<int>(wide * 0.9)));
        DropShadow(p, Ellipse(on + QPointF(0, wide * 0.03), wide * 0.36, wide * 0.06), 8, 0.8);
        p.drawImage(QRectF(on.x() - wide / 2, on.y() - wide * 0.42, wide, wide * 0.6), car);
    }
    for (int i = 0; i < 2; ++i) {
        p.save();
        p.translate(w * (0.62 + 0.09 * i), h * (0.50 + 0.07 * i));
        p.rotate(random.Between(-40, 40));
        PaintDie(p, h * 0.035, 2 + random.Below(5));
        p.restore();
    }
    // Some banknotes at the edge.
    for (int i = 0; i < 5; ++i) {
        p.save();
        p.translate(w * (0.10 + 0.012 * i), h * (0.16 + 0.035 * i));
        p.rotate(-20 + random.Between(-10, 10));
        const QRectF note(-w * 0.075, -h * 0.05, w * 0.15, h * 0.10);
        LayFlat(p, Rectangle(note), 5, 0.5, QColor::fromHsv((i * 70 + 90) % 360, 60, 226));
        p.setPen(QPen(QColor(60, 60, 60), 2));
        p.drawRect(note.adjusted(6, 6, -6, -6));
        p.setFont(FontOf("Liberation Serif", h * 0.05, true));
        p.drawText(note, Qt::AlignCenter, QString::number(100 * (i + 1)));
        p.restore();
    }
    return picture;
}

} // namespace torvik::sample
