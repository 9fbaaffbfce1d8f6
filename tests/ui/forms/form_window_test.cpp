#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/list_box.h"
#include "ui/controls/panel.h"
#include "ui/controls/rich_text_box.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/spin_button.h"
#include "ui/controls/text_box.h"
#include "ui/forms/menu.h"

#include <QAbstractButton>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels, FormBorder::Sizable, true))
    {
        SetCancelButton(&cmdCancel);
    }
    Menu mnuFile{*this, u"mnuFile"_s, u"File"_s};
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
    TextBox Text1{*this, u"Text1"_s, {0, 450, 1200, 375}, u"text"_s};
    ListBox List1{*this, u"List1"_s, {0, 900, 1200, 900}};
    RichTextBox Rich{*this, u"Rich"_s, {1500, 0, 1200, 900}};
    ScrollBar Bar{*this, u"Bar"_s, {1500, 1200, 1200, 240}};
    Panel pnlProgress{*this, u"pnlProgress"_s, {0, 2000, 3000, 1500}};
    Button cmdCancel{pnlProgress, u"cmdCancel"_s, {0, 0, 1200, 375}, u"Cancel"_s};
    SpinButton Spin{*this, u"Spin"_s, {3000, 1200, 600, 300}};
};

struct SideForm : Form {
    SideForm() : Form(DesignOf(u"Side"_s)) {}
};

struct TopForm : Form {
    TopForm() : Form(DesignOf(u"Top"_s)) {}
};

FormHandle<MainForm> Main;
FormHandle<SideForm> side;
FormHandle<TopForm> top;

} // namespace

