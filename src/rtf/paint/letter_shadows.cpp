#include "rtf/paint/letter_shadows.h"

#include "rtf/bounds/limits.h"
#include "rtf/paint/format_properties.h"
#include "rtf/paint/line_properties.h"

#include <QAbstractTextDocumentLayout>
#include <QGlyphRun>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace torvik::rtf {

namespace {

bool CastsShadow(const QTextFormat& format)
{
    return format.hasProperty(ShadowProperty);
}

bool CastsShadow(const QTextBlock& block)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (CastsShadow(part.fragment().charFormat()))
            return true;
    }
    return false;
}

/// How far a shadow is from its letter, to the right and down, pixels of the document.
double OffsetOf(const QTextCharFormat& format)
{
    constexpr double part = 1.0 / 20;
    const double offset = std::max(format.fontPointSize() * pixelsPerPoint * part, 1.0);
    const bool isAbove = format.intProperty(ShadowProperty) == int(LetterShadow::AboveLeft);
    return isAbove ? -offset : offset;
}

/// The lines of a paragraph, with their shadows, that are within `clip`: one paragraph may be a whole text.
std::vector<QTextLine> LinesWithin(const QRectF& clip, const QTextLayout& layout)
{
    constexpr double part = 1.0 / 10; // of its height, that a shadow may stand out of its line
    std::vector<QTextLine> lines;
    for (int number = 0; number < layout.lineCount(); ++number) {
        const QTextLine line = layout.lineAt(number);
        const double beyond = line.height() * part;
        if (line.y() - beyond < clip.bottom() && line.y() + line.height() + beyond > clip.top())
            lines.push_back(line);
    }
    return lines;
}

/// The outlines of letters and not the letters: on paper those would be a second text, which whoever searches
/// or copies it would meet.
void PaintOutlines(QPainter& painter, const QList<QGlyphRun>& runs, const QPointF& corner)
{
    QRawFont font;
    QHash<quint32, QPainterPath> outlines; // made once, since a letter comes again and again
    for (const QGlyphRun& run : runs) {
        if (run.rawFont() != font)
            outlines.clear();
        font = run.rawFont();
        const QList<quint32> signs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype number = 0; number < signs.size(); ++number) {
            auto outline = outlines.constFind(signs.at(number));
            if (outline == outlines.constEnd())
                outline = outlines.insert(signs.at(number), font.pathForGlyph(signs.at(number)));
            const QPointF place = corner + places.at(number);
            painter.translate(place);
            painter.fillPath(*outline, QColor(Qt::gray));
            painter.translate(-place);
        }
    }
}

void PaintBlock(QPainter& painter, const QTextBlock& block, const QRectF& clip, double scale)
{
    const QPointF corner = block.document()->documentLayout()->blockBoundingRect(block).topLeft();
    const std::vector<QTextLine> lines = LinesWithin(clip.translated(-corner), *block.layout());
    if (lines.empty())
        return;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        const int start = part.fragment().position() - block.position();
        const int end = start + part.fragment().length();
        if (!CastsShadow(format) || end <= lines.front().textStart())
            continue;
        QList<QGlyphRun> runs;
        for (const QTextLine& line : lines) {
            const int from = std::max(start, line.textStart());
            const int to = std::min(end, line.textStart() + line.textLength());
            if (from < to)
                runs += line.glyphRuns(from, to - from);
        }
        const double offset = OffsetOf(format) * scale;
        PaintOutlines(painter, runs, corner + QPointF(offset, offset));
    }
}

} // namespace

LetterShadows::LetterShadows(const QTextDocument& document)
{
    // Most documents have no such format, and need not be gone through.
    const QList<QTextFormat> formats = document.allFormats();
    if (std::none_of(formats.begin(), formats.end(),
                     [](const QTextFormat& format) { return CastsShadow(format); }))
        return;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (CastsShadow(block))
            blocks_.push_back(block);
    }
}

void LetterShadows::Paint(QPainter& painter, const QRectF& clip, double scale) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QTextBlock& block : blocks_)
        PaintBlock(painter, block, clip, scale);
    painter.restore();
}

} // namespace torvik::rtf
