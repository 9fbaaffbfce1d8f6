#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class MetafileTest : public QObject {
    Q_OBJECT

    static QByteArray Strip(int x, int y, int width, int height, const QByteArray& dib)
    {
        return WmfRecord(
            0x0f43, Bytes().U32(0xcc0020).U16(0).Words({2, 2, 0, 0, height, width, y, x}).Raw(dib).Data());
    }
    static QColor At(const QImage& image, int x, int y) { return image.pixelColor(x, y); }

private Q_SLOTS:
    void a_bitmap_that_fills_the_metafile_comes_out_pixel_by_pixel()
    {
        const QImage image = DrawnWmf(Strip(0, 0, 100, 100, FourColors()));
        QCOMPARE(image.size(), QSize(2, 2));
        QCOMPARE(At(image, 0, 0), QColor(Qt::red));
        QCOMPARE(At(image, 1, 1), QColor(Qt::white));
    }

    void a_bitmap_that_fills_the_metafile_may_be_turned_over()
    {
        const QImage down = DrawnWmf(Strip(0, 100, 100, -100, FourColors()));
        const QImage usual = DrawnWmf(Strip(0, 0, 100, 100, FourColors()));
        QCOMPARE(down.size(), QSize(2, 2));
        QCOMPARE(down, usual.mirrored(false, true));
        QCOMPARE(DrawnWmf(Strip(100, 0, -100, 100, FourColors())), usual.mirrored(true, false));
    }

    void strips_of_bitmaps_are_joined_without_scaling()
    {
        const QImage image =
            DrawnWmf(Strip(0, 0, 100, 50, FourColors()) + Strip(0, 50, 100, 50, FourColors()));
        QCOMPARE(image.size(), QSize(2, 4));
        QCOMPARE(At(image, 0, 0), QColor(Qt::red));
        QCOMPARE(At(image, 1, 1), QColor(Qt::white));
        QCOMPARE(At(image, 0, 2), QColor(Qt::red));
        QCOMPARE(At(image, 1, 3), QColor(Qt::white));
    }

    void a_rectangle_with_pen_and_brush()
    {
        const QImage image =
            DrawnWmf(WmfPen(0, 4, 0x0000ff) + WmfBrush(0, 0xff0000) + WmfSelect(0) + WmfSelect(1) +
                     WmfRecord(0x041b, Bytes().Words({80, 80, 20, 20}).Data()));
        QCOMPARE(image.size(), QSize(100, 100));
        QCOMPARE(At(image, 50, 50), QColor(Qt::blue));
        QCOMPARE(At(image, 20, 50), QColor(Qt::red));
        QCOMPARE(At(image, 5, 5).alpha(), 0);
    }

    void the_sides_of_a_rectangle_are_not_mixed_up()
    {
        // Lower, right, upper, left.
        const QImage image =
            DrawnWmf(WmfFilled(0x0000ff) + WmfRecord(0x041b, Bytes().Words({40, 90, 10, 20}).Data()));
        QCOMPARE(At(image, 85, 15), QColor(Qt::red));
        QCOMPARE(At(image, 25, 35), QColor(Qt::red));
        QCOMPARE(At(image, 15, 25).alpha(), 0);
        QCOMPARE(At(image, 50, 60).alpha(), 0);
    }

    void an_ellipse_leaves_its_corners()
    {
        const QImage image =
            DrawnWmf(WmfFilled(0x00ff00) + WmfRecord(0x0418, Bytes().Words({100, 100, 0, 0}).Data()));
        QCOMPARE(At(image, 50, 50), QColor(Qt::green));
        QCOMPARE(At(image, 3, 3).alpha(), 0);
    }

    void polygons_and_polypolygons()
    {
        const QImage triangle = DrawnWmf(WmfFilled(0x0000ff) +
                                         WmfRecord(0x0324, Bytes().Words({3, 0, 0, 100, 0, 0, 100}).Data()));
        QCOMPARE(At(triangle, 20, 20), QColor(Qt::red));
        QCOMPARE(At(triangle, 90, 90).alpha(), 0);
        // The inner square is a hole.
        const QImage ring =
            DrawnWmf(WmfFilled(0x0000ff) + WmfRecord(0x0538, Bytes()
                                                                 .Words({2, 4, 4, 0, 0, 100, 0, 100, 100, 0,
                                                                         100, 30, 30, 70, 30, 70, 70, 30, 70})
                                                                 .Data()));
        QCOMPARE(At(ring, 10, 10), QColor(Qt::red));
        QCOMPARE(At(ring, 50, 50).alpha(), 0);
    }

    void lines_and_polylines()
    {
        const QImage line = DrawnWmf(WmfPen(0, 6, 0x0000ff) + WmfSelect(0) +
                                     WmfRecord(0x0214, Bytes().Words({50, 0}).Data()) +
                                     WmfRecord(0x0213, Bytes().Words({50, 100}).Data()));
        QCOMPARE(At(line, 50, 50), QColor(Qt::red));
        QCOMPARE(At(line, 50, 70).alpha(), 0);
        const QImage bent = DrawnWmf(WmfPen(0, 6, 0x0000ff) + WmfSelect(0) +
                                     WmfRecord(0x0325, Bytes().Words({3, 10, 10, 10, 90, 90, 90}).Data()));
        QCOMPARE(At(bent, 10, 50), QColor(Qt::red));
        QCOMPARE(At(bent, 50, 90), QColor(Qt::red));
        QCOMPARE(At(bent, 50, 50).alpha(), 0);
    }

    void pies_go_against_the_clock()
    {
        // From the right to the top: the upper right quarter.
        const QImage image = DrawnWmf(
            WmfFilled(0x0000ff) + WmfRecord(0x081a, Bytes().Words({0, 50, 50, 100, 100, 100, 0, 0}).Data()));
        QCOMPARE(At(image, 70, 30), QColor(Qt::red));
        QCOMPARE(At(image, 30, 70).alpha(), 0);
    }

    void an_arc_is_not_filled()
    {
        const QImage image =
            DrawnWmf(WmfPen(0, 6, 0x0000ff) + WmfBrush(0, 0xff0000) + WmfSelect(0) + WmfSelect(1) +
                     WmfRecord(0x0817, Bytes().Words({0, 50, 50, 97, 97, 97, 3, 3}).Data()));
        QCOMPARE(At(image, 83, 17), QColor(Qt::red));
        QCOMPARE(At(image, 60, 40).alpha(), 0);
    }

    void window_origin_and_extent_place_the_drawing()
    {
        const QByteArray moved = WmfRecord(0x001e, {}) + WmfRecord(0x020b, Bytes().Words({-50, -50}).Data()) +
                                 WmfRecord(0x020c, Bytes().Words({200, 200}).Data());
        const QImage image =
            DrawnWmf(WmfFilled(0x0000ff) + moved + WmfRecord(0x041b, Bytes().Words({50, 50, 0, 0}).Data()) +
                     WmfRecord(0x0127, Bytes().U16(-1).Data()) +
                     WmfRecord(0x041b, Bytes().Words({100, 100, 90, 90}).Data()));
        QCOMPARE(At(image, 35, 35), QColor(Qt::red));
        QCOMPARE(At(image, 15, 15).alpha(), 0);
        QCOMPARE(At(image, 60, 60).alpha(), 0);
        QCOMPARE(At(image, 95, 95), QColor(Qt::red));
    }

    void text_is_drawn_in_its_colour()
    {
        const QByteArray font = WmfRecord(0x02fb, Bytes()
                                                      .Words({-60, 0, 0, 0, 700})
                                                      .Raw(QByteArray(8, '\0'))
                                                      .Raw(QByteArray("Arial").leftJustified(32, '\0'))
                                                      .Data());
        const QImage image = DrawnWmf(font + WmfSelect(0) + WmfRecord(0x0102, Bytes().U16(1).Data()) +
                                      WmfRecord(0x0209, Bytes().U32(0x0000ff).Data()) +
                                      WmfRecord(0x0521, Bytes().U16(2).Raw("HH").Words({10, 5}).Data()));
        int red = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                red += At(image, x, y) == QColor(Qt::red) ? 1 : 0;
        }
        QVERIFY2(red > 200, QByteArray::number(red).constData());
        QCOMPARE(At(image, 50, 95).alpha(), 0);
    }

    void clipping_cuts_what_is_drawn()
    {
        const QImage image =
            DrawnWmf(WmfFilled(0x0000ff) + WmfRecord(0x0416, Bytes().Words({50, 50, 0, 0}).Data()) +
                     WmfRecord(0x041b, Bytes().Words({100, 100, 0, 0}).Data()));
        QCOMPARE(At(image, 20, 20), QColor(Qt::red));
        QCOMPARE(At(image, 80, 80).alpha(), 0);
    }

    void the_placeable_header_tells_the_size()
    {
        const QByteArray header =
            Bytes().U32(0x9ac6cdd7).Words({0, 0, 0, 1440, 720, 1440}).U32(0).U16(0).Data();
        const QByteArray bytes =
            header +
            Wmf(1440, 720, WmfFilled(255) + WmfRecord(0x041b, Bytes().Words({720, 1440, 0, 0}).Data()));
        const MetafileImage drawn = DrawWmf(ViewOf(bytes), {}, plentyOfBytes);
        QCOMPARE(drawn.naturalSize, QSizeF(96, 48));
        QCOMPARE(drawn.image.size(), QSize(192, 96));
    }

    void a_placeable_header_without_a_box_leaves_the_size_to_the_window()
    {
        const QByteArray header =
            Bytes().U32(0x9ac6cdd7).Words({0, 10, 10, 10, 10, 1440}).U32(0).U16(0).Data();
        const QByteArray bytes = header + Wmf(100, 100, WmfFilled(inRed) + WmfRectangle(10, 20, 50, 40));
        const MetafileImage drawn = DrawWmf(ViewOf(bytes), {50, 50}, plentyOfBytes);
        QVERIFY(drawn.naturalSize.isEmpty());
        QCOMPARE(ExtentOf(drawn.image, Qt::red), QRect(10, 20, 40, 20));
    }

    void a_placeable_header_without_units_counts_in_twips()
    {
        const QByteArray header = Bytes().U32(0x9ac6cdd7).Words({0, 0, 0, 1440, 720, 0}).U32(0).U16(0).Data();
        const QByteArray bytes = header + Wmf(1440, 720, WmfFilled(inRed) + WmfRectangle(0, 0, 720, 720));
        QCOMPARE(DrawWmf(ViewOf(bytes), {}, plentyOfBytes).naturalSize, QSizeF(96, 48));
    }

    void without_any_size_a_drawing_is_as_large_as_a_hand()
    {
        const QByteArray bytes = Wmf(100, 100, WmfFilled(inRed) + WmfRectangle(0, 0, 50, 100));
        const QImage image = DrawWmf(ViewOf(bytes), {}, plentyOfBytes).image;
        QCOMPARE(image.size(), QSize(600, 600));
        QCOMPARE(ExtentOf(image, Qt::red), QRect(0, 0, 300, 600));
    }

    void without_memory_there_is_no_drawing()
    {
        const QByteArray bytes = Wmf(100, 100, WmfFilled(inRed) + WmfRectangle(0, 0, 50, 100));
        QVERIFY(DrawWmf(ViewOf(bytes), {50, 50}, 3).image.isNull());
        QVERIFY(DrawWmf(ViewOf(bytes), {50, 50}, -1).image.isNull());
    }

    void an_enhanced_metafile_draws_the_same_shapes()
    {
        const QImage image =
            DrawnEmf(EmfSelect(stockNullPen) + EmfBrush(1, 0, 0x0000ff) + EmfSelect(1) +
                     EmfRecord(43, Bytes().Longs({10, 10, 40, 40}).Data()) +
                     EmfRecord(86, Bytes().Longs({0, 0, 0, 0, 3}).Words({60, 60, 100, 60, 60, 100}).Data()));
        QCOMPARE(image.size(), QSize(100, 100));
        QCOMPARE(At(image, 25, 25), QColor(Qt::red));
        QCOMPARE(At(image, 70, 70), QColor(Qt::red));
        QCOMPARE(At(image, 50, 50).alpha(), 0);
    }

    void paths_of_enhanced_metafiles_are_filled_when_asked()
    {
        const QImage image = DrawnEmf(EmfBrush(1, 0, 0x0000ff) + EmfSelect(1) + EmfRecord(59, {}) +
                                      EmfRecord(27, Bytes().Longs({0, 0}).Data()) +
                                      EmfRecord(54, Bytes().Longs({100, 0}).Data()) +
                                      EmfRecord(54, Bytes().Longs({0, 100}).Data()) + EmfRecord(61, {}) +
                                      EmfRecord(60, {}) + EmfRecord(62, Bytes().Longs({0, 0, 0, 0}).Data()));
        QCOMPARE(At(image, 20, 20), QColor(Qt::red));
        QCOMPARE(At(image, 90, 90).alpha(), 0);
    }

    void the_frame_gives_an_enhanced_metafile_its_size()
    {
        const QByteArray bytes =
            Emf(254, 127,
                EmfBrush(1, 0, 255) + EmfSelect(1) + EmfRecord(43, Bytes().Longs({0, 0, 254, 127}).Data()));
        QCOMPARE(DrawEmf(ViewOf(bytes), {}, plentyOfBytes).naturalSize, QSizeF(96, 48));
    }

    void a_bitmap_of_an_enhanced_metafile_comes_out_pixel_by_pixel()
    {
        const QByteArray record =
            Bytes()
                .Longs({0, 0, 100, 100, 0, 0, 0, 0, 2, 2, 80, 40, 120, 16, 0, 0xcc0020, 100, 100})
                .Raw(FourColors())
                .Data();
        const QImage image = DrawnEmf(EmfRecord(81, record));
        QCOMPARE(image.size(), QSize(2, 2));
        QCOMPARE(At(image, 0, 1), QColor(Qt::blue));
    }

    void a_bitmap_as_thin_as_a_hair_and_as_long_as_a_road_is_kept_in_bounds()
    {
        const QByteArray record =
            Bytes()
                .Longs({0, 0, 1, 100, 0, 0, 0, 0, 2, 2, 80, 40, 120, 16, 0, 0xcc0020, 1, 100'000'000})
                .Raw(FourColors())
                .Data();
        const QImage image =
            DrawEmf(ViewOf(Emf(200'000'000, 100, EmfRecord(81, record))), {50, 50}, plentyOfBytes).image;
        QVERIFY(!image.isNull());
        QVERIFY(image.width() <= 32767 && image.height() <= 32767);
    }

    void records_of_no_size_and_of_all_sizes_end_the_drawing()
    {
        const QByteArray shape =
            WmfFilled(0x0000ff) + WmfRecord(0x041b, Bytes().Words({50, 50, 0, 0}).Data());
        for (const qint64 words : {0LL, 1LL, 2LL, 0x7fffffffLL, 0xffffffffLL}) {
            const QByteArray bad = Bytes().U32(words).U16(0x041b).Words({100, 100, 60, 60}).Data();
            const QImage image = DrawnWmf(shape + bad);
            QCOMPARE(At(image, 20, 20), QColor(Qt::red));
        }
        const QByteArray endless = Bytes().U32(43).U32(0).Data();
        QVERIFY(DrawnEmf(endless).isNull());
    }

    void every_cut_of_a_metafile_is_survived()
    {
        const QByteArray whole = Wmf(
            100, 100,
            WmfFilled(255) +
                WmfRecord(0x0538,
                          Bytes().Words({2, 4, 4, 0, 0, 9, 0, 9, 9, 0, 9, 3, 3, 7, 3, 7, 7, 3, 7}).Data()) +
                Strip(0, 0, 50, 50, FourColors()));
        for (qsizetype length = 0; length < whole.size(); ++length)
            DrawWmf(ViewOf(whole.left(length)), {50, 50}, plentyOfBytes);
        QVERIFY(DrawWmf(ViewOf(whole.left(17)), {50, 50}, plentyOfBytes).image.isNull());
    }

    void a_drawing_may_not_cost_more_than_allowed()
    {
        const QByteArray shape = WmfFilled(255) + WmfRecord(0x041b, Bytes().Words({100, 100, 0, 0}).Data());
        const MetafileImage drawn = DrawWmf(ViewOf(Wmf(100, 100, shape)), {2000, 2000}, 400000);
        QVERIFY(!drawn.image.isNull());
        QVERIFY(drawn.image.sizeInBytes() <= 410000);
    }

    void shapes_far_out_take_no_time()
    {
        QByteArray records =
            WmfPen(1, 0, 255) + WmfSelect(0) + WmfRecord(0x020c, Bytes().Words({1, 1}).Data());
        for (int i = 0; i < 200; ++i)
            records += WmfRecord(0x0325, Bytes().Words({2, -32000, -32000, 32000, 32000 - i}).Data());
        QVERIFY(!DrawnWmf(records).isNull());
    }

    void other_bytes_are_no_metafile()
    {
        QVERIFY(DrawWmf("GIF89a, or some such", {}, plentyOfBytes).image.isNull());
        QVERIFY(DrawEmf({}, {}, plentyOfBytes).image.isNull());
    }
};

TORVIK_TEST(MetafileTest)
#include "metafile_test.moc"