/// The window of a form: its client area, its menu bar, Escape, and its close box.
class FormWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        cancels_ = 0;
        QVERIFY(UiRoom::Open(*Main));
        Main->cmdCancel.Click = [this] { ++cancels_; };
    }
    void cleanup() { room_.reset(); }

    void the_menu_bar_is_19_pixels_high_and_the_client_area_lies_below_it()
    {
        QCOMPARE(Main->Window().MenuBar()->geometry(), QRect(0, 0, 400, 19));
        QCOMPARE(Main->Host().geometry(), QRect(0, 19, 400, 300));
        for (const QAction* action : Main->Window().MenuBar()->actions())
            QVERIFY(Main->Window().MenuBar()->rect().contains(
                Main->Window().MenuBar()->actionGeometry(const_cast<QAction*>(action))));
    }

    void escape_clicks_the_cancel_button_wherever_the_focus_is()
    {
        Main->List1.AddItem(u"1967"_s);
        int expected = 0;
        for (Control* control : std::initializer_list<Control*>{&Main->Go, &Main->Text1, &Main->List1,
                                                                &Main->Rich, &Main->Bar, &Main->cmdCancel}) {
            control->SetFocus();
            QTest::keyClick(&control->Widget(), Qt::Key_Escape);
            QVERIFY2(cancels_ == ++expected, qPrintable(control->Name()));
        }
        QTest::keyClick(&Main->Window(), Qt::Key_Escape);
        QCOMPARE(cancels_, expected + 1);
    }

    void a_hidden_or_disabled_cancel_button_does_nothing()
    {
        Main->cmdCancel.Hide();
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Escape);
        Main->cmdCancel.Show();
        Main->cmdCancel.SetEnabled(false);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Escape);
        QCOMPARE(cancels_, 0);
        QVERIFY(Main.IsLoaded());
    }

    void a_cancel_button_in_a_hidden_panel_still_answers()
    {
        Main->pnlProgress.Hide();
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Escape);
        QCOMPARE(cancels_, 1);
    }

    void a_key_that_no_control_uses_is_the_forms_own()
    {
        QList<QPair<int, int>> keys;
        Main->KeyDown = [&](int code, int shift) { keys.append({code, shift}); };
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_F3, Qt::ShiftModifier);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Space); // presses the button
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_F5);    // has no code
        const QList<QPair<int, int>> expected{{key::letterF, held::ctrl}, {key::f3, held::shift}};
        QCOMPARE(keys, expected);
        Main->SetEnabled(false);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(keys, expected);
    }

    void escape_is_the_forms_own_where_no_cancel_button_answers_it()
    {
        Main->SetCancelButton(nullptr);
        QList<int> keys;
        Main->KeyDown = [&](int code, int /*shift*/) { keys.append(code); };
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Escape);
        QCOMPARE(keys, QList<int>{key::escape});
    }

    void without_a_cancel_button_escape_does_nothing()
    {
        Main->SetCancelButton(nullptr);
        QTest::keyClick(&Main->Go.Widget(), Qt::Key_Escape);
        QCOMPARE(cancels_, 0);
        QVERIFY(Main->Visible());
    }

    void a_disabled_form_is_not_closed_by_its_close_box()
    {
        Main->SetEnabled(false);
        Main->Window().close();
        QVERIFY(Main.IsLoaded() && Main->Visible());
        Main->SetEnabled(true);
        Main->Window().close();
        QVERIFY(!Main.IsLoaded());
    }

    void a_held_button_is_let_go_when_the_window_is_blocked()
    {
        auto* arrow = Main->Window().findChild<QAbstractButton*>(u"Spin(Up)"_s);
        QTest::mousePress(arrow, Qt::LeftButton);
        QVERIFY(arrow->isDown());
        QWidget box;
        box.setWindowModality(Qt::ApplicationModal);
        box.show();
        QTRY_VERIFY(!arrow->isDown());
    }

    void the_last_active_window_is_known_while_a_box_stands_before_it()
    {
        QCOMPARE(FormWindow::LastActive(), &Main->Window());
        QWidget box;
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QCOMPARE(FormWindow::LastActive(), &Main->Window());
        Main.Unload();
        UiRoom::Settle();
        QCOMPARE(FormWindow::LastActive(), nullptr);
    }

    void a_box_comes_up_over_the_window_before_when_the_last_one_is_gone()
    {
        QVERIFY(UiRoom::Open(*side));
        QVERIFY(UiRoom::Open(*top));
        QCOMPARE(FormWindow::ToStandOver(), &top->Window());
        top->Hide();
        UiRoom::Settle();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(FormWindow::ToStandOver(), &side->Window());
        side.Unload();
        UiRoom::Settle();
        QCOMPARE(FormWindow::ToStandOver(), &Main->Window());
    }

    void from_a_panel_that_closes_the_focus_goes_back_to_where_it_was()
    {
        Main->List1.SetFocus();
        Main->Text1.SetFocus();
        Main->cmdCancel.SetFocus();
        Main->pnlProgress.Hide();
        QVERIFY(Main->Text1.Widget().hasFocus());
        Main->pnlProgress.Show();
        Main->cmdCancel.SetFocus();
        Main->Text1.Hide();
        Main->pnlProgress.Hide();
        QVERIFY(Main->List1.Widget().hasFocus());
    }

    void where_nothing_had_it_before_the_next_control_gets_the_focus()
    {
        Main->cmdCancel.SetFocus();
        for (Control* control : std::initializer_list<Control*>{&Main->Go, &Main->Text1})
            control->Hide();
        Main->pnlProgress.Hide();
        QVERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(QApplication::focusWidget()->isVisibleTo(&Main->Window()));
    }

    void a_form_without_a_caption_is_called_by_its_name()
    {
        FormDesign design = DesignOf(u"Plain"_s);
        design.caption.clear();
        struct PlainForm : Form {
            explicit PlainForm(const FormDesign& plain) : Form(plain) {}
        };
        PlainForm form(design);
        QCOMPARE(form.Window().accessibleName(), u"Plain"_s);
        QCOMPARE(form.Window().MenuBar(), nullptr);
    }

private:
    std::unique_ptr<UiRoom> room_;
    int cancels_ = 0;
};

TORVIK_TEST(FormWindowTest)
#include "form_window_test.moc"
