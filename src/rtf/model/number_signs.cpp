#include "rtf/model/number_signs.h"

// Formats that count along a row of signs.

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

/// What happens behind the last sign of a row.
enum class AtEnd : quint8 { Decimal, Again, Doubled };

struct SignRow {
    int format;
    const char16_t* signs;
    AtEnd atEnd;
};

constexpr SignRow rows[] = {
    {12, u"ｱｲｳｴｵｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾅﾆﾇﾈﾉﾊﾋﾌﾍﾎﾏﾐﾑﾒﾓﾔﾕﾖﾗﾘﾙﾚﾛﾜｦﾝ", AtEnd::Again},
    {13, u"ｲﾛﾊﾆﾎﾍﾄﾁﾘﾇﾙｦﾜｶﾖﾀﾚｿﾂﾈﾅﾗﾑｳヰﾉｵｸﾔﾏｹﾌｺｴﾃｱｻｷﾕﾒﾐｼヱﾋﾓｾｽﾝ", AtEnd::Again},
    {18, u"①②③④⑤⑥⑦⑧⑨⑩⑪⑫⑬⑭⑮⑯⑰⑱⑲⑳", AtEnd::Decimal},
    {20, u"アイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモヤユヨラリルレロワヲン",
     AtEnd::Again},
    {21, u"イロハニホヘトチリヌルヲワカヨタレソツネナラムウヰノオクヤマケフコエテアサキユメミシヱヒモセスン",
     AtEnd::Again},
    {24, u"가나다라마바사아자차카타파하", AtEnd::Again},
    {25, u"ㄱㄴㄷㄹㅁㅂㅅㅇㅈㅊㅋㅌㅍㅎ", AtEnd::Again},
    {26, u"⒈⒉⒊⒋⒌⒍⒎⒏⒐⒑⒒⒓⒔⒕⒖⒗⒘⒙⒚⒛", AtEnd::Decimal},
    {27, u"⑴⑵⑶⑷⑸⑹⑺⑻⑼⑽⑾⑿⒀⒁⒂⒃⒄⒅⒆⒇", AtEnd::Decimal},
    {28, u"①②③④⑤⑥⑦⑧⑨⑩", AtEnd::Decimal},
    {29, u"㈠㈡㈢㈣㈤㈥㈦㈧㈨㈩", AtEnd::Decimal},
    {30, u"甲乙丙丁戊己庚辛壬癸", AtEnd::Decimal},
    {31, u"子丑寅卯辰巳午未申酉戌亥", AtEnd::Decimal},
    {58, u"абвгдежзиклмнопрстуфхцчшщыэюя", AtEnd::Doubled},
    {59, u"АБВГДЕЖЗИКЛМНОПРСТУФХЦЧШЩЫЭЮЯ", AtEnd::Doubled},
};

/// The ten stems and the twelve branches side by side give sixty pairs.
QString StemAndBranch(int value)
{
    const QString stems = QString::fromUtf16(u"甲乙丙丁戊己庚辛壬癸");
    const QString branches = QString::fromUtf16(u"子丑寅卯辰巳午未申酉戌亥");
    const int place = value - 1;
    return QString(stems.at(place % 10)) + branches.at(place % 12);
}

} // namespace

QString NumberFromSigns(int value, int format)
{
    constexpr int formatOfPairs = 32;
    if (value < 1)
        return {};
    if (format == formatOfPairs)
        return StemAndBranch(value);
    for (const SignRow& row : rows) {
        if (row.format != format)
            continue;
        const QString signs = QString::fromUtf16(row.signs);
        const qsizetype place = (value - 1) % signs.size();
        const qsizetype round = (value - 1) / signs.size();
        if (round > 0 && row.atEnd == AtEnd::Decimal)
            return {};
        constexpr qsizetype mostRepeats = 8;
        return QString(row.atEnd == AtEnd::Doubled ? qMin(round + 1, mostRepeats) : 1, signs.at(place));
    }
    return {};
}

} // namespace torvik::rtf
