#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// Paths and clips, as the records of enhanced metafiles make them.
class GdiCanvasTest : public QObject {
    Q_OBJECT

    static QByteArray MoveTo(int x, int y) { return EmfLongs(27, {x, y}); }
    static QByteArray LineTo(int x, int y) { return EmfLongs(54, {x, y}); }
    static QByteArray BeginPath() { return EmfLongs(59, {}); }
    static QByteArray EndPath() { return EmfLongs(60, {}); }
    static QByteArray CloseFigure() { return EmfLongs(61, {}); }
    static QByteArray FillPath() { return EmfLongs(62, {0, 0, 0, 0}); }
    static QByteArray StrokeAndFillPath() { return EmfLongs(63, {0, 0, 0, 0}); }
    static QByteArray StrokePath() { return EmfLongs(64, {0, 0, 0, 0}); }
    static QByteArray AbortPath() { return EmfLongs(68, {}); }
    static QByteArray Points(quint32 type, std::initializer_list<int> points)
    {
        return EmfRecord(type, Bytes().Longs({0, 0, 0, 0, qint64(points.size() / 2)}).Words(points).Data());
    }
    /// A pen of four units and a brush.
    static QByteArray RedPenBlueBrush()
    {
        return EmfPen(1, 0, 4, inRed) + EmfBrush(2, 0, inBlue) + EmfSelect(1) + EmfSelect(2);
    }
    /// Three sides of a square, which lacks the left one.
    static QByteArray ThreeSides()
    {
        return BeginPath() + MoveTo(20, 20) + LineTo(80, 20) + LineTo(80, 80) + LineTo(20, 80);
    }

private Q_SLOTS:
    void a_path_is_drawn_only_when_asked()
    {
        const QByteArray rest = EmfRectangle(0, 0, 10, 10);
        QCOMPARE(InkOf(DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + rest)).right(), 11);
        QCOMPARE(InkOf(DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + FillPath() + rest)).right(),
                 79);
        // It is used up by that.
        const QByteArray twice = FillPath() + StrokePath();
        QCOMPARE(NotBare(DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + twice), {{50, 18}}),
                 QString());
    }

    void a_filled_path_has_no_line()
    {
        const QImage image = DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + FillPath());
        QCOMPARE(ExtentOf(image, Qt::blue), QRect(20, 20, 60, 60));
        QCOMPARE(InkOf(image), QRect(20, 20, 60, 60));
    }

    void a_stroked_path_has_the_sides_that_were_drawn()
    {
        const QImage open = DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + StrokePath());
        QCOMPARE(NotPainted(open, {{50, 20}, {80, 50}, {50, 80}}, Qt::red), QString());
        QCOMPARE(NotBare(open, {{20, 50}, {50, 50}}), QString());
        const QImage closed =
            DrawnEmf(RedPenBlueBrush() + ThreeSides() + CloseFigure() + EndPath() + StrokePath());
        QCOMPARE(NotPainted(closed, {{50, 20}, {80, 50}, {50, 80}, {20, 50}}, Qt::red), QString());
    }

    void a_path_that_is_stroked_and_filled_is_closed_for_both()
    {
        const QImage image = DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + StrokeAndFillPath());
        QCOMPARE(NotPainted(image, {{50, 20}, {80, 50}, {50, 80}, {20, 50}}, Qt::red), QString());
        QCOMPARE(NotPainted(image, {{50, 50}}, Qt::blue), QString());
    }

    void every_figure_of_a_path_is_closed_by_itself()
    {
        const QByteArray wedge = MoveTo(0, 90) + LineTo(0, 100) + Points(88, {0, 100, 10, 100, 10, 100});
        const QImage image = DrawnEmf(RedPenBlueBrush() + BeginPath() + MoveTo(20, 20) + LineTo(60, 20) +
                                      LineTo(60, 60) + MoveTo(80, 80) + LineTo(96, 80) + LineTo(96, 96) +
                                      wedge + EndPath() + StrokeAndFillPath());
        QCOMPARE(NotPainted(image, {{40, 40}, {88, 88}, {5, 95}}, Qt::red), QString());
        QCOMPARE(NotPainted(image, {{50, 30}, {2, 97}, {93, 84}}, Qt::blue), QString());
        QCOMPARE(NotBare(image, {{70, 70}, {50, 90}}), QString());
    }

    void moving_the_pen_begins_a_figure_even_where_it_stands()
    {
        // Two triangles that share a corner, each closed at its own start.
        const QImage image = DrawnEmf(RedPenBlueBrush() + EmfLongs(10, {-10, 0}) + BeginPath() +
                                      MoveTo(0, 10) + LineTo(40, 10) + LineTo(40, 50) + MoveTo(40, 50) +
                                      LineTo(80, 50) + LineTo(80, 70) + EndPath() + StrokeAndFillPath());
        QCOMPARE(NotPainted(image, {{30, 30}, {70, 60}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{30, 50}, {30, 70}, {70, 30}}), QString());
    }

    void an_aborted_path_is_gone()
    {
        const QByteArray rest = StrokePath() + FillPath() + EmfRectangle(2, 2, 10, 10);
        QCOMPARE(InkOf(DrawnEmf(RedPenBlueBrush() + ThreeSides() + AbortPath() + rest)), QRect(0, 0, 12, 12));
        QCOMPARE(InkOf(DrawnEmf(RedPenBlueBrush() + ThreeSides() + EndPath() + AbortPath() + rest)),
                 QRect(0, 0, 12, 12));
    }

    void curves_and_lines_of_a_path_are_one_outline()
    {
        // A square whose right side bulges: a line, a curve that goes on from it, and lines back.
        const QByteArray records = BeginPath() + MoveTo(10, 10) + LineTo(50, 10) +
                                   Points(88, {100, 10, 100, 90, 50, 90}) + Points(89, {10, 90}) +
                                   CloseFigure() + EndPath();
        const QImage image = DrawnEmf(EmfFilled(inRed) + records + FillPath());
        QCOMPARE(NotPainted(image, {{12, 12}, {12, 87}, {30, 50}, {85, 50}, {48, 87}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{80, 12}, {80, 87}, {5, 50}}), QString());
        // It closes at its own start.
        const QImage outline = DrawnEmf(EmfOutlined(4, inRed) + records + StrokePath());
        QCOMPARE(NotPainted(outline, {{10, 50}, {30, 10}, {30, 90}}, Qt::red), QString());
        QCOMPARE(NotBare(outline, {{30, 50}, {50, 50}}), QString());
    }

    void a_path_begins_where_the_pen_was_moved_before_it()
    {
        const QImage line = DrawnEmf(EmfOutlined(4, inRed) + MoveTo(10, 20) + BeginPath() + LineTo(90, 20) +
                                     EndPath() + StrokePath());
        QCOMPARE(InkOf(line), QRect(8, 18, 84, 4));
        const QImage curve = DrawnEmf(EmfOutlined(4, inRed) + MoveTo(10, 20) + BeginPath() +
                                      Points(88, {30, 20, 60, 20, 90, 20}) + EndPath() + StrokePath());
        QCOMPARE(InkOf(curve), QRect(8, 18, 84, 4));
    }

    void shapes_of_a_path_leave_the_position_alone()
    {
        // The line starts at 10, 90 although a rectangle and an open line were added in between.
        const QImage image =
            DrawnEmf(EmfOutlined(4, inRed) + BeginPath() + MoveTo(10, 90) + EmfRectangle(20, 20, 80, 50) +
                     Points(87, {30, 60, 70, 60}) + LineTo(90, 90) + EndPath() + StrokePath());
        QCOMPARE(NotPainted(image, {{20, 35}, {50, 20}, {50, 60}, {50, 90}, {12, 90}}, Qt::red), QString());
        QCOMPARE(NotBare(image, {{50, 35}, {50, 75}, {80, 75}}), QString());
    }

    void a_path_stands_where_it_was_made()
    {
        // The window moves between making and drawing.
        const QImage image = DrawnEmf(EmfFilled(inRed) + BeginPath() + EmfRectangle(10, 10, 30, 30) +
                                      EndPath() + EmfLongs(10, {-50, -50}) + FillPath());
        QCOMPARE(InkOf(image), QRect(10, 10, 20, 20));
    }

    void points_and_blocks_are_painted_at_once_within_a_path()
    {
        const QByteArray block =
            EmfLongs(76, {0, 0, 0, 0, 20, 30, 10, 5, 0xf00021, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
        const QByteArray point = EmfLongs(15, {70, 80, inGreen});
        const QImage image =
            DrawnEmf(EmfFilled(inRed) + BeginPath() + block + point + EmfRectangle(0, 0, 5, 5) + EndPath());
        QCOMPARE(ExtentOf(image, Qt::red), QRect(20, 30, 10, 5));
        QCOMPARE(ExtentOf(image, Qt::green), QRect(70, 80, 1, 1));
    }

    void a_path_that_was_never_begun_is_nothing()
    {
        const QByteArray nothing = EndPath() + StrokePath() + FillPath() + CloseFigure() + AbortPath();
        QCOMPARE(InkOf(DrawnEmf(EmfFilled(inRed) + nothing + EmfRectangle(10, 20, 50, 40))),
                 QRect(10, 20, 40, 20));
        QVERIFY(DrawnEmf(BeginPath() + CloseFigure() + EndPath() + StrokeAndFillPath()).isNull());
        QVERIFY(DrawnEmf(BeginPath() + StrokePath()).isNull());
    }

    void clips_cut_each_other()
    {
        const QByteArray all = EmfRectangle(0, 0, 100, 100);
        const auto clip = [](int left, int top, int right, int bottom) {
            return EmfLongs(30, {left, top, right, bottom});
        };
        QCOMPARE(InkOf(DrawnEmf(EmfFilled(inRed) + clip(0, 0, 50, 60) + clip(20, 10, 100, 100) + all)),
                 QRect(20, 10, 30, 50));
        // What they have nothing in common stays bare.
        QCOMPARE(InkOf(DrawnEmf(EmfFilled(inRed) + clip(0, 0, 20, 20) + clip(50, 50, 80, 80) + all)),
                 QRect());
    }

    void a_region_replaces_the_clip_or_cuts_it_data()
    {
        QTest::addColumn<qint64>("mode");
        QTest::addColumn<QRect>("left");
        QTest::newRow("both") << 1LL << QRect(20, 10, 30, 50);
        QTest::newRow("instead") << 5LL << QRect(20, 10, 80, 90);
        QTest::newRow("a way that is not supported") << 3LL << QRect(0, 0, 50, 60);
    }
    void a_region_replaces_the_clip_or_cuts_it()
    {
        QFETCH(const qint64, mode);
        // Bytes of the region, the way, then its header, its bounds and one rectangle.
        const QByteArray region = EmfLongs(75, {48, mode, 32, 1, 1, 16, 20, 10, 100, 100, 20, 10, 100, 100});
        const QByteArray clip = EmfLongs(30, {0, 0, 50, 60});
        const QImage image = DrawnEmf(EmfFilled(inRed) + clip + region + EmfRectangle(0, 0, 100, 100));
        QTEST(InkOf(image), "left");
        // An empty one ends the clipping, and regions are in units of the device whatever the window is.
        QCOMPARE(
            InkOf(DrawnEmf(EmfFilled(inRed) + clip + EmfLongs(75, {0, 5}) + EmfRectangle(0, 0, 100, 100))),
            QRect(0, 0, 100, 100));
        if (mode == 5)
            QCOMPARE(InkOf(DrawnEmf(EmfFilled(inRed) + EmfLongs(10, {50, 50}) + region +
                                    EmfRectangle(0, 0, 200, 200))),
                     QRect(20, 10, 80, 90));
    }
};

TORVIK_TEST(GdiCanvasTest)
#include "gdi_canvas_test.moc"
