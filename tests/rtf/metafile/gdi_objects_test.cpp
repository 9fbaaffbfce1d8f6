#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// Objects of drawings, by the numbers that both kinds of metafile give them.
class GdiObjectsTest : public QObject {
    Q_OBJECT

    static QByteArray AnyFont()
    {
        return WmfRecord(0x02fb, Bytes().Words({-20, 0, 0, 0, 400}).Raw(QByteArray(40, '\0')).Data());
    }
    /// The colour of a square that is drawn by records.
    static QColor SquareOfWmf(const QByteArray& records)
    {
        return DrawnWmf(WmfFilled(inRed) + records + WmfRectangle(10, 10, 90, 90)).pixelColor(50, 50);
    }
    static QColor SquareOfEmf(const QByteArray& records)
    {
        return DrawnEmf(EmfFilled(inRed) + records + EmfRectangle(10, 10, 90, 90)).pixelColor(50, 50);
    }

private Q_SLOTS:
    void objects_of_every_kind_take_a_number_data()
    {
        QTest::addColumn<QByteArray>("object");
        QTest::newRow("a pen") << WmfPen(0, 1, 0);
        QTest::newRow("a brush") << WmfBrush(0, inGreen);
        QTest::newRow("a font") << AnyFont();
        QTest::newRow("a palette") << WmfWords(0x00f7, {0x300, 1, 0, 0});
        QTest::newRow("a region") << WmfWords(0x06ff, {0, 6, 0, 0, 0, 0, 0, 10, 10, 0});
        QTest::newRow("a brush of a bitmap") << WmfWords(0x0142, {3, 0});
        QTest::newRow("a brush of an old bitmap") << WmfWords(0x01f9, {0, 8, 8, 2, 257});
    }
    void objects_of_every_kind_take_a_number()
    {
        QFETCH(const QByteArray, object);
        QCOMPARE(SquareOfWmf(object + WmfBrush(0, inBlue) + WmfSelect(3)), QColor(Qt::blue));
    }

    void a_deleted_number_is_the_next_one_to_be_given()
    {
        QCOMPARE(SquareOfWmf(WmfPen(0, 1, 0) + WmfPen(0, 1, 0) + WmfDelete(2) + WmfBrush(0, inBlue) +
                             WmfSelect(2)),
                 QColor(Qt::blue));
        // The lowest of several.
        QCOMPARE(SquareOfWmf(WmfBrush(0, inGreen) + WmfDelete(2) + WmfDelete(0) + WmfBrush(0, inBlue) +
                             WmfSelect(0)),
                 QColor(Qt::blue));
    }

    void a_deleted_object_goes_on_being_drawn_with()
    {
        QCOMPARE(SquareOfWmf(WmfDelete(1)), QColor(Qt::red));
        QCOMPARE(SquareOfEmf(EmfDelete(1)), QColor(Qt::red));
    }

    void an_object_that_is_not_there_is_not_selected_data()
    {
        QTest::addColumn<qint64>("number");
        QTest::newRow("never made") << 2LL;
        QTest::newRow("far out") << 0xffffLL;
        QTest::newRow("deleted") << 3LL;
    }
    void an_object_that_is_not_there_is_not_selected()
    {
        QFETCH(const qint64, number);
        QCOMPARE(SquareOfWmf(WmfWords(0x00f7, {0}) + WmfBrush(0, inBlue) + WmfDelete(3) +
                             WmfSelect(static_cast<int>(number))),
                 QColor(Qt::red));
        QCOMPARE(SquareOfEmf(EmfBrush(3, 0, inBlue) + EmfDelete(3) + EmfSelect(number)), QColor(Qt::red));
    }

    void an_enhanced_metafile_gives_its_numbers_itself()
    {
        QCOMPARE(SquareOfEmf(EmfBrush(700, 0, inBlue) + EmfBrush(5, 0, inGreen) + EmfSelect(700)),
                 QColor(Qt::blue));
        // A number that is given again means the new object.
        QCOMPARE(SquareOfEmf(EmfBrush(5, 0, inGreen) + EmfBrush(5, 0, inBlue) + EmfSelect(5)),
                 QColor(Qt::blue));
    }

    void a_number_beyond_all_bounds_takes_no_memory()
    {
        QCOMPARE(SquareOfEmf(EmfBrush(0x7fffffff, 0, inBlue) + EmfSelect(0x7fffffff)), QColor(Qt::red));
    }

    void brushes_that_need_not_be_made_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QColor>("color");
        QTest::newRow("white") << 0 << QColor(Qt::white);
        QTest::newRow("light gray") << 1 << QColor(192, 192, 192);
        QTest::newRow("gray") << 2 << QColor(128, 128, 128);
        QTest::newRow("dark gray") << 3 << QColor(64, 64, 64);
        QTest::newRow("black") << 4 << QColor(Qt::black);
        QTest::newRow("none") << 5 << QColor(0, 0, 0, 0);
        QTest::newRow("a font, which is no brush") << 13 << QColor(Qt::red);
        QTest::newRow("a palette") << 15 << QColor(Qt::red);
        QTest::newRow("a number that nobody knows") << 200 << QColor(Qt::red);
    }
    void brushes_that_need_not_be_made()
    {
        QFETCH(const int, number);
        QFETCH(const QColor, color);
        // Something else is drawn in any case.
        const QByteArray corner = EmfRectangle(0, 0, 5, 5);
        QCOMPARE(SquareOfEmf(corner + EmfSelect(stockObject + number)), color);
    }

    void pens_that_need_not_be_made()
    {
        const auto outline = [](int pen) {
            return DrawnEmf(EmfBrush(1, 0, inRed) + EmfSelect(1) + EmfSelect(stockObject + pen) +
                            EmfRectangle(10, 10, 90, 90));
        };
        // They are one unit wide, and half of that lies outside.
        QCOMPARE(InkOf(outline(6)), QRect(9, 9, 82, 82));
        QVERIFY(outline(6).pixelColor(10, 50).green() > 100); // white and red
        QCOMPARE(InkOf(outline(7)), QRect(9, 9, 82, 82));
        QVERIFY(outline(7).pixelColor(10, 50).red() < 155); // black and red
        QCOMPARE(InkOf(outline(8)), QRect(10, 10, 80, 80));
        QCOMPARE(outline(8).pixelColor(10, 50), QColor(Qt::red));
    }
};

TORVIK_TEST(GdiObjectsTest)
#include "gdi_objects_test.moc"
