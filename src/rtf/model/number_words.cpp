#include "rtf/model/number_words.h"

#include "rtf/model/list_mark.h"
#include "rtf/model/number_signs.h"

namespace torvik::rtf {

namespace {

constexpr char16_t fullWidthZero = 0xff10;

QString FullWidth(int value)
{
    QString text = QString::number(value);
    for (QChar& c : text)
        c = QChar(char16_t(fullWidthZero + c.unicode() - u'0'));
    return text;
}

QString SpecialNumber(int value, int format)
{
    switch (format) {
    case 14:
    case 19:
        return FullWidth(value);
    case 22:
        return QString::number(value).rightJustified(2, u'0');
    case 57:
        return u"- " + QString::number(value) + u" -";
    case 5:
    case 6:
    case 7:
        return NumberInEnglish(value, format);
    default:
        break;
    }
    const QString signs = NumberFromSigns(value, format);
    return signs.isEmpty() ? NumberFromNumerals(value, format) : signs;
}

} // namespace

QString NumberInFormat(int value, int format)
{
    constexpr int lastOfLists = 4; // what a list of Qt's can show by itself
    if (format >= 0 && format <= lastOfLists)
        return NumberInStyle(value, StyleOfNumberFormat(format));
    const QString special = value > 0 ? SpecialNumber(value, format) : QString();
    return special.isEmpty() ? QString::number(value) : special;
}

} // namespace torvik::rtf
