#include "rtf/fields/equation.h"
#include "support/test_class.h"

#include <QObject>
#include <QTest>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class EquationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formulas_become_lines_of_text_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("text");
        const auto row = [](const QString& formula, const QString& text) {
            QTest::newRow(qPrintable(formula)) << formula << text;
        };
        row(u"\\f(1,2)"_s, u"1/2"_s);
        row(u"\\f(a + b;2)"_s, u"(a + b)/2"_s);
        row(u"x \\f(\\f(1,2),3)"_s, u"x (1/2)/3"_s);
        row(u"\\r(3,x)"_s, u"3√(x)"_s);
        row(u"\\r(x + 1)"_s, u"√(x + 1)"_s);
        row(u"H\\s\\do4(2)O"_s, u"H₂O"_s);
        row(u"x\\s\\up8(2)"_s, u"x²"_s);
        row(u"\\o\\ad(\\s\\up 9(かん),漢)"_s, u"漢(かん)"_s);
        row(u"\\* jc0 \\* \"Font:A,b\" \\* hps10 \\o(\\s\\up 9(よみ),字)"_s, u"字(よみ)"_s);
        row(u"\\o(O,/)"_s, u"O/"_s);
        row(u"\\b\\bc\\[(1,2)"_s, u"[1, 2]"_s);
        row(u"\\b(\\a\\al\\co2(1,2,3,4))"_s, u"(1, 2, 3, 4)"_s);
        row(u"\\i\\su(1,5,3)"_s, u"∑_1^5 3"_s);
        row(u"\\x(boxed)"_s, u"boxed"_s);
        row(u"\\l(A,B)"_s, u"A, B"_s);
        row(u"f(x) = 1\\,5"_s, u"f(x) = 1,5"_s);
        row(u"a, b"_s, u"a, b"_s);
    }
    void formulas_become_lines_of_text()
    {
        QFETCH(QString, formula);
        QFETCH(QString, text);
        QCOMPARE(EquationText(formula), text);
    }

    void broken_formulas_end_well()
    {
        for (const QString& piece : {u"\\f("_s, u"("_s, u"\\"_s, u")"_s, u"\\o\\ad(\\s\\up"_s, u"\\* \""_s,
                                     u"\\r("_s, u"\\b\\lc\\"_s, u"\\i("_s}) {
            for (const int times : {1, 2, 50, 1000})
                QVERIFY(EquationText(piece.repeated(times)).size() <= piece.size() * times * 8);
        }
    }
};

TORVIK_GUILESS_TEST(EquationTest)
#include "equation_test.moc"
