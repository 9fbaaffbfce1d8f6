#include "rtf/fields/date_picture.h"
#include "support/test_class.h"

#include <QObject>
#include <QTest>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class DatePictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void times_are_written_after_their_picture_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("written");
        QTest::newRow("a long date") << u"dddd, MMMM d, yyyy"_s << u"Friday, April 17, 1964"_s;
        QTest::newRow("a short date") << u"ddd dd-MMM-yy"_s << u"Fri 17-Apr-64"_s;
        QTest::newRow("numbers") << u"M/d/yyyy"_s << u"4/17/1964"_s;
        QTest::newRow("a time of day") << u"h:mm am/pm"_s << u"3:05 pm"_s;
        QTest::newRow("of 24 hours") << u"HH:mm:ss"_s << u"15:05:09"_s;
        QTest::newRow("capitals") << u"hh AM/PM"_s << u"03 PM"_s;
        QTest::newRow("words in between") << u"'day' d"_s << u"day 17"_s;
        QTest::newRow("a quote without an end") << u"d 'x"_s << u"17 x"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void times_are_written_after_their_picture()
    {
        QFETCH(QString, picture);
        QFETCH(QString, written);
        QCOMPARE(DateByPicture(QDateTime(QDate(1964, 4, 17), QTime(15, 5, 9)), picture), written);
    }

    void midnight_and_noon_are_twelve()
    {
        QCOMPARE(DateByPicture(QDateTime(QDate(2001, 1, 1), QTime(0, 0)), u"h am/pm"_s), u"12 am"_s);
        QCOMPARE(DateByPicture(QDateTime(QDate(2001, 1, 1), QTime(12, 0)), u"h am/pm"_s), u"12 pm"_s);
    }
};

TORVIK_GUILESS_TEST(DatePictureTest)
#include "date_picture_test.moc"
