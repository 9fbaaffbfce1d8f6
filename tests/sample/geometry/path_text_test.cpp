#include "sample/artwork/pen_script.h"
#include "sample/geometry/shapes.h"
#include "support/test_class.h"

#include <stdexcept>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

class PathTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_curves_and_closing_become_a_path()
    {
        QPainterPath expected(QPointF(1, 2));
        expected.lineTo(3, 4.5);
        expected.quadTo(5, 6, 7, 8);
        expected.cubicTo(1, 1, 2, 2, -3, .5);
        expected.closeSubpath();
        QCOMPARE(PathFromText(u"M1,2 L3,4.5 Q5,6 7,8 C1,1 2,2 -3,.5 Z"_s), expected);
    }

    void points_after_a_start_are_lines_without_saying_so()
    {
        QCOMPARE(PathFromText(u"M0,0 4,0 4,4"_s), PathFromText(u"M0,0 L4,0 L4,4"_s));
    }

    void what_cannot_be_read_is_refused()
    {
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, PathFromText(u"M1"_s));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, PathFromText(u"M1,2 L3,x"_s));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, PathFromText(u"M1,2 A3,4"_s));
    }

    void a_written_word_is_as_wide_as_its_letters_and_stands_on_its_line()
    {
        Pen pen;
        pen.xHeight = 20;
        const QRectF word = WriteWord(u"Torvik"_s, pen).boundingRect();
        QVERIFY(word.width() > 70 && word.width() < 160);
        QVERIFY(word.top() < -35 && word.bottom() < 6);
        const QRectF tailed = WriteWord(u"Vollandry"_s, pen).boundingRect();
        QVERIFY(tailed.bottom() > 15);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, WriteWord(u"Zebra"_s, pen));
    }
};

TORVIK_APPLESS_TEST(PathTextTest)
#include "path_text_test.moc"
