#include "rtf/model/list_mark.h"

#include "rtf/model/list_table.h"
#include "rtf/model/number_words.h"
#include "rtf/model/paragraph_state.h"

#include <algorithm>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

using Style = QTextListFormat::Style;

constexpr int largestRoman = 3999;

struct Numeral {
    int value;
    const char* letters;
};

constexpr Numeral numerals[] = {{1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"},
                                {90, "xc"},  {50, "l"},   {40, "xl"}, {10, "x"},   {9, "ix"},
                                {5, "v"},    {4, "iv"},   {1, "i"}};

QString Roman(int value)
{
    QString text;
    for (const Numeral& numeral : numerals) {
        while (value >= numeral.value) {
            text += QLatin1StringView(numeral.letters);
            value -= numeral.value;
        }
    }
    return text;
}

/// a to z, then aa, bb and so on, as the word processors write them; after 30 letters from the beginning
/// again.
QString Letters(int value)
{
    constexpr int inAlphabet = 26;
    constexpr int mostLetters = 30;
    const int place = (value - 1) % (inAlphabet * mostLetters);
    return QString(place / inAlphabet + 1, QChar(u'a' + place % inAlphabet));
}

/// 0 when the text is no roman number.
int FromRoman(const QString& lower)
{
    int value = 0;
    qsizetype at = 0;
    for (const Numeral& numeral : numerals) {
        const QLatin1StringView letters(numeral.letters);
        while (QStringView(lower).sliced(at).startsWith(letters)) {
            value += numeral.value;
            at += letters.size();
        }
    }
    return at == lower.size() && value <= largestRoman && Roman(value) == lower ? value : 0;
}

/// a, b, ... z, aa, ab: 0 when the text is anything else.
int FromLetters(const QString& lower)
{
    int value = 0;
    if (lower.size() > 3)
        return 0;
    for (const QChar c : lower) {
        if (c < u'a' || c > u'z')
            return 0;
        value = value * 26 + (c.unicode() - u'a' + 1);
    }
    return value;
}

Style BulletStyle(QChar glyph)
{
    switch (glyph.unicode()) {
    case u'o':
    case u'○':
    case u'◦':
    case u'❍':
    case 0xf06f:
        return QTextListFormat::ListCircle;
    case u'■':
    case u'▪':
    case u'□':
    case u'◻':
    case u'❑':
    case u'❒':
    case u'§':
    case 0xf0a7:
    case 0xf06e:
        return QTextListFormat::ListSquare;
    default:
        return QTextListFormat::ListDisc;
    }
}

bool IsBulletGlyph(QChar glyph)
{
    static const QString known = u"o○◦❍■▪□◻❑❒§•·●◆❖➢✓★→➔-–—*\uf0b7\uf0a7\uf06c\uf06e\uf06f\uf0d8"_s;
    return known.contains(glyph);
}

bool IsCore(QChar c)
{
    return c.isDigit() || (c.unicode() < 128 && c.isLetter());
}

/// Reads number and style from the middle of a mark; 0 when it has none that a list can show.
int ReadNumber(const QString& core, int format, Style& style)
{
    bool isNumber = false;
    const int decimal = core.toInt(&isNumber);
    if (isNumber) {
        style = QTextListFormat::ListDecimal;
        return decimal;
    }
    const bool isUpper = core == core.toUpper();
    const QString lower = core.toLower();
    if (!isUpper && core != lower)
        return 0;
    const int roman = FromRoman(lower);
    const int letters = FromLetters(lower);
    // A lone letter is a letter, but "i" starts far more lists as a roman one.
    const bool guessRoman = roman > 0 && (core.size() > 1 || lower == QLatin1StringView("i"));
    const bool wantsRoman = format == 1 || format == 2 || (format != 3 && format != 4 && guessRoman);
    if (wantsRoman && roman > 0) {
        style = isUpper ? QTextListFormat::ListUpperRoman : QTextListFormat::ListLowerRoman;
        return roman;
    }
    style = isUpper ? QTextListFormat::ListUpperAlpha : QTextListFormat::ListLowerAlpha;
    return letters;
}

/// Whether a list of Qt's shows a number format by itself.
bool IsOfLists(int format)
{
    return format >= 0 && format <= 4;
}

ListMark LiteralMark(const QString& written)
{
    ListMark mark;
    if (!written.isEmpty()) {
        mark.kind = ListMark::Kind::Literal;
        mark.literal = written;
    }
    return mark;
}

} // namespace

