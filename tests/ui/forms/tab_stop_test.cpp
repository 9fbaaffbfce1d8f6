#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/picture_box.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
    Image Photo{*this, u"Photo"_s, {0, 600, 3000, 1500}};
    Panel Number{*this, u"Number"_s, {0, 2400, 1200, 375}, u"7"_s};
    Panel Plain{*this, u"Plain"_s, {0, 3000, 1200, 375}, u"plain"_s};
};

FormHandle<MainForm> Main;

} // namespace

/// Pictures and panels that the Tab key comes to.
class TabStopTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        Main->Photo.SetTabStop();
        Main->Number.SetTabStop();
        log_.clear();
        Main->Photo.MouseDown = [this](int button) { log_ += u"down %1"_s.arg(button); };
        Main->Photo.Click = [this] { log_ += u"click"_s; };
        Main->Number.DblClick = [this] { log_ += u"double"_s; };
    }
    void cleanup() { room_.reset(); }

    void the_tab_key_comes_to_them_and_passes_the_others()
    {
        Main->Go.SetFocus();
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Tab);
        QVERIFY(Main->Photo.Widget().hasFocus());
        QTest::keyClick(&Main->Photo.Widget(), Qt::Key_Tab);
        QVERIFY(Main->Number.Widget().hasFocus());
        QTest::keyClick(&Main->Number.Widget(), Qt::Key_Tab);
        QVERIFY(Main->Go.Widget().hasFocus());
    }

    void the_mouse_leaves_the_focus_where_it_is()
    {
        Main->Go.SetFocus();
        QTest::mouseClick(&Main->Photo.Widget(), Qt::LeftButton);
        QVERIFY(Main->Go.Widget().hasFocus());
    }

    void space_and_enter_are_the_left_click()
    {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            log_.clear();
            QTest::keyClick(&Main->Photo.Widget(), key);
            QCOMPARE(log_, QStringList({u"down 1"_s, u"click"_s}));
        }
    }

    void the_menu_key_is_the_right_button()
    {
        QTest::keyClick(&Main->Photo.Widget(), Qt::Key_Menu);
        QTest::keyClick(&Main->Photo.Widget(), Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(log_, QStringList({u"down 2"_s, u"down 2"_s}));
        QCOMPARE(Screen.ActiveControl(), &Main->Photo);
    }

    void other_keys_do_nothing()
    {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Right, Qt::Key_F10, Qt::Key_Period})
            QTest::keyClick(&Main->Photo.Widget(), key);
        QCOMPARE(log_, QStringList());
    }

    void a_key_that_is_held_is_one_press()
    {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
        QCoreApplication::sendEvent(&Main->Photo.Widget(), &again);
        QCOMPARE(log_, QStringList());
    }

    void where_a_double_click_is_waited_for_one_key_does_it()
    {
        QTest::keyClick(&Main->Number.Widget(), Qt::Key_Space);
        QCOMPARE(log_, QStringList{u"double"_s});
    }

    void a_handler_may_end_the_form()
    {
        Main->Photo.MouseDown = [](int /*button*/) { Main.Unload(); };
        QTest::keyClick(&Main->Photo.Widget(), Qt::Key_Space);
        QVERIFY(!Main.IsLoaded());
    }

    void the_focus_is_seen_on_a_picture()
    {
        Main->Go.SetFocus();
        const QImage before = Main->Photo.Widget().grab().toImage();
        Main->Photo.Widget().setFocus(Qt::TabFocusReason);
        QVERIFY(Main->Photo.Widget().grab().toImage() != before);
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList log_;
};

TORVIK_TEST(TabStopTest)
#include "tab_stop_test.moc"
