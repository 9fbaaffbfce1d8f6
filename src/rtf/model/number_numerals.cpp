#include "rtf/model/number_signs.h"

#include <QList>
#include <QPair>
#include <QStringList>

// Formats that write a number out with the numerals of China, Japan and Korea, and the English ones.

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

/// How a family of numerals writes numbers below ten thousand.
struct Numerals {
    int format;
    /// From 0 to 9.
    const char16_t* digits;
    /// Ten, hundred, thousand, ten thousand; nullptr where the digits stand side by side as in a decimal
    /// number.
    const char16_t* places;
    /// Whether a 1 is written before ten at the start of a number, before ten elsewhere, before a hundred and
    /// before a thousand.
    bool oneBeforeFirstTen;
    bool oneBeforeTen;
    bool oneBeforeHundred;
    /// Whether a zero is written for places that are left out.
    bool zeroForGap;
    /// From this value on the digits stand side by side.
    int plainFrom;
};

constexpr int never = 0x7fffffff;

constexpr Numerals families[] = {
    {10, u"〇一二三四五六七八九", nullptr, false, false, false, false, 0},
    {11, u"〇一二三四五六七八九", u"十百千万", false, false, false, false, never},
    {16, u"〇壱弐参四伍六七八九", u"拾百阡萬", true, true, true, false, never},
    {17, u"〇一二三四五六七八九", nullptr, false, false, false, false, 0},
    {33, u"○一二三四五六七八九", u"十百千萬", false, true, true, false, 100},
    {34, u"零壹貳參肆伍陸柒捌玖", u"拾佰仟萬", true, true, true, true, never},
    {35, u"零一二三四五六七八九", u"十百千萬", false, true, true, true, never},
    {36, u"○一二三四五六七八九", nullptr, false, false, false, false, 0},
    {37, u"○一二三四五六七八九", u"十百千万", false, true, true, false, 100},
    {38, u"零壹贰叁肆伍陆柒捌玖", u"拾佰仟萬", true, true, true, true, never},
    {39, u"〇一二三四五六七八九", u"十百千万", false, true, true, true, never},
    {41, u"영일이삼사오육칠팔구", nullptr, false, false, false, false, 0},
    {42, u"영일이삼사오육칠팔구", u"십백천만", false, false, false, false, never},
    {44, u"零一二三四五六七八九", nullptr, false, false, false, false, 0},
};

QString SideBySide(int value, const Numerals& family)
{
    QString text = QString::number(value);
    for (QChar& c : text)
        c = QChar(family.digits[c.unicode() - u'0']);
    return text;
}

QString WrittenOut(int value, const Numerals& family)
{
    constexpr int weights[] = {10000, 1000, 100, 10, 1};
    QString text;
    bool hasGap = false;
    int rest = value;
    for (int place = 0; place < 5; ++place) {
        const int weight = weights[place];
        const int digit = rest / weight;
        rest %= weight;
        if (digit == 0) {
            hasGap = hasGap || !text.isEmpty();
            continue;
        }
        if (hasGap && family.zeroForGap)
            text += QChar(family.digits[0]);
        hasGap = false;
        const bool isFirst = text.isEmpty();
        bool writesOne = true;
        if (weight == 10)
            writesOne = isFirst ? family.oneBeforeFirstTen : family.oneBeforeTen;
        else if (weight == 100 || weight == 1000)
            writesOne = family.oneBeforeHundred;
        if (digit != 1 || writesOne || weight == 1)
            text += QChar(family.digits[digit]);
        if (weight > 1)
            text += QChar(family.places[3 - place]);
    }
    return text;
}

/// Korean words for counting things, up to 99.
QString KoreanCount(int value)
{
    static const QStringList ones{u""_s,     u"하나"_s, u"둘"_s,   u"셋"_s,   u"넷"_s,
                                  u"다섯"_s, u"여섯"_s, u"일곱"_s, u"여덟"_s, u"아홉"_s};
    static const QStringList tens{u""_s,   u"열"_s,   u"스물"_s, u"서른"_s, u"마흔"_s,
                                  u"쉰"_s, u"예순"_s, u"일흔"_s, u"여든"_s, u"아흔"_s};
    return value < 100 ? tens.at(value / 10) + ones.at(value % 10) : QString();
}

