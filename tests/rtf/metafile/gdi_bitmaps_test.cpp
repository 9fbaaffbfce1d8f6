#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

// How bitmaps are combined with what is below them, which both kinds of metafile say by the same numbers.
class GdiBitmapsTest : public QObject {
    Q_OBJECT

    static constexpr qint64 inverted = 0x330008;

    static QByteArray RedPixel() { return Dib(1, 1, 24, {}, QByteArray::fromHex("0000ff00")); }
    static QByteArray WmfBitmap(qint64 operation, const QRect& target, const QByteArray& bitmap)
    {
        return WmfRecord(0x0f43,
                         Bytes()
                             .U32(operation)
                             .Words({0, 1, 1, 0, 0, target.height(), target.width(), target.y(), target.x()})
                             .Raw(bitmap)
                             .Data());
    }
    static QByteArray EmfBitmap(qint64 operation, const QRect& target, const QByteArray& bitmap)
    {
        return EmfRecord(81, Bytes()
                                 .Longs({0, 0, 0, 0, target.x(), target.y(), 0, 0, 1, 1, 80, 40, 120,
                                         bitmap.size() - 40, 0, operation, target.width(), target.height()})
                                 .Raw(bitmap)
                                 .Data());
    }

private Q_SLOTS:
    void pixels_are_combined_with_those_below_data()
    {
        QTest::addColumn<qint64>("operation");
        QTest::addColumn<QColor>("onBlue");
        QTest::addColumn<QColor>("onPaper");
        QTest::newRow("copied") << 0xcc0020LL << QColor(Qt::red) << QColor(Qt::red);
        QTest::newRow("inverted") << inverted << QColor(Qt::cyan) << QColor(Qt::cyan);
        QTest::newRow("one of both") << 0x660046LL << QColor(Qt::magenta) << QColor(Qt::cyan);
        QTest::newRow("both") << 0x8800c6LL << QColor(Qt::black) << QColor(Qt::red);
        QTest::newRow("any") << 0xee0086LL << QColor(Qt::magenta) << QColor(Qt::white);
        QTest::newRow("any, inverted") << 0xbb0226LL << QColor(Qt::cyan) << QColor(Qt::white);
        QTest::newRow("black whatever it is") << 0x42LL << QColor(Qt::black) << QColor(Qt::black);
        QTest::newRow("white whatever it is") << 0xff0062LL << QColor(Qt::white) << QColor(Qt::white);
        QTest::newRow("the brush whatever it is") << 0xf00021LL << QColor(Qt::blue) << QColor(Qt::blue);
        QTest::newRow("copied where nobody knows how") << 0x123456LL << QColor(Qt::red) << QColor(Qt::red);
    }
    void pixels_are_combined_with_those_below()
    {
        QFETCH(const qint64, operation);
        QFETCH(const QColor, onBlue);
        QFETCH(const QColor, onPaper);
        const QRect left(0, 0, 20, 20);
        const QRect right(60, 0, 20, 20);
        const QImage older =
            DrawnWmf(WmfFilled(inBlue) + WmfRectangle(0, 0, 50, 50) + WmfBitmap(operation, left, RedPixel()) +
                     WmfBitmap(operation, right, RedPixel()) + WmfRectangle(0, 90, 10, 100));
        const QImage newer =
            DrawnEmf(EmfFilled(inBlue) + EmfRectangle(0, 0, 50, 50) + EmfBitmap(operation, left, RedPixel()) +
                     EmfBitmap(operation, right, RedPixel()) + EmfRectangle(0, 90, 10, 100));
        for (const QImage& image : {older, newer}) {
            QCOMPARE(image.pixelColor(left.center()), onBlue);
            QCOMPARE(image.pixelColor(right.center()), onPaper);
            QCOMPARE(image.pixelColor(30, 30), QColor(Qt::blue));
            // What is drawn after it is drawn as usual.
            QCOMPARE(image.pixelColor(5, 95), QColor(Qt::blue));
        }
    }

    void a_bitmap_alone_is_combined_with_the_paper()
    {
        const QRect all(0, 0, 100, 100);
        QCOMPARE(DrawnWmf(WmfBitmap(0xcc0020, all, RedPixel())).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(DrawnWmf(WmfBitmap(inverted, all, RedPixel())).pixelColor(0, 0), QColor(Qt::cyan));
        QCOMPARE(DrawnEmf(EmfBitmap(inverted, all, RedPixel())).pixelColor(0, 0), QColor(Qt::cyan));
    }

    void a_bitmap_alone_is_cut_by_the_clip()
    {
        const QRect all(0, 0, 100, 100);
        const QByteArray pixels = QByteArray(100LL * 300, '\x7f');
        const QByteArray gray = Dib(100, 100, 24, {}, pixels);
        const auto drawn = [&](int right) {
            return DrawnEmf(EmfLongs(30, {0, 0, right, 100}) +
                            EmfRecord(81, Bytes()
                                              .Longs({0, 0, 0, 0, 0, 0, 0, 0, 100, 100, 80, 40, 120,
                                                      pixels.size(), 0, 0xcc0020, 100, 100})
                                              .Raw(gray)
                                              .Data()));
        };
        QCOMPARE(InkOf(drawn(30)), QRect(0, 0, 30, 100));
        QCOMPARE(InkOf(drawn(100)), all);
        // A clip that is a line too narrow is not meant to cut anything off.
        QCOMPARE(InkOf(drawn(99)), all);
    }

    void a_bitmap_on_its_side_of_the_paper_leaves_the_rest_bare()
    {
        const QImage image = DrawnWmf(WmfBitmap(0xcc0020, {0, 0, 50, 100}, RedPixel()) +
                                      WmfBitmap(0xcc0020, {80, 0, 20, 100}, RedPixel()));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(image.width() * 6 / 10, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(image.width() - 1, 0), QColor(Qt::red));
    }
};

TORVIK_TEST(GdiBitmapsTest)
#include "gdi_bitmaps_test.moc"
