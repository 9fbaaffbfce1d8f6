#include "rtf/fields/date_picture.h"

#include <QLocale>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

QString Padded(int value, qsizetype digits)
{
    return QString::number(value).rightJustified(digits > 1 ? 2 : 1, u'0');
}

QString Piece(const QDateTime& time, QChar letter, qsizetype count)
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QDate date = time.date();
    const QTime clock = time.time();
    switch (letter.unicode()) {
    case u'd':
    case u'D':
        if (count > 2)
            return english.dayName(date.dayOfWeek(), count > 3 ? QLocale::LongFormat : QLocale::ShortFormat);
        return Padded(date.day(), count);
    case u'M':
        if (count > 2)
            return english.monthName(date.month(), count > 3 ? QLocale::LongFormat : QLocale::ShortFormat);
        return Padded(date.month(), count);
    case u'y':
    case u'Y':
        return count > 2 ? QString::number(date.year()) : Padded(date.year() % 100, 2);
    case u'H':
        return Padded(clock.hour(), count);
    case u'h':
        return Padded((clock.hour() + 11) % 12 + 1, count);
    case u'm':
        return Padded(clock.minute(), count);
    case u's':
    case u'S':
        return Padded(clock.second(), count);
    default:
        return QString(count, letter);
    }
}

} // namespace

QString DateByPicture(const QDateTime& time, const QString& picture)
{
    QString written;
    qsizetype at = 0;
    while (at < picture.size()) {
        const QChar letter = picture.at(at);
        if (letter == u'\'') {
            const qsizetype end = picture.indexOf(u'\'', at + 1);
            const qsizetype stop = end < 0 ? picture.size() : end;
            written += QStringView(picture).sliced(at + 1, stop - at - 1);
            at = stop + 1;
            continue;
        }
        if (QStringView(picture).sliced(at).startsWith(u"am/pm"_s, Qt::CaseInsensitive)) {
            const QString half = time.time().hour() < 12 ? u"AM"_s : u"PM"_s;
            written += letter == u'a' ? half.toLower() : half;
            at += 5;
            continue;
        }
        qsizetype end = at;
        while (end < picture.size() && picture.at(end) == letter)
            ++end;
        written += Piece(time, letter, end - at);
        at = end;
    }
    return written;
}

} // namespace torvik::rtf
