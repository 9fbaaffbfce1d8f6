#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class WmfBitmapsTest : public QObject {
    Q_OBJECT

    static constexpr qint64 copied = 0xcc0020;

    /// A shape of its own keeps the drawing at 100 by 100 pixels.
    static QImage Draw(const QByteArray& record)
    {
        return DrawnWmf(WmfFilled(inRed) + WmfRectangle(95, 95, 100, 100) + record);
    }
    /// Of the oldest kind: its lines stand from the top.
    static QByteArray OldFourColors()
    {
        return Bytes()
            .Words({0, 2, 2, 6})
            .U8(1)
            .U8(24)
            .Raw(QByteArray::fromHex("0000ff00ff00ff0000ffffff"))
            .Data();
    }
    /// The numbers of the records that scale: first those of the source, then those of the target.
    static QByteArray Scaled(int function, const QRect& source, const QRect& target, const QByteArray& bitmap,
                             qint64 operation = copied)
    {
        Bytes bytes;
        bytes.U32(operation);
        if (function == stretchDib)
            bytes.U16(0); // the palette holds colours
        bytes.Words({source.height(), source.width(), source.y(), source.x()});
        bytes.Words({target.height(), target.width(), target.y(), target.x()});
        return WmfRecord(function, bytes.Raw(bitmap).Data());
    }
    static QByteArray Unscaled(int function, const QPoint& source, const QRect& target,
                               const QByteArray& bitmap, qint64 operation = copied)
    {
        Bytes bytes;
        if (function == setDibToDev)
            bytes.Words({0, target.height(), 0}); // the palette, and which lines are there
        else
            bytes.U32(operation);
        bytes.Words({source.y(), source.x(), target.height(), target.width(), target.y(), target.x()});
        return WmfRecord(function, bytes.Raw(bitmap).Data());
    }

    static constexpr int bitBlt = 0x0922;
    static constexpr int dibBitBlt = 0x0940;
    static constexpr int stretchBlt = 0x0b23;
    static constexpr int dibStretchBlt = 0x0b41;
    static constexpr int setDibToDev = 0x0d33;
    static constexpr int stretchDib = 0x0f43;

    static QByteArray BitmapFor(int function)
    {
        return function == stretchBlt || function == bitBlt ? OldFourColors() : FourColors();
    }
    static void RecordsThatScale()
    {
        QTest::addColumn<int>("function");
        QTest::newRow("a bitmap from memory") << stretchDib;
        QTest::newRow("a bitmap") << dibStretchBlt;
        QTest::newRow("an old bitmap") << stretchBlt;
    }
    static void RecordsThatDoNotScale()
    {
        QTest::addColumn<int>("function");
        QTest::newRow("a bitmap to the device") << setDibToDev;
        QTest::newRow("a bitmap") << dibBitBlt;
        QTest::newRow("an old bitmap") << bitBlt;
    }

