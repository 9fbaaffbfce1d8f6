#include "support/test_class.h"
#include "ui/media/video_pane.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Where the pictures of a movie stand.
class VideoPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_is_hidden_until_there_is_a_picture()
    {
        QWidget host;
        host.setObjectName(u"PicMovie"_s);
        VideoPane pane(host);
        QVERIFY(pane.isHidden());
        QCOMPARE(pane.objectName(), u"PicMovie(Video)"_s);
        pane.ShowPicture(Plain({40, 30}));
        QVERIFY(!pane.isHidden());
        QCOMPARE(pane.Picture().size(), QSize(40, 30));
    }

    void a_picture_is_as_large_as_fits_with_its_proportions_kept_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QRect>("place");
        QTest::newRow("the same proportions") << QSize(40, 30) << QRect(0, 0, 400, 300);
        QTest::newRow("wide") << QSize(160, 30) << QRect(0, 112, 400, 75);
        QTest::newRow("tall") << QSize(10, 30) << QRect(150, 0, 100, 300);
        QTest::newRow("larger than the pane") << QSize(800, 600) << QRect(0, 0, 400, 300);
    }
    void a_picture_is_as_large_as_fits_with_its_proportions_kept()
    {
        QFETCH(const QSize, picture);
        QFETCH(const QRect, place);
        QWidget host;
        host.resize(400, 300);
        VideoPane pane(host);
        pane.ShowPicture(Plain(picture));
        QCOMPARE(pane.PlaceOfPicture(), place);
        host.show();
        const QImage seen = host.grab().toImage();
        QCOMPARE(seen.pixelColor(place.center()), QColor(Qt::red));
        if (place.left() > 0 || place.top() > 0)
            QCOMPARE(seen.pixelColor(1, 1), QColor(Qt::black));
    }

    void it_follows_the_size_of_what_it_lies_on_and_lets_clicks_through()
    {
        QWidget host;
        host.resize(400, 300);
        VideoPane pane(host);
        pane.ShowPicture(Plain({40, 30}));
        host.show();
        host.resize(200, 300);
        QCoreApplication::processEvents();
        QCOMPARE(pane.size(), QSize(200, 300));
        QCOMPARE(pane.PlaceOfPicture(), QRect(0, 75, 200, 150));
        QCOMPARE(host.childAt(100, 150), nullptr);
    }

private:
    static QImage Plain(const QSize& size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }
};

TORVIK_TEST(VideoPaneTest)
#include "video_pane_test.moc"
