#include "rtf/metafile/drawing_rows.h"
#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

#include <bit>
#include <climits>
#include <limits>

using namespace torvik::rtf;

// The device of these drawings has 10 units to the millimetre.
class EmfPlayerTest : public QObject {
    Q_OBJECT

    static constexpr int text = 1;
    static constexpr int isotropic = 7;
    static constexpr int anisotropic = 8;

    static QByteArray MapMode(int mode) { return EmfLongs(17, {mode}); }
    static QByteArray WindowExtent(int width, int height) { return EmfLongs(9, {width, height}); }
    static QByteArray WindowOrigin(int x, int y) { return EmfLongs(10, {x, y}); }
    static QByteArray ViewportExtent(int width, int height) { return EmfLongs(11, {width, height}); }
    static QByteArray ViewportOrigin(int x, int y) { return EmfLongs(12, {x, y}); }
    static QByteArray SaveState() { return EmfLongs(33, {}); }
    static QByteArray RestoreState(int which) { return EmfLongs(34, {which}); }
    /// Six numbers with fractions: x and y to x, x and y to y in columns, and the shift.
    static Bytes Matrix(std::initializer_list<float> values)
    {
        Bytes bytes;
        for (const float value : values)
            bytes.U32(std::bit_cast<quint32>(value));
        return bytes;
    }
    static QByteArray World(std::initializer_list<float> values)
    {
        return EmfRecord(35, Matrix(values).Data());
    }
    static QByteArray ChangeWorld(std::initializer_list<float> values, int how)
    {
        return EmfRecord(36, Matrix(values).U32(how).Data());
    }
    static QByteArray SquareInSquare()
    {
        return EmfRecord(91, Bytes()
                                 .Longs({0, 0, 0, 0, 2, 8, 4, 4})
                                 .Words({0, 0, 100, 0, 100, 100, 0, 100, 30, 30, 70, 30, 70, 70, 30, 70})
                                 .Data());
    }

private Q_SLOTS:
    void every_shape_is_filled_where_it_says_data()
    {
        AddDrawingColumns();
        using Points = QList<QPoint>;
        QTest::newRow("a rectangle") << EmfRectangle(10, 20, 50, 40) << QRect(10, 20, 40, 20)
                                     << Points{{10, 20}, {49, 39}} << Points{{9, 30}, {50, 30}};
        QTest::newRow("a rectangle with its corners exchanged")
            << EmfRectangle(50, 40, 10, 20) << QRect(10, 20, 40, 20) << Points{{10, 20}, {49, 39}}
            << Points{};
        QTest::newRow("an ellipse") << EmfLongs(42, {10, 20, 90, 60}) << QRect(10, 20, 80, 40)
                                    << Points{{50, 22}, {50, 57}, {12, 40}, {87, 40}}
                                    << Points{{12, 22}, {87, 57}};
        QTest::newRow("a rounded rectangle has no corners")
            << EmfLongs(44, {10, 20, 90, 80, 60, 20}) << QRect(10, 20, 80, 60)
            << Points{{45, 21}, {11, 50}, {88, 50}, {50, 78}, {12, 28}}
            << Points{{10, 20}, {89, 79}, {20, 21}};
        QTest::newRow("a pie has its point in the middle")
            << EmfLongs(47, {0, 0, 100, 100, 100, 50, 50, 0}) << QRect(50, 0, 50, 50)
            << Points{{52, 47}, {80, 20}, {65, 40}} << Points{{97, 2}, {45, 45}, {52, 52}};
        QTest::newRow("a chord cuts the point off")
            << EmfLongs(46, {0, 0, 100, 100, 100, 50, 50, 0}) << QRect(50, 0, 50, 50)
            << Points{{80, 20}, {75, 21}} << Points{{97, 2}, {65, 40}, {52, 47}};
        QTest::newRow("a single point takes one unit")
            << EmfLongs(15, {60, 30, inRed}) << QRect(60, 30, 1, 1) << Points{{60, 30}} << Points{};
    }
    void every_shape_is_filled_where_it_says()
    {
        QFETCH(const QByteArray, records);
        CompareDrawing(DrawnEmf(EmfFilled(inRed) + records));
    }