private Q_SLOTS:
    void a_bitmap_is_scaled_to_its_target_data() { RecordsThatScale(); }
    void a_bitmap_is_scaled_to_its_target()
    {
        QFETCH(const int, function);
        const QRect target(10, 20, 40, 30);
        const QByteArray bitmap = BitmapFor(function);
        const QImage image = Draw(Scaled(function, {0, 0, 2, 2}, target, bitmap));
        QCOMPARE(CornersOf(image, target), fourCorners);
        QCOMPARE(InkOf(image), target | QRect(95, 95, 5, 5));
        QCOMPARE(NotBare(image, {{9, 20}, {10, 19}, {50, 30}, {20, 50}}), QString());
    }

    void negative_sides_mirror_data() { RecordsThatScale(); }
    void negative_sides_mirror()
    {
        QFETCH(const int, function);
        const QRect place(10, 20, 40, 30);
        const QByteArray bitmap = BitmapFor(function);
        const auto corners = [&](const QRect& source, const QRect& target) {
            return CornersOf(Draw(Scaled(function, source, target, bitmap)), place);
        };
        QCOMPARE(corners({0, 0, 2, 2}, {50, 20, -40, 30}), cornersAcross);
        QCOMPARE(corners({0, 0, 2, 2}, {10, 50, 40, -30}), cornersDown);
        QCOMPARE(corners({2, 0, -2, 2}, place), cornersAcross);
        QCOMPARE(corners({0, 2, 2, -2}, place), cornersDown);
        QCOMPARE(corners({2, 2, -2, -2}, {50, 50, -40, -30}), fourCorners);
    }

    void a_part_of_a_bitmap_may_be_asked_for()
    {
        const QRect target(10, 20, 40, 30);
        const auto middle = [&](int function, const QPoint& source, const QByteArray& bitmap) {
            return Draw(Scaled(function, {source, QSize(1, 1)}, target, bitmap)).pixelColor(target.center());
        };
        // Lines are counted from the top, but from the bottom where the bitmap comes straight from memory.
        QCOMPARE(middle(dibStretchBlt, {1, 0}, FourColors()), QColor(Qt::green));
        QCOMPARE(middle(stretchBlt, {1, 0}, OldFourColors()), QColor(Qt::green));
        QCOMPARE(middle(stretchDib, {1, 0}, FourColors()), QColor(Qt::white));
        QCOMPARE(middle(stretchDib, {1, 1}, FourColors()), QColor(Qt::green));
        QCOMPARE(middle(stretchDib, {1, 0}, FourColorsFromTop()), QColor(Qt::green));
    }

    void a_bitmap_keeps_its_size_data() { RecordsThatDoNotScale(); }
    void a_bitmap_keeps_its_size()
    {
        QFETCH(const int, function);
        const QImage image = Draw(Unscaled(function, {0, 0}, {30, 40, 2, 2}, BitmapFor(function)));
        QCOMPARE(CornersOf(image, {30, 40, 2, 2}), fourCorners);
        QCOMPARE(InkOf(image).topLeft(), QPoint(30, 40));
        QCOMPARE(NotBare(image, {{32, 41}, {31, 42}}), QString());
        // A single pixel of it, the second of a line.
        const QImage pixel = Draw(Unscaled(function, {1, 0}, {30, 40, 1, 1}, BitmapFor(function)));
        QCOMPARE(pixel.pixelColor(30, 40), function == setDibToDev ? QColor(Qt::white) : QColor(Qt::green));
        QCOMPARE(NotBare(pixel, {{31, 40}, {30, 41}}), QString());
    }

    void lines_from_the_top_are_counted_from_the_top()
    {
        const QByteArray pixel = Unscaled(setDibToDev, {1, 0}, {30, 40, 1, 1}, FourColorsFromTop());
        QCOMPARE(Draw(pixel).pixelColor(30, 40), QColor(Qt::green));
    }

    void without_a_bitmap_the_target_is_filled_data()
    {
        QTest::addColumn<int>("function");
        QTest::addColumn<qint64>("operation");
        QTest::addColumn<QColor>("color");
        for (const int function : {bitBlt, dibBitBlt, stretchBlt, dibStretchBlt}) {
            QTest::addRow("with the brush by %04x", function) << function << 0xf00021LL << QColor(Qt::red);
            QTest::addRow("black by %04x", function) << function << 0x42LL << QColor(Qt::black);
            QTest::addRow("white by %04x", function) << function << 0xff0062LL << QColor(Qt::white);
        }
    }
    void without_a_bitmap_the_target_is_filled()
    {
        QFETCH(const int, function);
        QFETCH(const qint64, operation);
        QFETCH(const QColor, color);
        Bytes bytes;
        bytes.U32(operation);
        if (function == stretchBlt || function == dibStretchBlt)
            bytes.Words({7, 7});
        // A place in a bitmap that is not there, a number without meaning, and the target.
        bytes.Words({7, 7, 7, 30, 40, 20, 10});
        const QImage image = DrawnWmf(WmfFilled(inRed) + WmfRecord(function, bytes.Data()));
        QCOMPARE(ExtentOf(image, color), QRect(10, 20, 40, 30));
        QCOMPARE(InkOf(image), QRect(10, 20, 40, 30));
    }

    void bitmaps_that_are_none_leave_the_rest_alone_data()
    {
        QTest::addColumn<QByteArray>("record");
        const QRect target(10, 20, 40, 30);
        for (const int function : {stretchDib, dibStretchBlt, stretchBlt}) {
            const QByteArray whole = Scaled(function, {0, 0, 2, 2}, target, BitmapFor(function));
            QTest::addRow("ends early, %04x", function) << WmfRecord(function, whole.mid(6).chopped(8));
            QTest::addRow("bytes that are no bitmap, %04x", function)
                << Scaled(function, {0, 0, 2, 2}, target, QByteArray(60, '\x7f'));
            QTest::addRow("a target of no size, %04x", function)
                << Scaled(function, {0, 0, 2, 2}, {10, 20, 0, 0}, BitmapFor(function));
        }
        for (const int function : {setDibToDev, dibBitBlt, bitBlt}) {
            const QByteArray whole = Unscaled(function, {0, 0}, target, BitmapFor(function));
            QTest::addRow("ends early, %04x", function) << WmfRecord(function, whole.mid(6).chopped(8));
            QTest::addRow("bytes that are no bitmap, %04x", function)
                << Unscaled(function, {0, 0}, target, QByteArray(60, '\x7f'));
        }
        QTest::newRow("a bitmap from memory that is not there")
            << Scaled(stretchDib, {0, 0, 2, 2}, target, {}, 0xf00021);
        QTest::newRow("an old bitmap of sixteen colours, which only its device knows")
            << Scaled(stretchBlt, {0, 0, 2, 2}, target,
                      Bytes().Words({0, 2, 2, 2}).U8(1).U8(4).Raw(QByteArray(4, '\x11')).Data());
    }
    void bitmaps_that_are_none_leave_the_rest_alone()
    {
        QFETCH(const QByteArray, record);
        QCOMPARE(InkOf(Draw(record)), QRect(95, 95, 5, 5));
    }

    void a_part_beyond_the_bitmap_is_all_of_it()
    {
        const QRect target(10, 20, 40, 30);
        QCOMPARE(CornersOf(Draw(Scaled(dibStretchBlt, {500, 500, 9, 9}, target, FourColors())), target),
                 fourCorners);
        QCOMPARE(CornersOf(Draw(Scaled(dibStretchBlt, {0, 0, 0, 0}, target, FourColors())), target),
                 fourCorners);
        QCOMPARE(
            CornersOf(Draw(Scaled(dibStretchBlt, {-20, -20, 32767, 32767}, target, FourColors())), target),
            fourCorners);
    }
};

TORVIK_TEST(WmfBitmapsTest)
#include "wmf_bitmaps_test.moc"
