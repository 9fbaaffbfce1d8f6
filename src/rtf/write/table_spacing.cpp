#include "rtf/write/table_spacing.h"

#include "rtf/bounds/limits.h"
#include "rtf/write/formats.h"

#include <QTextCursor>
#include <QTextTable>

#include <algorithm>
#include <cstdlib>

namespace torvik::rtf {

void TableSpacing::TableCame(QTextTable& table, int before, int space)
{
    const double above = PixelsFromTwips(spaceAfter_ + space);
    if (above > 0) {
        QTextTableFormat format = table.format();
        format.setTopMargin(format.topMargin() + above);
        table.setFormat(format);
    }
    if (lastWasEmpty_) {
        // With a background, though it is none, the layout takes an empty paragraph for more than a remnant.
        QTextBlockFormat visible;
        visible.setBackground(QBrush(Qt::NoBrush));
        QTextCursor cursor(table.document());
        cursor.setPosition(before);
        cursor.mergeBlockFormat(visible);
    }
    above_ = &table;
    spaceAfter_ = 0;
    lastWasEmpty_ = false;
}

void TableSpacing::PageBegan()
{
    above_ = nullptr;
    spaceAfter_ = 0;
}

void TableSpacing::ParagraphCame(const Paragraph& paragraph)
{
    const ParagraphState& state = formats_.StateOf(paragraph.format);
    const bool hasNoText = paragraph.IsEmpty() && paragraph.mark.kind != ListMark::Kind::Literal;
    if (above_ != nullptr)
        Widen(PixelsFromTwips(state.spaceBefore) + (hasNoText ? HeightOf(paragraph) : 0));
    above_ = nullptr;
    spaceAfter_ = state.spaceAfter;
    lastWasEmpty_ = hasNoText;
}

void TableSpacing::AddBelowTable(int twips)
{
    Widen(PixelsFromTwips(twips));
}

/// By the usual proportions of a font: without a font at hand all machines agree on it.
double TableSpacing::HeightOf(const Paragraph& paragraph) const
{
    constexpr double lineOfSize = 1.15;
    const double line =
        formats_.CharacterFormat(paragraph.endFormat).fontPointSize() * pixelsPerPoint * lineOfSize;
    const ParagraphState& state = formats_.StateOf(paragraph.format);
    if (state.lineSpacing == 0)
        return line;
    if (state.lineMultiple)
        return line * std::abs(state.lineSpacing) / 240.0;
    const double told = PixelsFromTwips(std::abs(state.lineSpacing));
    return state.lineSpacing < 0 ? told : std::max(line, told);
}

void TableSpacing::Widen(double pixels)
{
    if (above_ == nullptr || pixels <= 0)
        return;
    QTextTableFormat format = above_->format();
    format.setBottomMargin(format.bottomMargin() + pixels);
    above_->setFormat(format);
}

} // namespace torvik::rtf
