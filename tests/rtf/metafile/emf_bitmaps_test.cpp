#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class EmfBitmapsTest : public QObject {
    Q_OBJECT

    static constexpr quint32 bitBlt = 76;
    static constexpr quint32 stretchBlt = 77;
    static constexpr quint32 maskBlt = 78;
    static constexpr quint32 setDibitsToDevice = 80;
    static constexpr quint32 stretchDibits = 81;
    static constexpr quint32 alphaBlend = 114;
    static constexpr qint64 copied = 0xcc0020;
    static constexpr qint64 dibHeaderBytes = 40;

    /// A shape of its own keeps the drawing at 100 by 100 pixels.
    static QImage Draw(const QByteArray& record)
    {
        return DrawnEmf(EmfFilled(inRed) + EmfRectangle(95, 95, 100, 100) + record);
    }
    /// The three ways to write where a bitmap comes from and goes to. A bitmap of no bytes is left out.
    static QByteArray Record(quint32 type, const QRect& source, const QRect& target, const QByteArray& bitmap,
                             qint64 operation = copied)
    {
        const bool isFromMemory = type == setDibitsToDevice || type == stretchDibits;
        qint64 fixedBytes = 100;
        if (isFromMemory)
            fixedBytes = type == stretchDibits ? 80 : 76;
        else if (type == maskBlt)
            fixedBytes = 128;
        else if (type != bitBlt)
            fixedBytes = 108;
        const qint64 headerAt = bitmap.isEmpty() ? 0 : fixedBytes;
        const qint64 header = bitmap.isEmpty() ? 0 : dibHeaderBytes;
        const qint64 pixels = bitmap.size() - header;
        Bytes bytes;
        bytes.Longs({0, 0, 0, 0, target.x(), target.y()});
        if (isFromMemory) {
            bytes.Longs({source.x(), source.y(), source.width(), source.height()});
            bytes.Longs({headerAt, header, headerAt + header, pixels, 0});
            if (type == stretchDibits)
                bytes.Longs({operation, target.width(), target.height()});
            else
                bytes.Longs({0, target.height()});
        } else {
            bytes.Longs({target.width(), target.height(), operation, source.x(), source.y()});
            bytes.Longs({0x3f800000, 0, 0, 0x3f800000, 0, 0, 0, 0}); // the source is not turned
            bytes.Longs({headerAt, header, headerAt + header, pixels});
            if (type == maskBlt)
                bytes.Longs({0, 0, 0, 0, 0, 0, 0});
            else if (type != bitBlt)
                bytes.Longs({source.width(), source.height()});
        }
        return EmfRecord(type, bytes.Raw(bitmap).Data());
    }
    static void RecordsThatScale()
    {
        QTest::addColumn<quint32>("type");
        QTest::newRow("a bitmap") << stretchBlt;
        QTest::newRow("a bitmap from memory") << stretchDibits;
    }
    static void RecordsThatDoNotScale()
    {
        QTest::addColumn<quint32>("type");
        QTest::newRow("a bitmap") << bitBlt;
        QTest::newRow("a bitmap through a mask") << maskBlt;
        QTest::newRow("a bitmap to the device") << setDibitsToDevice;
    }
    static QByteArray OnePixel(const QByteArray& fourBytes) { return Dib(1, 1, 32, {}, fourBytes); }
    /// The red square below, and a blend over it: how much of the whole is seen, and whether the pixels say
    /// so too.
    static QColor Blended(const QByteArray& bitmap, int alpha, bool pixelsToo)
    {
        const qint64 how = qint64(alpha) << 16 | qint64(pixelsToo ? 1 : 0) << 24;
        return DrawnEmf(EmfFilled(inRed) + EmfRectangle(0, 0, 50, 50) +
                        Record(alphaBlend, {0, 0, 1, 1}, {10, 10, 20, 20}, bitmap, how))
            .pixelColor(20, 20);
    }

