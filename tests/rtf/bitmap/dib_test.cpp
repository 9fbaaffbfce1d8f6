#include "rtf/bitmap/dib.h"
#include "rtf/picture_bytes.h"
#include "support/test_class.h"

using namespace torvik::rtf;

class DibTest : public QObject {
    Q_OBJECT

    static constexpr qint64 plenty = 1 << 20;
    static QImage Decode(const QByteArray& bytes, qint64 most = plenty)
    {
        return DecodePackedDib(ViewOf(bytes), most);
    }

private Q_SLOTS:
    void twenty_four_bits_upside_down()
    {
        const QImage image = Decode(FourColors());
        QCOMPARE(image.size(), QSize(2, 2));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(1, 0), QColor(Qt::green));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(1, 1), QColor(Qt::white));
    }

    void a_negative_height_is_the_right_way_up()
    {
        const QImage image = Decode(Dib(1, -2, 24, {}, QByteArray::fromHex("0000ff0000ff0000")));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::green));
    }

    void palettes_of_one_four_and_eight_bits()
    {
        const QByteArray palette = QByteArray::fromHex("0000ff00"
                                                       "00ff0000");
        const QImage one = Decode(Dib(9, 1, 1, palette, QByteArray::fromHex("80800000")));
        QCOMPARE(one.pixelColor(0, 0), QColor(Qt::green));
        QCOMPARE(one.pixelColor(1, 0), QColor(Qt::red));
        QCOMPARE(one.pixelColor(8, 0), QColor(Qt::green));
        const QImage four = Decode(Dib(3, 1, 4, palette, QByteArray::fromHex("10100000")));
        QCOMPARE(four.pixelColor(0, 0), QColor(Qt::green));
        QCOMPARE(four.pixelColor(1, 0), QColor(Qt::red));
        QCOMPARE(four.pixelColor(2, 0), QColor(Qt::green));
        const QImage eight = Decode(Dib(2, 1, 8, palette, QByteArray::fromHex("01000000")));
        QCOMPARE(eight.pixelColor(0, 0), QColor(Qt::green));
    }

    void a_colour_outside_the_palette_is_black()
    {
        QCOMPARE(Decode(Dib(1, 1, 8, QByteArray::fromHex("0000ff00"), QByteArray::fromHex("c8000000")))
                     .pixelColor(0, 0),
                 QColor(Qt::black));
    }

    void sixteen_and_thirty_two_bits()
    {
        const QImage sixteen = Decode(Dib(2, 1, 16, {}, Bytes().U16(0x7c00).U16(0x001f).Data()));
        QCOMPARE(sixteen.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(sixteen.pixelColor(1, 0), QColor(Qt::blue));
        QCOMPARE(Decode(Dib(1, 1, 32, {}, Bytes().U32(0x0000ff00).Data())).pixelColor(0, 0),
                 QColor(Qt::green));
    }

    void masks_say_where_the_colours_are()
    {
        const QByteArray masksAndPixel =
            Bytes().U32(0xf800).U32(0x07e0).U32(0x001f).U16(0x07e0).U16(0).Data();
        QCOMPARE(Decode(Dib(1, 1, 16, {}, masksAndPixel, 3)).pixelColor(0, 0), QColor(Qt::green));
    }

    void runs_of_eight_and_four_bits()
    {
        const QByteArray palette = QByteArray::fromHex("0000ff00"
                                                       "00ff0000"
                                                       "ff000000");
        // Two of colour 1, three as they stand; next line: one further, colour 2.
        const QImage eight = Decode(Dib(5, 2, 8, palette,
                                        QByteArray::fromHex("0201"
                                                            "000302000100"
                                                            "0000"
                                                            "00020100"
                                                            "0102"
                                                            "0001"),
                                        1));
        QCOMPARE(eight.pixelColor(1, 1), QColor(Qt::green));
        QCOMPARE(eight.pixelColor(2, 1), QColor(Qt::blue));
        QCOMPARE(eight.pixelColor(3, 1), QColor(Qt::red));
        QCOMPARE(eight.pixelColor(4, 1), QColor(Qt::green));
        QCOMPARE(eight.pixelColor(1, 0), QColor(Qt::blue));
        const QImage four = Decode(Dib(4, 1, 4, palette,
                                       QByteArray::fromHex("0412"
                                                           "0001"),
                                       2));
        QCOMPARE(four.pixelColor(0, 0), QColor(Qt::green));
        QCOMPARE(four.pixelColor(1, 0), QColor(Qt::blue));
        QCOMPARE(four.pixelColor(2, 0), QColor(Qt::green));
    }

    void runs_that_leave_the_picture_are_cut()
    {
        const QImage image = Decode(Dib(2, 1, 8,
                                        QByteArray::fromHex("0000ff00"
                                                            "00ff0000"),
                                        QByteArray::fromHex("ff01"
                                                            "ff01"
                                                            "0002ffff"
                                                            "ff01"),
                                        1));
        QCOMPARE(image.size(), QSize(2, 1));
        QCOMPARE(image.pixelColor(1, 0), QColor(Qt::green));
    }

    void a_file_header_is_passed_over()
    {
        QVERIFY(!Decode("BM" + QByteArray(12, '\0') + FourColors()).isNull());
    }

    void the_oldest_header_has_short_sides()
    {
        const QByteArray bytes =
            Bytes().U32(12).Words({1, 1, 1, 24}).Raw(QByteArray::fromHex("0000ff00")).Data();
        QCOMPARE(Decode(bytes).pixelColor(0, 0), QColor(Qt::red));
    }

    void pixels_that_end_early_are_no_picture()
    {
        for (qsizetype length = 0; length < FourColors().size(); ++length)
            QVERIFY2(Decode(FourColors().left(length)).isNull(), QByteArray::number(length).constData());
    }

    void headers_that_lie_are_refused()
    {
        // A header longer than the bytes, a height that has no opposite, more colours than a depth can name.
        QVERIFY(Decode(QByteArray(FourColors()).replace(0, 4, Bytes().U32(5000).Data())).isNull());
        QVERIFY(Decode(QByteArray(FourColors()).replace(8, 4, Bytes().U32(0x80000000).Data())).isNull());
        QByteArray colors =
            Dib(1, 1, 1, QByteArray::fromHex("0000ff0000ff0000"), QByteArray::fromHex("80000000"));
        colors.replace(32, 4, Bytes().U32(0x7fffffff).Data());
        QCOMPARE(Decode(colors).pixelColor(0, 0), QColor(Qt::green));
        // Runs are of eight or four bits and of no others.
        QVERIFY(Decode(Dib(2, 2, 24, {}, QByteArray(40, 'x'), 1)).isNull());
        QVERIFY(Decode(Dib(2, 2, 8, {}, QByteArray(40, 'x'), 2)).isNull());
        QVERIFY(Decode(Dib(2, 2, 24, {}, QByteArray(40, 'x'), 6)).isNull());
        QVERIFY(Decode("no bitmap at all, by any header").isNull());
    }

    void sides_and_costs_out_of_bounds_are_refused()
    {
        QVERIFY(Decode(Dib(60000, 60000, 1, {}, QByteArray(100, 'x'))).isNull());
        QVERIFY(Decode(Dib(-5, 5, 24, {}, QByteArray(100, 'x'))).isNull());
        QVERIFY(Decode(Dib(0, 5, 24, {}, QByteArray(100, 'x'))).isNull());
        QVERIFY(Decode(Dib(2, 2, 7, {}, QByteArray(100, 'x'))).isNull());
        // Runs need no bytes at all to claim a large picture.
        QVERIFY(Decode(Dib(30000, 30000, 8, {}, QByteArray(4, '\0'), 1)).isNull());
        QVERIFY(Decode(FourColors(), 15).isNull());
        QVERIFY(!Decode(FourColors(), 16).isNull());
    }
};

TORVIK_GUILESS_TEST(DibTest)
#include "dib_test.moc"
