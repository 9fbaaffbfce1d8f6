#include "runtime/failure.h"
#include "support/discs/photo_image.h"
#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/pictures/pictures_ahead.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Image Image4{*this, u"Image4"_s, {0, 0, 3000, 1500}};
    Panel Panel1{*this, u"Panel1"_s, {0, 1800, 3000, 600}};
};

FormHandle<MainForm> Main;

/// One pixel black, one white, and so on: a picture that any scaling turns grey.
QImage Stripes(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    return image;
}

} // namespace

/// Pictures and bevels on a display with twice the pixels.
class SharpPicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        QCOMPARE(Main->Image4.Widget().devicePixelRatioF(), 2.0);
    }
    void cleanup() { room_.reset(); }

    void a_picture_uses_every_pixel_of_the_display()
    {
        Main->Image4.Load(folder_.Add(u"stripes.bmp"_s, Encoded(Stripes({400, 200}), "bmp")));
        const QPixmap pixmap = static_cast<const QLabel&>(Main->Image4.Widget()).pixmap(Qt::ReturnByValue);
        QCOMPARE(pixmap.size(), QSize(400, 200));
        QCOMPARE(pixmap.devicePixelRatio(), 2.0);
        const QImage shown = Main->Image4.Widget().grab().toImage();
        QCOMPARE(shown.size(), QSize(400, 200));
        QCOMPARE(shown.pixelColor(200, 100), QColor(Qt::black));
        QCOMPARE(shown.pixelColor(201, 100), QColor(Qt::white));
    }

    void a_picture_that_was_read_ahead_uses_every_pixel_too()
    {
        PhotoImage disc;
        disc.Add("67A.JPG", Encoded(Stripes({400, 200}), "bmp"));
        disc.Stand();
        const QString path = u"E:\\Torviks\\67A.JPG"_s;
        Main->Image4.ReadAhead({path});
        QTRY_VERIFY(Main->Image4.HasReadAhead(path));
        QVERIFY(IsReadAhead(path, {400, 200}));

        disc.Spoil(); // What is shown now can only be what was ready.
        QCOMPARE(ResumeNext([&] { Main->Image4.Load(path); }), 0);
        const QPixmap pixmap = static_cast<const QLabel&>(Main->Image4.Widget()).pixmap(Qt::ReturnByValue);
        QCOMPARE(pixmap.size(), QSize(400, 200));
        QCOMPARE(pixmap.devicePixelRatio(), 2.0);
        const QImage shown = Main->Image4.Widget().grab().toImage();
        QCOMPARE(shown.size(), QSize(400, 200));
        QCOMPARE(shown.pixelColor(200, 100), QColor(Qt::black));
        QCOMPARE(shown.pixelColor(201, 100), QColor(Qt::white));
    }

    void a_bevel_line_is_two_pixels_of_the_display()
    {
        const QImage shown = Main->Panel1.Widget().grab().toImage();
        QCOMPARE(shown.pixelColor(100, 0), look::light);
        QCOMPARE(shown.pixelColor(100, 1), look::light);
        QCOMPARE(shown.pixelColor(100, 2), look::halfLight);
        QCOMPARE(shown.pixelColor(100, 3), look::halfLight);
        QCOMPARE(shown.pixelColor(100, 4), look::face);
    }

    void geometry_stays_in_the_desktops_pixels()
    {
        QCOMPARE(Main->Host().size(), QSize(400, 300));
        QCOMPARE(Main->Image4.Width(), 3000.0);
    }

private:
    std::unique_ptr<UiRoom> room_;
    PictureFolder folder_;
};

void DoubleTheScale()
{
    qputenv("QT_SCALE_FACTOR", "2");
}

TORVIK_TEST_AFTER(SharpPicturesTest, DoubleTheScale)
#include "sharp_pictures_test.moc"
