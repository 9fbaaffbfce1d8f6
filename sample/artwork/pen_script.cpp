#include "sample/artwork/pen_script.h"

#include "sample/geometry/shapes.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace torvik::sample {

namespace {

/// A letter on a grid whose unit is the x-height, with y upward. Where a join arrives and leaves is given as
/// a place and a direction; a direction of no length means that there is no join.
struct Letter {
    char16_t sign;
    double width;
    double inX, inY;
    QPointF inWay;
    double outX, outY;
    QPointF outWay;
    const char* strokes;
};

const Letter& LetterOf(QChar ch)
{
    static const QPointF none;
    static const QPointF up{0.45, 1};
    static const QPointF over{0.9, 0.25};
    static const QPointF rising{0.7, 0.6};
    static const QPointF falling{1, -0.35};
    static const Letter letters[] = {
        {u'a', 1.02, 0.1, 0.45, up, 1.0, 0.16, rising,
         "M.72,.86 C.52,1.1 .1,.96 .1,.45 C.1,-.1 .52,-.14 .71,.42 "
         "M.75,.98 C.73,.6 .66,.2 .74,.06 C.8,-.04 .92,0 1.0,.16"},
        {u'd', 1.04, 0.1, 0.45, up, 1.02, 0.16, rising,
         "M.72,.86 C.52,1.1 .1,.96 .1,.45 C.1,-.1 .52,-.14 .71,.42 "
         "M.82,2.08 C.79,1.3 .66,.2 .75,.06 C.82,-.04 .94,0 1.02,.16"},
        {u'e', 0.76, 0.1, 0.4, rising, 0.76, 0.18, rising,
         "M.1,.4 C.5,.44 .74,.74 .58,.94 C.44,1.1 .1,.9 .1,.44 C.1,.02 .48,-.14 .76,.18"},
        {u'i', 0.48, 0.16, 0.95, up, 0.46, 0.16, rising,
         "M.16,.95 C.15,.6 .09,.2 .17,.06 C.23,-.04 .36,0 .46,.16 M.2,1.42 L.24,1.46"},
        {u'k', 0.98, 0.16, 0.6, up, 0.98, 0.2, rising,
         "M.24,2.1 C.2,1.4 .17,.6 .12,0 M.14,.42 C.3,.98 .72,1.12 .7,.82 C.68,.58 .42,.5 .24,.5 "
         "M.34,.52 C.54,.46 .56,.0 .74,.02 C.84,.04 .92,.1 .98,.2"},
        {u'l', 0.54, 0.1, 0.4, rising, 0.54, 0.16, rising,
         "M.1,.4 C.36,.9 .56,1.7 .42,2.04 C.3,2.2 .2,1.7 .18,1.2 C.15,.6 .12,.1 .27,.02 "
         "C.37,-.03 .48,.05 .54,.16"},
        {u'n', 0.98, 0.15, 0.94, up, 0.98, 0.16, rising,
         "M.15,.94 C.2,.6 .18,.3 .14,0 M.15,.3 C.26,.76 .5,1.1 .66,.97 C.78,.86 .63,.3 .68,.1 "
         "C.73,-.04 .9,0 .98,.16"},
        {u'o', 0.86, 0.1, 0.45, up, 0.6, 0.95, falling,
         "M.46,1 C.2,1 .08,.72 .08,.47 C.08,.12 .24,-.02 .4,-.02 C.64,-.02 .78,.24 .78,.54 "
         "C.78,.84 .62,1 .46,1"},
        {u'r', 0.74, 0.15, 0.95, up, 0.72, 0.9, over,
         "M.15,.95 C.2,.6 .18,.3 .14,0 M.15,.32 C.22,.78 .44,1.12 .72,.9"},
        {u'u', 0.98, 0.12, 0.95, up, 0.98, 0.16, rising,
         "M.12,.95 C.1,.5 .06,.04 .26,0 C.46,-.03 .64,.4 .7,.95 M.71,.95 C.69,.5 .62,.1 .72,.04 "
         "C.8,-.03 .9,0 .98,.16"},
        {u'v', 0.84, 0.06, 0.92, over, 0.8, 0.98, falling,
         "M.06,.92 C.2,1.06 .27,.9 .29,.6 C.31,.3 .36,0 .44,0 C.6,.08 .86,.6 .8,.98"},
        {u'w', 1.18, 0.06, 0.92, over, 1.14, 0.98, falling,
         "M.06,.92 C.18,1.06 .22,.8 .22,.5 C.22,.1 .33,-.02 .44,0 C.6,.05 .7,.5 .7,.95 "
         "M.7,.95 C.66,.5 .7,0 .84,0 C1.04,.03 1.2,.6 1.14,.98"},
        {u'y', 1.0, 0.06, 0.92, over, 0, 0, none,
         "M.06,.92 C.18,1.06 .22,.8 .22,.5 C.22,-.02 .6,-.05 .72,.6 "
         "M.78,1 C.76,.4 .72,-.5 .5,-.8 C.3,-1.04 .0,-.9 .12,-.62 C.26,-.34 .8,-.12 1.2,.22"},
        {u'H', 1.42, 0, 0, none, 1.4, 0.16, rising,
         "M-.05,1.7 C.05,2.16 .42,2.2 .42,1.8 C.42,1.2 .36,.5 .2,0 "
         "M1.3,2.15 C1.18,1.4 1.08,.6 1.1,.2 C1.12,-.05 1.3,0 1.4,.16 M.3,1.0 C.55,1.16 .9,1.0 1.2,1.1"},
        {u'Q', 1.62, 0, 0, none, 0, 0, none,
         "M.9,2.1 C.2,2.2 .0,1.4 .1,.8 C.2,.2 .6,-.05 .95,0 C1.5,.1 1.7,.9 1.6,1.4 C1.5,1.9 1.2,2.1 .9,2.1 "
         "M.6,.3 C.85,.55 1.2,-.3 1.75,-.12"},
        {u'T', 1.02, 0, 0, none, 0, 0, none,
         "M-.2,1.62 C-.1,2.2 .5,2.0 .95,2.0 C1.3,2.0 1.6,2.08 1.85,2.3 "
         "M.98,2.0 C.98,1.3 .88,.5 .62,.1 C.46,-.1 .1,-.06 .1,.22"},
        {u'V', 1.12, 0, 0, none, 0, 0, none,
         "M-.1,1.66 C.0,2.2 .36,2.24 .43,1.8 C.5,1.3 .52,.5 .6,0 C.9,.6 1.25,1.5 1.8,2.2"},
    };
    const auto* found = std::find_if(std::begin(letters), std::end(letters),
                                     [ch](const Letter& letter) { return letter.sign == ch; });
    if (found == std::end(letters))
        throw std::out_of_range("The pen does not know a letter.");
    return *found;
}

/// Follows a line with the pen: a chain of dots whose size depends on where the hand goes.
void Ink(QPainterPath& inked, const QPainterPath& line, const Pen& pen)
{
    const auto place = [&](const QPointF& p) {
        return QPointF((p.x() * pen.spread + p.y() * pen.slant) * pen.xHeight, -p.y() * pen.xHeight);
    };
    for (const QPolygonF& piece : line.toSubpathPolygons(QTransform::fromScale(400, 400))) {
        double width = -1;
        for (qsizetype i = 0; i + 1 < piece.size(); ++i) {
            const QPointF from = piece[i] / 400;
            const QPointF to = piece[i + 1] / 400;
            const QPointF way = to - from;
            const double length = std::hypot(way.x(), way.y());
            if (length <= 0)
                continue;
            const double steep = std::abs(way.y()) / length;
            const double wanted = way.y() < 0 ? pen.fine + (pen.broad - pen.fine) * steep
                                              : pen.fine + (pen.broad - pen.fine) * 0.25 * (1 - steep);
            const int steps = std::max(1, static_cast<int>(length * pen.xHeight / 0.35));
            for (int k = 0; k <= steps; ++k) {
                // The hand changes its pressure slowly.
                width = width < 0 ? wanted : width + (wanted - width) * 0.35 / pen.xHeight * 2.2;
                const double radius = width * pen.xHeight / 2;
                inked.addEllipse(place(from + way * (double(k) / steps)), radius, radius);
            }
        }
    }
}

} // namespace

QPainterPath WriteWord(const QString& word, const Pen& pen)
{
    QPainterPath inked;
    inked.setFillRule(Qt::WindingFill);
    const Letter* before = nullptr;
    double at = 0;
    double beforeAt = 0;
    for (const QChar ch : word) {
        const Letter& letter = LetterOf(ch);
        if (before && !before->outWay.isNull() && !letter.inWay.isNull()) {
            const QPointF from = QPointF(before->outX + beforeAt, before->outY);
            const QPointF to = QPointF(letter.inX + at, letter.inY);
            const double reach = 0.42 * std::hypot(to.x() - from.x(), to.y() - from.y());
            Ink(inked, Outline({from, {from + before->outWay * reach, to - letter.inWay * reach, to}}), pen);
        }
        Ink(inked, PathFromText(QString::fromLatin1(letter.strokes)).translated(at, 0), pen);
        before = &letter;
        beforeAt = at;
        at += letter.width;
    }
    return inked;
}

} // namespace torvik::sample
