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
    QChar sign;
    double width;
    QPointF in, inWay;
    QPointF out, outWay;
    QPainterPath strokes;
};

const Letter& LetterOf(QChar ch)
{
    static const std::vector<Letter> letters = [] {
        Script table("letters");
        table.Run();
        std::vector<Letter> read;
        for (const Value& row : table.Get("letters").Items())
            read.push_back({row.At(0).Text().front(), row.At(1).Number(), row.At(2).Point(),
                            row.At(3).Point(), row.At(4).Point(), row.At(5).Point(),
                            PathFromText(row.At(6).Text())});
        return read;
    }();
    const auto found = std::find_if(letters.begin(), letters.end(),
                                    [ch](const Letter& letter) { return letter.sign == ch; });
    if (found == letters.end())
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

void TeachPen(Script& script)
{
    script.Teach("ink", [](const Arguments& a) {
        const Pen pen{
            .xHeight = a.Number(1), .broad = a.Number(2), .fine = a.Number(3), .spread = a.Number(4)};
        return WriteWord(a.Text(0), pen);
    });
}

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
            const QPointF from = QPointF(before->out.x() + beforeAt, before->out.y());
            const QPointF to = QPointF(letter.in.x() + at, letter.in.y());
            const double reach = 0.42 * std::hypot(to.x() - from.x(), to.y() - from.y());
            Ink(inked, Outline({from, {from + before->outWay * reach, to - letter.inWay * reach, to}}), pen);
        }
        Ink(inked, letter.strokes.translated(at, 0), pen);
        before = &letter;
        beforeAt = at;
        at += letter.width;
    }
    return inked;
}

} // namespace torvik::sample
