#include "rtf/model/number_words.h"
#include "support/test_class.h"

#include <QObject>
#include <QTest>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class NumberWordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbers_in_every_format_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("written");
        const auto row = [](int format, int value, const QString& written) {
            QTest::addRow("%d in format %d", value, format) << format << value << written;
        };
        row(0, 12, u"12"_s);
        row(1, 14, u"XIV"_s);
        row(4, 28, u"bb"_s);
        row(5, 1, u"1st"_s);
        row(5, 12, u"12th"_s);
        row(5, 103, u"103rd"_s);
        row(6, 21, u"Twenty-one"_s);
        row(6, 1999, u"One thousand nine hundred ninety-nine"_s);
        row(7, 2, u"Second"_s);
        row(7, 20, u"Twentieth"_s);
        row(7, 45, u"Forty-fifth"_s);
        row(10, 120, u"一二〇"_s);
        row(11, 11, u"十一"_s);
        row(11, 365, u"三百六十五"_s);
        row(12, 1, u"ｱ"_s);
        row(12, 46, u"ﾝ"_s);
        row(13, 3, u"ﾊ"_s);
        row(14, 20, u"２０"_s);
        row(15, 20, u"20"_s);
        row(16, 12, u"壱拾弐"_s);
        row(17, 21, u"二一"_s);
        row(18, 20, u"⑳"_s);
        row(18, 21, u"21"_s);
        row(19, 7, u"７"_s);
        row(20, 2, u"イ"_s);
        row(20, 47, u"ア"_s);
        row(21, 4, u"ニ"_s);
        row(22, 9, u"09"_s);
        row(22, 10, u"10"_s);
        row(24, 3, u"다"_s);
        row(25, 14, u"ㅎ"_s);
        row(26, 2, u"⒉"_s);
        row(27, 20, u"⒇"_s);
        row(28, 10, u"⑩"_s);
        row(29, 10, u"㈩"_s);
        row(29, 11, u"11"_s);
        row(30, 10, u"癸"_s);
        row(31, 12, u"亥"_s);
        row(32, 1, u"甲子"_s);
        row(32, 11, u"甲戌"_s);
        row(32, 60, u"癸亥"_s);
        row(33, 10, u"十"_s);
        row(33, 99, u"九十九"_s);
        row(33, 100, u"一○○"_s);
        row(34, 105, u"壹佰零伍"_s);
        row(35, 110, u"一百一十"_s);
        row(35, 1001, u"一千零一"_s);
        row(36, 10, u"一○"_s);
        row(37, 19, u"十九"_s);
        row(38, 68, u"陆拾捌"_s);
        row(39, 10101, u"一万〇一百〇一"_s);
        row(40, 5, u"5"_s);
        row(41, 30, u"삼영"_s);
        row(42, 15, u"십오"_s);
        row(42, 120, u"백이십"_s);
        row(43, 1, u"하나"_s);
        row(43, 25, u"스물다섯"_s);
        row(43, 100, u"100"_s);
        row(44, 10, u"一零"_s);
        row(57, 3, u"- 3 -"_s);
        row(59, 2, u"Б"_s);
        row(58, 30, u"аа"_s);
    }
    void numbers_in_every_format()
    {
        QFETCH(int, format);
        QFETCH(int, value);
        QFETCH(QString, written);
        QCOMPARE(NumberInFormat(value, format), written);
    }

    void no_value_and_no_format_is_out_of_bounds()
    {
        for (int format = 0; format < 256; ++format) {
            for (const int value : {1, 9, 99, 100, 4000, 10000, 99999, 100000, 2147483647})
                QVERIFY(!NumberInFormat(value, format).isEmpty());
        }
        QCOMPARE(NumberInFormat(0, 31), u"0"_s);
        QCOMPARE(NumberInFormat(-5, 11), u"-5"_s);
    }
};

TORVIK_GUILESS_TEST(NumberWordsTest)
#include "number_words_test.moc"
