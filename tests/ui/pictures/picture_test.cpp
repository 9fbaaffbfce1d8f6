#include "runtime/failure.h"
#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "ui/pictures/picture.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImageReader>
#include <QTransform>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Picture files in memory.
class PictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RaisePictureLimit(); }

    void real_pictures_load_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        const QImage image = FourCorners({64, 48});
        QTest::newRow("jpeg") << u"67A.JPG"_s << Encoded(image, "jpg");
        QTest::newRow("progressive jpeg") << u"67B.JPG"_s << Encoded(image, "jpg", true);
        QTest::newRow("grey jpeg") << u"67C.JPG"_s
                                   << Encoded(image.convertToFormat(QImage::Format_Grayscale8), "jpg");
        QTest::newRow("bmp") << u"quillon3.bmp"_s << Encoded(image, "bmp");
        QTest::newRow("bmp with a palette")
            << u"quillon3.bmp"_s << Encoded(image.convertToFormat(QImage::Format_Indexed8), "bmp");
        QTest::newRow("png named jpg") << u"67D.JPG"_s << Encoded(image, "png");
    }

    void real_pictures_load()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        const Picture picture = Picture::Load(folder_.Add(name, bytes));
        QVERIFY(!picture.IsEmpty());
        QCOMPARE(picture.FileName(), name);
        QCOMPARE(picture.NaturalSize(), QSize(64, 48));
        QCOMPARE(picture.Natural().size(), QSize(64, 48));
        if (qstrcmp(QTest::currentDataTag(), "grey jpeg") != 0)
            QVERIFY(Alike(picture.Natural().pixelColor(10, 10), Qt::red));
    }

    void no_picture_is_empty()
    {
        const Picture none;
        QVERIFY(none.IsEmpty());
        QVERIFY(none.Natural().isNull());
        QVERIFY(none.Fitted({100, 100}).isNull());
        QVERIFY(none.Stretched({100, 100}).isNull());
        QCOMPARE(none.FileName(), QString());
    }

    void what_is_no_picture_is_failure_481_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("The Torvik Vollandry 2001, which is no picture at all.\r\n");
        QTest::newRow("zeros") << QByteArray(5000, '\0');
        QTest::newRow("the first marker alone") << QByteArray("\xff\xd8");
        QTest::newRow("rich text") << QByteArray("{\\rtf1\\ansi no picture}");
        QTest::newRow("an end without a picture") << QByteArray("\xff\xd8\xff\xd9");
    }

    void what_is_no_picture_is_failure_481()
    {
        QFETCH(const QByteArray, bytes);
        const QString path = folder_.Add(u"fake.jpg"_s, bytes);
        QCOMPARE(ResumeNext([&] { Picture::Load(path).Natural(); }), 481);
    }

    void a_file_that_ends_early_is_failure_481_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QImage image = FourCorners({61, 43});
        QTest::newRow("jpeg") << Encoded(image, "jpg");
        QTest::newRow("progressive jpeg") << Encoded(image, "jpg", true);
        QTest::newRow("bmp") << Encoded(image, "bmp");
        QTest::newRow("png") << Encoded(image, "png");
    }

    void a_file_that_ends_early_is_failure_481()
    {
        QFETCH(const QByteArray, bytes);
        for (qsizetype length = 0; length < bytes.size() - 12;
             length += 7) { // after that a PNG holds but its end
            const QString path = folder_.Add(u"cut.jpg"_s, bytes.left(length));
            const int failed = ResumeNext([&] { Picture::Load(path).Natural(); });
            QVERIFY2(failed == 481, qPrintable(QString::number(length)));
        }
    }

    void a_file_that_is_not_there_is_the_file_systems_failure()
    {
        QCOMPARE(ResumeNext([&] { Picture::Load(folder_.PathOf(u"missing.jpg"_s)); }), 53);
        QCOMPARE(ResumeNext([&] { Picture::Load(folder_.PathOf(u"no\\folder.jpg"_s)); }), 76);
        QCOMPARE(ResumeNext([] { Picture::Load(u"Q:\\67A.JPG"_s); }), 68);
        QCOMPARE(ResumeNext([] { Picture::FromResource(u":/assets/none.png"_s); }), 53);
    }

    void an_orientation_tag_is_followed_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QTransform>("stored"); // how the stored picture came from the upright one
        QTransform mirror;
        mirror.scale(-1, 1);
        const auto turned = [](int degrees) { return QTransform().rotate(degrees); };
        QTest::newRow("1") << 1 << QTransform();
        QTest::newRow("2") << 2 << mirror;
        QTest::newRow("3") << 3 << turned(180);
        QTest::newRow("4") << 4 << QTransform().scale(1, -1);
        QTest::newRow("5") << 5 << QTransform(0, 1, 1, 0, 0, 0);
        QTest::newRow("6") << 6 << turned(-90);
        QTest::newRow("7") << 7 << QTransform(0, -1, -1, 0, 0, 0);
        QTest::newRow("8") << 8 << turned(90);
    }

    void an_orientation_tag_is_followed()
    {
        QFETCH(const int, orientation);
        QFETCH(const QTransform, stored);
        const QByteArray jpeg = Encoded(FourCorners({80, 40}).transformed(stored), "jpg");
        const Picture picture = Picture::Load(
            folder_.Add(u"turned.jpg"_s, WithOrientation(jpeg, static_cast<char>(orientation))));
        QCOMPARE(picture.NaturalSize(), QSize(80, 40));
        for (const QImage& image : {picture.Natural(), picture.Fitted({40, 40}).scaled(80, 40)}) {
            QCOMPARE(image.size(), QSize(80, 40));
            QVERIFY(Alike(image.pixelColor(20, 10), Qt::red));
            QVERIFY(Alike(image.pixelColor(60, 10), Qt::green));
            QVERIFY(Alike(image.pixelColor(20, 30), Qt::blue));
            QVERIFY(Alike(image.pixelColor(60, 30), Qt::white));
        }
    }

    void a_picture_fits_with_its_proportions_kept()
    {
        const Picture landscape =
            Picture::Load(folder_.Add(u"wide.jpg"_s, Encoded(FourCorners({640, 480}), "jpg")));
        QCOMPARE(landscape.Fitted({776, 470}).size(), QSize(626, 470));
        QCOMPARE(landscape.Fitted({320, 1000}).size(), QSize(320, 240));
        QCOMPARE(landscape.Stretched({320, 1000}).size(), QSize(320, 1000));
        QVERIFY(landscape.Stretched({320, 0}).isNull());
        const Picture portrait =
            Picture::Load(folder_.Add(u"tall.jpg"_s, Encoded(FourCorners({300, 400}), "jpg")));
        QCOMPARE(portrait.Fitted({776, 400}).size(), QSize(300, 400));
        QCOMPARE(portrait.Fitted({30, 30}).size(), QSize(22, 30));
        QVERIFY(portrait.Fitted({0, 30}).isNull());
    }

    void tiny_pictures_are_scaled_up()
    {
        const Picture dot = Picture::Load(folder_.Add(u"dot.bmp"_s, Encoded(FourCorners({1, 1}), "bmp")));
        QCOMPARE(dot.Fitted({300, 200}).size(), QSize(200, 200));
        QCOMPARE(dot.Natural().size(), QSize(1, 1));
    }

    void a_picture_of_1_by_10000_keeps_one_pixel_of_width()
    {
        const Picture line =
            Picture::Load(folder_.Add(u"line.jpg"_s, Encoded(FourCorners({1, 10000}), "jpg")));
        QCOMPARE(line.NaturalSize(), QSize(1, 10000));
        QCOMPARE(line.Fitted({776, 470}).size(), QSize(1, 470));
        QCOMPARE(line.Natural().size(), QSize(1, 10000));
    }

    void a_picture_of_more_than_300_megapixels_is_refused_by_its_header()
    {
        const QByteArray small = Encoded(FourCorners({16, 16}), "jpg");
        const QString path = folder_.Add(u"huge.jpg"_s, WithSize(small, 65500, 65500));
        QElapsedTimer watch;
        watch.start();
        QCOMPARE(ResumeNext([&] { Picture::Load(path); }), 481);
        QVERIFY2(watch.elapsed() < 1000, "so much was not decoded");
        const QString just = folder_.Add(u"just.jpg"_s, WithSize(small, 20000, 15000));
        QCOMPARE(Picture::Load(just).NaturalSize(), QSize(20000, 15000));
        const QString over = folder_.Add(u"over.jpg"_s, WithSize(small, 20000, 15001));
        QCOMPARE(ResumeNext([&] { Picture::Load(over); }), 481);
    }

    void a_photo_of_many_megapixels_is_shown_to_its_last_pixel_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QImage photo = FourCorners({2111, 1303});
        const QByteArray jpeg = Encoded(photo, "jpg");
        QTest::newRow("jpeg") << jpeg;
        QTest::newRow("progressive jpeg") << Encoded(photo, "jpg", true);
        QTest::newRow("grey jpeg") << Encoded(photo.convertToFormat(QImage::Format_Grayscale8), "jpg");
        QTest::newRow("png") << Encoded(photo, "png");
        QTest::newRow("jpeg on its side") << WithOrientation(jpeg, 6);
    }
    void a_photo_of_many_megapixels_is_shown_to_its_last_pixel()
    {
        QFETCH(const QByteArray, bytes);
        QBuffer buffer;
        buffer.setData(bytes);
        QImageReader reader(&buffer);
        reader.setAutoTransform(true);
        const QImage expected = reader.read();
        const Picture photo = Picture::FromFile(bytes, u"large.jpg"_s);
        QCOMPARE(photo.NaturalSize(), expected.size());
        QCOMPARE(photo.Natural(), expected);
        const QSize most = expected.size() * 1.1; // more pixels than are stored
        QCOMPARE(photo.Stretched(most).size(), most);
    }

    void a_photo_of_many_megapixels_outlives_its_file()
    {
        QImage shown;
        {
            const Picture photo =
                Picture::FromFile(Encoded(FourCorners({2111, 1303}), "jpg"), u"large.jpg"_s);
            shown = photo.Natural();
        }
        const QImage copy = shown;
        shown.fill(Qt::black);
        QVERIFY(Alike(copy.pixelColor(10, 10), Qt::red));
        QCOMPARE(shown.pixelColor(2110, 1302), QColor(Qt::black));
    }

    void a_picture_larger_than_qts_own_limit_loads()
    {
        const Picture large =
            Picture::Load(folder_.Add(u"large.jpg"_s, Encoded(FourCorners({7000, 6000}), "jpg")));
        QCOMPARE(large.Natural().size(), QSize(7000, 6000)); // 160 MiB
        QCOMPARE(large.Fitted({700, 700}).size(), QSize(700, 600));
    }

private:
    PictureFolder folder_;
};

TORVIK_GUILESS_TEST(PictureTest)
#include "picture_test.moc"