QTextListFormat::Style StyleOfNumberFormat(int format)
{
    switch (format) {
    case 1:
        return QTextListFormat::ListUpperRoman;
    case 2:
        return QTextListFormat::ListLowerRoman;
    case 3:
        return QTextListFormat::ListUpperAlpha;
    case 4:
        return QTextListFormat::ListLowerAlpha;
    default:
        return QTextListFormat::ListDecimal;
    }
}

QString NumberInStyle(int value, QTextListFormat::Style style)
{
    QString text;
    switch (style) {
    case QTextListFormat::ListLowerRoman:
    case QTextListFormat::ListUpperRoman:
        text = value > 0 && value <= largestRoman ? Roman(value) : QString::number(value);
        break;
    case QTextListFormat::ListLowerAlpha:
    case QTextListFormat::ListUpperAlpha:
        if (value <= 0)
            return QString::number(value);
        text = Letters(value);
        break;
    default:
        return QString::number(value);
    }
    const bool isUpper = style == QTextListFormat::ListUpperRoman || style == QTextListFormat::ListUpperAlpha;
    return isUpper ? text.toUpper() : text;
}

ListMark MarkFromText(const QString& written, int format)
{
    const QString text = written.trimmed();
    if (text.isEmpty())
        return {};
    ListMark mark;
    if (format == ListTable::bulletFormat || (text.size() == 1 && format < 0 && IsBulletGlyph(text.at(0)))) {
        mark.kind = ListMark::Kind::Bullet;
        mark.style = BulletStyle(text.at(0));
        return mark;
    }
    const auto first = std::find_if(text.begin(), text.end(), IsCore);
    const auto last = std::find_if_not(first, text.end(), IsCore);
    if (first == text.end() || std::any_of(last, text.end(), IsCore))
        return LiteralMark(text);
    const QString core(first, last - first);
    mark.value = ReadNumber(core, format, mark.style);
    if (mark.value <= 0)
        return LiteralMark(text);
    mark.kind = ListMark::Kind::Number;
    mark.before = QString(text.begin(), first - text.begin());
    mark.after = QString(last, text.end() - last);
    mark.literal = text;
    return mark;
}

ListMark MarkFromLevel(const ListLevel& level, const LevelNumber* numbers, int count)
{
    if (level.format == ListTable::noFormat || count <= 0)
        return {};
    // The first character only tells how many follow.
    const QString pattern = level.text.mid(1);
    QString written;
    int places = 0;
    for (const QChar c : pattern) {
        const int place = c.unicode();
        if (place < ListTable::maxLevels) {
            if (place < count)
                written += NumberInFormat(numbers[place].value, level.isLegal ? 0 : numbers[place].format);
            ++places;
        } else if (c != u';') {
            written += c;
        }
    }
    if (level.format == ListTable::bulletFormat)
        return MarkFromText(written.isEmpty() ? u"•"_s : written, ListTable::bulletFormat);
    if (places == 0 && written.isEmpty())
        written = NumberInFormat(numbers[count - 1].value, level.format) + u'.';
    return IsOfLists(level.format) ? MarkFromText(written, level.format) : LiteralMark(written.trimmed());
}

ListMark MarkFromNumbering(const ParagraphNumbering& numbering, int value)
{
    if (!numbering.HasMark())
        return {};
    if (numbering.kind == ParagraphNumbering::Kind::Bullet)
        return MarkFromText(numbering.before.isEmpty() ? u"•"_s : numbering.before, ListTable::bulletFormat);
    const QString written = numbering.before + NumberInFormat(value, numbering.format) + numbering.after;
    return IsOfLists(numbering.format) ? MarkFromText(written, numbering.format)
                                       : LiteralMark(written.trimmed());
}

} // namespace torvik::rtf
