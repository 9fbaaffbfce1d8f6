#include "rtf/documents.h"
#include "rtf/metafile/metafile_maker.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QImage>
#include <QUrl>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class PicturesTest : public QObject {
    Q_OBJECT

    static QByteArray File(const char* format, int width = 40, int height = 20)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int x = 0; x < width / 2; ++x) {
            for (int y = 0; y < height; ++y)
                image.setPixelColor(x, y, Qt::red);
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format, 100);
        return bytes;
    }
    static QImage ImageOf(const Reading& read, int number)
    {
        return read.document->resource(QTextDocument::ImageResource, QUrl(u"rtf-picture:%1"_s.arg(number)))
            .value<QImage>();
    }
    static QTextImageFormat ImageFormat(const Reading& read)
    {
        for (QTextBlock block = read.document->begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                if (it.fragment().charFormat().isImageFormat())
                    return it.fragment().charFormat().toImageFormat();
            }
        }
        return {};
    }

private Q_SLOTS:
    void png_and_jpeg_are_shown_at_their_goal_size()
    {
        for (const char* format : {"png", "jpeg"}) {
            const Reading read = ReadBody(
                QByteArray("a{\\pict\\") + format[0] + (format[0] == 'p' ? "ngblip" : "pegblip") +
                "\\picw40\\pich20\\picwgoal1200\\pichgoal600 " + File(format).toHex('\n') + "}b\\par");
            QCOMPARE(read.result.pictures, 1);
            QCOMPARE(ImageOf(read, 1).size(), QSize(40, 20));
            QVERIFY(ImageOf(read, 1).pixelColor(5, 5).red() > 200 &&
                    ImageOf(read, 1).pixelColor(5, 5).green() < 60);
            QCOMPARE(ImageFormat(read).name(), u"rtf-picture:1"_s);
            QCOMPARE(ImageFormat(read).width(), 80.0);
            QCOMPARE(ImageFormat(read).height(), 40.0);
            QCOMPARE(read.Text(), u"a\ufffcb"_s);
        }
    }

    void without_a_goal_a_picture_has_its_own_size()
    {
        const Reading read = ReadBody("{\\pict\\pngblip " + File("png").toHex() + "}\\par");
        QCOMPARE(ImageFormat(read).width(), 40.0);
    }

    void a_goal_for_one_side_keeps_the_proportions()
    {
        const Reading wide = ReadBody("{\\pict\\pngblip\\picwgoal1200 " + File("png").toHex() + "}\\par");
        QCOMPARE(ImageFormat(wide).width(), 80.0); // of a picture of 40 by 20 pixels
        QCOMPARE(ImageFormat(wide).height(), 40.0);
        const Reading high = ReadBody("{\\pict\\pngblip\\pichgoal150 " + File("png").toHex() + "}\\par");
        QCOMPARE(ImageFormat(high).width(), 20.0);
        QCOMPARE(ImageFormat(high).height(), 10.0);
    }

    void scaling_and_cropping()
    {
        // A quarter is cut off the left: half of what was red.
        const Reading read =
            ReadBody("{\\pict\\pngblip\\picwgoal600\\pichgoal300\\picscalex200\\picscaley50\\piccropl150 " +
                     File("png").toHex() + "}\\par");
        QCOMPARE(ImageOf(read, 1).size(), QSize(30, 20));
        QCOMPARE(ImageOf(read, 1).pixelColor(9, 5), QColor(Qt::red));
        QCOMPARE(ImageOf(read, 1).pixelColor(10, 5), QColor(Qt::white));
        QCOMPARE(ImageFormat(read).width(), 60.0);
        QCOMPARE(ImageFormat(read).height(), 10.0);
    }

    void a_crop_that_leaves_nothing_is_ignored()
    {
        const Reading read =
            ReadBody("{\\pict\\pngblip\\picwgoal600\\pichgoal300\\piccropl400\\piccropr400 " +
                     File("png").toHex() + "}\\par");
        QCOMPARE(ImageOf(read, 1).size(), QSize(40, 20));
    }

    void raw_bytes_are_as_good_as_digits()
    {
        const QByteArray png = File("png");
        const Reading read =
            ReadBody("{\\pict\\pngblip\\bin" + QByteArray::number(png.size()) + " " + png + "}after\\par");
        QCOMPARE(read.result.pictures, 1);
        QVERIFY(read.Text().endsWith(u"after"_s));
    }

    void bitmaps_and_metafiles()
    {
        const Reading read = ReadBody("{\\pict\\dibitmap0\\picw2\\pich2 " + FourColors().toHex() +
                                      "}{\\pict\\wmetafile8\\picw2540\\pich2540 " +
                                      Wmf(100, 100,
                                          WmfRecord(0x0f43, Bytes()
                                                                .U32(0xcc0020)
                                                                .U16(0)
                                                                .Words({2, 2, 0, 0, 100, 100, 0, 0})
                                                                .Raw(FourColors())
                                                                .Data()))
                                          .toHex() +
                                      "}\\par");
        QCOMPARE(read.result.pictures, 2);
        QCOMPARE(ImageOf(read, 1), ImageOf(read, 2));
        QTextCursor cursor(read.document.get());
        cursor.setPosition(2);
        // Sides of metafiles are hundredths of a millimetre.
        QCOMPARE(cursor.charFormat().toImageFormat().width(), 96.0);
    }

    void a_picture_that_does_not_say_its_kind_may_be_a_bitmap()
    {
        const Reading read = ReadBody("{\\pict\\picw2\\pich2 " + FourColors().toHex() + "}\\par");
        QCOMPARE(read.result.pictures, 1);
        QCOMPARE(ImageOf(read, 1).pixelColor(1, 0), QColor(Qt::green));
    }

    void a_drawing_is_seen_in_an_article_as_its_records_say()
    {
        // A quarter of an inch each way, at twice the screen's pixels; a red square in the upper left
        // quarter.
        const QByteArray wmf = Wmf(48, 48, WmfFilled(inRed) + WmfRectangle(0, 0, 24, 24));
        const QByteArray emf = Emf(48, 48, EmfFilled(inRed) + EmfRectangle(0, 0, 24, 24));
        const Reading read =
            ReadBody("{\\pict\\wmetafile8\\picwgoal360\\pichgoal360 " + wmf.toHex() +
                     "}{\\pict\\emfblip\\picwgoal360\\pichgoal360 " + emf.toHex() + "}\\par");
        for (const int number : {1, 2}) {
            QCOMPARE(ImageOf(read, number).size(), QSize(48, 48));
            QCOMPARE(ExtentOf(ImageOf(read, number), Qt::red), QRect(0, 0, 24, 24));
        }
    }

    void an_enhanced_metafile_is_known_by_its_bytes()
    {
        const QByteArray emf = Emf(100, 100, EmfRecord(43, Bytes().Longs({10, 10, 90, 90}).Data()));
        QCOMPARE(ReadBody("{\\pict\\emfblip\\picwgoal1500\\pichgoal1500 " + emf.toHex() + "}\\par")
                     .result.pictures,
                 1);
    }

    void device_bitmaps_of_two_colours()
    {
        const Reading read = ReadBody(
            "{\\pict\\wbitmap0\\picw9\\pich2\\wbmbitspixel1\\wbmplanes1\\wbmwidthbytes2 ff80 0000}\\par");
        QCOMPARE(ImageOf(read, 1).pixelColor(8, 0), QColor(Qt::white));
        QCOMPARE(ImageOf(read, 1).pixelColor(0, 1), QColor(Qt::black));
    }

    void the_two_forms_of_a_picture_are_shown_once()
    {
        const QByteArray png = "{\\pict\\pngblip " + File("png").toHex() + "}";
        const QByteArray old = "{\\pict\\dibitmap0 " + FourColors().toHex() + "}";
        const Reading both = ReadBody("{\\*\\shppict" + png + "}{\\nonshppict" + old + "}\\par");
        QCOMPARE(both.result.pictures, 1);
        QCOMPARE(ImageOf(both, 1).width(), 40);
        const Reading broken = ReadBody("{\\*\\shppict{\\pict\\pngblip 00}}{\\nonshppict" + old + "}\\par");
        QCOMPARE(broken.result.pictures, 1);
        QCOMPARE(ImageOf(broken, 1).width(), 2);
        QCOMPARE(ReadBody("{\\nonshppict" + old + "}\\par").result.pictures, 1);
    }

    void an_object_is_shown_by_its_result()
    {
        const Reading read =
            ReadBody("{\\object\\objemb{\\*\\objclass Paint}{\\*\\objdata 0105}{\\result{\\pict\\dibitmap0 " +
                     FourColors().toHex() + "}}}after\\par");
        QCOMPARE(read.result.pictures, 1);
        QCOMPARE(read.Text(), u"\ufffcafter"_s);
    }

    void equal_pictures_of_equal_size_are_one()
    {
        const auto picture = [](const char* words, const QByteArray& bytes) -> QByteArray {
            return QByteArray("{\\pict\\pngblip") + words + " " + bytes.toHex() + "}";
        };
        const QByteArray png = File("png");
        const Reading read = ReadBody(
            picture("\\picwgoal1200", png) + "a" + picture("\\picwgoal600", png) + "b" +
            picture("\\picwgoal1200", File("png", 20)) + "c" + picture("\\picwgoal1200\\piccropl300", png) +
            "d{\\pict\\picwgoal1200\\pngblip\\bin" + QByteArray::number(png.size()) + " " + png + "}e{\\v " +
            picture("\\picwgoal1200", png) + "}\\par");
        QCOMPARE(read.result.pictures, 5);
        QCOMPARE(read.Text(), u"\ufffca\ufffcb\ufffcc\ufffcd\ufffce"_s);
        QStringList names;
        for (auto part = read.document->begin().begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isImageFormat())
                names.append(part.fragment().charFormat().toImageFormat().name());
        }
        QCOMPARE(names, QStringList({u"rtf-picture:1"_s, u"rtf-picture:2"_s, u"rtf-picture:3"_s,
                                     u"rtf-picture:4"_s, u"rtf-picture:1"_s}));
        QVERIFY(!ImageOf(read, 4).isNull());
        QVERIFY(ImageOf(read, 5).isNull());
    }

    void a_picture_that_is_repeated_costs_its_memory_once()
    {
        QImage image(2000, 2000, QImage::Format_RGB32);
        image.fill(Qt::white);
        QByteArray small; // but large when it is shown
        QBuffer buffer(&small);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "png");
        const QByteArray large = "{\\pict\\pngblip " + small.toHex() + "}";
        const Reading read = ReadBody(large.repeated(20) + "\\par");
        QCOMPARE(read.result.pictures, 20);
        QCOMPARE(read.result.lostPictures, 0);
        QVERIFY(!read.result.wasCut);
        // What cannot be read is lost each time.
        const QByteArray broken = "{\\pict\\pngblip " + File("png").left(30).toHex() + "}";
        QCOMPARE(ReadBody(broken + broken + "\\par").result.lostPictures, 2);
    }

    void the_picture_of_a_drawn_shape_is_shown()
    {
        const Reading read = ReadBody(
            "{\\shp{\\*\\shpinst\\shpleft0{\\sp{\\sn pib}{\\sv {\\pict\\dibitmap0 " + FourColors().toHex() +
            "}}}}{\\shprslt{\\pict\\dibitmap0 " + FourColors().toHex() + "}}}x\\par");
        QCOMPARE(read.result.pictures, 1);
        QCOMPARE(read.Text(), u"\ufffcx"_s);
    }

    void pictures_that_cannot_be_read_are_counted_and_left_out()
    {
        const QByteArray png = File("png");
        const Reading read =
            ReadBody("a{\\pict\\pngblip " + png.left(png.size() / 2).toHex() + "}{\\pict\\jpegblip " +
                     File("jpeg").chopped(30).toHex() + "}{\\pict\\wmetafile8 zz}b\\par");
        QCOMPARE(read.result.pictures, 0);
        QCOMPARE(read.result.lostPictures, 3);
        QCOMPARE(read.Text(), u"ab"_s);
    }

    void pictures_in_link_text_keep_the_link()
    {
        const Reading read =
            ReadBody("{\\field{\\*\\fldinst HYPERLINK \"http://a.example/\"}{\\fldrslt{\\pict\\dibitmap0 " +
                     FourColors().toHex() + "}}}\\par");
        QCOMPARE(ImageFormat(read).anchorHref(), u"http://a.example/"_s);
    }
};

TORVIK_TEST(PicturesTest)
#include "pictures_test.moc"
