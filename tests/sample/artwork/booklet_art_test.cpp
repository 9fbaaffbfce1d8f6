#include "sample/artwork/art_maker.h"
#include "support/test_class.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QTemporaryDir>

using namespace torvik::sample;
using namespace Qt::StringLiterals;

namespace {

/// Twips from the corner of the printable area to the far corner of a picture at 15 twips to the point.
QPoint FarCorner(const QPoint& twips, const QSize& picture)
{
    return twips + QPoint(picture.width() * 15, picture.height() * 15);
}

bool IsWhite(QRgb pixel)
{
    return qRed(pixel) > 235 && qGreen(pixel) > 235 && qBlue(pixel) > 235;
}

} // namespace

class BookletArtTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_pictures_of_the_cover_lie_inside_the_page_and_not_over_each_other()
    {
        // The narrower and the shorter of the two papers, less 360 twips on each side.
        const QPoint page(11906 - 720, 15840 - 720);
        const QPoint logo = FarCorner({1600, 1600}, PaintBookletLogo().size());
        const QPoint clip = FarCorner({2600, 4300}, {480, 80});
        const QPoint title = FarCorner({500, 8800}, PaintBookletTitle().size());
        const QPoint mark = FarCorner({2800, 12000}, PaintPublisherMark().size());
        for (const QPoint& corner : {logo, clip, title, mark})
            QVERIFY2(corner.x() <= page.x() && corner.y() <= page.y(),
                     qPrintable(QString::number(corner.y())));
        QVERIFY(logo.y() <= 4300);
        QVERIFY(clip.y() <= 8800);
        QVERIFY(title.y() <= 12000);
    }

    void they_stand_on_white_paper()
    {
        for (const QImage& picture : {PaintBookletLogo(), PaintBookletTitle(), PaintPublisherMark()}) {
            for (int x = 0; x < picture.width(); ++x)
                QVERIFY(IsWhite(picture.pixel(x, 0)));
            for (int y = 0; y < picture.height(); ++y)
                QVERIFY(IsWhite(picture.pixel(0, y)));
        }
    }

    void the_files_have_the_names_and_kinds_that_the_booklet_asks_for_and_print_at_96_points_to_the_inch()
    {
        const QTemporaryDir disc;
        MakeBookletArt(disc.path());
        const auto check = [&](const QString& name, const QByteArray& format, QSize size) {
            QImageReader reader(disc.filePath(u"graphics/"_s + name));
            QCOMPARE(reader.format(), format);
            const QImage picture = reader.read();
            QCOMPARE(picture.size(), size);
            QCOMPARE(qRound(picture.dotsPerMeterX() * 0.0254), 96);
        };
        check(u"logo.jpg"_s, "jpeg", {560, 160});
        check(u"bklettxt.jpg"_s, "jpeg", {700, 190});
        check(u"quillon3.bmp"_s, "bmp", {420, 130});
    }
};

TORVIK_TEST(BookletArtTest)
#include "booklet_art_test.moc"
