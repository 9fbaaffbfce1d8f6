#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// Records through many points, each in a long and in a short form.
class EmfPointsTest : public QObject {
    Q_OBJECT

    using Numbers = std::initializer_list<int>;

    static Bytes& Append(Bytes& bytes, const Numbers& coordinates, bool isShort)
    {
        for (const int coordinate : coordinates) {
            if (isShort)
                bytes.U16(coordinate);
            else
                bytes.U32(coordinate);
        }
        return bytes;
    }
    /// Bounds, the number of points, and the points.
    static QByteArray Points(quint32 type, bool isShort, const Numbers& coordinates)
    {
        Bytes bytes;
        bytes.Longs({0, 0, 0, 0, qint64(coordinates.size() / 2)});
        return EmfRecord(type, Append(bytes, coordinates, isShort).Data());
    }
    /// Bounds, the number of figures and of all points, the number of each figure's points, and the points.
    static QByteArray Figures(quint32 type, bool isShort, const Numbers& counts, const Numbers& coordinates)
    {
        Bytes bytes;
        bytes.Longs({0, 0, 0, 0, qint64(counts.size()), qint64(coordinates.size() / 2)});
        Append(bytes, counts, false);
        return EmfRecord(type, Append(bytes, coordinates, isShort).Data());
    }
    static void BothForms()
    {
        QTest::addColumn<bool>("isShort");
        QTest::newRow("32 bits") << false;
        QTest::newRow("16 bits") << true;
    }

private Q_SLOTS:
    void a_polygon_is_closed_and_filled_data() { BothForms(); }
    void a_polygon_is_closed_and_filled()
    {
        QFETCH(const bool, isShort);
        const QByteArray polygon = Points(isShort ? 86 : 3, isShort, {10, 20, 90, 20, 90, 70, 10, 70});
        QCOMPARE(ExtentOf(DrawnEmf(EmfFilled(inRed) + polygon), Qt::red), QRect(10, 20, 80, 50));
        const QImage outline = DrawnEmf(EmfOutlined(4, inRed) + polygon);
        QCOMPARE(NotPainted(outline, {{50, 20}, {90, 45}, {50, 70}, {10, 45}}, Qt::red), QString());
        QCOMPARE(NotBare(outline, {{50, 45}}), QString());
    }

    void a_line_through_points_stays_open_and_empty_data() { BothForms(); }
    void a_line_through_points_stays_open_and_empty()
    {
        QFETCH(const bool, isShort);
        const QImage image = DrawnEmf(EmfPen(1, 0, 4, inRed) + EmfSelect(1) +
                                      Points(isShort ? 87 : 4, isShort, {10, 20, 90, 20, 90, 70, 10, 70}));
        QCOMPARE(InkOf(image), QRect(8, 18, 84, 54));
        QCOMPARE(NotPainted(image, {{50, 20}, {90, 45}, {50, 70}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{10, 45}, {50, 45}}), QString());
    }

    void a_line_goes_on_from_the_position_and_moves_it_data() { BothForms(); }
    void a_line_goes_on_from_the_position_and_moves_it()
    {
        QFETCH(const bool, isShort);
        const QImage image =
            DrawnEmf(EmfOutlined(4, inRed) + EmfLongs(27, {10, 20}) +
                     Points(isShort ? 89 : 6, isShort, {90, 20, 90, 70}) + EmfLongs(54, {10, 70}));
        QCOMPARE(NotPainted(image, {{12, 20}, {50, 20}, {90, 45}, {50, 70}, {12, 70}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{10, 45}, {50, 45}}), QString());
    }

