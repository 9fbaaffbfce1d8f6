#pragma once

#include <QString>

namespace torvik {

/// Text helpers that count characters from 1, as every position in this program does.

/// The characters of `text` from position `start` (1 or more) on, at most `length` of them; empty when the
/// text is shorter. A start below 1 or a negative length is failure 5.
QString Mid(const QString& text, int start, int length);
/// The characters of `text` from position `start` (1 or more) to its end.
QString Mid(const QString& text, int start);
/// The first `length` characters; failure 5 when the length is negative.
QString Left(const QString& text, int length);
/// The last `length` characters; failure 5 when the length is negative.
QString Right(const QString& text, int length);
/// Position of the first `part` in `text` at or after `start`, 0 when there is none. Case matters.
int InStr(const QString& text, const QString& part, int start = 1);
/// Whether the whole text, blanks around it left aside, reads as a number ("67", " 3.5 ", "-1"; not "",
/// "M1").
bool IsNumeric(const QString& text);
/// The number that the text begins with, 0 when it begins with none; blanks are passed over. Never fails.
double Val(const QString& text);
/// The whole text as a number; failure 13, Type mismatch, when it is none.
double ToNumber(const QString& text);
/// `value` as decimal text: no leading blank, no trailing zeros, a point as the separator.
QString NumberText(double value);
/// The same with a blank in front of a number that is not negative: the room of the sign.
QString Str(double value);
/// `value` rounded to a whole number, halves to the even neighbour.
long RoundHalfEven(double value);

} // namespace torvik
