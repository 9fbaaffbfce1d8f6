#pragma once

#include <QString>

namespace torvik::rtf {

/// `value` in a format whose numbers are signs of a row (letters of an alphabet, circled numbers, signs of
/// the zodiac); empty where the format is none of these or its row is too short.
QString NumberFromSigns(int value, int format);

/// `value` as it is spoken or written out with the numerals of East Asia; empty where the format is none of
/// these.
QString NumberFromNumerals(int value, int format);

/// Whether a format is one of these.
bool HasOwnSigns(int format);

/// `value` with the words of English: 5 "1st", 6 "One", 7 "First"; empty for any other format.
QString NumberInEnglish(int value, int format);

} // namespace torvik::rtf
