#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/image.h"
#include "ui/controls/picture_box.h"
#include "ui/form_fixture.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Image Image4{*this, u"Image4"_s, {150, 150, 3000, 1500}}; // 200 by 100 pixels
    Image Stretched{*this, u"Stretched"_s, {150, 150, 3000, 1500}, Image::Fit::Stretch};
    PictureBox Pane{*this, u"Pane"_s, {150, 150, 1500, 1500}};
};

FormHandle<MainForm> Main;

QColor Shown(int x, int y)
{
    return Main->Image4.Widget().grab().toImage().pixelColor(x, y);
}

} // namespace

/// A picture inside its own rectangle.
class ImageTest : public FormFixture {
    Q_OBJECT

public:
    ImageTest() : FormFixture(Main) {}

private Q_SLOTS:
    void a_landscape_picture_is_centred_between_left_and_right()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 300}), "jpg")));
        // 133 by 100 pixels, from 33 to 166
        QVERIFY(Alike(Shown(30, 50), look::face));
        QVERIFY(Alike(Shown(40, 10), Qt::red));
        QVERIFY(Alike(Shown(160, 10), Qt::green));
        QVERIFY(Alike(Shown(40, 90), Qt::blue));
        QVERIFY(Alike(Shown(160, 90), Qt::white));
        QVERIFY(Alike(Shown(169, 50), look::face));
    }

    void a_flat_picture_is_centred_between_top_and_bottom()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 100}), "jpg")));
        // 200 by 50 pixels, from 25 to 75
        QVERIFY(Alike(Shown(10, 20), look::face));
        QVERIFY(Alike(Shown(10, 30), Qt::red));
        QVERIFY(Alike(Shown(190, 70), Qt::white));
        QVERIFY(Alike(Shown(190, 80), look::face));
    }

    void a_portrait_picture_stands_in_the_middle()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({100, 200}), "bmp")));
        QVERIFY(Alike(Shown(70, 50), look::face)); // 50 pixels wide, from 75 to 125
        QVERIFY(Alike(Shown(80, 10), Qt::red));
        QVERIFY(Alike(Shown(120, 10), Qt::green));
        QVERIFY(Alike(Shown(130, 50), look::face));
    }

    void a_small_picture_is_scaled_up()
    {
        Main->Image4.Load(folder_.Add(u"dot.bmp"_s, Encoded(FourCorners({8, 4}), "bmp")));
        QVERIFY(Alike(Shown(3, 3), Qt::red));
        QVERIFY(Alike(Shown(196, 96), Qt::white));
    }

    void a_picture_shown_when_seen_is_drawn_only_when_it_comes_to_light()
    {
        Main->Image4.Hide();
        Main->Image4.ShowWhenSeen(
            Picture::Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg"))));
        QCOMPARE(Main->Image4.Picture().FileName(), u"67A.JPG"_s);
        QVERIFY(static_cast<QLabel&>(Main->Image4.Widget()).pixmap().isNull());
        Main->Image4.Show();
        QVERIFY(Alike(Shown(3, 3), Qt::red));
        QVERIFY(Alike(Shown(196, 96), Qt::white));
        QCOMPARE(static_cast<QLabel&>(Main->Image4.Widget()).pixmap().size(), QSize(200, 100));
    }

    void a_picture_of_which_somebody_holds_the_pixels_is_drawn_from_these_at_every_size()
    {
        QImage held(400, 200, QImage::Format_RGB32);
        held.fill(Qt::blue);
        const Picture red = Picture::Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        Main->Image4.ShowWhenSeen(red, held);
        QCOMPARE(Shown(3, 3), QColor(Qt::blue));
        QCOMPARE(static_cast<QLabel&>(Main->Image4.Widget()).pixmap().size(), QSize(200, 100));
        Main->Image4.SetWidth(1500);
        QCOMPARE(Shown(50, 50), QColor(Qt::blue));
        QVERIFY(Alike(Shown(50, 10), look::face)); // 100 by 50 pixels, from 25 to 75
        Main->Image4.Show(red);
        QVERIFY(Alike(Shown(3, 40), Qt::red));
        Main->Image4.SetWidth(3000);
        QVERIFY(Alike(Shown(3, 3), Qt::red));
    }

    void a_new_size_of_the_pane_fits_the_picture_anew()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        Main->Image4.SetWidth(1500);
        QVERIFY(Alike(Shown(50, 10), look::face));
        QVERIFY(Alike(Shown(10, 40), Qt::red)); // 100 by 50 pixels, from 25 to 75
        Main->Image4.SetHeight(750);
        QVERIFY(Alike(Shown(10, 10), Qt::red));
    }

    void the_picture_stays_when_the_next_one_fails()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        const QImage before = Main->Image4.Widget().grab().toImage();
        const QByteArray png = Encoded(FourCorners({40, 20}), "png");
        const QString cut = folder_.Add(u"67B.JPG"_s, png.left(png.size() / 2));
        QCOMPARE(ResumeNext([&] { Main->Image4.Load(cut); }), 481);
        QCOMPARE(ResumeNext([&] { Main->Image4.Load(folder_.PathOf(u"none.jpg"_s)); }), 53);
        QCOMPARE(Main->Image4.Widget().grab().toImage(), before);
        QCOMPARE(Main->Image4.Picture().FileName(), u"67A.JPG"_s);
        QCOMPARE(Main->Image4.Widget().accessibleName(), u"67A.JPG"_s);
    }

    void clearing_takes_the_picture_away()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        Main->Image4.Clear();
        QVERIFY(Main->Image4.Picture().IsEmpty());
        QVERIFY(Alike(Shown(50, 50), look::face));
        Main->Image4.SetWidth(1500); // nothing to fit any more
        QVERIFY(Alike(Shown(50, 50), look::face));
    }

    void an_empty_path_shows_nothing()
    {
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        Main->Image4.Load(QString());
        QVERIFY(Main->Image4.Picture().IsEmpty());
        QVERIFY(Alike(Shown(50, 50), look::face));
        QCOMPARE(Main->Image4.Widget().accessibleName(), u"Image4"_s);
    }

    void a_photo_says_its_file_name_and_the_tool_tip_without_one()
    {
        Main->Image4.SetToolTip(u"Click the Right mouse button to copy"_s);
        QCOMPARE(Main->Image4.Widget().accessibleName(), u"Click the Right mouse button to copy"_s);
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({4, 2}), "jpg")));
        QCOMPARE(Main->Image4.Widget().accessibleName(), u"67A.JPG"_s);
        Main->Image4.Clear();
        QCOMPARE(Main->Image4.Widget().accessibleName(), u"Click the Right mouse button to copy"_s);
    }

    void a_stretched_picture_fills_its_rectangle_whatever_its_proportions()
    {
        for (const QSize& size : {QSize(400, 100), QSize(100, 400), QSize(8, 8)}) {
            Main->Stretched.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners(size), "bmp")));
            const QImage shown = Main->Stretched.Widget().grab().toImage();
            QVERIFY(Alike(shown.pixelColor(3, 3), Qt::red));
            QVERIFY(Alike(shown.pixelColor(196, 3), Qt::green));
            QVERIFY(Alike(shown.pixelColor(3, 96), Qt::blue));
            QVERIFY(Alike(shown.pixelColor(196, 96), Qt::white));
        }
    }

    void a_stretched_picture_follows_a_new_size()
    {
        Main->Stretched.Load(folder_.Add(u"a.jpg"_s, Encoded(FourCorners({400, 100}), "jpg")));
        Main->Stretched.SetWidth(1500);
        Main->Stretched.SetHeight(3000);
        const QImage shown = Main->Stretched.Widget().grab().toImage();
        QCOMPARE(shown.size(), QSize(100, 200));
        QVERIFY(Alike(shown.pixelColor(5, 90), Qt::red));
        QVERIFY(Alike(shown.pixelColor(95, 195), Qt::white));
    }

    void a_stretched_picture_stands_upright_by_its_tag()
    {
        const QByteArray turned = WithOrientation(Encoded(FourCorners({120, 80}), "jpg"), 6);
        Main->Stretched.Load(folder_.Add(u"turned.jpg"_s, turned));
        const QImage shown = Main->Stretched.Widget().grab().toImage();
        QVERIFY(Alike(shown.pixelColor(10, 10), Qt::blue));
        QVERIFY(Alike(shown.pixelColor(190, 10), Qt::red));
    }

    void an_image_that_comes_to_the_front_stays_behind_the_other_controls()
    {
        const auto order = [] {
            QStringList names;
            const QObjectList& children = Main->Host().children();
            for (const QObject* each : children)
                names.append(each->objectName());
            return names;
        };
        Main->Image4.ZOrder();
        QCOMPARE(order(), (QStringList{u"Stretched"_s, u"Image4"_s, u"Pane"_s}));
        Main->Pane.ZOrder();
        Main->Stretched.ZOrder();
        QCOMPARE(order(), (QStringList{u"Image4"_s, u"Stretched"_s, u"Pane"_s}));
    }

    void a_pane_without_extent_takes_a_picture_and_shows_it_later()
    {
        Main->Image4.SetWidth(0);
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        QCOMPARE(Main->Image4.Picture().NaturalSize(), QSize(400, 200));
        Main->Image4.SetWidth(3000);
        QVERIFY(Alike(Shown(10, 10), Qt::red));
    }

    void a_hidden_pane_loads_too()
    {
        Main->Image4.Hide();
        Main->Image4.Load(folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({400, 200}), "jpg")));
        QVERIFY(!Main->Image4.Visible());
        Main->Image4.Show();
        QVERIFY(Alike(Shown(10, 10), Qt::red));
    }

private:
    PictureFolder folder_;
};

TORVIK_TEST(ImageTest)
#include "image_test.moc"
