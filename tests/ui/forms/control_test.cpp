#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/frame.h"
#include "ui/controls/image.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/text_box.h"
#include "ui/forms/control.h"

#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct PixelForm : Form {
    PixelForm() : Form(DesignOf(u"Pixels"_s, Scale::Pixels)) {}
    Panel Panel1{*this, u"Panel1"_s, {150, 300, 3000, 1500}, u"panel"_s};
    Label Label1{Panel1, u"Label1"_s, {150, 150, 1500, 300}, u"label"_s};
    Panel Panel2{*this, u"Panel2"_s, {300, 450, 3000, 1500}};
    Image Image1{*this, u"Image1"_s, {3300, 300, 1500, 1500}};
    Button Go{*this, u"Go"_s, {0, 2250, 1200, 375}, u"Go"_s};
    Button Next{*this, u"Next"_s, {1500, 2250, 1200, 375}, u"Next"_s};
    Frame Frame1{*this, u"Frame1"_s, {0, 3000, 3000, 1200}};
    Button Inside{Frame1, u"Inside"_s, {150, 150, 1200, 375}, u"Inside"_s};
};

FormHandle<PixelForm> pixels;

/// What the desktop sends for two quick clicks.
void ClickTwice(Control& control, Qt::MouseButton button, const QPoint& place = {})
{
    QTest::mouseClick(&control.Widget(), button, {}, place);
    QTest::mouseDClick(&control.Widget(), button, {}, place);
    QTest::mouseRelease(&control.Widget(), button, {}, place);
}

} // namespace

