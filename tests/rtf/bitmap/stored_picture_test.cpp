#include "rtf/bitmap/dib.h"
#include "rtf/bitmap/stored_picture.h"
#include "rtf/picture_bytes.h"
#include "support/test_class.h"

#include <QBuffer>

using namespace torvik::rtf;

class StoredPictureTest : public QObject {
    Q_OBJECT

    static constexpr qint64 plenty = 1 << 20;

    static QByteArray Stored(const char* format, QImage::Format pixels = QImage::Format_RGB32)
    {
        QImage image(64, 32, pixels);
        image.fill(Qt::red);
        for (int y = 0; y < 32; ++y) {
            for (int x = 32; x < 64; ++x)
                image.setPixelColor(x, y, Qt::blue);
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format, 100);
        return bytes;
    }
    static bool IsNear(const QColor& color, const QColor& wanted)
    {
        return qAbs(color.red() - wanted.red()) < 30 && qAbs(color.green() - wanted.green()) < 30 &&
               qAbs(color.blue() - wanted.blue()) < 30;
    }

private Q_SLOTS:
    void both_kinds_are_known_by_their_first_bytes()
    {
        QVERIFY(IsPng(ViewOf(Stored("png"))) && !IsPng(ViewOf(Stored("jpeg"))));
        QVERIFY(IsJpeg(ViewOf(Stored("jpeg"))) && !IsJpeg(ViewOf(Stored("png"))));
        QVERIFY(!IsPng({}) && !IsJpeg({}) && !IsPng("\x89PNG") && !IsJpeg("\xff\xd8"));
    }

    void both_kinds_come_out_in_their_colours()
    {
        for (const char* format : {"png", "jpeg"}) {
            const QImage image = DecodeStoredPicture(ViewOf(Stored(format)), plenty);
            QCOMPARE(image.size(), QSize(64, 32));
            QVERIFY(IsNear(image.pixelColor(5, 5), Qt::red) && IsNear(image.pixelColor(60, 30), Qt::blue));
        }
    }

    void too_large_a_jpeg_comes_out_smaller_and_a_png_not_at_all()
    {
        const QImage small = DecodeStoredPicture(ViewOf(Stored("jpeg")), 64LL * 32);
        QCOMPARE(small.size(), QSize(32, 16));
        QVERIFY(IsNear(small.pixelColor(5, 5), Qt::red) && IsNear(small.pixelColor(28, 12), Qt::blue));
        QVERIFY(DecodeStoredPicture(ViewOf(Stored("png")), 64LL * 32).isNull());
        QVERIFY(DecodeStoredPicture(ViewOf(Stored("jpeg")), 0).isNull());
        QVERIFY(DecodeStoredPicture(ViewOf(Stored("jpeg")), -5).isNull());
    }

    void pixels_of_twice_the_depth_cost_twice_as_much()
    {
        const QByteArray deep = Stored("png", QImage::Format_RGBX64);
        const qint64 usual = 64LL * 32 * 4;
        QVERIFY(DecodeStoredPicture(ViewOf(deep), 2 * usual - 1).isNull());
        QVERIFY(!DecodeStoredPicture(ViewOf(deep), 2 * usual).isNull());
        QVERIFY(DecodeStoredPicture(ViewOf(Stored("png")), usual - 1).isNull());
        QVERIFY(!DecodeStoredPicture(ViewOf(Stored("png")), usual).isNull());
    }

    void a_picture_that_ends_early_is_none()
    {
        for (const char* format : {"png", "jpeg"}) {
            const QByteArray whole = Stored(format);
            for (const qsizetype length :
                 {qsizetype(0), qsizetype(3), qsizetype(9), whole.size() / 2, whole.size() - 12})
                QVERIFY2(DecodeStoredPicture(ViewOf(whole.left(length)), plenty).isNull(), format);
        }
    }

    void a_picture_damaged_in_the_middle_is_survived()
    {
        QByteArray png = Stored("png");
        png.replace(40, 8, "\xff\xff\xff\xff\xff\xff\xff\xff");
        QVERIFY(DecodeStoredPicture(ViewOf(png), plenty).isNull());
        QByteArray sides = Stored("png");
        sides.replace(16, 8, QByteArray::fromHex("7fffffff7fffffff"));
        QVERIFY(DecodeStoredPicture(ViewOf(sides), plenty).isNull());
        sides.replace(16, 8, QByteArray(8, '\0'));
        QVERIFY(DecodeStoredPicture(ViewOf(sides), plenty).isNull());
        const QByteArray only =
            QByteArray::fromHex("ffd8ff") + QByteArray(50, 'x') + QByteArray::fromHex("ffd9");
        QVERIFY(DecodeStoredPicture(ViewOf(only), plenty).isNull());
    }

    void other_bytes_are_none() { QVERIFY(DecodeStoredPicture(ViewOf(FourColors()), plenty).isNull()); }

    void a_bitmap_may_hold_a_stored_picture()
    {
        // Its own depth says nothing then.
        QCOMPARE(DecodePackedDib(ViewOf(Dib(64, 32, 0, {}, Stored("jpeg"), 4)), plenty).size(),
                 QSize(64, 32));
        const QImage png = DecodePackedDib(ViewOf(Dib(64, 32, 0, {}, Stored("png"), 5)), plenty);
        QCOMPARE(png.pixelColor(5, 5), QColor(Qt::red));
        QVERIFY(DecodePackedDib(ViewOf(Dib(64, 32, 0, {}, Stored("png").left(60), 5)), plenty).isNull());
    }
};

TORVIK_TEST(StoredPictureTest)
#include "stored_picture_test.moc"
