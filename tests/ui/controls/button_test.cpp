#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/look/button_widget.h"
#include "ui/pixels.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"SlideShow"_s};
    Button Next{*this, u"Next"_s, {1500, 0, 1200, 375}, u"Exit"_s};
};

FormHandle<MainForm> Main;

} // namespace

/// 3-D push buttons.
class ButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        clicks_ = 0;
        Main->Go.Click = [this] { ++clicks_; };
        Main->Next.SetFocus();
    }
    void cleanup() { room_.reset(); }

    void a_click_of_the_left_button_is_one_click()
    {
        QTest::mouseClick(&Main->Go.Widget(), Qt::LeftButton);
        QCOMPARE(clicks_, 1);
        QTest::mouseClick(&Main->Go.Widget(), Qt::RightButton);
        QCOMPARE(clicks_, 1);
    }

    void a_release_outside_is_no_click()
    {
        QTest::mousePress(&Main->Go.Widget(), Qt::LeftButton);
        QTest::mouseMove(&Main->Go.Widget(), {-20, 5});
        QTest::mouseRelease(&Main->Go.Widget(), Qt::LeftButton, {}, {-20, 5});
        QCOMPARE(clicks_, 0);
    }

    void space_and_enter_click()
    {
        Main->Go.SetFocus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(&Main->Go.Widget(), key);
        QCOMPARE(clicks_, 3);
    }

    void the_mnemonic_clicks()
    {
        Main->Go.SetCaption(u"&Print"_s);
        QTest::keyClick(&Main->Window(), Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(clicks_, 1);
    }

    void a_press_takes_the_focus()
    {
        QTest::mousePress(&Main->Go.Widget(), Qt::LeftButton);
        QCOMPARE(Screen.ActiveControl(), &Main->Go);
        QTest::mouseRelease(&Main->Go.Widget(), Qt::LeftButton);
    }

    void tab_walks_over_enabled_buttons()
    {
        QTest::keyClick(&Main->Next.Widget(), Qt::Key_Tab);
        QCOMPARE(Screen.ActiveControl(), &Main->Go);
        Main->Next.SetEnabled(false);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Tab);
        QCOMPARE(Screen.ActiveControl(), &Main->Go);
    }

    void caption_and_accessible_name()
    {
        QCOMPARE(Main->Go.Caption(), u"SlideShow"_s);
        QCOMPARE(Main->Go.Widget().accessibleName(), u"SlideShow"_s);
        Main->Go.SetCaption(u"ClipArt "_s);
        QCOMPARE(Main->Go.Caption(), u"ClipArt "_s);
        Main->Go.SetCaption({});
        QCOMPARE(Main->Go.Widget().accessibleName(), u"Go"_s);
        Main->Go.SetToolTip(u"Jump to Slide 1"_s);
        QCOMPARE(Main->Go.Widget().accessibleName(), u"Jump to Slide 1"_s);
    }

    void a_picture_says_what_it_is_spoken_as_unless_there_is_a_tool_tip()
    {
        Main->Go.SetCaption({});
        Main->Go.SetPicture(u":/none.png"_s, u"Play"_s);
        QCOMPARE(Main->Go.Widget().accessibleName(), u"Play"_s);
        Main->Go.SetToolTip(u"Play this sound"_s);
        QCOMPARE(Main->Go.Widget().accessibleName(), u"Play this sound"_s);
    }

    void a_pressed_button_looks_pressed()
    {
        const QImage up = Grab(Main->Go);
        static_cast<ButtonWidget&>(Main->Go.Widget()).setDown(true);
        QVERIFY(Grab(Main->Go) != up);
        QCOMPARE(up.pixelColor(0, 0), look::light);
        QCOMPARE(up.pixelColor(up.width() - 1, up.height() - 1), look::darkShadow);
        QCOMPARE(Grab(Main->Go).pixelColor(0, 0), look::shadow);
    }

    void the_button_with_the_focus_looks_different_at_its_edge_and_inside()
    {
        const QImage without = Grab(Main->Go);
        Main->Go.SetFocus();
        const QImage with = Grab(Main->Go);
        QCOMPARE(with.pixelColor(0, 0), look::text);
        QVERIFY(PixelsOf(with, look::text) > PixelsOf(without, look::text) + 2 * with.width());
    }

    void on_a_low_button_no_dots_run_through_the_caption()
    {
        Main->Go.SetHeight(240); // 16 pixels
        Main->Go.SetCaption({});
        Main->Go.SetFocus();
        const QImage low = Grab(Main->Go);
        QCOMPARE(low.pixelColor(0, 0), look::text);
        QCOMPARE(PixelsOf(low.copy(1, 1, low.width() - 2, low.height() - 2), look::text), 0);
        Main->Go.SetHeight(300);
        const QImage high = Grab(Main->Go);
        QVERIFY(PixelsOf(high.copy(1, 1, high.width() - 2, high.height() - 2), look::text) > 0);
    }

    void a_disabled_caption_is_faded_and_readable()
    {
        Main->Go.SetEnabled(false);
        const QImage caption = Grab(Main->Go).copy(3, 3, 74, 19);
        int darkest = 255;
        for (int y = 0; y < caption.height(); ++y)
            for (int x = 0; x < caption.width(); ++x)
                darkest = std::min(darkest, qGray(caption.pixel(x, y)));
        QVERIFY(darkest >= qGray(look::faded.rgb()));
        QVERIFY(darkest < qGray(look::shadow.rgb()));
    }

    void arrows_point_where_they_lead()
    {
        ButtonWidget arrow;
        arrow.resize(21, 21);
        QList<QImage> seen;
        for (const auto symbol :
             {ButtonWidget::Symbol::None, ButtonWidget::Symbol::Up, ButtonWidget::Symbol::Right,
              ButtonWidget::Symbol::Down, ButtonWidget::Symbol::Left}) {
            arrow.SetSymbol(symbol);
            const QImage image = arrow.grab().toImage();
            QVERIFY(!seen.contains(image));
            seen.append(image);
        }
        // The upper half of an arrow that points up holds less ink than the lower one.
        const QImage up = seen.at(1);
        QVERIFY(PixelsOf(up.copy(2, 2, 17, 8), look::text) < PixelsOf(up.copy(2, 10, 17, 8), look::text));
    }

private:
    std::unique_ptr<UiRoom> room_;
    int clicks_ = 0;
};

TORVIK_TEST(ButtonTest)
#include "button_test.moc"