private Q_SLOTS:
    void a_bitmap_is_scaled_to_its_target_data() { RecordsThatScale(); }
    void a_bitmap_is_scaled_to_its_target()
    {
        QFETCH(const quint32, type);
        const QRect target(10, 20, 40, 30);
        const QImage image = Draw(Record(type, {0, 0, 2, 2}, target, FourColors()));
        QCOMPARE(CornersOf(image, target), fourCorners);
        QCOMPARE(InkOf(image), target | QRect(95, 95, 5, 5));
        QCOMPARE(NotBare(image, {{9, 20}, {10, 19}, {50, 30}, {20, 50}}), QString());
    }

    void negative_sides_mirror_data() { RecordsThatScale(); }
    void negative_sides_mirror()
    {
        QFETCH(const quint32, type);
        const QRect place(10, 20, 40, 30);
        const auto corners = [&](const QRect& source, const QRect& target) {
            return CornersOf(Draw(Record(type, source, target, FourColors())), place);
        };
        QCOMPARE(corners({0, 0, 2, 2}, {50, 20, -40, 30}), cornersAcross);
        QCOMPARE(corners({0, 0, 2, 2}, {10, 50, 40, -30}), cornersDown);
        QCOMPARE(corners({2, 0, -2, 2}, place), cornersAcross);
        QCOMPARE(corners({0, 2, 2, -2}, place), cornersDown);
    }

    void a_part_of_a_bitmap_may_be_asked_for()
    {
        const QRect target(10, 20, 40, 30);
        const auto middle = [&](quint32 type, const QPoint& source, const QByteArray& bitmap) {
            return Draw(Record(type, {source, QSize(1, 1)}, target, bitmap)).pixelColor(target.center());
        };
        QCOMPARE(middle(stretchBlt, {1, 0}, FourColors()), QColor(Qt::green));
        QCOMPARE(middle(stretchBlt, {1, 0}, FourColorsFromTop()), QColor(Qt::green));
        // From memory the lines are counted as they are stored.
        QCOMPARE(middle(stretchDibits, {1, 0}, FourColors()), QColor(Qt::white));
        QCOMPARE(middle(stretchDibits, {1, 0}, FourColorsFromTop()), QColor(Qt::green));
    }

    void a_bitmap_keeps_its_size_data() { RecordsThatDoNotScale(); }
    void a_bitmap_keeps_its_size()
    {
        QFETCH(const quint32, type);
        const QImage image = Draw(Record(type, {0, 0, 2, 2}, {30, 40, 2, 2}, FourColors()));
        QCOMPARE(CornersOf(image, {30, 40, 2, 2}), fourCorners);
        QCOMPARE(NotBare(image, {{29, 40}, {30, 39}, {32, 41}, {31, 42}}), QString());
        const QImage pixel = Draw(Record(type, {1, 0, 1, 1}, {30, 40, 1, 1}, FourColors()));
        QCOMPARE(pixel.pixelColor(30, 40), type == setDibitsToDevice ? QColor(Qt::white) : QColor(Qt::green));
        QCOMPARE(NotBare(pixel, {{31, 40}, {30, 41}}), QString());
    }

    void without_a_bitmap_the_target_is_filled_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<qint64>("operation");
        QTest::addColumn<QColor>("color");
        for (const quint32 type : {bitBlt, stretchBlt, maskBlt, stretchDibits}) {
            QTest::addRow("with the brush by %u", type) << type << 0xf00021LL << QColor(Qt::red);
            QTest::addRow("black by %u", type) << type << 0x42LL << QColor(Qt::black);
            QTest::addRow("white by %u", type) << type << 0xff0062LL << QColor(Qt::white);
        }
        // The upper byte is for what the mask leaves out: it stays as it is.
        QTest::newRow("with the brush through a mask") << maskBlt << 0xaaf00021LL << QColor(Qt::red);
    }
    void without_a_bitmap_the_target_is_filled()
    {
        QFETCH(const quint32, type);
        QFETCH(const qint64, operation);
        QFETCH(const QColor, color);
        const QImage image =
            DrawnEmf(EmfFilled(inRed) + Record(type, {7, 7, 7, 7}, {10, 20, 40, 30}, {}, operation));
        QCOMPARE(ExtentOf(image, color), QRect(10, 20, 40, 30));
        QCOMPARE(InkOf(image), QRect(10, 20, 40, 30));
    }

    void a_mask_lets_through_what_has_its_second_colour()
    {
        // Four by two pixels, of which two by two are asked for, from the second column on: the second of the
        // upper line and the first of the lower one.
        const QByteArray mask =
            Dib(4, 2, 1, QByteArray::fromHex("00000000ffffff00"), QByteArray::fromHex("4000000020000000"));
        const auto drawn = [&](qint64 operation, qint64 maskHeaderBytes) {
            QByteArray record = Record(maskBlt, {0, 0, 2, 2}, {30, 40, 2, 2}, FourColors(), operation);
            const qint64 maskAt = record.size();
            record.replace(
                100, 28,
                Bytes().Longs({1, 0, 0, maskAt, maskHeaderBytes, maskAt + 48, mask.size() - 48}).Data());
            return Draw(EmfRecord(maskBlt, record.mid(8) + mask));
        };
        const QImage masked = drawn(0xaacc0020, 48);
        QCOMPARE(masked.pixelColor(31, 40), QColor(Qt::green));
        QCOMPARE(masked.pixelColor(30, 41), QColor(Qt::blue));
        QCOMPARE(NotBare(masked, {{30, 40}, {31, 41}}), QString());
        // Without a mask, and with another operation for the rest, all of it is seen.
        QCOMPARE(CornersOf(drawn(0xaacc0020, 0), {30, 40, 2, 2}), fourCorners);
        QCOMPARE(CornersOf(drawn(0xcccc0020, 48), {30, 40, 2, 2}), fourCorners);
    }

    void a_blend_shows_as_much_as_it_says()
    {
        const QByteArray blue = OnePixel(QByteArray::fromHex("ff000000"));
        QCOMPARE(Blended(blue, 255, false), QColor(Qt::blue));
        QCOMPARE(Blended(blue, 0, false), QColor(Qt::red));
        const QColor half = Blended(blue, 128, false);
        QVERIFY2(qAbs(half.red() - 127) <= 2 && qAbs(half.blue() - 128) <= 2, qPrintable(half.name()));
    }

    void a_blend_asks_its_pixels_where_it_says_so()
    {
        // Colours are as dark already as the fourth byte makes them.
        const QColor half = Blended(OnePixel(QByteArray::fromHex("80000080")), 255, true);
        QVERIFY2(qAbs(half.red() - 127) <= 2 && qAbs(half.blue() - 128) <= 2, qPrintable(half.name()));
        QCOMPARE(Blended(OnePixel(QByteArray::fromHex("00000000")), 255, true), QColor(Qt::red));
        QCOMPARE(Blended(OnePixel(QByteArray::fromHex("ff0000ff")), 255, true), QColor(Qt::blue));
        const QColor quarter = Blended(OnePixel(QByteArray::fromHex("80000080")), 128, true);
        QVERIFY2(qAbs(quarter.blue() - 64) <= 2, qPrintable(quarter.name()));
        // Colours brighter than that are brought down; bitmaps without a fourth byte are seen whole.
        const QColor faint = Blended(OnePixel(QByteArray::fromHex("ffffff01")), 255, true);
        QVERIFY2(faint.green() <= 2 && faint.blue() <= 2 && faint.red() >= 253, qPrintable(faint.name()));
        QCOMPARE(Blended(Dib(1, 1, 24, {}, QByteArray::fromHex("ff000000")), 255, true), QColor(Qt::blue));
    }

    void the_pixels_of_a_blend_are_not_mixed_up()
    {
        // Two by two: the lower line comes first, and its second pixel is not seen.
        const QByteArray pixels = QByteArray::fromHex("ff0000ff00000000"
                                                      "0000ffff00ff00ff");
        const qint64 how = 0x01ff0000;
        for (const bool isFromTop : {false, true}) {
            const QImage image = Draw(Record(alphaBlend, {0, 0, 2, 2}, {30, 40, 2, 2},
                                             Dib(2, isFromTop ? -2 : 2, 32, {}, pixels), how));
            const int first = isFromTop ? 40 : 41;
            QCOMPARE(image.pixelColor(30, first), QColor(Qt::blue));
            QCOMPARE(image.pixelColor(31, first).alpha(), 0);
            QCOMPARE(image.pixelColor(30, 81 - first), QColor(Qt::red));
            QCOMPARE(image.pixelColor(31, 81 - first), QColor(Qt::green));
        }
    }

    void bitmaps_that_are_none_leave_the_rest_alone_data()
    {
        QTest::addColumn<QByteArray>("record");
        for (const quint32 type :
             {bitBlt, stretchBlt, maskBlt, setDibitsToDevice, stretchDibits, alphaBlend}) {
            const QByteArray whole = Record(type, {0, 0, 2, 2}, {10, 20, 2, 2}, FourColors(), 0x01cc0020);
            const bool isFromMemory = type == setDibitsToDevice || type == stretchDibits;
            const int placesAt = isFromMemory ? 48 : 84;
            QTest::addRow("ends early, %u", type) << EmfRecord(type, whole.mid(8).chopped(4));
            QTest::addRow("a header beyond the end, %u", type)
                << QByteArray(whole).replace(placesAt, 4, Bytes().U32(0xfffffff0).Data());
            QTest::addRow("a header of endless bytes at the end, %u", type) << QByteArray(whole).replace(
                placesAt, 8, Bytes().Longs({whole.size() - 4, 0xffffffff}).Data());
            QTest::addRow("pixels beyond the end, %u", type)
                << QByteArray(whole).replace(placesAt + 8, 4, Bytes().U32(0xfffffff0).Data());
            QTest::addRow("too few pixels, %u", type)
                << QByteArray(whole).replace(placesAt + 12, 4, Bytes().U32(3).Data());
            QTest::addRow("sides beyond all bounds, %u", type) << QByteArray(whole).replace(
                whole.size() - FourColors().size() + 4, 8, Bytes().Longs({0x7fffffff, 0x7fffffff}).Data());
        }
    }
    void bitmaps_that_are_none_leave_the_rest_alone()
    {
        QFETCH(const QByteArray, record);
        QCOMPARE(InkOf(Draw(record)), QRect(95, 95, 5, 5));
    }

    void sources_beyond_all_bounds_are_survived()
    {
        constexpr int farOut = 1'000'000'000;
        const QRect target(10, 20, 40, 30);
        const auto drawn = [&](quint32 type, const QRect& source) {
            return CornersOf(Draw(Record(type, source, target, FourColors())), target);
        };
        for (const quint32 type : {stretchBlt, stretchDibits}) {
            QCOMPARE(drawn(type, {farOut, farOut, 5, 5}), fourCorners);
            QCOMPARE(drawn(type, {0, 0, farOut, farOut}), fourCorners);
            QCOMPARE(drawn(type, {-farOut, -farOut, -farOut, -farOut}), drawn(type, {2, 2, -2, -2}));
        }
    }
};

TORVIK_TEST(EmfBitmapsTest)
#include "emf_bitmaps_test.moc"
