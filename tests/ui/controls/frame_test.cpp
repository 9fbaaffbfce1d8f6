#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/frame.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels)) {}
    Frame Frame1{*this, u"Frame1"_s, {0, 0, 3000, 1500}};
    Frame Frame2{*this, u"Frame2"_s, {0, 1800, 3000, 1500}, u" By year "_s};
    Button Go{Frame2, u"Go"_s, {150, 300, 1200, 375}};
};

FormHandle<MainForm> Main;

} // namespace

/// Frames that group controls.
class FrameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void a_frame_measures_its_controls_in_twips()
    {
        QCOMPARE(Main->Frame2.ScaleMode(), Scale::Twips);
        QCOMPARE(Main->Frame2.Width(), 200.0);
        QCOMPARE(Main->Go.Top(), 300.0);
        QCOMPARE(Main->Go.Widget().parentWidget(), &Main->Frame2.Widget());
        QCOMPARE(&Main->Frame2.OwnerForm(), static_cast<Form*>(&*Main));
    }

    void the_caption_is_spoken_and_the_name_where_there_is_none()
    {
        QCOMPARE(Main->Frame2.Caption(), u" By year "_s);
        QCOMPARE(Main->Frame2.Widget().accessibleName(), u" By year "_s);
        QCOMPARE(Main->Frame1.Widget().accessibleName(), u"Frame1"_s);
    }

    void only_a_frame_with_a_caption_draws_a_line()
    {
        QImage plain(200, 100, QImage::Format_ARGB32_Premultiplied);
        plain.fill(look::face);
        QVERIFY(UiRoom::Open(*Main));
        QCOMPARE(Main->Frame1.Widget().grab().toImage().convertToFormat(plain.format()), plain);
        QVERIFY(Main->Frame2.Widget().grab().toImage().convertToFormat(plain.format()) != plain);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(FrameTest)
#include "frame_test.moc"
