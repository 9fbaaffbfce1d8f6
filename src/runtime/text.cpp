#include "runtime/text.h"

#include "runtime/failure.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

bool IsBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The characters as ASCII; what is none becomes a sign that no number contains.
QByteArray Ascii(QStringView text)
{
    QByteArray ascii;
    ascii.reserve(text.size());
    for (const QChar character : text)
        ascii.append(character.unicode() < 0x80 ? static_cast<char>(character.unicode()) : '?');
    return ascii;
}

/// How many characters at the beginning of `text` make up a number: a sign, digits with at most one point,
/// and an exponent after E or D where it has digits. 0 when there is none.
qsizetype LengthOfNumber(const QByteArray& text)
{
    const auto at = [&text](qsizetype i) { return i < text.size() ? text[i] : '\0'; };
    qsizetype end = at(0) == '+' || at(0) == '-' ? 1 : 0;
    qsizetype digits = 0;
    for (bool pointSeen = false; IsDigit(at(end)) || (at(end) == '.' && !pointSeen); ++end) {
        if (at(end) == '.')
            pointSeen = true;
        else
            ++digits;
    }
    if (digits == 0)
        return 0;
    if (QByteArrayView("eEdD").contains(at(end)) && at(end) != '\0') {
        qsizetype exponent = end + 1;
        if (at(exponent) == '+' || at(exponent) == '-')
            ++exponent;
        if (IsDigit(at(exponent))) {
            while (IsDigit(at(exponent)))
                ++exponent;
            end = exponent;
        }
    }
    return end;
}

/// Whether a number outside the machine's range is too large rather than too small: whether it has more
/// digits before its point than its exponent takes away.
bool IsLarge(const QByteArray& text)
{
    const qsizetype exponentSign = text.indexOf('e');
    const QByteArray digits = text.left(exponentSign < 0 ? text.size() : exponentSign);
    const qsizetype point = digits.contains('.') ? digits.indexOf('.') : digits.size();
    const auto* const first =
        std::find_if(digits.begin(), digits.end(), [](char c) { return c >= '1' && c <= '9'; });
    bool fits = true;
    const QByteArray exponent = exponentSign < 0 ? QByteArray("0") : text.mid(exponentSign + 1);
    const qint64 shift = exponent.toLongLong(&fits);
    return fits ? shift + (point - (first - digits.begin())) > 0 : !exponent.startsWith('-');
}

/// The value of a text that LengthOfNumber accepted whole; infinite when it is beyond the range.
double ValueOf(QByteArray text)
{
    text.replace('d', 'e').replace('D', 'e').replace('E', 'e');
    if (text.startsWith('+'))
        text.remove(0, 1);
    double value = 0;
    const auto outcome = std::from_chars(text.data(), text.data() + text.size(), value);
    if (outcome.ec == std::errc::result_out_of_range)
        return IsLarge(text) ? std::numeric_limits<double>::infinity() : 0;
    return value;
}

/// Whether the whole text reads as a number; its value comes back in `value`.
bool ReadWhole(const QString& text, double& value)
{
    QStringView inner(text);
    while (!inner.isEmpty() && IsBlank(inner.front()))
        inner = inner.mid(1);
    while (!inner.isEmpty() && IsBlank(inner.back()))
        inner.chop(1);
    const QByteArray ascii = Ascii(inner);
    const qsizetype length = LengthOfNumber(ascii);
    if (length == 0 || length != ascii.size())
        return false;
    value = ValueOf(ascii);
    return std::isfinite(value);
}

} // namespace

QString Mid(const QString& text, int start, int length)
{
    if (start < 1 || length < 0)
        Fail(failure::invalidCall);
    return text.mid(start - 1, length);
}

QString Mid(const QString& text, int start)
{
    if (start < 1)
        Fail(failure::invalidCall);
    return text.mid(start - 1);
}

QString Left(const QString& text, int length)
{
    if (length < 0)
        Fail(failure::invalidCall);
    return text.left(length);
}

QString Right(const QString& text, int length)
{
    if (length < 0)
        Fail(failure::invalidCall);
    return text.right(length);
}

int InStr(const QString& text, const QString& part, int start)
{
    if (start < 1)
        Fail(failure::invalidCall);
    if (text.isEmpty() || start > text.size())
        return 0;
    return static_cast<int>(text.indexOf(part, start - 1)) + 1;
}

bool IsNumeric(const QString& text)
{
    double value = 0;
    return ReadWhole(text, value);
}

double Val(const QString& text)
{
    QString packed;
    packed.reserve(text.size());
    for (const QChar character : text) {
        if (!IsBlank(character))
            packed.append(character);
    }
    const QByteArray ascii = Ascii(packed);
    const qsizetype length = LengthOfNumber(ascii);
    if (length == 0)
        return 0;
    const double value = ValueOf(ascii.left(length));
    if (std::isfinite(value))
        return value;
    return std::copysign(std::numeric_limits<double>::max(), ascii.startsWith('-') ? -1.0 : 1.0);
}

double ToNumber(const QString& text)
{
    double value = 0;
    if (!ReadWhole(text, value))
        Fail(failure::typeMismatch);
    return value;
}

QString NumberText(double value)
{
    if (value == 0)
        return u"0"_s; // also for the zero with a minus sign
    constexpr int significantDigits = 15;
    return QString::number(value, 'G', significantDigits);
}

QString Str(double value)
{
    return value < 0 ? NumberText(value) : u' ' + NumberText(value);
}

long RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double part = value - below;
    const bool up = part > 0.5 || (part == 0.5 && std::fmod(below, 2.0) != 0.0);
    const double rounded = up ? below + 1 : below;
    // The largest long is no exact double; its successor is.
    const double limit = -static_cast<double>(std::numeric_limits<long>::min());
    if (!(rounded >= -limit && rounded < limit))
        Fail(failure::overflow);
    return static_cast<long>(rounded);
}

} // namespace torvik
