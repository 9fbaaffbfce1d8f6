#include "rtf/paint/extra_lines.h"

#include "rtf/paint/format_properties.h"
#include "rtf/paint/line_properties.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace torvik::rtf {

namespace {

/// A stretch of a line, in the coordinates of the layout.
struct Stretch {
    double left = 0;
    double right = 0;
    double baseline = 0;
};

QFont FontOf(const QTextCharFormat& format, const QTextDocument& document, const QPainter& painter)
{
    QFont font(format.font().resolve(document.defaultFont()));
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript ||
        format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        font.setPointSizeF(std::max(font.pointSizeF() * 2 / 3, 1.0));
    return QFont(font, painter.device());
}

bool WantsLines(const QTextFormat& format)
{
    return format.hasProperty(UnderlineProperty) || format.hasProperty(DoubleStrikeProperty);
}

/// In whole pixels, as lines come out, so that what lies between them is as wide.
double LineWidth(const QFontMetricsF& metrics)
{
    return std::max(std::round(metrics.lineWidth()), 1.0);
}

/// Where Qt draws the line below a text: the middle of it, from the baseline.
double UnderlinePlace(const QFontMetricsF& metrics)
{
    const double place = std::ceil(metrics.underlinePos()) + 0.5;
    return metrics.underlinePos() <= metrics.descent() ? std::min(place, metrics.descent() - 0.5) : place;
}

void DrawRule(QPainter& painter, const Stretch& stretch, double below, double width, const QColor& color)
{
    painter.fillRect(
        QRectF(stretch.left, stretch.baseline + below - width / 2, stretch.right - stretch.left, width),
        color);
}

/// Signs at places that are the same for all lines, so that they stand below each other. They are one text:
/// each text is shaped for itself, and a page of contents has thousands of signs.
void DrawSigns(QPainter& painter, const Stretch& stretch, QChar sign, const QColor& color)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double width = metrics.horizontalAdvance(sign);
    QFont spaced = painter.font();
    spaced.setKerning(false);
    spaced.setLetterSpacing(QFont::PercentageSpacing, sign == u'-' ? 120 : 160);
    const QFontMetricsF wide(spaced, painter.device());
    const double step = wide.horizontalAdvance(QString(2, sign)) - wide.horizontalAdvance(QString(sign));
    if (step < 0.5)
        return;
    const double first = std::ceil(stretch.left / step) * step;
    const double room = stretch.right - width - first;
    if (room < 0)
        return;
    painter.setFont(spaced);
    painter.setPen(color);
    painter.drawText(QPointF(first, stretch.baseline),
                     QString(static_cast<qsizetype>(room / step) + 1, sign));
}

void DrawLeader(QPainter& painter, Stretch stretch, TabLeader leader, const QColor& color)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double space = metrics.horizontalAdvance(u' ') / 3;
    const double thin = LineWidth(metrics);
    switch (leader) {
    case TabLeader::None:
        break;
    case TabLeader::Dots:
    case TabLeader::MiddleDots:
    case TabLeader::Hyphens:
        stretch.left += space;
        stretch.right -= space;
        DrawSigns(painter, stretch, QChar(static_cast<char16_t>(leader)), color);
        break;
    case TabLeader::Line:
        DrawRule(painter, stretch, metrics.underlinePos(), thin, color);
        break;
    case TabLeader::ThickLine:
        DrawRule(painter, stretch, metrics.underlinePos(), thin * 2, color);
        break;
    case TabLeader::DoubleLine:
        DrawRule(painter, stretch, metrics.underlinePos(), thin, color);
        DrawRule(painter, stretch, metrics.underlinePos() + thin * 2, thin, color);
        break;
    }
}

