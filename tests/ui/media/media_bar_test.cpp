#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/look/button_widget.h"
#include "ui/media/media_bar.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    MediaBar mmSlide{*this, u"mmSlide"_s, {120, 360, 4050, 450}}; // 270 by 30 pixels
};

FormHandle<MainForm> Main;

constexpr MediaButton allButtons[] = {MediaButton::Prev,  MediaButton::Next,   MediaButton::Play,
                                      MediaButton::Pause, MediaButton::Back,   MediaButton::Step,
                                      MediaButton::Stop,  MediaButton::Record, MediaButton::Eject};

QString Plain(MediaButton button)
{
    static const QStringList names{"Prev", "Next", "Play",   "Pause", "Back",
                                   "Step", "Stop", "Record", "Eject"};
    return names.at(static_cast<int>(button));
}

ButtonWidget& Part(MediaButton button)
{
    auto* part = Main->Window().findChild<ButtonWidget*>(u"mmSlide(%1)"_s.arg(Plain(button)));
    if (part == nullptr)
        qFatal("there is no such button");
    return *part;
}

void Press(MediaButton button)
{
    QTest::mouseClick(&Part(button), Qt::LeftButton);
}

QImage Grab(MediaButton button)
{
    return Part(button).grab().toImage();
}

QString Focused()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
}

} // namespace

