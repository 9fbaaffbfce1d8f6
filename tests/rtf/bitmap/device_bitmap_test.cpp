#include "rtf/bitmap/device_bitmap.h"
#include "rtf/picture_bytes.h"
#include "support/test_class.h"

#include <climits>

using namespace torvik::rtf;

class DeviceBitmapTest : public QObject {
    Q_OBJECT

    static constexpr qint64 plenty = 1 << 20;

    static QImage Decode(int width, int height, int bits, const QByteArray& pixels, int lineBytes = 0,
                         qint64 most = plenty)
    {
        return DecodeDeviceBitmap({width, height, lineBytes, bits, ViewOf(pixels)}, most);
    }

private Q_SLOTS:
    void one_bit_is_black_or_white_from_the_left()
    {
        const QImage image = Decode(10, 2, 1, QByteArray::fromHex("80400000"));
        QCOMPARE(image.size(), QSize(10, 2));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(1, 0), QColor(Qt::black));
        QCOMPARE(image.pixelColor(9, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::black));
    }

    void twenty_four_bits_are_blue_green_red_from_the_top()
    {
        // An odd number of bytes in a line is filled up to a word.
        const QImage image = Decode(1, 2, 24, QByteArray::fromHex("0000ffee00ff00ee"));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::green));
        const QImage line = Decode(2, 1, 24, QByteArray::fromHex("ff00000000ff"));
        QCOMPARE(line.pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(line.pixelColor(1, 0), QColor(Qt::red));
    }

    void of_thirty_two_bits_the_last_eight_do_not_count()
    {
        const QImage image = Decode(2, 1, 32, QByteArray::fromHex("ff00000000ff00ff"));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(1, 0), QColor(Qt::green));
    }

    void lines_may_be_longer_than_their_pixels()
    {
        const QByteArray pixels = QByteArray::fromHex("0000ff0000000000"
                                                      "ff00000000000000");
        const QImage image = Decode(1, 2, 32, pixels, 8);
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::blue));
        // Lines shorter than their pixels are a mistake: the pixels count.
        QCOMPARE(Decode(1, 2, 32, pixels.left(4) + pixels.mid(8, 4), 2), image);
        QCOMPARE(Decode(1, 2, 32, pixels.left(4) + pixels.mid(8, 4), -9), image);
    }

    void depths_that_need_a_device_are_none_data()
    {
        QTest::addColumn<int>("bits");
        for (const int bits : {INT_MIN, -1, 0, 2, 4, 8, 15, 16, 31, 33, INT_MAX})
            QTest::addRow("%d bits", bits) << bits;
    }
    void depths_that_need_a_device_are_none()
    {
        QFETCH(const int, bits);
        QVERIFY(Decode(2, 2, bits, QByteArray(100, 'x')).isNull());
    }

    void sides_out_of_bounds_are_none_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("no width") << 0 << 2;
        QTest::newRow("no height") << 2 << 0;
        QTest::newRow("negative width") << -2 << 2;
        QTest::newRow("negative height") << 2 << -2;
        QTest::newRow("endless width") << INT_MAX << 1;
        QTest::newRow("endless height") << 1 << INT_MAX;
        QTest::newRow("larger than what is there") << 2 << 200;
    }
    void sides_out_of_bounds_are_none()
    {
        QFETCH(const int, width);
        QFETCH(const int, height);
        QVERIFY(Decode(width, height, 1, QByteArray(100, 'x')).isNull());
    }

    void pixels_that_end_early_are_none()
    {
        const QByteArray whole(16, 'x');
        QVERIFY(!Decode(2, 2, 32, whole).isNull());
        for (qsizetype length = 0; length < whole.size(); ++length)
            QVERIFY2(Decode(2, 2, 32, whole.left(length)).isNull(), QByteArray::number(length).constData());
        QVERIFY(Decode(2, 2, 32, whole, INT_MAX).isNull());
    }

    void no_more_memory_is_taken_than_allowed()
    {
        QVERIFY(!Decode(2, 2, 32, QByteArray(16, 'x'), 0, 16).isNull());
        QVERIFY(Decode(2, 2, 32, QByteArray(16, 'x'), 0, 15).isNull());
        QVERIFY(Decode(2, 2, 1, QByteArray(16, 'x'), 0, 15).isNull());
    }
};

TORVIK_GUILESS_TEST(DeviceBitmapTest)
#include "device_bitmap_test.moc"