const QStringList& EnglishOnes()
{
    static const QStringList words{u"Zero"_s,    u"One"_s,     u"Two"_s,       u"Three"_s,    u"Four"_s,
                                   u"Five"_s,    u"Six"_s,     u"Seven"_s,     u"Eight"_s,    u"Nine"_s,
                                   u"Ten"_s,     u"Eleven"_s,  u"Twelve"_s,    u"Thirteen"_s, u"Fourteen"_s,
                                   u"Fifteen"_s, u"Sixteen"_s, u"Seventeen"_s, u"Eighteen"_s, u"Nineteen"_s};
    return words;
}

QString Cardinal(int value)
{
    static const QStringList tens{u""_s,      u""_s,      u"Twenty"_s,  u"Thirty"_s, u"Forty"_s,
                                  u"Fifty"_s, u"Sixty"_s, u"Seventy"_s, u"Eighty"_s, u"Ninety"_s};
    if (value < 20)
        return EnglishOnes().at(value);
    if (value < 100) {
        const QString one = value % 10 > 0 ? u'-' + EnglishOnes().at(value % 10).toLower() : QString();
        return tens.at(value / 10) + one;
    }
    const int unit = value < 1000 ? 100 : 1000;
    const QString name = unit == 100 ? u" hundred"_s : u" thousand"_s;
    const QString rest = value % unit > 0 ? u' ' + Cardinal(value % unit).toLower() : QString();
    return Cardinal(value / unit) + name + rest;
}

QString Ordinal(const QString& cardinal)
{
    static const QList<QPair<QString, QString>> irregular{{u"one"_s, u"first"_s},     {u"two"_s, u"second"_s},
                                                          {u"three"_s, u"third"_s},   {u"five"_s, u"fifth"_s},
                                                          {u"eight"_s, u"eighth"_s},  {u"nine"_s, u"ninth"_s},
                                                          {u"twelve"_s, u"twelfth"_s}};
    for (const auto& [word, ordinal] : irregular) {
        if (!cardinal.endsWith(word, Qt::CaseInsensitive))
            continue;
        const QString start = cardinal.chopped(word.size());
        if (start.isEmpty())
            return ordinal.at(0).toUpper() + ordinal.mid(1);
        return start + ordinal;
    }
    if (cardinal.endsWith(u'y'))
        return cardinal.chopped(1) + u"ieth"_s;
    return cardinal + u"th"_s;
}

QString Suffixed(int value)
{
    const bool isTeen = value % 100 / 10 == 1;
    const int last = isTeen ? 0 : value % 10;
    const char* suffix = last == 1 ? "st" : last == 2 ? "nd" : last == 3 ? "rd" : "th";
    return QString::number(value) + QLatin1StringView(suffix);
}

} // namespace

QString NumberFromNumerals(int value, int format)
{
    constexpr int formatOfKoreanCount = 43;
    constexpr int largestWritten = 99999;
    if (value < 1)
        return {};
    if (format == formatOfKoreanCount)
        return KoreanCount(value);
    for (const Numerals& family : families) {
        if (family.format == format)
            return value >= family.plainFrom || value > largestWritten ? SideBySide(value, family)
                                                                       : WrittenOut(value, family);
    }
    return {};
}

bool HasOwnSigns(int format)
{
    return !NumberFromSigns(1, format).isEmpty() || !NumberFromNumerals(1, format).isEmpty();
}

QString NumberInEnglish(int value, int format)
{
    constexpr int largestWritten = 999999;
    if (value < 1 || value > largestWritten)
        return {};
    switch (format) {
    case 5:
        return Suffixed(value);
    case 6:
        return Cardinal(value);
    case 7:
        return Ordinal(Cardinal(value));
    default:
        return {};
    }
}

} // namespace torvik::rtf
