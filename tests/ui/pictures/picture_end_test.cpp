#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "ui/pictures/picture_end.h"

using namespace torvik;

/// Whether a picture file holds all of its data.
class PictureEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whole_pictures_have_their_end()
    {
        const QImage image = FourCorners({37, 21});
        QVERIFY(HasItsEnd(Encoded(image, "jpg")));
        QVERIFY(HasItsEnd(Encoded(image, "jpg", true)));
        QVERIFY(HasItsEnd(Encoded(image, "bmp")));
        QVERIFY(HasItsEnd(Encoded(image.convertToFormat(QImage::Format_Indexed8), "bmp")));
        QVERIFY(HasItsEnd(Encoded(image.convertToFormat(QImage::Format_Mono), "bmp")));
    }

    void no_beginning_of_a_jpeg_has_its_end_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QImage image = FourCorners({61, 43});
        QTest::newRow("baseline") << Encoded(image, "jpg");
        QTest::newRow("progressive") << Encoded(image, "jpg", true);
        QTest::newRow("with an orientation") << WithOrientation(Encoded(image, "jpg"), 6);
    }

    void no_beginning_of_a_jpeg_has_its_end()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(bytes.endsWith("\xff\xd9"));
        for (qsizetype length = 2; length < bytes.size(); ++length)
            QVERIFY2(!HasItsEnd(bytes.left(length)), qPrintable(QString::number(length)));
    }

    void an_end_inside_a_segment_is_none()
    {
        QByteArray jpeg = Encoded(FourCorners({16, 16}), "jpg");
        jpeg.insert(2,
                    QByteArray("\xff\xe1\x00\x06\xff\xd9\xff\xd9", 8)); // a thumbnail with an end of its own
        QVERIFY(HasItsEnd(jpeg));
        QVERIFY(!HasItsEnd(jpeg.left(jpeg.size() - 2)));
    }

    void what_follows_the_end_does_not_matter()
    {
        QVERIFY(HasItsEnd(Encoded(FourCorners({16, 16}), "jpg") + QByteArray(1000, '\0')));
        QVERIFY(HasItsEnd(Encoded(FourCorners({16, 16}), "bmp") + "rest"));
    }

    void fill_bytes_and_lone_markers_are_passed_over()
    {
        QByteArray jpeg = Encoded(FourCorners({16, 16}), "jpg");
        jpeg.insert(2, "\xff\xff\xff");
        QVERIFY(HasItsEnd(jpeg));
        QVERIFY(HasItsEnd(QByteArray("\xff\xd8\xff\x01\xff\xd0\xff\xd9", 8)));
    }

    void segments_that_reach_too_far_or_are_too_short_are_no_jpeg()
    {
        QVERIFY(!HasItsEnd(QByteArray("\xff\xd8\xff\xe0\xff\xff\xff\xd9", 8)));
        QVERIFY(!HasItsEnd(QByteArray("\xff\xd8\xff\xe0\x00\x01\xff\xd9", 8)));
        QVERIFY(!HasItsEnd(QByteArray("\xff\xd8\xff\xe0\x00", 5)));
        QVERIFY(!HasItsEnd(QByteArray("\xff\xd8text\xff\xd9", 8)));
    }

    void no_beginning_of_a_bitmap_has_its_end()
    {
        for (const QImage::Format format :
             {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono}) {
            const QByteArray bytes = Encoded(FourCorners({21, 13}).convertToFormat(format), "bmp");
            for (qsizetype length = 2; length < bytes.size(); ++length)
                QVERIFY2(!HasItsEnd(bytes.left(length)), qPrintable(QString::number(length)));
        }
    }

    void a_bitmap_of_the_oldest_kind_is_measured_too()
    {
        QByteArray bytes("BM", 2);
        bytes.resize(26 + 6 + 4 * 3); // two colours, three rows of 32 bits
        std::fill(bytes.begin() + 2, bytes.end(), '\0');
        qToLittleEndian<quint32>(32, bytes.data() + 10);
        qToLittleEndian<quint32>(12, bytes.data() + 14);
        qToLittleEndian<quint16>(9, bytes.data() + 18);
        qToLittleEndian<quint16>(3, bytes.data() + 20);
        qToLittleEndian<quint16>(1, bytes.data() + 24);
        QVERIFY(HasItsEnd(bytes));
        QVERIFY(!HasItsEnd(bytes.chopped(1)));
    }

    void a_bitmap_with_measures_beyond_all_sense_is_none()
    {
        QByteArray bytes = Encoded(FourCorners({8, 8}), "bmp");
        for (const qint32 measure : {INT32_MAX, INT32_MIN, -1'000'000'000}) {
            qToLittleEndian<qint32>(measure, bytes.data() + 18);
            qToLittleEndian<qint32>(measure, bytes.data() + 22);
            qToLittleEndian<quint16>(0xffff, bytes.data() + 28);
            QVERIFY(!HasItsEnd(bytes));
        }
    }

    void other_formats_are_left_to_their_loaders()
    {
        QVERIFY(HasItsEnd("\x89PNG"));
        QVERIFY(HasItsEnd("text"));
        QVERIFY(HasItsEnd({}));
    }
};

TORVIK_APPLESS_TEST(PictureEndTest)
#include "picture_end_test.moc"
