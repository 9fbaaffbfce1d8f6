#include "rtf/model/color_table.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class ColorTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_entry_without_values_is_automatic()
    {
        ColorTable colors;
        colors.EndEntry();
        colors.SetRed(10);
        colors.EndEntry();
        QVERIFY(!colors.At(0).isValid());
        QCOMPARE(colors.At(1), QColor(10, 0, 0));
    }

    void black_is_a_colour_and_not_automatic()
    {
        ColorTable colors;
        colors.SetRed(0);
        colors.EndEntry();
        QCOMPARE(colors.At(0), QColor(0, 0, 0));
    }

    void values_out_of_range_are_brought_in()
    {
        ColorTable colors;
        colors.SetGreen(999);
        colors.SetBlue(-3);
        colors.EndEntry();
        QCOMPARE(colors.At(0), QColor(0, 255, 0));
    }

    void numbers_outside_the_table_are_no_colour()
    {
        const ColorTable colors;
        QVERIFY(!colors.At(-1).isValid());
        QVERIFY(!colors.At(7).isValid());
    }

    void a_pattern_mixes_front_and_back()
    {
        QCOMPARE(ShadedColor(Qt::black, Qt::white, 5000), QColor(127, 127, 127));
        QCOMPARE(ShadedColor({}, {}, 2500), QColor(191, 191, 191));
        QVERIFY(!ShadedColor(Qt::red, {}, 0).isValid());
        QCOMPARE(ShadedColor({}, Qt::yellow, 0), QColor(Qt::yellow));
    }
};

TORVIK_GUILESS_TEST(ColorTableTest)
#include "color_table_test.moc"
