#include "rtf/metafile/gdi_canvas.h"
#include "rtf/metafile/gdi_letters.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

// How text comes onto a canvas.

namespace torvik::rtf {

namespace {

enum TextAlign { UpdatePosition = 1, AlignRight = 2, AlignCenter = 6, AlignBottom = 8, AlignBaseline = 24 };

/// The part of a line's height that its letters take up.
constexpr double lettersOfLine = 0.83;
constexpr double workOfCharacter = 4000;
constexpr double workOfText = 20000;
constexpr qsizetype longestText = 4000;

double StartOf(int align, double width)
{
    if ((align & AlignCenter) == AlignCenter)
        return -width / 2;
    return (align & AlignRight) != 0 ? -width : 0;
}

double BaselineOf(int align, const QFontMetricsF& metrics)
{
    if ((align & AlignBaseline) == AlignBaseline)
        return 0;
    return (align & AlignBottom) != 0 ? -metrics.descent() : metrics.ascent();
}

} // namespace

QFont GdiCanvas::CanvasFont() const
{
    const GdiFont& wanted = state_.font;
    const double letters = wanted.height < 0 ? -wanted.height : wanted.height * lettersOfLine;
    // Symbols were turned into characters that all fonts have in common; their own font has none of these.
    QFont font;
    if (!wanted.family.isEmpty() && !ShowsSymbols(wanted))
        font.setFamily(wanted.family);
    font.setPixelSize(static_cast<int>(std::clamp(std::lround(letters * Scale()), 1L, 2000L)));
    font.setBold(wanted.weight >= 600);
    font.setItalic(wanted.italic);
    font.setUnderline(wanted.underline);
    font.setStrikeOut(wanted.strike);
    return font;
}

void GdiCanvas::Text(const QPointF& at, const QString& text, const std::vector<double>& advances)
{
    const bool updates = (state_.textAlign & UpdatePosition) != 0;
    const QPointF origin = Map(updates ? state_.position : at);
    const QString shown = text.left(longestText);
    ++survey_.shapes;
    const double work = workOfText + workOfCharacter * static_cast<double>(shown.size());
    // Fonts need a QGuiApplication; without one the rest of the drawing is still good.
    const bool hasFonts = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    if (!Note(QRectF(origin, QSizeF(1, 1)), work) || shown.isEmpty() || !hasFonts)
        return;
    const QFont font = CanvasFont();
    const QFontMetricsF metrics(font);
    const bool hasAdvances = advances.size() >= static_cast<std::size_t>(shown.size());
    double width = 0;
    for (qsizetype i = 0; hasAdvances && i < shown.size(); ++i)
        width += Near(advances[static_cast<std::size_t>(i)] * Scale());
    if (!hasAdvances)
        width = metrics.horizontalAdvance(shown);
    painter_->save();
    painter_->translate(origin);
    if (state_.font.escapement != 0)
        painter_->rotate(-state_.font.escapement / 10.0);
    painter_->setFont(font);
    double x = StartOf(state_.textAlign, width);
    const double y = BaselineOf(state_.textAlign, metrics);
    if (state_.isOpaque)
        painter_->fillRect(QRectF(x, y - metrics.ascent(), width, metrics.height()), state_.backColor);
    painter_->setPen(state_.textColor);
    if (hasAdvances) {
        for (qsizetype i = 0; i < shown.size(); ++i) {
            painter_->drawText(QPointF(x, y), shown.mid(i, 1));
            x += Near(advances[static_cast<std::size_t>(i)] * Scale());
        }
    } else {
        painter_->drawText(QPointF(x, y), shown);
    }
    painter_->restore();
    if (updates)
        state_.position += QPointF(width / Scale(), 0);
}

} // namespace torvik::rtf
