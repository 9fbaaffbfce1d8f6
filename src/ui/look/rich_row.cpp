#include "ui/look/rich_row.h"

#include "ui/look/look.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace torvik {

namespace {

constexpr int padding = 4;          // pixels above the first line and below the second
constexpr double widestPlace = 0.4; // of the row; the title goes before it

/// One line of text with bold pieces, laid out.
class BoldLine {
public:
    BoldLine(const QString& text, const QList<TextRange>& bold, const QFont& font) : layout_(text, font)
    {
        QList<QTextLayout::FormatRange> formats;
        for (const TextRange& piece : bold) {
            QTextLayout::FormatRange range;
            range.start = static_cast<int>(piece.begin);
            range.length = static_cast<int>(piece.length);
            range.format.setFontWeight(QFont::Bold);
            formats.append(range);
        }
        layout_.setFormats(formats);
        layout_.beginLayout();
        line_ = layout_.createLine();
        layout_.endLayout();
    }

    double Width() const { return line_.isValid() ? line_.naturalTextWidth() : 0; }
    /// How many units of the text fit into a width.
    int Fitting(double width) const
    {
        return line_.isValid() ? line_.xToCursor(width, QTextLine::CursorOnCharacter) : 0;
    }
    void Draw(QPainter& painter, const QPointF& place) const { layout_.draw(&painter, place); }

private:
    QTextLayout layout_;
    QTextLine line_;
};

QColor TextColour(bool selected, const QColor& otherwise)
{
    return selected ? look::accentText : otherwise;
}

} // namespace

int RichRowHeight(const QFont& font)
{
    return 2 * static_cast<int>(std::ceil(QFontMetricsF(font).lineSpacing())) + 2 * padding + 1;
}

void DrawRowTitle(QPainter& painter, const QRectF& area, const QString& title, const QString& place,
                  bool selected)
{
    constexpr double gap = 12;
    const QFontMetricsF metrics(painter.font());
    const QString shown = metrics.elidedText(place, Qt::ElideLeft, area.width() * widestPlace);
    const double taken = shown.isEmpty() ? 0 : metrics.horizontalAdvance(shown) + gap;
    painter.setPen(TextColour(selected, look::accent));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(title, Qt::ElideRight, area.width() - taken));
    painter.setPen(TextColour(selected, look::faded));
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

void DrawRowLine(QPainter& painter, const QRectF& area, const QString& text, const QList<TextRange>& bold,
                 bool selected)
{
    const QChar ellipsis(u'…');
    painter.setPen(TextColour(selected, look::text));
    const BoldLine whole(text, bold, painter.font());
    if (whole.Width() <= area.width()) {
        whole.Draw(painter, area.topLeft());
        return;
    }
    const double room = area.width() - QFontMetricsF(painter.font()).horizontalAdvance(ellipsis);
    const QString cut = text.left(whole.Fitting(std::max(room, 0.0)));
    QList<TextRange> kept;
    for (const TextRange& piece : bold) {
        if (piece.begin < cut.size())
            kept.append({piece.begin, std::min(piece.length, cut.size() - piece.begin)});
    }
    BoldLine(cut + ellipsis, kept, painter.font()).Draw(painter, area.topLeft());
}

} // namespace torvik
