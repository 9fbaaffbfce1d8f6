#include "support/message_script.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/list_box.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/menu.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QWheelEvent>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels, FormBorder::Sizable, true))
    {
        SetCancelButton(&Go);
        mnuCopy.Click = [this] { ++events; };
        mnuDirect.Click = [this] { ++events; };
        Go.Click = [this] { ++events; };
        Go.MouseDown = [this](int) { ++events; };
        Go.KeyDown = [this](int, int) { ++events; };
        Bar.Change = [this] { ++events; };
        Spin.SpinUp = [this] { ++events; };
    }
    Menu mnuFile{*this, u"mnuFile"_s, u"&File"_s};
    Menu mnuCopy{mnuFile, u"mnuCopy"_s, u"&Copy"_s};
    Menu mnuDirect{*this, u"mnuDirect"_s, u"&Direct"_s};
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
    ScrollBar Bar{*this, u"Bar"_s, {0, 600, 3000, 240}};
    SpinButton Spin{*this, u"Spin"_s, {0, 1200, 600, 300}};
    int events = 0;
};

struct SideForm : Form {
    SideForm() : Form(DesignOf(u"Side"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
};

FormHandle<MainForm> Main;
FormHandle<SideForm> side;

void Wheel(QWidget& widget)
{
    const QPointF place(5, 5);
    QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void OpenMenuAsScreenReader()
{
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(Main->Window().MenuBar());
    bar->child(0)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
}

/// Presses what has a press to offer, past mouse and keyboard: a button, an arrow and a menu entry.
void PressAsScreenReader()
{
    auto* go = qobject_cast<QAbstractButton*>(&Main->Go.Widget());
    auto* up = Main->Spin.Widget().findChild<QAbstractButton*>(u"Spin(Up)"_s);
    for (QAbstractButton* button : {go, up}) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(button);
        spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    Main->Window().MenuBar()->actions().at(1)->trigger();
    QTRY_VERIFY(!go->isDown() && !up->isDown()); // they stay down for a moment
}

} // namespace

/// A disabled form takes no input, and does not turn grey.
class DisabledInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        Main->Go.SetFocus();
        Main->SetEnabled(false);
    }
    void cleanup() { room_.reset(); }

    void the_mouse_does_nothing()
    {
        QTest::mouseClick(&Main->Go.Widget(), Qt::LeftButton);
        QTest::mouseClick(&Main->Go.Widget(), Qt::RightButton);
        QTest::mouseDClick(&Main->Go.Widget(), Qt::LeftButton);
        QCOMPARE(Main->events, 0);
    }

    void a_press_does_not_move_the_focus()
    {
        QWidget& bar = Main->Bar.Widget();
        QWidget& window = Main->Window();
        const QPoint place = bar.mapTo(&window, bar.rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(QApplication::focusWidget(), &Main->Go.Widget());
        QCOMPARE(Main->events, 0);
        Main->SetEnabled(true);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(QApplication::focusWidget(), &bar);
    }

    void keys_do_nothing()
    {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Comma})
            QTest::keyClick(&Main->Go.Widget(), key);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Tab);
        QCOMPARE(Main->events, 0);
        QCOMPARE(Screen.ActiveControl(), &Main->Go);
    }

    void the_wheel_does_nothing()
    {
        Wheel(Main->Bar.Widget());
        QCOMPARE(Main->Bar.Value(), 0);
        Main->SetEnabled(true);
        Wheel(Main->Bar.Widget());
        QVERIFY(Main->Bar.Value() > 0);
    }

    void the_menu_does_nothing()
    {
        QMenuBar* bar = Main->Window().MenuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().at(1)).center());
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_D, Qt::AltModifier);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_F, Qt::AltModifier);
        QCOMPARE(Main->events, 0);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }

    void a_menu_that_was_open_already_does_nothing()
    {
        Main->SetEnabled(true);
        QMenu* menu = Main->Window().MenuBar()->actions().at(0)->menu();
        menu->popup(Main->Window().mapToGlobal(QPoint(0, 19)));
        Main->SetEnabled(false);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(0)).center());
        QTest::keyClick(menu, Qt::Key_C);
        QCOMPARE(Main->events, 0);
        Main->SetEnabled(true);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(0)).center());
        QCOMPARE(Main->events, 1);
    }

    void a_screen_reader_presses_nothing()
    {
        PressAsScreenReader();
        QCOMPARE(Main->events, 0);
    }

    void a_screen_reader_presses_nothing_behind_a_message_box()
    {
        Main->SetEnabled(true);
        UiRoom::Soon([] {
            PressAsScreenReader();
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QAbstractButton*>(u"OK"_s),
                              Qt::LeftButton);
        });
        MsgBox(u"?"_s);
        QCOMPARE(Main->events, 0);
        PressAsScreenReader();
        QCOMPARE(Main->events, 3);
    }

    void a_screen_reader_opens_no_menu_behind_a_message_box()
    {
        Main->SetEnabled(true);
        bool staysOpen = true;
        UiRoom::Soon([&] {
            OpenMenuAsScreenReader();
            QCoreApplication::processEvents();
            staysOpen = QApplication::activePopupWidget() != nullptr;
            if (staysOpen)
                QApplication::activePopupWidget()->hide();
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QAbstractButton*>(u"OK"_s),
                              Qt::LeftButton);
        });
        MsgBox(u"?"_s);
        QVERIFY(!staysOpen);
        QCOMPARE(Main->Window().MenuBar()->activeAction(), nullptr);
        OpenMenuAsScreenReader();
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::activePopupWidget(), Main->Window().MenuBar()->actions().at(0)->menu());
        QApplication::activePopupWidget()->hide();
    }

    void it_does_not_turn_grey()
    {
        QVERIFY(!Main->Enabled());
        QVERIFY(Main->Window().isEnabled());
        QVERIFY(Main->Go.Enabled());
        const QImage disabled = Main->Window().grab().toImage();
        Main->SetEnabled(true);
        QCOMPARE(Main->Window().grab().toImage(), disabled);
    }

    void a_button_that_is_held_down_is_let_go()
    {
        Main->SetEnabled(true);
        auto* arrow = Main->Window().findChild<QAbstractButton*>(u"Spin(Up)"_s);
        QTest::mousePress(arrow, Qt::LeftButton);
        QVERIFY(arrow->isDown());
        Main->SetEnabled(false);
        QVERIFY(!arrow->isDown());
    }

    void other_forms_take_input()
    {
        QVERIFY(UiRoom::Open(*side));
        int clicks = 0;
        side->Go.Click = [&] { ++clicks; };
        QTest::mouseClick(&side->Go.Widget(), Qt::LeftButton);
        QCOMPARE(clicks, 1);
    }

    void a_message_box_over_it_takes_input()
    {
        int answer = 0;
        UiRoom::Soon([] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QAbstractButton*>(u"Yes"_s),
                              Qt::LeftButton);
        });
        answer = MsgBox(u"?"_s, msgbox::yesNo);
        QCOMPARE(answer, msgbox::answerYes);
    }

    void it_takes_input_again_when_it_is_enabled()
    {
        Main->SetEnabled(true);
        QTest::mouseClick(&Main->Go.Widget(), Qt::LeftButton);
        QCOMPARE(Main->events, 2); // the press and the click
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(DisabledInputTest)
#include "disabled_input_test.moc"
