#include "runtime/text.h"
#include "support/failure_of.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace torvik;

class TextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mid_counts_from_one()
    {
        QCOMPARE(Mid(QStringLiteral("abcdef"), 1, 2), QStringLiteral("ab"));
        QCOMPARE(Mid(QStringLiteral("abcdef"), 3, 2), QStringLiteral("cd"));
        QCOMPARE(Mid(QStringLiteral("abcdef"), 5), QStringLiteral("ef"));
    }

    void mid_of_a_shorter_text_is_what_there_is()
    {
        QCOMPARE(Mid(QStringLiteral("abc"), 2, 99), QStringLiteral("bc"));
        QCOMPARE(Mid(QStringLiteral("abc"), 4, 1), QString());
        QCOMPARE(Mid(QStringLiteral("abc"), 4), QString());
        QCOMPARE(Mid(QStringLiteral("abc"), 99), QString());
        QCOMPARE(Mid(QString(), 1, 1), QString());
        QCOMPARE(Mid(QStringLiteral("abc"), std::numeric_limits<int>::max(), std::numeric_limits<int>::max()),
                 QString());
        QCOMPARE(Mid(QStringLiteral("abc"), 2, 0), QString());
    }

    void impossible_positions_and_lengths_are_failures()
    {
        QCOMPARE(FailureOf([] { Mid(QStringLiteral("abc"), 0, 1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Mid(QStringLiteral("abc"), 1, -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Mid(QStringLiteral("abc"), 0); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Left(QStringLiteral("abc"), -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { Right(QStringLiteral("abc"), -1); }), failure::invalidCall);
        QCOMPARE(FailureOf([] { InStr(QStringLiteral("abc"), QStringLiteral("a"), 0); }),
                 failure::invalidCall);
    }

    void left_and_right_cut_at_the_ends()
    {
        QCOMPARE(Left(QStringLiteral("abc"), 2), QStringLiteral("ab"));
        QCOMPARE(Left(QStringLiteral("abc"), 0), QString());
        QCOMPARE(Left(QStringLiteral("abc"), 9), QStringLiteral("abc"));
        QCOMPARE(Right(QStringLiteral("abc"), 2), QStringLiteral("bc"));
        QCOMPARE(Right(QStringLiteral("abc"), 0), QString());
        QCOMPARE(Right(QStringLiteral("abc"), 9), QStringLiteral("abc"));
    }

    void in_str_gives_the_position_from_one_and_zero_for_nothing()
    {
        const QString path = QStringLiteral("E:\\Torviks\\67A.JPG");
        QCOMPARE(InStr(path, QStringLiteral("\\Torviks\\")), 3);
        QCOMPARE(InStr(path, QStringLiteral("E")), 1);
        QCOMPARE(InStr(path, QStringLiteral("\\torviks\\")), 0);
        QCOMPARE(InStr(path, QStringLiteral("\\"), 4), 11);
        QCOMPARE(InStr(path, QStringLiteral("E"), 2), 0);
        QCOMPARE(InStr(path, QStringLiteral("E"), 999), 0);
    }

    void in_str_of_empty_texts()
    {
        QCOMPARE(InStr(QString(), QStringLiteral("a")), 0);
        QCOMPARE(InStr(QString(), QString()), 0);
        QCOMPARE(InStr(QStringLiteral("abc"), QString()), 1);
        QCOMPARE(InStr(QStringLiteral("abc"), QString(), 2), 2);
        QCOMPARE(InStr(QStringLiteral("abc"), QString(), 4), 0);
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
        QCOMPARE(Val(QStringLiteral("67TOR001")), 67.0);
        QCOMPARE(Val(QStringLiteral(" 1 615 198th Street")), 1615198.0);
        QCOMPARE(Val(QStringLiteral("3.5.7")), 3.5);
        QCOMPARE(Val(QStringLiteral("12e")), 12.0);
        QCOMPARE(Val(QStringLiteral("-4 mm")), -4.0);
        QCOMPARE(Val(QStringLiteral("M1")), 0.0);
        QCOMPARE(Val(QString()), 0.0);
        QCOMPARE(Val(QStringLiteral(".")), 0.0);
    }

    void val_never_fails_not_even_beyond_the_range()
    {
        QCOMPARE(Val(QStringLiteral("1e999")), std::numeric_limits<double>::max());
        QCOMPARE(Val(QStringLiteral("-1e999")), -std::numeric_limits<double>::max());
        QCOMPARE(Val(QString(100000, u'9')), std::numeric_limits<double>::max());
    }

    void the_range_is_that_of_the_value_and_not_of_its_spelling()
    {
        QCOMPARE(Val(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1")), 0.0);
        QCOMPARE(Val(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1e401")), 1.0);
        QCOMPARE(Val(QString(400, u'9') + QStringLiteral("e-399")), 10.0);
        QCOMPARE(Val(QStringLiteral("1e99999999999999999999")), std::numeric_limits<double>::max());
    }

    void number_text_is_plain_decimal_text()
    {
        QCOMPARE(NumberText(15), QStringLiteral("15"));
        QCOMPARE(NumberText(0), QStringLiteral("0"));
        QCOMPARE(NumberText(-0.0), QStringLiteral("0"));
        QCOMPARE(NumberText(-7), QStringLiteral("-7"));
        QCOMPARE(NumberText(2.5), QStringLiteral("2.5"));
        QCOMPARE(NumberText(0.5), QStringLiteral("0.5"));
        QCOMPARE(NumberText(0.1 + 0.2), QStringLiteral("0.3"));
        QCOMPARE(NumberText(100000), QStringLiteral("100000"));
        QCOMPARE(NumberText(4294967296.0), QStringLiteral("4294967296"));
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
        QCOMPARE(Str(1024), QStringLiteral(" 1024"));
        QCOMPARE(Str(0), QStringLiteral(" 0"));
        QCOMPARE(Str(-5), QStringLiteral("-5"));
        QCOMPARE(Str(0.5), QStringLiteral(" 0.5"));
    }
};

QTEST_MAIN(TextTest)
#include "text_test.moc"
