#include "sample/artwork/ad_type.h"

#include <QTextLayout>

#include <algorithm>

namespace torvik::sample {

namespace {

constexpr double smallestType = 13;

/// The words dealt to that many lines so that the longest line is as short as it can be.
QStringList Broken(const QStringList& words, int lines)
{
    if (lines <= 1 || words.size() <= 1)
        return {words.join(u' ')};
    QStringList best;
    qsizetype shortest = 0;
    for (qsizetype first = 1; first < words.size(); ++first) {
        QStringList tried{QStringList(words.mid(0, first)).join(u' ')};
        tried += Broken(words.mid(first), lines - 1);
        qsizetype longest = 0;
        for (const QString& line : tried)
            longest = std::max(longest, line.size());
        if (best.isEmpty() || longest < shortest) {
            best = tried;
            shortest = longest;
        }
    }
    return best;
}

/// Sets the text at one size; with a painter it is drawn. Whether all of it found a place.
bool Flow(QPainter* painter, const QStringList& paragraphs, const std::vector<QRectF>& columns,
          const TextLook& look, double size)
{
    QFont font = FontOf(look.type, size);
    const double leading = size * 1.32;
    std::size_t column = 0;
    double y = columns[0].top();
    for (const QString& paragraph : paragraphs) {
        QTextLayout layout(paragraph, font);
        QTextOption option(look.alignment);
        option.setWrapMode(QTextOption::WordWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            if (y + leading > columns[column].bottom() + 0.5) {
                if (++column == columns.size())
                    return false;
                y = columns[column].top();
            }
            line.setLineWidth(columns[column].width());
            line.setPosition({columns[column].left(), y});
            y += leading;
        }
        layout.endLayout();
        if (painter) {
            painter->setPen(look.ink);
            layout.draw(painter, {0, 0});
        }
        y += size * 0.55;
    }
    return true;
}

} // namespace

QPainterPath FittedHeadline(const QString& text, const QRectF& box, const Type& type, int lines,
                            double tallest, Qt::Alignment alignment)
{
    constexpr double unitHeight = 100;
    constexpr double leading = 1.55; // of the height of capitals
    QStringList best;
    double height = 0;
    const QStringList words = text.split(u' ');
    for (int count = 1; count <= std::min<int>(lines, static_cast<int>(words.size())); ++count) {
        const QStringList tried = Broken(words, count);
        double widest = 1;
        for (const QString& line : tried)
            widest = std::max(widest, Lettering(line, unitHeight, type).boundingRect().width());
        const double fits = std::min(
            {tallest, box.width() / widest * unitHeight, box.height() / (1.25 + leading * (count - 1))});
        if (fits > height * 1.02) {
            height = fits;
            best = tried;
        }
    }
    QPainterPath headline;
    double base = box.top() + height;
    for (const QString& line : best) {
        const QPainterPath path = Lettering(line, height, type);
        const double spare = box.width() - path.boundingRect().width();
        const double left = alignment & Qt::AlignHCenter ? spare / 2 : alignment & Qt::AlignRight ? spare : 0;
        headline.addPath(path.translated(box.left() + left, base));
        base += height * leading;
    }
    headline.setFillRule(Qt::WindingFill);
    return headline;
}

double SetColumns(QPainter& painter, const QStringList& paragraphs, const std::vector<QRectF>& columns,
                  const TextLook& look)
{
    double size = look.largest;
    while (size > smallestType && !Flow(nullptr, paragraphs, columns, look, size))
        size -= 1;
    Flow(&painter, paragraphs, columns, look, size);
    return size;
}

std::vector<QRectF> ColumnsIn(const QRectF& box, int count, double gap)
{
    std::vector<QRectF> columns;
    columns.reserve(static_cast<std::size_t>(count));
    const double width = (box.width() - gap * (count - 1)) / count;
    for (int i = 0; i < count; ++i)
        columns.emplace_back(box.left() + i * (width + gap), box.top(), width, box.height());
    return columns;
}

} // namespace torvik::sample