/// What all controls have in common.
class ControlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*pixels));
        log_.clear();
    }
    void cleanup() { room_.reset(); }

    void a_control_on_a_form_in_pixels_is_measured_in_pixels()
    {
        QCOMPARE(pixels->Panel1.Left(), 10.0);
        QCOMPARE(pixels->Panel1.Top(), 20.0);
        QCOMPARE(pixels->Panel1.Width(), 200.0);
        QCOMPARE(pixels->Panel1.Height(), 100.0);
        pixels->Panel1.SetLeft(11);
        pixels->Panel1.SetTop(22);
        pixels->Panel1.SetWidth(210);
        pixels->Panel1.SetHeight(110);
        QCOMPARE(pixels->Panel1.Widget().geometry(), QRect(11, 22, 210, 110));
    }

    void a_control_inside_a_frame_or_panel_is_measured_in_twips()
    {
        QCOMPARE(pixels->Inside.Left(), 150.0);
        QCOMPARE(pixels->Inside.Width(), 1200.0);
        pixels->Inside.Move(300, 450);
        QCOMPARE(pixels->Inside.Widget().pos(), QPoint(20, 30));
        QCOMPARE(pixels->Label1.Top(), 150.0);
        QCOMPARE(pixels->Label1.Widget().geometry(), QRect(10, 10, 100, 20));
    }

    void fractions_are_kept_although_the_screen_shows_whole_pixels()
    {
        pixels->Panel1.SetLeft(10.3);
        QCOMPARE(pixels->Panel1.Left(), 10.3);
        QCOMPARE(pixels->Panel1.Widget().x(), 10);
        pixels->Panel1.SetLeft(10.5);
        QCOMPARE(pixels->Panel1.Widget().x(), 11);
    }

    void all_four_measures_move_at_once_or_not_at_all()
    {
        pixels->Panel1.Move(30, 40, 50.5, 60);
        QCOMPARE(pixels->Panel1.Left(), 30.0);
        QCOMPARE(pixels->Panel1.Top(), 40.0);
        QCOMPARE(pixels->Panel1.Width(), 50.5);
        QCOMPARE(pixels->Panel1.Height(), 60.0);
        QCOMPARE(ResumeNext([] { pixels->Panel1.Move(1, 2, -1, 4); }), 380);
        QCOMPARE(ResumeNext([] { pixels->Panel1.Move(1, 2, 3, -1); }), 380);
        QCOMPARE(pixels->Panel1.Left(), 30.0);
        QCOMPARE(pixels->Panel1.Width(), 50.5);
        QCOMPARE(pixels->Panel1.Height(), 60.0);
    }

    void a_negative_size_is_failure_380_and_changes_nothing()
    {
        QCOMPARE(ResumeNext([] { pixels->Panel1.SetWidth(-1); }), 380);
        QCOMPARE(ResumeNext([] { pixels->Panel1.SetHeight(-0.5); }), 380);
        QCOMPARE(pixels->Panel1.Width(), 200.0);
        QCOMPARE(pixels->Panel1.Height(), 100.0);
        QCOMPARE(ResumeNext([] { pixels->Panel1.SetWidth(0); }), 0);
        QCOMPARE(ResumeNext([] { pixels->Panel1.Move(-5000, -5000); }), 0);
        QCOMPARE(pixels->Panel1.Left(), -5000.0);
    }

    void a_measure_beyond_all_screens_is_safe()
    {
        pixels->Panel1.SetWidth(1e300);
        pixels->Panel1.SetLeft(-1e300);
        QCOMPARE(pixels->Panel1.Left(), -1e300);
        QVERIFY(pixels->Panel1.Widget().width() >= 10000);
    }

    void the_name_is_the_object_name()
    {
        QCOMPARE(pixels->Inside.Name(), u"Inside"_s);
        QCOMPARE(pixels->Window().findChild<QWidget*>(u"Inside"_s), &pixels->Inside.Widget());
        QCOMPARE(&pixels->Inside.OwnerForm(), static_cast<Form*>(&*pixels));
    }

    void the_control_of_a_widget_is_found()
    {
        QCOMPARE(Control::OfWidget(&pixels->Go.Widget()), &pixels->Go);
        QCOMPARE(Control::OfWidget(&pixels->Host()), nullptr);
        QCOMPARE(Control::OfWidget(nullptr), nullptr);
    }

    void visible_and_enabled_are_the_controls_own_flags()
    {
        pixels->Frame1.Hide();
        pixels->Frame1.SetEnabled(false);
        QVERIFY(pixels->Inside.Visible());
        QVERIFY(pixels->Inside.Enabled());
        pixels->Inside.SetVisible(false);
        pixels->Inside.SetEnabled(false);
        pixels->Frame1.Show();
        pixels->Frame1.SetEnabled(true);
        QVERIFY(!pixels->Inside.Visible());
        QVERIFY(!pixels->Inside.Enabled());
        pixels->Hide();
        QVERIFY(pixels->Go.Visible());
    }

    void zorder_brings_a_control_before_its_siblings()
    {
        const QPoint shared(100, 100); // Panel1 and Panel2 both cover it
        QCOMPARE(pixels->Host().childAt(shared), &pixels->Panel2.Widget());
        pixels->Panel1.ZOrder();
        QCOMPARE(pixels->Host().childAt(shared), &pixels->Panel1.Widget());
    }

    void a_control_made_later_lies_in_front()
    {
        const QObjectList children = pixels->Host().children();
        QVERIFY(children.indexOf(&pixels->Panel1.Widget()) < children.indexOf(&pixels->Panel2.Widget()));
    }

    void focus_goes_where_it_is_set()
    {
        pixels->Go.SetFocus();
        QCOMPARE(Screen.ActiveControl(), &pixels->Go);
        pixels->Inside.SetFocus();
        QCOMPARE(Screen.ActiveControl(), &pixels->Inside);
    }

    void focus_on_a_disabled_control_is_failure_5()
    {
        pixels->Next.SetFocus();
        pixels->Go.SetEnabled(false);
        QCOMPARE(ResumeNext([] { pixels->Go.SetFocus(); }), 5);
        QCOMPARE(Screen.ActiveControl(), &pixels->Next);
    }

    void focus_on_a_hidden_control_is_failure_5()
    {
        pixels->Go.Hide();
        QCOMPARE(ResumeNext([] { pixels->Go.SetFocus(); }), 5);
    }

    void focus_in_a_hidden_container_is_failure_5()
    {
        pixels->Frame1.Hide();
        QCOMPARE(ResumeNext([] { pixels->Inside.SetFocus(); }), 5);
    }

    void focus_in_a_disabled_container_is_failure_5()
    {
        pixels->Frame1.SetEnabled(false);
        QCOMPARE(ResumeNext([] { pixels->Inside.SetFocus(); }), 5);
    }

    void focus_on_a_form_that_is_not_shown_is_failure_5()
    {
        pixels->Hide();
        QCOMPARE(ResumeNext([] { pixels->Go.SetFocus(); }), 5);
        pixels->Show();
        QCOMPARE(ResumeNext([] { pixels->Go.SetFocus(); }), 0);
    }

    void focus_on_a_disabled_form_works_because_the_program_sets_it()
    {
        pixels->SetEnabled(false);
        QCOMPARE(ResumeNext([] { pixels->Go.SetFocus(); }), 0);
        QCOMPARE(Screen.ActiveControl(), &pixels->Go);
    }

    void a_click_is_the_left_buttons_alone()
    {
        pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
            QTest::mouseClick(&pixels->Image1.Widget(), button);
        QVERIFY(log_.isEmpty());
        QTest::mouseClick(&pixels->Image1.Widget(), Qt::LeftButton);
        QCOMPARE(log_.size(), 1);
    }

    void a_release_outside_is_no_click()
    {
        pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QWidget* image = &pixels->Image1.Widget();
        QTest::mousePress(image, Qt::LeftButton, {}, {5, 5});
        QTest::mouseRelease(image, Qt::LeftButton, {}, {-5, 5});
        QVERIFY(log_.isEmpty());
        QTest::mouseRelease(image, Qt::LeftButton, {}, {5, 5}); // no press before it
        QVERIFY(log_.isEmpty());
    }

    void a_left_press_is_not_lost_by_another_button_in_between()
    {
        pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QWidget* image = &pixels->Image1.Widget();
        QTest::mousePress(image, Qt::RightButton);
        QTest::mouseRelease(image, Qt::LeftButton);
        QVERIFY(log_.isEmpty());
    }

    void mouse_down_tells_the_button()
    {
        pixels->Image1.MouseDown = [this](int button) { log_.append(QString::number(button)); };
        for (const Qt::MouseButton button :
             {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
            QTest::mousePress(&pixels->Image1.Widget(), button);
        QCOMPARE(log_, (QStringList{u"1"_s, u"2"_s, u"4"_s, u"0"_s}));
    }

    void mouse_down_comes_before_click()
    {
        pixels->Image1.MouseDown = [this](int) { log_.append(u"down"_s); };
        pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QTest::mouseClick(&pixels->Image1.Widget(), Qt::LeftButton);
        QCOMPARE(log_, (QStringList{u"down"_s, u"click"_s}));
    }

    void a_double_click_runs_where_it_is_bound()
    {
        pixels->Panel1.Click = [this] { log_.append(u"click"_s); };
        pixels->Panel1.DblClick = [this] { log_.append(u"double"_s); };
        ClickTwice(pixels->Panel1, Qt::LeftButton, {150, 80});
        QCOMPARE(log_, (QStringList{u"click"_s, u"double"_s}));
        ClickTwice(pixels->Panel1, Qt::RightButton, {150, 80});
        QCOMPARE(log_.size(), 2);
    }

    void quick_clicking_is_clicking_where_no_double_click_is_bound()
    {
        for (Control* control : std::initializer_list<Control*>{&pixels->Image1, &pixels->Go}) {
            log_.clear();
            control->Click = [this] { log_.append(u"click"_s); };
            ClickTwice(*control, Qt::LeftButton);
            QCOMPARE(log_.size(), 2);
        }
    }

    void what_happens_on_a_control_is_nothing_to_its_container()
    {
        pixels->Panel1.Click = [this] { log_.append(u"panel click"_s); };
        pixels->Panel1.MouseDown = [this](int) { log_.append(u"panel down"_s); };
        pixels->Panel1.DblClick = [this] { log_.append(u"panel double"_s); };
        pixels->Label1.Click = [this] { log_.append(u"label"_s); };
        pixels->Panel1.ZOrder();
        const QPoint onLabel(20, 15);
        QWindow* window = pixels->Window().windowHandle();
        const QPoint place = pixels->Panel1.Widget().mapTo(&pixels->Window(), onLabel);
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
        QTest::mouseClick(window, Qt::RightButton, {}, place);
        QCOMPARE(log_, QStringList{u"label"_s});
    }

    void a_disabled_control_has_no_events_nor_has_what_it_lies_on()
    {
        pixels->Panel1.MouseDown = [this](int) { log_.append(u"panel"_s); };
        pixels->Label1.Click = [this] { log_.append(u"label"_s); };
        pixels->Label1.MouseDown = [this](int) { log_.append(u"label down"_s); };
        pixels->Label1.SetEnabled(false);
        QTest::mouseClick(&pixels->Label1.Widget(), Qt::LeftButton);
        QTest::mouseDClick(&pixels->Label1.Widget(), Qt::LeftButton);
        pixels->Go.Click = [this] { log_.append(u"go"_s); };
        pixels->Go.SetEnabled(false);
        QTest::mouseClick(&pixels->Go.Widget(), Qt::LeftButton);
        QCOMPARE(log_, QStringList());
    }

    void key_down_tells_code_and_shift_state()
    {
        pixels->Go.KeyDown = [this](int code, int shift) { log_.append(u"%1 %2"_s.arg(code).arg(shift)); };
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_Comma);
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_Less, Qt::ShiftModifier);
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_F5); // has no code
        QCOMPARE(log_, (QStringList{u"188 0"_s, u"188 1"_s, u"65 6"_s}));
    }

    void the_comma_and_period_keys_are_known_with_shift_whatever_they_give_then()
    {
        QVERIFY(UiRoom::Open(*pixels));
        pixels->Go.KeyDown = [this](int code, int shift) { log_.append(u"%1 %2"_s.arg(code).arg(shift)); };
        pixels->Go.SetFocus();
        const auto shortcuts = pixels->Window().findChildren<QShortcut*>();
        for (const Qt::Key key : {Qt::Key_Comma, Qt::Key_Period}) {
            const auto withShift = std::find_if(shortcuts.begin(), shortcuts.end(), [&](QShortcut* shortcut) {
                return shortcut->key() == QKeySequence(Qt::SHIFT | key);
            });
            QVERIFY(withShift != shortcuts.end());
            Q_EMIT(*withShift)->activated();
        }
        QCOMPARE(log_, (QStringList{u"188 1"_s, u"190 1"_s}));
    }

    void a_handler_that_moves_the_focus_uses_the_key_up()
    {
        pixels->Go.SetFocus();
        pixels->Go.KeyDown = [](int, int) { pixels->Next.SetFocus(); };
        pixels->Go.Click = [this] { log_.append(u"go"_s); };
        pixels->Next.Click = [this] { log_.append(u"next"_s); };
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_Space);
        QVERIFY(log_.isEmpty());
        QTest::keyClick(&pixels->Next.Widget(), Qt::Key_Space);
        QCOMPARE(log_, QStringList{u"next"_s});
    }

    void a_handler_that_leaves_the_focus_lets_the_key_work()
    {
        pixels->Go.SetFocus();
        pixels->Go.KeyDown = [this](int, int) { log_.append(u"key"_s); };
        pixels->Go.Click = [this] { log_.append(u"click"_s); };
        QTest::keyClick(&pixels->Go.Widget(), Qt::Key_Space);
        QCOMPARE(log_, (QStringList{u"key"_s, u"click"_s}));
    }

    void the_tool_tip_is_the_widgets_and_the_accessible_name()
    {
        QCOMPARE(pixels->Image1.Widget().accessibleName(), u"Image1"_s);
        pixels->Image1.SetToolTip(u"Click the Right mouse button to copy"_s);
        QCOMPARE(pixels->Image1.ToolTip(), u"Click the Right mouse button to copy"_s);
        QCOMPARE(pixels->Image1.Widget().toolTip(), pixels->Image1.ToolTip());
        QCOMPARE(pixels->Image1.Widget().accessibleName(), pixels->Image1.ToolTip());
    }

    void a_caption_is_the_accessible_name_before_the_tool_tip()
    {
        pixels->Panel1.SetToolTip(u"Double-click to show photo #1"_s);
        QCOMPARE(pixels->Panel1.Widget().accessibleName(), u"panel"_s);
        pixels->Panel1.SetCaption(QString());
        QCOMPARE(pixels->Panel1.Widget().accessibleName(), u"Double-click to show photo #1"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList log_;
};

TORVIK_TEST(ControlTest)
#include "control_test.moc"