/// The line that Qt draws below a text once more, lower: below spaces of the same font, so that its dashes
/// and waves are those of the first.
void RepeatUnderline(QPainter& painter, const Stretch& stretch, double lower, const QTextCharFormat& format,
                     const QFont& font, const QColor& color)
{
    QFont plain = font;
    plain.setLetterSpacing(QFont::PercentageSpacing, 100);
    const QFontMetricsF metrics(plain, painter.device());
    const double width = stretch.right - stretch.left;
    const double step = metrics.horizontalAdvance(QChar::Nbsp);
    if (step < 0.5 || width <= 0)
        return;
    QTextCharFormat line;
    line.setUnderlineStyle(format.underlineStyle());
    line.setUnderlineColor(color);
    const QString spaces(static_cast<qsizetype>(width / step) + 1, QChar::Nbsp);
    QTextLayout layout(spaces, plain, painter.device());
    layout.setFormats({{0, static_cast<int>(spaces.size()), line}});
    layout.beginLayout();
    const QTextLine only = layout.createLine();
    layout.endLayout();
    painter.save();
    // Qt's lines begin and end at whole pixels, and a wave ends with the last that it touches.
    const double left = std::floor(stretch.left);
    const bool isWave = format.underlineStyle() == QTextCharFormat::WaveUnderline;
    const double right = isWave ? std::ceil(stretch.right) : std::floor(stretch.right);
    painter.setClipRect(QRectF(left, stretch.baseline, right - left, metrics.height() + lower),
                        Qt::IntersectClip);
    layout.draw(&painter, {stretch.left, stretch.baseline + lower - only.ascent()});
    painter.restore();
}

/// Paints what one paragraph wants.
class BlockPainter {
public:
    BlockPainter(QPainter& painter, const QTextBlock& block, const QColor& textColor, double scale)
        : painter_(painter), block_(block), layout_(*block.layout()),
          corner_(block.document()->documentLayout()->blockBoundingRect(block).topLeft()),
          textColor_(textColor), scale_(scale)
    {}

    void Paint()
    {
        PaintLeaders();
        if (block_.blockFormat().hasProperty(RuleAboveProperty))
            PaintRuleAbove();
        for (auto part = block_.begin(); !part.atEnd(); ++part) {
            if (WantsLines(part.fragment().charFormat()))
                PaintLinesOf(part.fragment());
        }
    }

private:
    QColor TextColor(const QTextCharFormat& format) const
    {
        return format.foreground().style() == Qt::NoBrush ? textColor_ : format.foreground().color();
    }
    QColor LineColor(const QTextCharFormat& format) const
    {
        return format.underlineColor().isValid() ? format.underlineColor() : TextColor(format);
    }

    Stretch Between(const QTextLine& line, int from, int to) const
    {
        const double a = line.cursorToX(from);
        const double b = line.cursorToX(to);
        return {corner_.x() + std::min(a, b), corner_.x() + std::max(a, b),
                corner_.y() + line.y() + line.ascent()};
    }

    /// The second line below or through a text of which Qt draws the first.
    void PaintLinesOf(const QTextFragment& fragment)
    {
        const int start = fragment.position() - block_.position();
        const int end = start + fragment.length();
        const QTextCharFormat format = fragment.charFormat();
        const QFont font = FontOf(format, *block_.document(), painter_);
        const QFontMetricsF metrics(font, painter_.device());
        const double thin = LineWidth(metrics);
        for (int i = 0; i < layout_.lineCount(); ++i) {
            const QTextLine line = layout_.lineAt(i);
            const int from = std::max(start, line.textStart());
            const int to = std::min(end, line.textStart() + line.textLength());
            if (from >= to)
                continue;
            const Stretch stretch = Between(line, from, to);
            switch (static_cast<ExtraUnderline>(format.intProperty(UnderlineProperty))) {
            case ExtraUnderline::None:
                break;
            case ExtraUnderline::Double:
                DrawRule(painter_, stretch, UnderlinePlace(metrics) + 2 * thin, thin, LineColor(format));
                break;
            case ExtraUnderline::Thick:
                DrawRule(painter_, stretch, UnderlinePlace(metrics) + thin / 2, 2 * thin, LineColor(format));
                break;
            case ExtraUnderline::ThickPattern:
                RepeatUnderline(painter_, stretch, thin, format, font, LineColor(format));
                break;
            case ExtraUnderline::HeavyWave:
                RepeatUnderline(painter_, stretch, std::max(thin / 2, 1.0), format, font, LineColor(format));
                break;
            case ExtraUnderline::DoubleWave:
                RepeatUnderline(painter_, stretch, 3 * thin, format, font, LineColor(format));
                break;
            }
            if (format.hasProperty(DoubleStrikeProperty))
                DrawRule(painter_, stretch, 2 * thin - metrics.strikeOutPos(), thin, TextColor(format));
        }
    }

