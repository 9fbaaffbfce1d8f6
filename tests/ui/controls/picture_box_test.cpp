#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/picture_box.h"
#include "ui/form_fixture.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels)) {}
    PictureBox picParent{*this, u"picParent"_s, {0, 0, 3000, 1500}};
    PictureBox Behind{*this, u"Behind"_s, {4500, 3750, 900, 600}};
    PictureBox Pixels{*this, u"Pixels"_s, {4500, 3750, 750, 300}, Scale::Pixels};
    PictureBox InPixels{Pixels, u"InPixels"_s, {0, 0, 150, 150}};
    PictureBox picChild{picParent, u"picChild"_s, {0, 0, 1500, 750}};
};

FormHandle<MainForm> Main;

} // namespace

/// A pane that takes the size of its picture.
class PictureBoxTest : public FormFixture {
    Q_OBJECT

public:
    PictureBoxTest() : FormFixture(Main) {}

private Q_SLOTS:
    void it_takes_the_size_of_the_picture_a_pixel_for_a_pixel()
    {
        Main->picParent.Load(folder_.Add(u"a.jpg"_s, Encoded(FourCorners({120, 80}), "jpg")));
        QCOMPARE(Main->picParent.Width(), 120.0);
        QCOMPARE(Main->picParent.Height(), 80.0);
        QCOMPARE(Main->picParent.Left(), 0.0);
        const QImage shown = Main->picParent.Widget().grab().toImage();
        QCOMPARE(shown.size(), QSize(120, 80));
        QVERIFY(Alike(shown.pixelColor(100, 70), Qt::white));
    }

    void inside_another_pane_its_size_is_in_twips()
    {
        Main->picChild.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners({300, 200}), "bmp")));
        QCOMPARE(Main->picChild.Width(), 4500.0);
        QCOMPARE(Main->picChild.Height(), 3000.0);
        QCOMPARE(Main->picChild.Widget().size(), QSize(300, 200));
    }

    void what_lies_on_a_pane_is_measured_in_the_panes_own_scale()
    {
        Main->InPixels.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners({300, 200}), "bmp")));
        QCOMPARE(Main->InPixels.Width(), 300.0);
        Main->InPixels.SetLeft(-20);
        QCOMPARE(Main->InPixels.Widget().pos(), QPoint(-20, 0));
    }

    void an_empty_pane_hides_what_lies_behind_it()
    {
        Main->Behind.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners({60, 40}), "bmp")));
        const QImage shown = Main->Host().grab().toImage();
        QVERIFY(Alike(shown.pixelColor(305, 255), look::face));
        QVERIFY(Alike(shown.pixelColor(355, 285), Qt::white));
    }

    void a_picture_of_20000_pixels_can_be_moved_to_its_end()
    {
        Main->InPixels.Load(folder_.Add(u"wide.jpg"_s, Encoded(FourCorners({20000, 100}), "jpg")));
        Main->InPixels.SetLeft(-19900);
        Main->Pixels.SetWidth(100);
        Main->Pixels.SetHeight(100);
        const QImage shown = Main->Pixels.Widget().grab().toImage();
        QVERIFY(Alike(shown.pixelColor(50, 40), Qt::green));
        QVERIFY(Alike(shown.pixelColor(50, 60), Qt::white));
    }

    void the_outer_pane_clips_the_inner_one()
    {
        Main->picChild.Load(folder_.Add(u"a.bmp"_s, Encoded(FourCorners({600, 400}), "bmp")));
        Main->picChild.SetLeft(-350 * 15.0);
        const QImage shown = Main->Host().grab().toImage();
        QVERIFY(Alike(shown.pixelColor(100, 50), Qt::green));
        QVERIFY(Alike(shown.pixelColor(205, 50), look::face));
    }

    void picture_and_size_stay_when_the_next_one_fails()
    {
        Main->picParent.Load(folder_.Add(u"a.jpg"_s, Encoded(FourCorners({120, 80}), "jpg")));
        const QImage before = Main->picParent.Widget().grab().toImage();
        const QString fake = folder_.Add(u"fake.jpg"_s, "text");
        QCOMPARE(ResumeNext([&] { Main->picParent.Load(fake); }), 481);
        QCOMPARE(ResumeNext([&] { Main->picParent.Load(folder_.PathOf(u"none.jpg"_s)); }), 53);
        QCOMPARE(Main->picParent.Widget().grab().toImage(), before);
        QCOMPARE(Main->picParent.Picture().FileName(), u"a.jpg"_s);
    }

    void clearing_takes_the_picture_away_and_leaves_the_size()
    {
        Main->picParent.Load(folder_.Add(u"a.jpg"_s, Encoded(FourCorners({120, 80}), "jpg")));
        Main->picParent.Clear();
        QVERIFY(Main->picParent.Picture().IsEmpty());
        QCOMPARE(Main->picParent.Width(), 120.0);
        QCOMPARE(Main->picParent.Widget().accessibleName(), u"picParent"_s);
    }

    void it_says_the_file_name()
    {
        Main->picParent.Load(folder_.Add(u"97clip.jpg"_s, Encoded(FourCorners({12, 8}), "jpg")));
        QCOMPARE(Main->picParent.Widget().accessibleName(), u"97clip.jpg"_s);
    }

    void a_press_on_the_inner_pane_is_nothing_to_the_outer_one()
    {
        int outer = 0;
        QList<int> inner;
        Main->picParent.MouseDown = [&](int) { ++outer; };
        Main->picParent.Click = [&] { ++outer; };
        Main->picChild.MouseDown = [&](int button) { inner.append(button); };
        QTest::mouseClick(&Main->picChild.Widget(), Qt::RightButton);
        QTest::mouseClick(&Main->picChild.Widget(), Qt::LeftButton);
        QCOMPARE(outer, 0);
        QCOMPARE(inner, (QList<int>{mouse::right, mouse::left}));
    }

private:
    PictureFolder folder_;
};

TORVIK_TEST(PictureBoxTest)
#include "picture_box_test.moc"