    void every_line_runs_where_it_says()
    {
        const QImage lines = DrawnEmf(EmfOutlined(4, inRed) + EmfLongs(27, {10, 20}) +
                                      EmfLongs(54, {90, 20}) + EmfLongs(54, {90, 70}));
        QCOMPARE(InkOf(lines), QRect(8, 18, 84, 54));
        QCOMPARE(NotPainted(lines, {{10, 20}, {50, 21}, {90, 45}}, Qt::red), QString());
        QCOMPARE(NotBare(lines, {{50, 45}}), QString());
        const QImage arc = DrawnEmf(EmfOutlined(4, inRed) + EmfLongs(45, {10, 10, 90, 90, 90, 50, 50, 10}));
        QCOMPARE(InkOf(arc), QRect(48, 8, 44, 44));
        QCOMPARE(NotPainted(arc, {{78, 22}, {60, 11}, {88, 40}}, Qt::red), QString());
        QCOMPARE(NotBare(arc, {{65, 35}, {22, 22}}), QString());
    }

    void overlaps_are_holes_unless_the_winding_counts()
    {
        const auto filledBy = [](int mode) {
            return DrawnEmf(EmfFilled(inRed) + EmfLongs(19, {mode}) + SquareInSquare());
        };
        QCOMPARE(NotBare(filledBy(1), {{50, 50}}), QString());
        QCOMPARE(NotPainted(filledBy(2), {{50, 50}, {10, 10}}, Qt::red), QString());
    }

    void the_background_is_opaque_or_not()
    {
        const auto hatched = [](int mode) {
            return DrawnEmf(EmfLongs(25, {inGreen}) + EmfLongs(18, {mode}) + EmfSelect(stockNullPen) +
                            EmfBrush(1, 2, inRed, 0) + EmfSelect(1) + EmfRectangle(0, 0, 100, 100));
        };
        QCOMPARE(ExtentOf(hatched(1), Qt::green), QRect());
        QVERIFY(ExtentOf(hatched(2), Qt::green).height() > 90);
    }

    void window_and_viewport_place_what_follows_data()
    {
        QTest::addColumn<QByteArray>("mapping");
        QTest::addColumn<QRect>("place");
        QTest::newRow("neither") << QByteArray() << QRect(10, 20, 20, 10);
        QTest::newRow("the origin of the window") << WindowOrigin(-50, -10) << QRect(60, 30, 20, 10);
        QTest::newRow("the origin of the viewport") << ViewportOrigin(50, 10) << QRect(60, 30, 20, 10);
        QTest::newRow("extents, each direction by itself")
            << MapMode(anisotropic) + WindowExtent(100, 100) + ViewportExtent(50, 200)
            << QRect(5, 40, 10, 20);
        QTest::newRow("extents, both directions alike, which makes the longer one shorter")
            << MapMode(isotropic) + WindowExtent(100, 100) + ViewportExtent(50, 200) << QRect(5, 10, 10, 5);
        QTest::newRow("extents, both directions alike, the other way")
            << MapMode(isotropic) + WindowExtent(50, 100) + ViewportExtent(50, 50) << QRect(5, 10, 10, 5);
        QTest::newRow("an extent that grows upward") << MapMode(anisotropic) + ViewportOrigin(0, 100) +
                                                            WindowExtent(100, 100) + ViewportExtent(100, -100)
                                                     << QRect(10, 70, 20, 10);
        QTest::newRow("the same, both directions alike")
            << MapMode(isotropic) + ViewportOrigin(0, 100) + WindowExtent(100, 100) +
                   ViewportExtent(200, -100)
            << QRect(10, 70, 20, 10);
        QTest::newRow("extents are not asked where units are pixels")
            << WindowExtent(100, 100) + ViewportExtent(50, 200) << QRect(10, 20, 20, 10);
        QTest::newRow("units that are pixels again")
            << MapMode(anisotropic) + WindowExtent(100, 100) + ViewportExtent(50, 200) + MapMode(text) +
                   WindowExtent(7, 7)
            << QRect(10, 20, 20, 10);
        QTest::newRow("an extent of nothing counts as no scaling")
            << MapMode(anisotropic) + WindowExtent(0, 0) << QRect(10, 20, 20, 10);
        QTest::newRow("units that nobody knows") << MapMode(99) << QRect(10, 20, 20, 10);
    }
    void window_and_viewport_place_what_follows()
    {
        QFETCH(const QByteArray, mapping);
        const QImage image = DrawnEmf(EmfFilled(inRed) + mapping + EmfRectangle(10, 20, 30, 30));
        QTEST(ExtentOf(image, Qt::red), "place");
    }

