#include "rtf/bounds/limits.h"
#include "rtf/paint/format_properties.h"
#include "rtf/write/formats.h"
#include "rtf/write/mark_room.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace torvik::rtf {

namespace {

Qt::Alignment AlignmentOf(const ParagraphState& state)
{
    switch (state.alignment) {
    case Alignment::Left:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    case Alignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case Alignment::Center:
        return Qt::AlignHCenter;
    case Alignment::Justify:
        return Qt::AlignJustify;
    case Alignment::Start:
        break;
    }
    return state.rightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft;
}

void SetLineHeight(QTextBlockFormat& format, const ParagraphState& state)
{
    const int spacing = state.lineSpacing;
    if (spacing == 0)
        return;
    if (state.lineMultiple) {
        if (std::abs(spacing) != 240)
            format.setLineHeight(std::abs(spacing) / 2.4, QTextBlockFormat::ProportionalHeight);
    } else if (spacing > 0) {
        format.setLineHeight(PixelsFromTwips(spacing), QTextBlockFormat::MinimumHeight);
    } else {
        format.setLineHeight(PixelsFromTwips(-spacing), QTextBlockFormat::FixedHeight);
    }
}

/// The document's left tab is where text begins, Qt's is always at the left.
QTextOption::TabType TypeOf(const TabStop& stop, const ParagraphState& state)
{
    if (state.rightToLeft && stop.type == QTextOption::LeftTab)
        return QTextOption::RightTab;
    if (state.rightToLeft && stop.type == QTextOption::RightTab)
        return QTextOption::LeftTab;
    return stop.type;
}

/// The document counts tabs from its margin, the layout from the start of the first line.
void SetTabs(QTextBlockFormat& format, const ParagraphState& state)
{
    const int lineStart = state.leftIndent + (state.markOutside ? 0 : state.firstIndent);
    QList<TabStop> stops;
    for (TabStop stop : state.tabs) {
        stop.position -= lineStart;
        if (stop.position > 0)
            stops.append(stop);
    }
    // A hanging indent is a tab stop of its own.
    const int hanging = -state.firstIndent;
    if (hanging > 0 && !state.markOutside) {
        constexpr int near = 8;
        const bool isThere = std::any_of(stops.begin(), stops.end(), [&](const TabStop& stop) {
            return std::abs(stop.position - hanging) < near;
        });
        if (!isThere)
            stops.append(TabStop{hanging});
    }
    if (stops.isEmpty())
        return;
    std::sort(stops.begin(), stops.end(),
              [](const auto& a, const auto& b) { return a.position < b.position; });
    QList<QTextOption::Tab> tabs;
    QString leaders;
    for (const TabStop& stop : stops) {
        tabs.append({PixelsFromTwips(stop.position), TypeOf(stop, state), u'.'});
        leaders += QChar(static_cast<char16_t>(stop.leader));
    }
    format.setTabPositions(tabs);
    if (!leaders.trimmed().isEmpty())
        format.setProperty(TabLeadersProperty, leaders);
}

} // namespace

QTextBlockFormat Formats::MakeBlockFormat(const ParagraphState& state) const
{
    QTextBlockFormat format;
    format.setAlignment(AlignmentOf(state));
    int left = state.leftIndent;
    if (state.markOutside)
        left = std::max(left + std::max(state.firstIndent, 0), leastMarkRoom);
    int right = state.rightIndent;
    if (state.rightToLeft) // the indents are those at the beginning and at the end of a line
        std::swap(left, right);
    if (left != 0)
        format.setLeftMargin(PixelsFromTwips(left));
    if (right != 0)
        format.setRightMargin(PixelsFromTwips(right));
    if (state.firstIndent != 0 && !state.markOutside)
        format.setTextIndent(PixelsFromTwips(state.firstIndent));
    if (state.spaceBefore != 0)
        format.setTopMargin(PixelsFromTwips(state.spaceBefore));
    if (state.spaceAfter != 0)
        format.setBottomMargin(PixelsFromTwips(state.spaceAfter));
    SetLineHeight(format, state);
    SetTabs(format, state);
    if (state.keepTogether)
        format.setProperty(KeepTogetherProperty, true);
    if (state.keepWithNext)
        format.setProperty(KeepWithNextProperty, true);
    // Else Qt goes by the first letter.
    format.setLayoutDirection(state.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    const QColor back =
        ShadedColor(colors_.ChosenAt(state.patternColor), colors_.ChosenAt(state.background), state.shading);
    if (back.isValid())
        format.setBackground(back);
    return format;
}

} // namespace torvik::rtf
