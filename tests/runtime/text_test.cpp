#include "runtime/text.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace torvik;

class TextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mid_counts_from_one()
    {
        QCOMPARE(Mid(u"abcdef"_s, 1, 2), u"ab"_s);
        QCOMPARE(Mid(u"abcdef"_s, 3, 2), u"cd"_s);
        QCOMPARE(Mid(u"abcdef"_s, 5), u"ef"_s);
    }

    void mid_of_a_shorter_text_is_what_there_is()
    {
        QCOMPARE(Mid(u"abc"_s, 2, 99), u"bc"_s);
        QCOMPARE(Mid(u"abc"_s, 4, 1), QString());
        QCOMPARE(Mid(u"abc"_s, 4), QString());
        QCOMPARE(Mid(u"abc"_s, 99), QString());
        QCOMPARE(Mid(QString(), 1, 1), QString());
        QCOMPARE(Mid(u"abc"_s, std::numeric_limits<int>::max(), std::numeric_limits<int>::max()), QString());
        QCOMPARE(Mid(u"abc"_s, 2, 0), QString());
    }

    void impossible_positions_and_lengths_are_failures()
    {
        QCOMPARE(FailureOf([] { Mid(u"abc"_s, 0, 1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Mid(u"abc"_s, 1, -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Mid(u"abc"_s, 0); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Left(u"abc"_s, -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Right(u"abc"_s, -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { InStr(u"abc"_s, u"a"_s, 0); }), failure::invalidCall);
    }

    void left_and_right_cut_at_the_ends()
    {
        QCOMPARE(Left(u"abc"_s, 2), u"ab"_s);
        QCOMPARE(Left(u"abc"_s, 0), QString());
        QCOMPARE(Left(u"abc"_s, 9), u"abc"_s);
        QCOMPARE(Right(u"abc"_s, 2), u"bc"_s);
        QCOMPARE(Right(u"abc"_s, 0), QString());
        QCOMPARE(Right(u"abc"_s, 9), u"abc"_s);
    }

    void in_str_gives_the_position_from_one_and_zero_for_nothing()
    {
        const QString path = u"E:\\Torviks\\67A.JPG"_s;
        QCOMPARE(InStr(path, u"\\Torviks\\"_s), 3);
        QCOMPARE(InStr(path, u"E"_s), 1);
        QCOMPARE(InStr(path, u"\\torviks\\"_s), 0);
        QCOMPARE(InStr(path, u"\\"_s, 4), 11);
        QCOMPARE(InStr(path, u"E"_s, 2), 0);
        QCOMPARE(InStr(path, u"E"_s, 999), 0);
    }

    void in_str_of_empty_texts()
    {
        QCOMPARE(InStr(QString(), u"a"_s), 0);
        QCOMPARE(InStr(QString(), QString()), 0);
        QCOMPARE(InStr(u"abc"_s, QString()), 1);
        QCOMPARE(InStr(u"abc"_s, QString(), 2), 2);
        QCOMPARE(InStr(u"abc"_s, QString(), 4), 0);
    }

    void what_reads_as_a_number_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const std::pair<const char*, double> rows[] = {
            {"67", 67},
            {" 3.5 ", 3.5},
            {"-1", -1},
            {"+2", 2},
            {".5", 0.5},
            {"5.", 5},
            {"1e3", 1000},
            {"1D3", 1000},
            {"1E-2", 0.01},
            {"\t12\t", 12},
            {"00012", 12},
            {"1e-999", 0},
            {"0.1e-999999999999999999999", 0},
            {"0e999999999999999999999", 0},
        };
        for (const auto& [text, value] : rows)
            QTest::addRow("'%s'", text) << QString::fromLatin1(text) << value;
    }
    void what_reads_as_a_number()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QVERIFY(IsNumeric(text));
        QCOMPARE(ToNumber(text), value);
        QCOMPARE(Val(text), value);
    }

    void what_reads_as_no_number_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"",   " ",   "M1",    "1x",  "1 2", "-",    ".",   "+.",    "1e",     "1e+",
              "e5", "--1", "1.2.3", "nan", "inf", "0x10", "1,5", "1e999", "\u00b2", "\u0663"})
            QTest::addRow("'%s'", text) << QString::fromUtf8(text);
    }
    void what_reads_as_no_number()
    {
        QFETCH(QString, text);
        QVERIFY(!IsNumeric(text));
        QCOMPARE(FailureOf([&] { ToNumber(text); }), failure::typeMismatch);
    }

    void val_takes_the_number_that_the_text_begins_with()
    {
        QCOMPARE(Val(u"67TOR001"_s), 67.0);
        QCOMPARE(Val(u" 1 615 198th Street"_s), 1615198.0);
        QCOMPARE(Val(u"3.5.7"_s), 3.5);
        QCOMPARE(Val(u"12e"_s), 12.0);
        QCOMPARE(Val(u"-4 mm"_s), -4.0);
        QCOMPARE(Val(u"M1"_s), 0.0);
        QCOMPARE(Val(QString()), 0.0);
        QCOMPARE(Val(u"."_s), 0.0);
    }

    void val_never_fails_not_even_beyond_the_range()
    {
        QCOMPARE(Val(u"1e999"_s), std::numeric_limits<double>::max());
        QCOMPARE(Val(u"-1e999"_s), -std::numeric_limits<double>::max());
        QCOMPARE(Val(QString(100000, u'9')), std::numeric_limits<double>::max());
    }

    void the_range_is_that_of_the_value_and_not_of_its_spelling()
    {
        QCOMPARE(Val(u"0."_s + QString(400, u'0') + u"1"_s), 0.0);
        QCOMPARE(Val(u"0."_s + QString(400, u'0') + u"1e401"_s), 1.0);
        QCOMPARE(Val(QString(400, u'9') + u"e-399"_s), 10.0);
        QCOMPARE(Val(u"1e99999999999999999999"_s), std::numeric_limits<double>::max());
    }

    void number_text_is_plain_decimal_text()
    {
        QCOMPARE(NumberText(15), u"15"_s);
        QCOMPARE(NumberText(0), u"0"_s);
        QCOMPARE(NumberText(-0.0), u"0"_s);
        QCOMPARE(NumberText(-7), u"-7"_s);
        QCOMPARE(NumberText(2.5), u"2.5"_s);
        QCOMPARE(NumberText(0.5), u"0.5"_s);
        QCOMPARE(NumberText(0.1 + 0.2), u"0.3"_s);
        QCOMPARE(NumberText(100000), u"100000"_s);
        QCOMPARE(NumberText(4294967296.0), u"4294967296"_s);
    }

    void number_text_reads_back()
    {
        for (const double value : {0.25, -1234.5, 999999999999.0, 1e20, 1e-7})
            QCOMPARE(ToNumber(NumberText(value)), value);
    }

    void halves_are_rounded_to_the_even_neighbour()
    {
        QCOMPARE(RoundHalfEven(0.5), 0L);
        QCOMPARE(RoundHalfEven(1.5), 2L);
        QCOMPARE(RoundHalfEven(2.5), 2L);
        QCOMPARE(RoundHalfEven(-0.5), 0L);
        QCOMPARE(RoundHalfEven(-1.5), -2L);
        QCOMPARE(RoundHalfEven(-2.5), -2L);
        QCOMPARE(RoundHalfEven(0.49999999999999994), 0L);
        QCOMPARE(RoundHalfEven(2.51), 3L);
        QCOMPARE(RoundHalfEven(-2.51), -3L);
        QCOMPARE(RoundHalfEven(7), 7L);
    }

    void what_no_long_holds_is_an_overflow()
    {
        QCOMPARE(FailureOf([] { RoundHalfEven(1e30); }), failure::overflow);
        QCOMPARE(FailureOf([] { RoundHalfEven(-1e30); }), failure::overflow);
        QCOMPARE(FailureOf([] { RoundHalfEven(std::nan("")); }), failure::overflow);
        const double least = static_cast<double>(std::numeric_limits<long>::min());
        QCOMPARE(RoundHalfEven(least), std::numeric_limits<long>::min());
        QCOMPARE(FailureOf([&] { RoundHalfEven(-least); }), failure::overflow);
    }

    void str_keeps_room_for_the_sign()
    {
        QCOMPARE(Str(1024), u" 1024"_s);
        QCOMPARE(Str(0), u" 0"_s);
        QCOMPARE(Str(-5), u"-5"_s);
        QCOMPARE(Str(0.5), u" 0.5"_s);
    }
};

TORVIK_TEST(TextTest)
#include "text_test.moc"