    void units_of_measure_grow_upward_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("unitsOfFiveMillimetres");
        QTest::newRow("tenths of a millimetre") << 2 << 50;
        QTest::newRow("hundredths of a millimetre") << 3 << 500;
        QTest::newRow("hundredths of an inch, rounded") << 4 << 20;
        QTest::newRow("thousandths of an inch, rounded") << 5 << 197;
        QTest::newRow("twentieths of a point, rounded") << 6 << 283;
    }
    void units_of_measure_grow_upward()
    {
        QFETCH(const int, mode);
        QFETCH(const int, unitsOfFiveMillimetres);
        const int side = unitsOfFiveMillimetres;
        const QImage image = DrawnEmf(EmfFilled(inRed) + ViewportOrigin(10, 90) + MapMode(mode) +
                                      EmfRectangle(0, 0, side, side));
        // 50 pixels from the lower left; a rounded unit may leave half a pixel.
        QCOMPARE(InkOf(image).bottomLeft(), QPoint(10, 89));
        QVERIFY2(qAbs(InkOf(image).width() - 50) <= 1 && qAbs(InkOf(image).height() - 50) <= 1,
                 qPrintable(QString::number(InkOf(image).width())));
    }

    void the_world_moves_turns_and_scales_data()
    {
        QTest::addColumn<QByteArray>("records");
        QTest::addColumn<QRect>("place");
        QTest::newRow("moved and scaled") << World({2, 0, 0, 0.5F, 10, 30}) << QRect(30, 40, 40, 5);
        QTest::newRow("turned by a quarter") << World({0, 1, -1, 0, 60, 5}) << QRect(30, 15, 10, 20);
        QTest::newRow("set anew") << World({2, 0, 0, 2, 0, 0}) + World({1, 0, 0, 1, 5, 5})
                                  << QRect(15, 25, 20, 10);
        QTest::newRow("forgotten") << World({2, 0, 0, 2, 7, 7}) + ChangeWorld({9, 9, 9, 9, 9, 9}, 1)
                                   << QRect(10, 20, 20, 10);
        QTest::newRow("moved before it is scaled")
            << World({2, 0, 0, 2, 0, 0}) + ChangeWorld({1, 0, 0, 1, 5, -5}, 2) << QRect(30, 30, 40, 20);
        QTest::newRow("moved behind the scaling")
            << World({2, 0, 0, 2, 0, 0}) + ChangeWorld({1, 0, 0, 1, 5, -5}, 3) << QRect(25, 35, 40, 20);
        QTest::newRow("set by a change")
            << World({2, 0, 0, 2, 0, 0}) + ChangeWorld({1, 0, 0, 1, 5, -5}, 4) << QRect(15, 15, 20, 10);
        QTest::newRow("the world comes before the window")
            << WindowOrigin(10, 10) + World({2, 0, 0, 2, 0, 0}) << QRect(10, 30, 40, 20);
        QTest::newRow("numbers that are none change nothing")
            << World({std::numeric_limits<float>::quiet_NaN(), 0, 0, 1, 0, 0}) << QRect(10, 20, 20, 10);
        QTest::newRow("nor do endless ones")
            << World({1, 0, 0, std::numeric_limits<float>::infinity(), 0, 0}) << QRect(10, 20, 20, 10);
    }
    void the_world_moves_turns_and_scales()
    {
        QFETCH(const QByteArray, records);
        const QImage image = DrawnEmf(EmfFilled(inRed) + records + EmfRectangle(10, 20, 30, 30));
        QTEST(ExtentOf(image, Qt::red), "place");
    }

    void a_world_without_extent_swallows_only_what_is_in_it()
    {
        const QImage image =
            DrawnEmf(EmfFilled(inRed) + SaveState() + World({0, 0, 0, 0, 0, 0}) +
                     EmfRectangle(0, 0, 100, 100) + RestoreState(-1) + EmfRectangle(10, 20, 30, 30));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(10, 20, 20, 10));
        QCOMPARE(InkOf(image), QRect(10, 20, 20, 10));
    }

    void what_was_saved_comes_back()
    {
        const QByteArray change = EmfBrush(2, 0, inBlue) + EmfSelect(2) + WindowOrigin(-50, -50) +
                                  EmfLongs(30, {0, 0, 10, 10}) + EmfRectangle(0, 0, 20, 20);
        const QImage image =
            DrawnEmf(EmfFilled(inRed) + SaveState() + change + RestoreState(-1) + EmfRectangle(0, 0, 20, 20));
        QCOMPARE(ExtentOf(image, Qt::blue), QRect(50, 50, 10, 10));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 20, 20));
    }

    void the_units_come_back_with_what_was_saved()
    {
        // Extents that follow are not asked, as before.
        const QImage image = DrawnEmf(EmfFilled(inRed) + SaveState() + MapMode(anisotropic) +
                                      WindowExtent(10, 10) + RestoreState(-1) + WindowExtent(100, 100) +
                                      ViewportExtent(50, 200) + EmfRectangle(10, 20, 30, 30));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(10, 20, 20, 10));
    }

    void a_state_that_was_never_saved_does_not_come_back()
    {
        for (const int which : {0, 5, -2, 0x7fffffff, INT_MIN}) {
            const QImage image = DrawnEmf(EmfFilled(inRed) + SaveState() + EmfBrush(2, 0, inBlue) +
                                          EmfSelect(2) + RestoreState(which) + EmfRectangle(10, 20, 30, 30));
            QCOMPARE(ExtentOf(image, Qt::blue), QRect(10, 20, 20, 10));
        }
    }

    void states_without_end_are_saved_up_to_a_bound()
    {
        const QByteArray image = SaveState().repeated(20000) + RestoreState(1);
        QCOMPARE(ExtentOf(DrawnEmf(EmfFilled(inRed) + image + EmfRectangle(10, 20, 30, 30)), Qt::red),
                 QRect(10, 20, 20, 10));
    }

    void records_that_nobody_knows_change_nothing()
    {
        QByteArray unknown;
        for (const quint32 type : {13U, 16U, 70U, 98U, 115U, 5000U, 0xffffffffU})
            unknown += EmfLongs(type, {1, 2, 3, 4, 5});
        QCOMPARE(DrawnEmf(EmfFilled(inRed) + unknown + EmfRectangle(10, 20, 50, 40)),
                 DrawnEmf(EmfFilled(inRed) + EmfRectangle(10, 20, 50, 40)));
    }

    void no_record_cut_anywhere_keeps_the_rest_from_being_drawn()
    {
        for (quint32 type = 2; type < 125; ++type) {
            // These end the drawing, clip it or begin a path, as they should.
            if (type == 14 || type == 30 || type == 59)
                continue;
            for (const char filling : {'\x00', '\x01', '\x7f', '\xff'}) {
                for (int longs = 0; longs < 30; longs += longs < 8 ? 1 : 5) {
                    const QByteArray cut = EmfRecord(type, QByteArray(4LL * longs, filling));
                    const QImage image = DrawnEmf(EmfFilled(inRed) + SaveState() + cut + RestoreState(1) +
                                                  EmfRectangle(10, 20, 50, 40));
                    QVERIFY2(image.pixelColor(30, 30) == QColor(Qt::red),
                             qPrintable(QString::asprintf("%u, %d longs of %d", type, longs, filling)));
                }
            }
        }
    }

    void a_header_without_a_device_is_taken_for_a_screen()
    {
        // Without pixels and millimetres of the device, and a frame of an inch each way.
        QByteArray bytes = Emf(254, 254, EmfFilled(inRed) + EmfRectangle(0, 0, 48, 96));
        bytes.replace(72, 16, QByteArray(16, '\0'));
        const MetafileImage drawn = DrawEmf(ViewOf(bytes), {}, plentyOfBytes);
        QCOMPARE(drawn.naturalSize, QSizeF(96, 96));
        QCOMPARE(ExtentOf(drawn.image, Qt::red), QRect(0, 0, 96, 192));
    }

    void without_a_frame_the_bounds_are_the_picture()
    {
        QByteArray bytes = Emf(100, 100, EmfFilled(inRed) + EmfRectangle(10, 20, 30, 30));
        bytes.replace(24, 16, QByteArray(16, '\0'));
        const MetafileImage drawn = DrawEmf(ViewOf(bytes), {50, 50}, plentyOfBytes);
        QVERIFY(drawn.naturalSize.isEmpty());
        QCOMPARE(ExtentOf(drawn.image, Qt::red), QRect(10, 20, 20, 10));
    }

    void without_frame_and_bounds_the_records_are_the_picture()
    {
        QByteArray bytes = Emf(100, 100, EmfFilled(inRed) + EmfRectangle(10, 20, 30, 40));
        bytes.replace(8, 32, QByteArray(32, '\0'));
        const MetafileImage drawn = DrawEmf(ViewOf(bytes), {50, 50}, plentyOfBytes);
        QCOMPARE(drawn.image.size(), QSize(100, 100));
        QCOMPARE(NotPainted(drawn.image, {{1, 1}, {50, 50}, {98, 98}}, Qt::red), QString());
    }
};

TORVIK_TEST(EmfPlayerTest)
#include "emf_player_test.moc"
