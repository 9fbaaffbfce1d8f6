#include "rtf/fields/calculation.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class CalculationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_calculation_gives_its_result_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("result");
        QTest::newRow("a number") << u" 12 "_s << u"12"_s;
        QTest::newRow("products first") << u"1 + 2 * 3"_s << u"7"_s;
        QTest::newRow("from the left") << u"10 - 4 - 3"_s << u"3"_s;
        QTest::newRow("brackets first") << u"(1+2)*3"_s << u"9"_s;
        QTest::newRow("a power") << u"2 * 2^10"_s << u"2048"_s;
        QTest::newRow("a fraction") << u"10/4"_s << u"2.5"_s;
        QTest::newRow("two decimals at most") << u"2/3"_s << u"0.67"_s;
        QTest::newRow("a sign") << u"-3 - -2"_s << u"-1"_s;
        QTest::newRow("no nought with a sign") << u"0 * -1"_s << u"0"_s;
        QTest::newRow("decimals") << u"1.5 + .25"_s << u"1.75"_s;
    }
    void a_calculation_gives_its_result()
    {
        QFETCH(QString, formula);
        QFETCH(QString, result);
        QCOMPARE(CalculationText(formula, {}), result);
    }

    void a_picture_tells_decimals_and_thousands_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("result");
        QTest::newRow("whole") << u"0"_s << u"1235"_s;
        QTest::newRow("decimals") << u"0.00"_s << u"1234.50"_s;
        QTest::newRow("thousands") << u"#,##0.0"_s << u"1,234.5"_s;
        QTest::newRow("one of other signs") << u"$0;(0)"_s << u"1234.5"_s;
        QTest::newRow("a great many decimals") << u"0." + QString(5000, u'0') << u"1234.5000000000"_s;
    }
    void a_picture_tells_decimals_and_thousands()
    {
        QFETCH(QString, picture);
        QFETCH(QString, result);
        QCOMPARE(CalculationText(u"1234.5"_s, picture), result);
    }

    void a_number_that_is_told_as_nought_has_no_sign()
    {
        QCOMPARE(CalculationText(u"0 - 0.4"_s, u"0"_s), u"0"_s);
        QCOMPARE(CalculationText(u"0 - 0.004"_s, u"0.00"_s), u"0.00"_s);
        QCOMPARE(CalculationText(u"0 - 0.004"_s, {}), u"0"_s);
        QCOMPARE(CalculationText(u"0 - 0.01"_s, u"0.00"_s), u"-0.01"_s);
    }

    void what_cannot_be_worked_out_gives_nothing_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::newRow("nothing") << QString();
        QTest::newRow("cells") << u"A1 + 2"_s;
        QTest::newRow("a function") << u"SUM(ABOVE)"_s;
        QTest::newRow("a division by nought") << u"1 / 0"_s;
        QTest::newRow("nought by nought") << u"0 / 0"_s;
        QTest::newRow("a sign too many") << u"1 + * 2"_s;
        QTest::newRow("a sign at the end") << u"1 +"_s;
        QTest::newRow("an open bracket") << u"(1 + 2"_s;
        QTest::newRow("a closed bracket") << u"1 + 2)"_s;
        QTest::newRow("two numbers") << u"1 2"_s;
        QTest::newRow("two points") << u"1.2.3"_s;
        QTest::newRow("thousands, which are not told from pairs") << u"1,000"_s;
        QTest::newRow("too large") << u"9^9^9^9"_s;
        QTest::newRow("a number that is too large") << QString(400, u'9');
        QTest::newRow("a root of a negative number") << u"(-1)^0.5"_s;
        QTest::newRow("brackets without an end") << QString(100'000, u'(');
        QTest::newRow("brackets too deep") << QString(100, u'(') + u'1' + QString(100, u')');
    }
    void what_cannot_be_worked_out_gives_nothing()
    {
        QFETCH(QString, formula);
        QCOMPARE(CalculationText(formula, {}), QString());
    }
};

TORVIK_GUILESS_TEST(CalculationTest)
#include "calculation_test.moc"
