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

FormHandle<PixelForm> Pixels;

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
        QVERIFY(UiRoom::Open(*Pixels));
        log_.clear();
    }
    void cleanup() { room_.reset(); }

    void a_control_on_a_form_in_pixels_is_measured_in_pixels()
    {
        QCOMPARE(Pixels->Panel1.Left(), 10.0);
        QCOMPARE(Pixels->Panel1.Top(), 20.0);
        QCOMPARE(Pixels->Panel1.Width(), 200.0);
        QCOMPARE(Pixels->Panel1.Height(), 100.0);
        Pixels->Panel1.SetLeft(11);
        Pixels->Panel1.SetTop(22);
        Pixels->Panel1.SetWidth(210);
        Pixels->Panel1.SetHeight(110);
        QCOMPARE(Pixels->Panel1.Widget().geometry(), QRect(11, 22, 210, 110));
    }

    void a_control_inside_a_frame_or_panel_is_measured_in_twips()
    {
        QCOMPARE(Pixels->Inside.Left(), 150.0);
        QCOMPARE(Pixels->Inside.Width(), 1200.0);
        Pixels->Inside.Move(300, 450);
        QCOMPARE(Pixels->Inside.Widget().pos(), QPoint(20, 30));
        QCOMPARE(Pixels->Label1.Top(), 150.0);
        QCOMPARE(Pixels->Label1.Widget().geometry(), QRect(10, 10, 100, 20));
    }

    void fractions_are_kept_although_the_screen_shows_whole_pixels()
    {
        Pixels->Panel1.SetLeft(10.3);
        QCOMPARE(Pixels->Panel1.Left(), 10.3);
        QCOMPARE(Pixels->Panel1.Widget().x(), 10);
        Pixels->Panel1.SetLeft(10.5);
        QCOMPARE(Pixels->Panel1.Widget().x(), 11);
    }

    void all_four_measures_move_at_once_or_not_at_all()
    {
        Pixels->Panel1.Move(30, 40, 50.5, 60);
        QCOMPARE(Pixels->Panel1.Left(), 30.0);
        QCOMPARE(Pixels->Panel1.Top(), 40.0);
        QCOMPARE(Pixels->Panel1.Width(), 50.5);
        QCOMPARE(Pixels->Panel1.Height(), 60.0);
        QCOMPARE(ResumeNext([] { Pixels->Panel1.Move(1, 2, -1, 4); }), 380);
        QCOMPARE(ResumeNext([] { Pixels->Panel1.Move(1, 2, 3, -1); }), 380);
        QCOMPARE(Pixels->Panel1.Left(), 30.0);
        QCOMPARE(Pixels->Panel1.Width(), 50.5);
        QCOMPARE(Pixels->Panel1.Height(), 60.0);
    }

    void a_negative_size_is_failure_380_and_changes_nothing()
    {
        QCOMPARE(ResumeNext([] { Pixels->Panel1.SetWidth(-1); }), 380);
        QCOMPARE(ResumeNext([] { Pixels->Panel1.SetHeight(-0.5); }), 380);
        QCOMPARE(Pixels->Panel1.Width(), 200.0);
        QCOMPARE(Pixels->Panel1.Height(), 100.0);
        QCOMPARE(ResumeNext([] { Pixels->Panel1.SetWidth(0); }), 0);
        QCOMPARE(ResumeNext([] { Pixels->Panel1.Move(-5000, -5000); }), 0);
        QCOMPARE(Pixels->Panel1.Left(), -5000.0);
    }

    void a_measure_beyond_all_screens_is_safe()
    {
        Pixels->Panel1.SetWidth(1e300);
        Pixels->Panel1.SetLeft(-1e300);
        QCOMPARE(Pixels->Panel1.Left(), -1e300);
        QVERIFY(Pixels->Panel1.Widget().width() >= 10000);
    }

    void the_name_is_the_object_name()
    {
        QCOMPARE(Pixels->Inside.Name(), u"Inside"_s);
        QCOMPARE(Pixels->Window().findChild<QWidget*>(u"Inside"_s), &Pixels->Inside.Widget());
        QCOMPARE(&Pixels->Inside.OwnerForm(), static_cast<Form*>(&*Pixels));
    }

    void the_control_of_a_widget_is_found()
    {
        QCOMPARE(Control::OfWidget(&Pixels->Go.Widget()), &Pixels->Go);
        QCOMPARE(Control::OfWidget(&Pixels->Host()), nullptr);
        QCOMPARE(Control::OfWidget(nullptr), nullptr);
    }

    void visible_and_enabled_are_the_controls_own_flags()
    {
        Pixels->Frame1.Hide();
        Pixels->Frame1.SetEnabled(false);
        QVERIFY(Pixels->Inside.Visible());
        QVERIFY(Pixels->Inside.Enabled());
        Pixels->Inside.SetVisible(false);
        Pixels->Inside.SetEnabled(false);
        Pixels->Frame1.Show();
        Pixels->Frame1.SetEnabled(true);
        QVERIFY(!Pixels->Inside.Visible());
        QVERIFY(!Pixels->Inside.Enabled());
        Pixels->Hide();
        QVERIFY(Pixels->Go.Visible());
    }

    void zorder_brings_a_control_before_its_siblings()
    {
        const QPoint shared(100, 100); // Panel1 and Panel2 both cover it
        QCOMPARE(Pixels->Host().childAt(shared), &Pixels->Panel2.Widget());
        Pixels->Panel1.ZOrder();
        QCOMPARE(Pixels->Host().childAt(shared), &Pixels->Panel1.Widget());
    }

    void a_control_made_later_lies_in_front()
    {
        const QObjectList children = Pixels->Host().children();
        QVERIFY(children.indexOf(&Pixels->Panel1.Widget()) < children.indexOf(&Pixels->Panel2.Widget()));
    }

    void focus_goes_where_it_is_set()
    {
        Pixels->Go.SetFocus();
        QCOMPARE(Screen.ActiveControl(), &Pixels->Go);
        Pixels->Inside.SetFocus();
        QCOMPARE(Screen.ActiveControl(), &Pixels->Inside);
    }

    void focus_on_a_disabled_control_is_failure_5()
    {
        Pixels->Next.SetFocus();
        Pixels->Go.SetEnabled(false);
        QCOMPARE(ResumeNext([] { Pixels->Go.SetFocus(); }), 5);
        QCOMPARE(Screen.ActiveControl(), &Pixels->Next);
    }

    void focus_on_a_hidden_control_is_failure_5()
    {
        Pixels->Go.Hide();
        QCOMPARE(ResumeNext([] { Pixels->Go.SetFocus(); }), 5);
    }

    void focus_in_a_hidden_container_is_failure_5()
    {
        Pixels->Frame1.Hide();
        QCOMPARE(ResumeNext([] { Pixels->Inside.SetFocus(); }), 5);
    }

    void focus_in_a_disabled_container_is_failure_5()
    {
        Pixels->Frame1.SetEnabled(false);
        QCOMPARE(ResumeNext([] { Pixels->Inside.SetFocus(); }), 5);
    }

    void focus_on_a_form_that_is_not_shown_is_failure_5()
    {
        Pixels->Hide();
        QCOMPARE(ResumeNext([] { Pixels->Go.SetFocus(); }), 5);
        Pixels->Show();
        QCOMPARE(ResumeNext([] { Pixels->Go.SetFocus(); }), 0);
    }

    void focus_on_a_disabled_form_works_because_the_program_sets_it()
    {
        Pixels->SetEnabled(false);
        QCOMPARE(ResumeNext([] { Pixels->Go.SetFocus(); }), 0);
        QCOMPARE(Screen.ActiveControl(), &Pixels->Go);
    }

    void a_click_is_the_left_buttons_alone()
    {
        Pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
            QTest::mouseClick(&Pixels->Image1.Widget(), button);
        QVERIFY(log_.isEmpty());
        QTest::mouseClick(&Pixels->Image1.Widget(), Qt::LeftButton);
        QCOMPARE(log_.size(), 1);
    }

    void a_release_outside_is_no_click()
    {
        Pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QWidget* image = &Pixels->Image1.Widget();
        QTest::mousePress(image, Qt::LeftButton, {}, {5, 5});
        QTest::mouseRelease(image, Qt::LeftButton, {}, {-5, 5});
        QVERIFY(log_.isEmpty());
        QTest::mouseRelease(image, Qt::LeftButton, {}, {5, 5}); // no press before it
        QVERIFY(log_.isEmpty());
    }

    void a_left_press_is_not_lost_by_another_button_in_between()
    {
        Pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QWidget* image = &Pixels->Image1.Widget();
        QTest::mousePress(image, Qt::RightButton);
        QTest::mouseRelease(image, Qt::LeftButton);
        QVERIFY(log_.isEmpty());
    }

    void mouse_down_tells_the_button()
    {
        Pixels->Image1.MouseDown = [this](int button) { log_.append(QString::number(button)); };
        for (const Qt::MouseButton button :
             {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
            QTest::mousePress(&Pixels->Image1.Widget(), button);
        QCOMPARE(log_, (QStringList{u"1"_s, u"2"_s, u"4"_s, u"0"_s}));
    }

    void mouse_down_comes_before_click()
    {
        Pixels->Image1.MouseDown = [this](int) { log_.append(u"down"_s); };
        Pixels->Image1.Click = [this] { log_.append(u"click"_s); };
        QTest::mouseClick(&Pixels->Image1.Widget(), Qt::LeftButton);
        QCOMPARE(log_, (QStringList{u"down"_s, u"click"_s}));
    }

    void a_double_click_runs_where_it_is_bound()
    {
        Pixels->Panel1.Click = [this] { log_.append(u"click"_s); };
        Pixels->Panel1.DblClick = [this] { log_.append(u"double"_s); };
        ClickTwice(Pixels->Panel1, Qt::LeftButton, {150, 80});
        QCOMPARE(log_, (QStringList{u"click"_s, u"double"_s}));
        ClickTwice(Pixels->Panel1, Qt::RightButton, {150, 80});
        QCOMPARE(log_.size(), 2);
    }

    void quick_clicking_is_clicking_where_no_double_click_is_bound()
    {
        for (Control* control : std::initializer_list<Control*>{&Pixels->Image1, &Pixels->Go}) {
            log_.clear();
            control->Click = [this] { log_.append(u"click"_s); };
            ClickTwice(*control, Qt::LeftButton);
            QCOMPARE(log_.size(), 2);
        }
    }

    void what_happens_on_a_control_is_nothing_to_its_container()
    {
        Pixels->Panel1.Click = [this] { log_.append(u"panel click"_s); };
        Pixels->Panel1.MouseDown = [this](int) { log_.append(u"panel down"_s); };
        Pixels->Panel1.DblClick = [this] { log_.append(u"panel double"_s); };
        Pixels->Label1.Click = [this] { log_.append(u"label"_s); };
        Pixels->Panel1.ZOrder();
        const QPoint onLabel(20, 15);
        QWindow* window = Pixels->Window().windowHandle();
        const QPoint place = Pixels->Panel1.Widget().mapTo(&Pixels->Window(), onLabel);
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
        QTest::mouseClick(window, Qt::RightButton, {}, place);
        QCOMPARE(log_, QStringList{u"label"_s});
    }

    void a_disabled_control_has_no_events_nor_has_what_it_lies_on()
    {
        Pixels->Panel1.MouseDown = [this](int) { log_.append(u"panel"_s); };
        Pixels->Label1.Click = [this] { log_.append(u"label"_s); };
        Pixels->Label1.MouseDown = [this](int) { log_.append(u"label down"_s); };
        Pixels->Label1.SetEnabled(false);
        QTest::mouseClick(&Pixels->Label1.Widget(), Qt::LeftButton);
        QTest::mouseDClick(&Pixels->Label1.Widget(), Qt::LeftButton);
        Pixels->Go.Click = [this] { log_.append(u"go"_s); };
        Pixels->Go.SetEnabled(false);
        QTest::mouseClick(&Pixels->Go.Widget(), Qt::LeftButton);
        QCOMPARE(log_, QStringList());
    }

    void key_down_tells_code_and_shift_state()
    {
        Pixels->Go.KeyDown = [this](int code, int shift) { log_.append(u"%1 %2"_s.arg(code).arg(shift)); };
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_Comma);
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_Less, Qt::ShiftModifier);
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_F5); // has no code
        QCOMPARE(log_, (QStringList{u"188 0"_s, u"188 1"_s, u"65 6"_s}));
    }

    void the_comma_and_period_keys_are_known_with_shift_whatever_they_give_then()
    {
        QVERIFY(UiRoom::Open(*Pixels));
        Pixels->Go.KeyDown = [this](int code, int shift) { log_.append(u"%1 %2"_s.arg(code).arg(shift)); };
        Pixels->Go.SetFocus();
        const auto shortcuts = Pixels->Window().findChildren<QShortcut*>();
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
        Pixels->Go.SetFocus();
        Pixels->Go.KeyDown = [](int, int) { Pixels->Next.SetFocus(); };
        Pixels->Go.Click = [this] { log_.append(u"go"_s); };
        Pixels->Next.Click = [this] { log_.append(u"next"_s); };
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_Space);
        QVERIFY(log_.isEmpty());
        QTest::keyClick(&Pixels->Next.Widget(), Qt::Key_Space);
        QCOMPARE(log_, QStringList{u"next"_s});
    }

    void a_handler_that_leaves_the_focus_lets_the_key_work()
    {
        Pixels->Go.SetFocus();
        Pixels->Go.KeyDown = [this](int, int) { log_.append(u"key"_s); };
        Pixels->Go.Click = [this] { log_.append(u"click"_s); };
        QTest::keyClick(&Pixels->Go.Widget(), Qt::Key_Space);
        QCOMPARE(log_, (QStringList{u"key"_s, u"click"_s}));
    }

    void the_tool_tip_is_the_widgets_and_the_accessible_name()
    {
        QCOMPARE(Pixels->Image1.Widget().accessibleName(), u"Image1"_s);
        Pixels->Image1.SetToolTip(u"Click the Right mouse button to copy"_s);
        QCOMPARE(Pixels->Image1.ToolTip(), u"Click the Right mouse button to copy"_s);
        QCOMPARE(Pixels->Image1.Widget().toolTip(), Pixels->Image1.ToolTip());
        QCOMPARE(Pixels->Image1.Widget().accessibleName(), Pixels->Image1.ToolTip());
    }

    void a_caption_is_the_accessible_name_before_the_tool_tip()
    {
        Pixels->Panel1.SetToolTip(u"Double-click to show photo #1"_s);
        QCOMPARE(Pixels->Panel1.Widget().accessibleName(), u"panel"_s);
        Pixels->Panel1.SetCaption(QString());
        QCOMPARE(Pixels->Panel1.Widget().accessibleName(), u"Double-click to show photo #1"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList log_;
};

TORVIK_TEST(ControlTest)
#include "control_test.moc"
