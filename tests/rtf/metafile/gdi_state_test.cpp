#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// How pens and brushes draw, which both kinds of metafile describe by the same numbers.
class GdiStateTest : public QObject {
    Q_OBJECT

    /// A line across the middle from 20 to 80.
    static QImage LineOf(int style, int width = 8)
    {
        return DrawnWmf(WmfPen(style, width, inRed) + WmfSelect(0) + WmfWords(0x0214, {50, 20}) +
                        WmfWords(0x0213, {50, 80}));
    }
    /// How often the middle of a line changes between painted and bare.
    static int ChangesAlong(const QImage& image)
    {
        int changes = 0;
        for (int x = 1; x < image.width(); ++x) {
            const bool isPainted = image.pixelColor(x, 50).alpha() > 127;
            changes += isPainted != (image.pixelColor(x - 1, 50).alpha() > 127) ? 1 : 0;
        }
        return changes;
    }
    static QImage Hatched(int hatch, const QByteArray& before = WmfWords(0x0102, {1}))
    {
        return DrawnWmf(before + WmfPen(5, 0, 0) + WmfBrush(2, inRed, hatch) + WmfSelect(0) + WmfSelect(1) +
                        WmfRectangle(0, 0, 100, 100));
    }
    /// Whether the hatch has a line that runs through pixels by this step.
    static bool HasLine(const QImage& image, const QPoint& step)
    {
        for (int start = 0; start < 16; ++start) {
            QPoint at = step.x() == 0 ? QPoint(40 + start, 40) : QPoint(40, 40 + start);
            int painted = 0;
            for (int i = 0; i < 20; ++i, at += step)
                painted += image.pixelColor(at) == QColor(Qt::red) ? 1 : 0;
            if (painted == 20)
                return true;
        }
        return false;
    }

private Q_SLOTS:
    void pens_are_solid_dashed_dotted_or_nothing()
    {
        QCOMPARE(ChangesAlong(LineOf(0)), 2);
        QVERIFY(ChangesAlong(LineOf(1)) > 2);
        QVERIFY(ChangesAlong(LineOf(2)) > ChangesAlong(LineOf(1)));
        QVERIFY(ChangesAlong(LineOf(3, 2)) > 2);
        QVERIFY(ChangesAlong(LineOf(4, 2)) > 2);
        QVERIFY(LineOf(3, 2) != LineOf(4, 2));
        QCOMPARE(ChangesAlong(LineOf(6)), 2);
        QCOMPARE(InkOf(DrawnWmf(WmfFilled(inRed) + WmfRectangle(10, 10, 20, 20))), QRect(10, 10, 10, 10));
        // A style that nobody knows is a solid line.
        QCOMPARE(ChangesAlong(LineOf(12)), 2);
    }

    void a_pen_of_no_width_and_one_of_negative_width_are_seen()
    {
        const auto line = [](int width) {
            return InkOf(DrawnWmf(WmfPen(0x200, width, inRed) + WmfSelect(0) + WmfWords(0x0214, {50, 20}) +
                                  WmfWords(0x0213, {50, 80})));
        };
        QCOMPARE(line(0), QRect(20, 49, 60, 2)); // one pixel, half of it above
        QCOMPARE(line(-8), QRect(20, 46, 60, 8));
    }

    void the_ends_of_lines_are_round_square_or_flat()
    {
        const QImage round = LineOf(0);
        QCOMPARE(InkOf(round), QRect(16, 46, 68, 8));
        QCOMPARE(NotBare(round, {{16, 46}, {83, 53}}), QString());
        const QImage square = LineOf(0x100);
        QCOMPARE(ExtentOf(square, Qt::red), QRect(16, 46, 68, 8));
        QCOMPARE(NotPainted(square, {{16, 46}, {83, 53}}, Qt::red), QString());
        QCOMPARE(ExtentOf(LineOf(0x200), Qt::red), QRect(20, 46, 60, 8));
        QCOMPARE(InkOf(LineOf(0x200)), QRect(20, 46, 60, 8));
    }

    void the_corners_of_lines_are_round_cut_off_or_sharp()
    {
        const auto corner = [](int style) {
            return DrawnWmf(WmfPen(style, 20, inRed) + WmfSelect(0) +
                            WmfWords(0x0325, {3, 10, 90, 10, 10, 90, 10}));
        };
        QCOMPARE(NotPainted(corner(0), {{4, 4}}, Qt::red), QString());
        QCOMPARE(NotBare(corner(0), {{1, 1}}), QString());
        QCOMPARE(NotBare(corner(0x1000), {{1, 1}, {4, 4}}), QString());
        QCOMPARE(NotPainted(corner(0x1000), {{7, 7}}, Qt::red), QString());
        QCOMPARE(NotPainted(corner(0x2000), {{1, 1}, {4, 4}}, Qt::red), QString());
    }

