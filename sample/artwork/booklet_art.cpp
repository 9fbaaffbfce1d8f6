#include "sample/artwork/art_plan.h"
#include "sample/artwork/pen_script.h"
#include "sample/geometry/lettering.h"
#include "sample/geometry/shapes.h"
#include "sample/render/relief.h"
#include "sample/render/tabletop.h"

#include <QPainter>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

const QColor printInk(34, 30, 34);
const QColor wine(128, 18, 30);

QImage Paper(QSize size)
{
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

/// The publisher's mark: a sword that points to the right, with a broad cross guard.
QPainterPath Sword(double length, double height)
{
    QPainterPath sword;
    sword.setFillRule(Qt::WindingFill);
    const double guard = length * 0.27;
    sword.addEllipse(QPointF(height * 0.15, 0), height * 0.13, height * 0.13);
    sword.addRoundedRect(QRectF(height * 0.2, -height * 0.055, guard - height * 0.2, height * 0.11), 3, 3);
    sword.addPath(Outline({{guard - height * 0.07, -height * 0.40},
                           {guard + height * 0.02, 0, guard - height * 0.07, height * 0.40},
                           {guard + height * 0.03, height * 0.54, guard + height * 0.13, height * 0.40},
                           {guard + height * 0.06, 0, guard + height * 0.13, -height * 0.40},
                           {guard + height * 0.03, -height * 0.54, guard - height * 0.07, -height * 0.40}}));
    sword.addPath(ClosedOutline({{guard + height * 0.08, -height * 0.085},
                                 {length * 0.93, -height * 0.05},
                                 {length, 0},
                                 {length * 0.93, height * 0.05},
                                 {guard + height * 0.08, height * 0.085}}));
    return sword;
}

} // namespace

QImage PaintBookletLogo()
{
    const QSize size(560, 160);
    Relief relief(size);
    const QPointF middle(82, 74);
    relief.Add(ShieldPath(middle, 60), Chrome(), {0, 5, 6, 3});
    Coat red = Enamel(QColor(158, 16, 28));
    red.rays = 56;
    red.rayFrom = middle + QPointF(0, 60);
    relief.Add(ShieldPath(middle, 51), red, {4, -1.5, 4, 0});
    relief.Add(WingedT(middle + QPointF(0, 2), 40), Chrome(), {4, 3.5, 5, 2});
    const Pen pen{.xHeight = 37, .broad = 0.25, .fine = 0.15, .spread = 1.22};
    const QPainterPath word = WriteWord(u"Vollandry"_s, pen).translated(176, 95);
    Pen wide = pen;
    wide.broad += 0.2;
    wide.fine += 0.2;
    relief.Add(WriteWord(u"Vollandry"_s, wide).translated(176, 95), Enamel(QColor(40, 6, 12)), {0, 3, 4, 3});
    relief.Add(word, Chrome(), {3, 4, 4, 1});
    const QPainterPath maker =
        Lettering(u"TORVIK"_s, 17, {u"Liberation Serif"_s, true, false, 210, 1.0}).translated(252, 150);
    relief.Add(maker, Enamel(wine), {0, 2, 2, 0});
    return relief.Over(Paper(size));
}

QImage PaintBookletTitle()
{
    const QSize size(700, 190);
    QImage picture = Paper(size);
    SmoothPainter p(&picture);
    const auto line = [&](const QString& text, double y, double height, const Type& type, const QColor& ink) {
        QPainterPath path = Lettering(text, height, type);
        path.translate(350 - path.boundingRect().center().x(), y);
        p.fillPath(path, ink);
    };
    p.fillRect(QRectF(40, 8, 620, 3), wine);
    p.fillRect(QRectF(40, 14, 620, 1), wine);
    const Type title{u"Liberation Serif"_s, true, true, 102, 1.0};
    line(u"The Torvik Vollandry"_s, 76, 42, title, printInk);
    const Type years{u"Liberation Serif"_s, false, false, 150, 1.0};
    line(u"1967 – 2001"_s, 120, 24, years, wine);
    const Type words{u"Liberation Sans"_s, false, false, 112, 1.0};
    line(u"Thirty-five model years in words and figures"_s, 157, 14, words, printInk);
    p.fillRect(QRectF(40, 175, 620, 1), wine);
    p.fillRect(QRectF(40, 179, 620, 3), wine);
    return picture;
}

QImage PaintPublisherMark()
{
    const QSize size(420, 130);
    QImage picture = Paper(size);
    SmoothPainter p(&picture);
    p.fillPath(Sword(396, 84).translated(12, 46), printInk);
    // The blade's middle rib, and the winding of the grip.
    p.setPen(QPen(Qt::white, 1.2));
    p.drawLine(QPointF(134, 46), QPointF(372, 46));
    p.setPen(QPen(Qt::white, 1.6));
    for (int i = 0; i < 8; ++i)
        p.drawLine(QPointF(40 + i * 9.0, 51), QPointF(45 + i * 9.0, 41));
    p.fillPath(Disc({24.6, 46}, 5), wine);
    p.fillPath(
        Centred(Lettering(u"QUILLON"_s, 21, {u"Liberation Serif"_s, true, false, 160, 1.0}), {256, 80}),
        printInk);
    p.fillPath(
        Centred(Lettering(u"SOFTWARE"_s, 10, {u"Liberation Sans"_s, false, false, 260, 1.0}), {256, 108}),
        wine);
    return picture;
}

} // namespace torvik::sample
