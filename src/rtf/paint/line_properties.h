#pragma once

namespace torvik::rtf {

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

/// The side of letters on which their shadow is seen.
enum class LetterShadow { BelowRight, AboveLeft };

} // namespace torvik::rtf