    void a_hatch_has_lines_in_its_directions_data()
    {
        QTest::addColumn<int>("hatch");
        QTest::addColumn<bool>("across");
        QTest::addColumn<bool>("down");
        QTest::addColumn<bool>("falling");
        QTest::addColumn<bool>("rising");
        QTest::newRow("level") << 0 << true << false << false << false;
        QTest::newRow("upright") << 1 << false << true << false << false;
        QTest::newRow("falling to the right") << 2 << false << false << true << false;
        QTest::newRow("rising to the right") << 3 << false << false << false << true;
        QTest::newRow("level and upright") << 4 << true << true << false << false;
        QTest::newRow("falling and rising") << 5 << false << false << true << true;
    }
    void a_hatch_has_lines_in_its_directions()
    {
        QFETCH(const int, hatch);
        const QImage image = Hatched(hatch);
        QTEST(HasLine(image, {1, 0}), "across");
        QTEST(HasLine(image, {0, 1}), "down");
        QTEST(HasLine(image, {1, 1}), "falling");
        QTEST(HasLine(image, {1, -1}), "rising");
        QVERIFY(NotBare(image, {{41, 41}, {42, 41}, {43, 42}, {44, 42}, {45, 43}}) != QString() ||
                ExtentOf(image, Qt::red).width() > 90);
    }

    void between_the_lines_of_a_hatch_is_the_background_where_that_is_opaque()
    {
        const QImage clear = Hatched(0);
        QCOMPARE(ExtentOf(clear, Qt::blue), QRect());
        QVERIFY(ExtentOf(clear, QColor(0, 0, 0, 0)).height() > 90);
        const QByteArray blueBackground = WmfRecord(0x0201, Bytes().U32(inBlue).Data());
        const QImage opaque = Hatched(0, blueBackground + WmfWords(0x0102, {2}));
        QVERIFY(ExtentOf(opaque, Qt::blue).height() > 90);
        QVERIFY(ExtentOf(opaque, Qt::red).height() > 90);
        QCOMPARE(ExtentOf(opaque, QColor(0, 0, 0, 0)), QRect());
        // Until a drawing says otherwise the background is opaque and white.
        QVERIFY(ExtentOf(Hatched(0, {}), Qt::white).height() > 90);
        // What is filled whole has no background.
        const QImage hollow = DrawnWmf(blueBackground + WmfOutlined(2, inRed) + WmfRectangle(20, 20, 80, 80));
        QCOMPARE(NotBare(hollow, {{50, 50}}), QString());
    }

    void brushes_are_solid_hollow_or_something_of_both_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("hatch");
        QTest::addColumn<QColor>("color");
        QTest::newRow("solid") << 0 << 3 << QColor(Qt::red);
        QTest::newRow("hollow") << 1 << 0 << QColor(0, 0, 0, 0);
        QTest::newRow("a hatch that nobody knows") << 2 << 17 << QColor(Qt::red);
        QTest::newRow("a pattern without a bitmap") << 3 << 0 << QColor(Qt::gray);
    }
    void brushes_are_solid_hollow_or_something_of_both()
    {
        QFETCH(const int, style);
        QFETCH(const int, hatch);
        const QImage image = DrawnWmf(WmfPen(5, 0, 0) + WmfBrush(style, inRed, hatch) + WmfSelect(0) +
                                      WmfSelect(1) + WmfRectangle(10, 10, 90, 90));
        QTEST(image.pixelColor(50, 50), "color");
    }

    void an_enhanced_metafile_has_pens_and_brushes_of_the_same_numbers()
    {
        const QByteArray cross = EmfLongs(27, {20, 50}) + EmfLongs(54, {80, 50});
        QCOMPARE(DrawnEmf(EmfPen(1, 0, 8, inRed) + EmfSelect(1) + cross), LineOf(0));
        QCOMPARE(DrawnEmf(EmfPen(1, 2, 8, inRed) + EmfSelect(1) + cross), LineOf(2));
        QCOMPARE(DrawnEmf(EmfLongs(18, {1}) + EmfSelect(stockNullPen) + EmfBrush(1, 2, inRed, 3) +
                          EmfSelect(1) + EmfRectangle(0, 0, 100, 100)),
                 Hatched(3));
        // The longer record of a pen: no bitmap, style, width, kind of brush, colour.
        const auto longPen = [&](qint64 style) {
            return DrawnEmf(EmfLongs(95, {1, 0, 0, 0, 0, style, 8, 0, inRed, 0, 0}) + EmfSelect(1) + cross);
        };
        QCOMPARE(longPen(0x10000), LineOf(0));
        QCOMPARE(longPen(0x10200), LineOf(0x200));
        QVERIFY(longPen(0x10000) != longPen(0x10100));
    }
};

TORVIK_TEST(GdiStateTest)
#include "gdi_state_test.moc"