    void lines_that_go_on_are_joined_at_their_corners_data() { BothForms(); }
    void lines_that_go_on_are_joined_at_their_corners()
    {
        QFETCH(const bool, isShort);
        const QImage image = DrawnEmf(EmfPen(1, 0x2200, 20, inRed) + EmfSelect(1) + EmfLongs(27, {10, 90}) +
                                      Points(isShort ? 89 : 6, isShort, {10, 10, 90, 10}));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 90, 90));
        QCOMPARE(NotPainted(image, {{0, 0}, {4, 4}}, Qt::red), QString());
    }

    void a_curve_starts_at_its_first_point_data() { BothForms(); }
    void a_curve_starts_at_its_first_point()
    {
        QFETCH(const bool, isShort);
        // Two curves, one hanging down from 10 to 50, one standing up from 50 to 90.
        const QImage image = DrawnEmf(
            EmfPen(1, 0, 4, inRed) + EmfSelect(1) +
            Points(isShort ? 85 : 2, isShort, {10, 50, 10, 90, 50, 90, 50, 50, 50, 10, 90, 10, 90, 50}));
        // A curve comes as far as three quarters of the way to its control points.
        QCOMPARE(InkOf(image), QRect(8, 18, 84, 64));
        QCOMPARE(NotPainted(image, {{10, 50}, {30, 80}, {50, 50}, {70, 20}, {89, 50}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{30, 50}, {70, 50}, {30, 20}, {70, 80}}), QString());
    }

    void a_curve_goes_on_from_the_position_and_moves_it_data() { BothForms(); }
    void a_curve_goes_on_from_the_position_and_moves_it()
    {
        QFETCH(const bool, isShort);
        const QImage image =
            DrawnEmf(EmfOutlined(4, inRed) + EmfLongs(27, {10, 50}) +
                     Points(isShort ? 88 : 5, isShort, {10, 90, 50, 90, 50, 50}) + EmfLongs(54, {90, 50}));
        QCOMPARE(NotPainted(image, {{10, 50}, {30, 80}, {50, 50}, {70, 50}, {90, 50}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{30, 50}, {30, 20}}), QString());
    }

    void points_that_make_no_whole_curve_are_left_out_data() { BothForms(); }
    void points_that_make_no_whole_curve_are_left_out()
    {
        QFETCH(const bool, isShort);
        const QByteArray start = EmfOutlined(4, inRed);
        const quint32 type = isShort ? 85 : 2;
        QCOMPARE(DrawnEmf(start + Points(type, isShort, {10, 50, 10, 90, 50, 90, 50, 50, 99, 99, 5, 5})),
                 DrawnEmf(start + Points(type, isShort, {10, 50, 10, 90, 50, 90, 50, 50})));
        QVERIFY(DrawnEmf(start + Points(type, isShort, {10, 50, 10, 90})).isNull());
    }

    void several_lines_are_apart_data() { BothForms(); }
    void several_lines_are_apart()
    {
        QFETCH(const bool, isShort);
        const QImage image =
            DrawnEmf(EmfOutlined(4, inRed) +
                     Figures(isShort ? 90 : 7, isShort, {2, 3}, {10, 20, 90, 20, 10, 50, 90, 50, 90, 80}));
        QCOMPARE(NotPainted(image, {{50, 20}, {50, 50}, {90, 65}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{50, 35}, {90, 35}, {50, 65}}), QString());
    }

    void several_polygons_are_one_figure_data() { BothForms(); }
    void several_polygons_are_one_figure()
    {
        QFETCH(const bool, isShort);
        const QImage image = DrawnEmf(
            EmfFilled(inRed) + Figures(isShort ? 91 : 8, isShort, {4, 4},
                                       {0, 0, 100, 0, 100, 100, 0, 100, 30, 30, 70, 30, 70, 70, 30, 70}));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 100, 100));
        QCOMPARE(NotBare(image, {{30, 30}, {50, 50}, {69, 69}}), QString());
    }

    void negative_coordinates_keep_their_sign_data() { BothForms(); }
    void negative_coordinates_keep_their_sign()
    {
        QFETCH(const bool, isShort);
        const QImage image = DrawnEmf(
            EmfFilled(inRed) + Points(isShort ? 86 : 3, isShort, {-50, -50, 20, -50, 20, 30, -50, 30}));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 20, 30));
    }

    void lying_counts_leave_the_rest_alone_data()
    {
        QTest::addColumn<QByteArray>("record");
        for (const quint32 type : {2U, 3U, 4U, 5U, 6U, 85U, 86U, 87U, 88U, 89U}) {
            QTest::addRow("no points in %u", type) << EmfLongs(type, {0, 0, 0, 0, 0});
            QTest::addRow("no count in %u", type) << EmfLongs(type, {0, 0});
            QTest::addRow("more points than bytes in %u", type) << EmfLongs(type, {0, 0, 0, 0, 0xffffffff});
        }
        for (const quint32 type : {7U, 8U, 90U, 91U}) {
            QTest::addRow("no figures in %u", type) << EmfLongs(type, {0, 0, 0, 0, 0, 0});
            QTest::addRow("no count in %u", type) << EmfLongs(type, {0, 0, 0, 0});
            QTest::addRow("more figures than bytes in %u", type)
                << EmfLongs(type, {0, 0, 0, 0, 0xffffffff, 4, 2, 2});
            QTest::addRow("figures without points in %u", type)
                << EmfLongs(type, {0, 0, 0, 0, 3, 0, 0, 0, 0});
            QTest::addRow("figures of endless points in %u", type)
                << EmfLongs(type, {0, 0, 0, 0, 2, 4, 0xffffffff, 0xffffffff});
        }
    }
    void lying_counts_leave_the_rest_alone()
    {
        QFETCH(const QByteArray, record);
        const QImage image = DrawnEmf(EmfFilled(inRed) + record + EmfRectangle(10, 20, 50, 40));
        QCOMPARE(InkOf(image), QRect(10, 20, 40, 20));
    }

    void counts_beyond_the_end_take_the_points_that_are_there_data() { BothForms(); }
    void counts_beyond_the_end_take_the_points_that_are_there()
    {
        QFETCH(const bool, isShort);
        QByteArray polygon = Points(isShort ? 86 : 3, isShort, {10, 20, 90, 20, 90, 70, 10, 70});
        polygon.replace(24, 4, Bytes().U32(0x7fffffff).Data());
        QCOMPARE(ExtentOf(DrawnEmf(EmfFilled(inRed) + polygon), Qt::red), QRect(10, 20, 80, 50));
        const QByteArray polygons = Figures(isShort ? 91 : 8, isShort, {3, 30000},
                                            {0, 0, 5, 0, 0, 5, 10, 20, 90, 20, 90, 70, 10, 70});
        QCOMPARE(ExtentOf(DrawnEmf(EmfFilled(inRed) + polygons), Qt::red).bottomRight(), QPoint(89, 69));
    }
};

TORVIK_TEST(EmfPointsTest)
#include "emf_points_test.moc"
