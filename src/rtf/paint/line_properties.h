#pragma once

#include <QTextFormat>

namespace torvik::rtf {

/// In the format of a paragraph: what fills the room before each of its tab stops, one
/// TabLeader for each stop in their order. Qt has nothing like it.
inline constexpr int tabLeadersProperty = QTextFormat::UserProperty + 3;
/// In the format of characters that Qt underlines once: the other line that they are to have.
inline constexpr int underlineProperty = QTextFormat::UserProperty + 4;
/// True in the format of characters that Qt strikes out once: they are to be struck out twice.
inline constexpr int doubleStrikeProperty = QTextFormat::UserProperty + 7;

/// In the format of a paragraph: a short rule stands in the room above it, which parts the notes from the
/// text.
inline constexpr int ruleAboveProperty = QTextFormat::UserProperty + 6;

enum class TabLeader : char16_t {
    None = u' ',
    Dots = u'.',
    MiddleDots = u'·',
    Hyphens = u'-',
    Line = u'_',
    ThickLine = u'#',
    DoubleLine = u'='
};

enum class ExtraUnderline {
    None,
    Double,
    Thick,
    /// Dots or dashes as Qt draws them, once more right below.
    ThickPattern,
    /// The wave that Qt draws once more: into the lower half of its line, or below it.
    HeavyWave,
    DoubleWave
};

} // namespace torvik::rtf