/// A row of buttons as on a video recorder.
class MediaBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        pressed_.clear();
        for (const MediaButton button : allButtons)
            Main->mmSlide.ButtonClick(button) = [this, button] { pressed_ += Plain(button); };
    }
    void cleanup() { room_.reset(); }

    void at_first_all_buttons_are_there_and_enabled()
    {
        for (const MediaButton button : allButtons) {
            QVERIFY(Main->mmSlide.ButtonVisible(button));
            QVERIFY(Main->mmSlide.ButtonEnabled(button));
        }
    }

    void each_button_has_an_event_of_its_own()
    {
        for (const MediaButton button : allButtons) {
            pressed_.clear();
            Press(button);
            QCOMPARE(pressed_, QStringList{Plain(button)});
        }
    }

    void only_the_left_button_of_the_mouse_presses()
    {
        QTest::mouseClick(&Part(MediaButton::Play), Qt::RightButton);
        QTest::mouseClick(&Part(MediaButton::Play), Qt::MiddleButton);
        QCOMPARE(pressed_, QStringList());
    }

    void a_press_on_the_bar_is_no_click_of_the_bar()
    {
        int clicks = 0;
        Main->mmSlide.Click = [&] { ++clicks; };
        Press(MediaButton::Play);
        QCOMPARE(clicks, 0);
    }

    void a_button_without_a_handler_does_nothing()
    {
        Main->mmSlide.ButtonClick(MediaButton::Play) = nullptr;
        Press(MediaButton::Play);
        QCOMPARE(pressed_, QStringList());
    }

    void a_disabled_button_does_nothing_until_it_is_enabled_again()
    {
        Main->mmSlide.SetButtonEnabled(MediaButton::Pause, false);
        QVERIFY(!Main->mmSlide.ButtonEnabled(MediaButton::Pause));
        QVERIFY(Main->mmSlide.ButtonEnabled(MediaButton::Play));
        Press(MediaButton::Pause);
        QCOMPARE(pressed_, QStringList());
        Main->mmSlide.SetButtonEnabled(MediaButton::Pause, true);
        Press(MediaButton::Pause);
        QCOMPARE(pressed_, QStringList{"Pause"});
    }

    void a_disabled_bar_does_nothing_and_its_buttons_keep_their_own_flags()
    {
        Main->mmSlide.SetButtonEnabled(MediaButton::Pause, false);
        Main->mmSlide.SetEnabled(false);
        Press(MediaButton::Play);
        QCOMPARE(pressed_, QStringList());
        QVERIFY(Main->mmSlide.ButtonEnabled(MediaButton::Play));
        QVERIFY(!Main->mmSlide.ButtonEnabled(MediaButton::Pause));
    }

    void the_buttons_stand_in_order_and_fill_the_bar()
    {
        int right = 0;
        for (const MediaButton button : allButtons) {
            const QRect place = Part(button).geometry();
            QCOMPARE(place, QRect(right, 0, 30, 30));
            right += place.width();
        }
        QCOMPARE(right, Main->mmSlide.Widget().width());
    }

    void hidden_buttons_take_no_room()
    {
        Main->mmSlide.SetButtonVisible(MediaButton::Record, false);
        Main->mmSlide.SetButtonVisible(MediaButton::Eject, false);
        Main->mmSlide.SetButtonVisible(MediaButton::Next, false);
        QVERIFY(!Main->mmSlide.ButtonVisible(MediaButton::Next));
        QVERIFY(!Part(MediaButton::Next).isVisible());
        QCOMPARE(Part(MediaButton::Prev).geometry(), QRect(0, 0, 45, 30));
        QCOMPARE(Part(MediaButton::Play).geometry(), QRect(45, 0, 45, 30));
        QCOMPARE(Part(MediaButton::Stop).geometry(), QRect(225, 0, 45, 30));
        Main->mmSlide.SetButtonVisible(MediaButton::Next, true);
        QCOMPARE(Part(MediaButton::Next).x(), Part(MediaButton::Prev).geometry().right() + 1);
    }

    void a_bar_without_buttons_is_empty()
    {
        for (const MediaButton button : allButtons)
            Main->mmSlide.SetButtonVisible(button, false);
        for (const MediaButton button : allButtons)
            QVERIFY(!Part(button).isVisible());
    }

    void a_narrower_bar_loses_no_pixel()
    {
        Main->mmSlide.SetWidth(2736); // 182 pixels for nine buttons
        int right = 0;
        for (const MediaButton button : allButtons) {
            const QRect place = Part(button).geometry();
            QCOMPARE(place.x(), right);
            QVERIFY(place.width() == 20 || place.width() == 21);
            right += place.width();
        }
        QCOMPARE(right, 182);
    }

    void a_disabled_button_looks_faded()
    {
        for (const MediaButton button : allButtons) {
            const QImage enabled = Grab(button);
            Main->mmSlide.SetButtonEnabled(button, false);
            QVERIFY2(Grab(button) != enabled, qPrintable(Plain(button)));
        }
    }

    void a_pressed_button_looks_pressed()
    {
        const QImage up = Grab(MediaButton::Play);
        Part(MediaButton::Play).setDown(true);
        QVERIFY(Grab(MediaButton::Play) != up);
    }

    void the_tab_key_reaches_each_enabled_button()
    {
        Main->mmSlide.SetButtonEnabled(MediaButton::Next, false);
        Part(MediaButton::Prev).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Part(MediaButton::Prev), Qt::Key_Tab);
        QCOMPARE(Focused(), u"mmSlide(Play)"_s);
        QTest::keyClick(&Part(MediaButton::Play), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(Focused(), u"mmSlide(Prev)"_s);
    }

    void arrow_keys_go_over_the_enabled_buttons_and_stay_at_the_ends()
    {
        Main->mmSlide.SetButtonEnabled(MediaButton::Pause, false);
        Main->mmSlide.SetButtonVisible(MediaButton::Back, false);
        Main->mmSlide.SetButtonVisible(MediaButton::Eject, false);
        Part(MediaButton::Play).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Part(MediaButton::Play), Qt::Key_Right);
        QCOMPARE(Focused(), u"mmSlide(Step)"_s);
        for (const auto& [from, key, to] : {std::tuple{MediaButton::Step, Qt::Key_Down, "Stop"},
                                            {MediaButton::Stop, Qt::Key_Right, "Record"},
                                            {MediaButton::Record, Qt::Key_Right, "Record"},
                                            {MediaButton::Record, Qt::Key_Up, "Stop"},
                                            {MediaButton::Next, Qt::Key_Left, "Prev"},
                                            {MediaButton::Prev, Qt::Key_Left, "Prev"}}) {
            Part(from).setFocus(Qt::TabFocusReason);
            QTest::keyClick(&Part(from), key);
            QCOMPARE(Focused(), u"mmSlide(%1)"_s.arg(QLatin1String(to)));
        }
        QCOMPARE(pressed_, QStringList());
    }

    void space_and_enter_press_the_button_with_the_focus()
    {
        Part(MediaButton::Step).setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(&Part(MediaButton::Step), key);
        QCOMPARE(pressed_, (QStringList{"Step", "Step", "Step"}));
    }

    void clicking_does_not_take_the_focus()
    {
        Part(MediaButton::Stop).setFocus(Qt::TabFocusReason);
        Press(MediaButton::Play);
        QCOMPARE(Focused(), u"mmSlide(Stop)"_s);
    }

    void each_button_says_what_it_does()
    {
        QCOMPARE(Part(MediaButton::Play).accessibleName(), u"Play"_s);
        QCOMPARE(Part(MediaButton::Eject).accessibleName(), u"Eject"_s);
        Main->mmSlide.SetSpokenAs(MediaButton::Stop, u"Exit"_s);
        QCOMPARE(Part(MediaButton::Stop).accessibleName(), u"Exit"_s);
        QCOMPARE(Part(MediaButton::Stop).objectName(), u"mmSlide(Stop)"_s);
    }

    void the_tool_tip_is_that_of_the_whole_bar()
    {
        Main->mmSlide.SetToolTip(u"[Play] [Pause]"_s);
        QCOMPARE(Main->mmSlide.Widget().accessibleName(), u"[Play] [Pause]"_s);
        QCOMPARE(Part(MediaButton::Play).accessibleName(), u"Play"_s);
        Main->mmSlide.SetButtonEnabled(MediaButton::Pause, false);
        for (const MediaButton button : {MediaButton::Play, MediaButton::Pause}) {
            QHelpEvent hover(QEvent::ToolTip, {5, 5}, Part(button).mapToGlobal(QPoint(5, 5)));
            QToolTip::hideText();
            QApplication::sendEvent(&Part(button), &hover);
            QCOMPARE(QToolTip::text(), u"[Play] [Pause]"_s);
        }
    }

    void a_handler_may_disable_its_own_button()
    {
        Main->mmSlide.ButtonClick(MediaButton::Pause) = [this] {
            pressed_ += "Pause";
            Main->mmSlide.SetButtonEnabled(MediaButton::Pause, false);
        };
        Part(MediaButton::Pause).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Part(MediaButton::Pause), Qt::Key_Space);
        Press(MediaButton::Pause);
        QCOMPARE(pressed_, QStringList{"Pause"});
        QVERIFY(Focused() != u"mmSlide(Pause)"_s);
    }

    void a_handler_may_unload_the_form()
    {
        Main->mmSlide.ButtonClick(MediaButton::Stop) = [] { Main.Unload(); };
        Press(MediaButton::Stop);
        QVERIFY(!Main.IsLoaded());
        UiRoom::Settle();
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList pressed_;
};

TORVIK_TEST(MediaBarTest)
#include "media_bar_test.moc"