    void PaintRuleAbove()
    {
        constexpr double part = 1.0 / 3;
        const QRectF room = block_.document()->documentLayout()->blockBoundingRect(block_);
        const double middle = room.top() - block_.blockFormat().topMargin() * scale_ / 2;
        DrawRule(painter_, {room.left(), room.left() + room.width() * part, middle}, 0, scale_, textColor_);
    }

    /// How much of the line stands before a tab: from the left, or from the right where the paragraph runs
    /// that way. A tab parts what stands at its two sides, whatever directions are mixed there.
    double BeforeTab(const QTextLine& line, int place) const
    {
        const double edge = line.cursorToX(place);
        const QRectF text = line.naturalTextRect();
        return block_.textDirection() == Qt::RightToLeft ? text.right() - edge : edge - text.left();
    }

    void PaintLeaders()
    {
        const QString leaders = block_.blockFormat().stringProperty(TabLeadersProperty);
        if (leaders.isEmpty())
            return;
        const QList<QTextOption::Tab> tabs = block_.blockFormat().tabPositions();
        const QString text = block_.text();
        for (qsizetype at = text.indexOf(u'\t'); at >= 0; at = text.indexOf(u'\t', at + 1)) {
            const int place = static_cast<int>(at);
            const QTextLine line = layout_.lineForTextPosition(place);
            if (!line.isValid())
                continue;
            const double start = BeforeTab(line, place) / scale_;
            constexpr double rounding = 0.05;
            const auto stop = std::find_if(tabs.begin(), tabs.end(), [&](const QTextOption::Tab& tab) {
                return tab.position > start + rounding;
            });
            const qsizetype number = stop - tabs.begin();
            if (stop == tabs.end() || number >= leaders.size() || leaders.at(number) == u' ')
                continue;
            QTextCursor cursor(block_);
            cursor.setPosition(block_.position() + place + 1);
            const QTextCharFormat format = cursor.charFormat();
            painter_.setFont(FontOf(format, *block_.document(), painter_));
            DrawLeader(painter_, Between(line, place, place + 1),
                       static_cast<TabLeader>(leaders.at(number).unicode()), LineColor(format));
        }
    }

    QPainter& painter_;
    const QTextBlock& block_;
    const QTextLayout& layout_;
    QPointF corner_;
    const QColor& textColor_;
    double scale_;
};

bool WantsLines(const QTextBlock& block)
{
    if (block.blockFormat().hasProperty(TabLeadersProperty) ||
        block.blockFormat().hasProperty(RuleAboveProperty))
        return true;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (WantsLines(part.fragment().charFormat()))
            return true;
    }
    return false;
}

} // namespace

ExtraLines::ExtraLines(const QTextDocument& document)
{
    // Most documents have no such format, and need not be gone through.
    const QList<QTextFormat> formats = document.allFormats();
    const bool isNeeded = std::any_of(formats.begin(), formats.end(), [](const QTextFormat& format) {
        return format.hasProperty(TabLeadersProperty) || format.hasProperty(RuleAboveProperty) ||
               WantsLines(format);
    });
    if (!isNeeded)
        return;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (WantsLines(block))
            blocks_.push_back(block);
    }
}

void ExtraLines::Paint(QPainter& painter, const QRectF& clip, const QColor& textColor, double scale) const
{
    painter.save();
    for (const QTextBlock& block : blocks_) {
        QRectF room = block.document()->documentLayout()->blockBoundingRect(block);
        room.setTop(room.top() - block.blockFormat().topMargin() * scale);
        if (room.intersects(clip))
            BlockPainter(painter, block, textColor, scale).Paint();
    }
    painter.restore();
}

} // namespace torvik::rtf
