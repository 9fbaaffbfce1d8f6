#include "rtf/metafile/drawing_rows.h"
#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class WmfPlayerTest : public QObject {
    Q_OBJECT

    static QByteArray WindowOrigin(int x, int y) { return WmfWords(0x020b, {y, x}); }
    static QByteArray WindowExtent(int width, int height) { return WmfWords(0x020c, {height, width}); }
    static QByteArray SaveState() { return WmfWords(0x001e, {}); }
    static QByteArray RestoreState(int which) { return WmfWords(0x0127, {which}); }
    static QByteArray Clip(int left, int top, int right, int bottom)
    {
        return WmfWords(0x0416, {bottom, right, top, left});
    }
    /// Two squares, one within the other, whose corners follow each other the same way round.
    static QByteArray SquareInSquare()
    {
        return WmfWords(0x0538, {2, 4, 4, 0, 0, 100, 0, 100, 100, 0, 100, 30, 30, 70, 30, 70, 70, 30, 70});
    }

private Q_SLOTS:
    void every_shape_is_filled_where_it_says_data()
    {
        AddDrawingColumns();
        using Points = QList<QPoint>;
        QTest::newRow("a rectangle") << WmfRectangle(10, 20, 50, 40) << QRect(10, 20, 40, 20)
                                     << Points{{10, 20}, {49, 39}, {30, 30}} << Points{{9, 30}, {50, 30}};
        QTest::newRow("a rectangle with its corners exchanged")
            << WmfRectangle(50, 40, 10, 20) << QRect(10, 20, 40, 20) << Points{{10, 20}, {49, 39}}
            << Points{};
        QTest::newRow("an ellipse") << WmfWords(0x0418, {60, 90, 20, 10}) << QRect(10, 20, 80, 40)
                                    << Points{{50, 22}, {50, 57}, {12, 40}, {87, 40}}
                                    << Points{{12, 22}, {87, 57}};
        QTest::newRow("a rounded rectangle has no corners")
            << WmfWords(0x061c, {20, 60, 80, 90, 20, 10}) << QRect(10, 20, 80, 60)
            << Points{{45, 21}, {11, 50}, {88, 50}, {50, 78}, {12, 28}}
            << Points{{10, 20}, {89, 79}, {20, 21}};
        QTest::newRow("a polygon") << WmfWords(0x0324, {3, 10, 10, 90, 10, 10, 90}) << QRect(10, 10, 80, 80)
                                   << Points{{12, 12}, {30, 60}} << Points{{60, 60}};
        QTest::newRow("several polygons in one, with a hole where they overlap")
            << SquareInSquare() << QRect(0, 0, 100, 100) << Points{{10, 10}, {50, 80}} << Points{{50, 50}};
        QTest::newRow("a pie has its point in the middle")
            << WmfWords(0x081a, {0, 50, 50, 100, 100, 100, 0, 0}) << QRect(50, 0, 50, 50)
            << Points{{52, 47}, {80, 20}, {65, 40}} << Points{{97, 2}, {45, 45}, {52, 52}};
        QTest::newRow("a chord cuts the point off")
            << WmfWords(0x0830, {0, 50, 50, 100, 100, 100, 0, 0}) << QRect(50, 0, 50, 50)
            << Points{{80, 20}, {75, 21}} << Points{{97, 2}, {65, 40}, {52, 47}};
    }
    void every_shape_is_filled_where_it_says()
    {
        QFETCH(const QByteArray, records);
        CompareDrawing(DrawnWmf(WmfFilled(inRed) + records));
    }

    void every_line_runs_where_it_says_data()
    {
        AddDrawingColumns();
        using Points = QList<QPoint>;
        QTest::newRow("a line from where the pen was moved, which goes on from its end")
            << WmfWords(0x0214, {20, 10}) + WmfWords(0x0213, {20, 90}) + WmfWords(0x0213, {70, 90})
            << QRect(8, 18, 84, 54) << Points{{10, 20}, {50, 21}, {90, 45}} << Points{{50, 45}, {10, 30}};
        QTest::newRow("a line through several points stays open")
            << WmfWords(0x0325, {3, 10, 20, 90, 20, 90, 70}) << QRect(8, 18, 84, 54)
            << Points{{50, 20}, {90, 45}} << Points{{50, 45}};
        QTest::newRow("the outline of a rectangle")
            << WmfRectangle(10, 20, 90, 70) << QRect(8, 18, 84, 54)
            << Points{{10, 45}, {90, 45}, {50, 20}, {50, 70}} << Points{{50, 45}};
        QTest::newRow("an arc is a part of an ellipse, against the clock")
            << WmfWords(0x0817, {10, 50, 50, 90, 90, 90, 10, 10}) << QRect(48, 8, 44, 44)
            << Points{{78, 22}, {60, 11}, {88, 40}} << Points{{65, 35}, {22, 22}, {78, 78}};
        QTest::newRow("an arc from a point to itself goes all the way round")
            << WmfWords(0x0817, {50, 90, 50, 90, 90, 90, 10, 10}) << QRect(8, 8, 84, 84)
            << Points{{78, 22}, {22, 22}, {22, 78}, {78, 78}} << Points{{50, 50}};
    }
    void every_line_runs_where_it_says()
    {
        QFETCH(const QByteArray, records);
        CompareDrawing(DrawnWmf(WmfOutlined(4, inRed) + records));
    }

    void a_single_point_takes_one_unit()
    {
        // The colour, then y before x.
        const QByteArray point = WmfRecord(0x041f, Bytes().U32(inGreen).Words({30, 60}).Data());
        const QImage image = DrawnWmf(WmfFilled(inRed) + point + WmfRectangle(0, 0, 10, 10));
        QCOMPARE(ExtentOf(image, Qt::green), QRect(60, 30, 1, 1));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 10, 10));
    }

    void a_block_is_filled_by_the_operation_data()
    {
        QTest::addColumn<qint64>("operation");
        QTest::addColumn<QColor>("color");
        QTest::newRow("with the brush") << 0xf00021LL << QColor(Qt::red);
        QTest::newRow("with black") << 0x42LL << QColor(Qt::black);
        QTest::newRow("with white") << 0xff0062LL << QColor(Qt::white);
    }
    void a_block_is_filled_by_the_operation()
    {
        QFETCH(const qint64, operation);
        QFETCH(const QColor, color);
        const auto block = [&](int x, int y, int width, int height) {
            return WmfRecord(0x061d, Bytes().U32(operation).Words({height, width, y, x}).Data());
        };
        const QImage image = DrawnWmf(WmfFilled(inRed) + block(10, 20, 30, 40));
        QCOMPARE(ExtentOf(image, color), QRect(10, 20, 30, 40));
        QCOMPARE(InkOf(image), QRect(10, 20, 30, 40));
        QCOMPARE(ExtentOf(DrawnWmf(WmfFilled(inRed) + block(40, 60, -30, -40)), color),
                 QRect(10, 20, 30, 40));
        // The brush stays what it was.
        QCOMPARE(
            ExtentOf(DrawnWmf(WmfFilled(inRed) + block(0, 0, 9, 9) + WmfRectangle(50, 50, 60, 60)), Qt::red)
                .bottomRight(),
            QPoint(59, 59));
    }

    void a_block_with_an_operation_that_nobody_knows_is_left_out()
    {
        const QByteArray block = WmfRecord(0x061d, Bytes().U32(0x123456).Words({40, 30, 20, 10}).Data());
        QCOMPARE(InkOf(DrawnWmf(WmfFilled(inRed) + block + WmfRectangle(60, 60, 70, 70))),
                 QRect(60, 60, 10, 10));
    }

    void overlaps_are_holes_unless_the_winding_counts()
    {
        const auto filledBy = [](int mode) {
            return DrawnWmf(WmfFilled(inRed) + WmfWords(0x0106, {mode}) + SquareInSquare());
        };
        QCOMPARE(NotBare(filledBy(1), {{50, 50}}), QString());
        QCOMPARE(NotPainted(filledBy(2), {{50, 50}, {10, 10}}, Qt::red), QString());
    }

    void the_window_places_what_follows_data()
    {
        QTest::addColumn<QByteArray>("window");
        QTest::addColumn<QRect>("place");
        QTest::newRow("an origin") << WindowOrigin(-50, -10) << QRect(60, 30, 20, 10);
        QTest::newRow("an origin that is moved on")
            << WindowOrigin(-50, -10) + WmfWords(0x020f, {-20, 30}) << QRect(30, 50, 20, 10);
        QTest::newRow("an extent") << WindowExtent(200, 50) << QRect(5, 40, 10, 20);
        QTest::newRow("an extent that is scaled: halved across, doubled down")
            << WmfWords(0x0410, {1, 2, 2, 1}) << QRect(20, 10, 40, 5);
        QTest::newRow("an extent scaled by a fraction of nothing stays")
            << WmfWords(0x0410, {0, 2, 0, 1}) << QRect(10, 20, 20, 10);
        QTest::newRow("an extent of nothing counts as no scaling")
            << WindowExtent(0, 0) << QRect(10, 20, 20, 10);
        QTest::newRow("an extent that grows upward and to the left")
            << WindowOrigin(100, 100) + WindowExtent(-100, -100) << QRect(70, 70, 20, 10);
    }
    void the_window_places_what_follows()
    {
        QFETCH(const QByteArray, window);
        QFETCH(const QRect, place);
        const QImage image = DrawnWmf(WmfFilled(inRed) + window + WmfRectangle(10, 20, 30, 30));
        QCOMPARE(ExtentOf(image, Qt::red), place);
    }

    void what_was_saved_comes_back()
    {
        const QByteArray change = WmfBrush(0, inBlue) + WmfSelect(2) + WindowOrigin(-50, -50) +
                                  Clip(0, 0, 10, 10) + WmfRectangle(0, 0, 20, 20);
        const QImage image =
            DrawnWmf(WmfFilled(inRed) + SaveState() + change + RestoreState(-1) + WmfRectangle(0, 0, 20, 20));
        QCOMPARE(ExtentOf(image, Qt::blue), QRect(50, 50, 10, 10));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 20, 20));
    }

    void a_saved_state_is_found_by_its_number_or_counted_back_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QColor>("color");
        QTest::newRow("the last one") << -1 << QColor(Qt::green);
        QTest::newRow("the last but one") << -2 << QColor(Qt::red);
        QTest::newRow("the first") << 1 << QColor(Qt::red);
        QTest::newRow("the second") << 2 << QColor(Qt::green);
        QTest::newRow("none") << 0 << QColor(Qt::blue);
        QTest::newRow("one after the last") << 3 << QColor(Qt::blue);
        QTest::newRow("one before the first") << -3 << QColor(Qt::blue);
    }
    void a_saved_state_is_found_by_its_number_or_counted_back()
    {
        QFETCH(const int, which);
        QFETCH(const QColor, color);
        const QImage image =
            DrawnWmf(WmfFilled(inRed) + SaveState() + WmfBrush(0, inGreen) + WmfSelect(2) + SaveState() +
                     WmfBrush(0, inBlue) + WmfSelect(3) + RestoreState(which) + WmfRectangle(10, 10, 20, 20));
        QCOMPARE(ExtentOf(image, color), QRect(10, 10, 10, 10));
    }

    void clips_cut_each_other_until_a_region_is_chosen()
    {
        const QByteArray all = WmfRectangle(0, 0, 100, 100);
        const QByteArray clips = Clip(0, 0, 50, 60) + Clip(20, 10, 100, 100);
        QCOMPARE(InkOf(DrawnWmf(WmfFilled(inRed) + clips + all)), QRect(20, 10, 30, 50));
        QCOMPARE(InkOf(DrawnWmf(WmfFilled(inRed) + clips + WmfWords(0x012c, {0}) + all)),
                 QRect(0, 0, 100, 100));
    }

    void records_that_nobody_knows_change_nothing()
    {
        QByteArray unknown;
        for (const int function : {0x0626, 0x0107, 0x0104, 0x7fff, 0xffff})
            unknown += WmfWords(function, {1, 2, 3, 4, 5});
        QCOMPARE(DrawnWmf(WmfFilled(inRed) + unknown + WmfRectangle(10, 20, 50, 40)),
                 DrawnWmf(WmfFilled(inRed) + WmfRectangle(10, 20, 50, 40)));
    }

    void counts_beyond_the_end_take_the_points_that_are_there_data()
    {
        QTest::addColumn<QByteArray>("records");
        QTest::newRow("a polygon") << WmfWords(0x0324, {-1, 10, 10, 90, 10, 90, 60, 10, 60});
        QTest::newRow("the second of two polygons")
            << WmfWords(0x0538, {2, 3, 9999, 95, 95, 96, 95, 95, 96, 10, 10, 90, 10, 90, 60, 10, 60});
        QTest::newRow("fewer polygons than are told")
            << WmfWords(0x0538, {2, 4, 4, 10, 10, 90, 10, 90, 60, 10, 60});
    }
    void counts_beyond_the_end_take_the_points_that_are_there()
    {
        QFETCH(const QByteArray, records);
        const QImage image = DrawnWmf(WmfFilled(inRed) + records + WmfRectangle(0, 90, 5, 95));
        QCOMPARE(NotPainted(image, {{10, 10}, {89, 59}, {2, 92}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{9, 30}, {50, 62}}), QString());
    }

    void lying_counts_leave_the_rest_alone_data()
    {
        QTest::addColumn<QByteArray>("records");
        QTest::newRow("more polygons than bytes") << WmfWords(0x0538, {-1, 3, 3});
        QTest::newRow("polygons of no points") << WmfWords(0x0538, {3, 0, 0, 0});
        QTest::newRow("a polygon of one point") << WmfWords(0x0324, {1, 50, 50});
        QTest::newRow("a line of one point") << WmfWords(0x0325, {1, 50, 50});
        QTest::newRow("a line of no points") << WmfWords(0x0325, {0});
        QTest::newRow("a line without its count") << WmfWords(0x0325, {});
        QTest::newRow("several polygons without their count") << WmfWords(0x0538, {});
    }
    void lying_counts_leave_the_rest_alone()
    {
        QFETCH(const QByteArray, records);
        const QImage image = DrawnWmf(WmfFilled(inRed) + records + WmfRectangle(10, 20, 50, 40));
        QCOMPARE(InkOf(image), QRect(10, 20, 40, 20));
    }

    void no_record_cut_anywhere_keeps_the_rest_from_being_drawn()
    {
        for (const int function :
             {0x0127, 0x012d, 0x012e, 0x01f0, 0x0201, 0x0209, 0x020f, 0x0214, 0x0213, 0x02fa, 0x02fb, 0x02fc,
              0x0324, 0x0325, 0x0418, 0x041b, 0x041f, 0x0521, 0x0538, 0x061c, 0x061d, 0x0817, 0x081a, 0x0830,
              0x0922, 0x0940, 0x0a32, 0x0b23, 0x0b41, 0x0d33, 0x0f43, 0x00f7, 0x06ff, 0x0142, 0x01f9}) {
            for (int words = 0; words < 12; ++words) {
                const QByteArray cut = WmfRecord(function, QByteArray(2LL * words, '\x7f'));
                const QImage image = DrawnWmf(WmfFilled(inRed) + SaveState() + cut + RestoreState(-1) +
                                              WmfRectangle(10, 20, 50, 40));
                QVERIFY2(image.pixelColor(30, 30) == QColor(Qt::red),
                         qPrintable(QString::asprintf("%04x, %d words", function, words)));
            }
        }
    }
};

TORVIK_TEST(WmfPlayerTest)
#include "wmf_player_test.moc"
