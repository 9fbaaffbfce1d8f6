#pragma once

#include <QString>

namespace torvik::rtf {

/// `value` (1 or more) in one of the number formats by which lists, pages and notes are counted: 0 decimal,
/// 1 and 2 roman, 3 and 4 letters, 5 to 7 English ordinals and words, 10 to 44 those of East Asia, 57 between
/// dashes, 58 and 59 Russian letters. Any other format is decimal, and so is a value that a format has no
/// sign for.
QString NumberInFormat(int value, int format);

} // namespace torvik::rtf
