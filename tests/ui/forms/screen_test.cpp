#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/text_box.h"
#include "ui/forms/screen.h"

#include <QLineEdit>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}};
    PictureBox Pane{*this, u"Pane"_s, {0, 600, 1200, 600}};
    Image Photo{*this, u"Photo"_s, {1500, 600, 1200, 600}};
    TextBox Text1{*this, u"Text1"_s, {0, 1500, 1200, 375}, u"67A.JPG"_s};
};

FormHandle<MainForm> Main;

} // namespace

/// The screen, its mouse pointer and its active control.
class ScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void the_size_is_15_twips_to_the_pixel()
    {
        const QSize pixels = QApplication::primaryScreen()->size();
        QCOMPARE(Screen.Width(), pixels.width() * 15.0);
        QCOMPARE(Screen.Height(), pixels.height() * 15.0);
    }

    void a_pretended_size_takes_the_place_of_the_machines()
    {
        Screen.Pretend(QSize(1024, 768));
        QCOMPARE(Screen.Width(), 15360.0);
        QCOMPARE(Screen.Height(), 11520.0);
        Screen.Pretend(std::nullopt);
        QCOMPARE(Screen.Width(), QApplication::primaryScreen()->size().width() * 15.0);
    }

    void a_desktop_that_enlarges_is_told_apart()
    {
        QVERIFY(!Screen.IsScaledByDesktop());
        Screen.SetScaledByDesktop(true);
        QVERIFY(Screen.IsScaledByDesktop());
        Screen.SetScaledByDesktop(false);
    }

    void the_hourglass_is_the_pointer_of_all_windows()
    {
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
        Screen.SetMousePointer(MousePointer::Hourglass);
        Screen.SetMousePointer(MousePointer::Hourglass);
        QCOMPARE(Screen.Pointer(), MousePointer::Hourglass);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        Screen.SetMousePointer(MousePointer::Default); // once takes back what was set twice
        QCOMPARE(QApplication::overrideCursor(), nullptr);
        Screen.SetMousePointer(MousePointer::Default);
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }

    void the_active_control_has_the_focus()
    {
        QCOMPARE(Screen.ActiveControl(), nullptr);
        QVERIFY(UiRoom::Open(*Main));
        Main->Text1.SetFocus();
        QCOMPARE(Screen.ActiveControl(), &Main->Text1);
    }

    void any_press_on_a_picture_pane_makes_it_the_active_control()
    {
        QVERIFY(UiRoom::Open(*Main));
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            Main->Go.SetFocus();
            const Control* active = nullptr;
            Main->Pane.MouseDown = [&](int) { active = Screen.ActiveControl(); };
            QTest::mouseClick(&Main->Pane.Widget(), button);
            QCOMPARE(active, &Main->Pane);
        }
    }

    void a_press_on_an_image_makes_it_the_active_control_too()
    {
        QVERIFY(UiRoom::Open(*Main));
        QTest::mouseClick(&Main->Photo.Widget(), Qt::RightButton);
        QCOMPARE(Screen.ActiveControl(), &Main->Photo);
    }

    void the_keyboard_focus_stays_where_it_is_when_a_picture_is_pressed()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->Go.SetFocus();
        QTest::mouseClick(&Main->Pane.Widget(), Qt::RightButton);
        QTest::mouseClick(&Main->Photo.Widget(), Qt::LeftButton);
        QVERIFY(Main->Go.Widget().hasFocus());
    }

    void a_pressed_picture_stays_active_behind_a_box()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->Go.SetFocus();
        QTest::mouseClick(&Main->Pane.Widget(), Qt::RightButton);
        QWidget box;
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.hide();
        QCOMPARE(Screen.ActiveControl(), &Main->Pane);
        Main->Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Main->Window()));
        QCOMPARE(Screen.ActiveControl(), &Main->Pane);
    }

    void a_pressed_picture_is_active_until_the_user_is_elsewhere_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("another control is pressed") << 0;
        QTest::newRow("a key is pressed") << 1;
        QTest::newRow("the program sets the focus where it is") << 2;
        QTest::newRow("the focus moves on by Tab") << 3;
        QTest::newRow("the picture is hidden") << 4;
    }
    void a_pressed_picture_is_active_until_the_user_is_elsewhere()
    {
        QFETCH(int, way);
        QVERIFY(UiRoom::Open(*Main));
        Main->Go.SetFocus();
        QTest::mouseClick(&Main->Pane.Widget(), Qt::RightButton);
        QCOMPARE(Screen.ActiveControl(), &Main->Pane);
        const Control* expected = &Main->Go;
        if (way == 0)
            QTest::mouseClick(&Main->Go.Widget(), Qt::LeftButton);
        else if (way == 1)
            QTest::keyClick(&Main->Go.Widget(), Qt::Key_A);
        else if (way == 2)
            Main->Go.SetFocus();
        else if (way == 4)
            Main->Pane.Hide();
        else {
            Main->Text1.Widget().setFocus(Qt::TabFocusReason);
            expected = &Main->Text1;
        }
        QCOMPARE(Screen.ActiveControl(), expected);
    }

    void a_pressed_picture_that_is_gone_is_no_active_control()
    {
        QVERIFY(UiRoom::Open(*Main));
        QTest::mouseClick(&Main->Pane.Widget(), Qt::RightButton);
        Main.Unload();
        UiRoom::Settle();
        QCOMPARE(Screen.ActiveControl(), nullptr);
    }

    void a_box_that_was_up_leaves_the_active_control()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->Text1.SetFocus();
        QWidget box;
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.hide(); // and the form is not active again yet
        QCOMPARE(Screen.ActiveControl(), &Main->Text1);
    }

    void a_widget_of_no_form_is_no_active_control()
    {
        QLineEdit stranger;
        stranger.show();
        stranger.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&stranger));
        stranger.setFocus();
        QCOMPARE(Screen.ActiveControl(), nullptr);
    }

    void an_unloaded_form_has_no_active_control()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->Go.SetFocus();
        Main.Unload();
        QCOMPARE(Screen.ActiveControl(), nullptr);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(ScreenTest)
#include "screen_test.moc"
