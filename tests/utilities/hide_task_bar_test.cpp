#include "program/program_state.h"
#include "program/task_bar.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The menu entry that hides and shows the task bar.
class HideTaskBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void hiding_covers_the_screen_and_renames_the_entry()
    {
        Form1->SetWidth(11000);
        Form1->mnuHideStatus.Click.Fire();
        program_->Settle();
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"ShowStatusBar"_s);
        QVERIFY(Form1->CoversScreen());
        QVERIFY(state.TrayWindow != 0);
        QCOMPARE(state.ApiResult, 1); // it was showing before
        QCOMPARE(state.TrayClassName, u"Shell_TrayWnd"_s);
        QCOMPARE(Form1->Left(), 0.0);
        QCOMPARE(Form1->Top(), 0.0);
        QCOMPARE(Form1->Width(), 12000.0);
        QCOMPARE(Form1->Height(), 9000.0);
    }

    void showing_takes_it_back_and_keeps_the_size()
    {
        Form1->mnuHideStatus.Click.Fire();
        Form1->mnuHideStatus.Click.Fire();
        program_->Settle();
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
        QVERIFY(!Form1->CoversScreen());
        QCOMPARE(Form1->Width(), 12000.0);
        QCOMPARE(state.ApiResult, 0); // it was hidden before
    }

    void a_real_change_of_size_brings_the_bar_back()
    {
        Form1->mnuHideStatus.Click.Fire();
        program_->Settle();
        Form1->SetHeight(8000);
        program_->Settle();
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
        QVERIFY(!Form1->CoversScreen());
    }

    void the_same_size_again_leaves_the_bar_hidden()
    {
        Form1->mnuHideStatus.Click.Fire();
        Form1->SetHeight(Form1->Height());
        program_->Settle();
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"ShowStatusBar"_s);
    }

    void a_size_that_the_user_gives_after_the_desktop_ended_it_brings_the_bar_back_data()
    {
        QTest::addColumn<bool>("fromMaximized");
        QTest::newRow("from an ordinary window") << false;
        QTest::newRow("from a maximized window") << true;
    }
    void a_size_that_the_user_gives_after_the_desktop_ended_it_brings_the_bar_back()
    {
        QFETCH(bool, fromMaximized);
        QTRY_VERIFY(!Form1->IsSettling());
        if (fromMaximized) {
            Form1->Window().setWindowState(Qt::WindowMaximized);
            program_->Settle();
            QTRY_VERIFY(!Form1->IsSettling());
        }
        Form1->mnuHideStatus.Click.Fire();
        program_->Settle();
        QTRY_VERIFY(Form1->Window().isFullScreen() && !Form1->IsSettling());
        QCOMPARE(Form1->WindowState(), Form::State::Normal);
        Form1->Window().setWindowState(Qt::WindowNoState);
        QTRY_VERIFY(!Form1->CoversScreen() && !Form1->IsSettling());
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"ShowStatusBar"_s);
        Form1->Window().resize(700, 500);
        QTRY_COMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
        QCOMPARE(Form1->Width(), 700 * 15.0);
        Form1->mnuHideStatus.Click.Fire(); // and it can be hidden again
        QVERIFY(Form1->CoversScreen());
    }

    void an_unknown_window_is_not_touched()
    {
        QCOMPARE(FindWindowByClass(u"Progman"_s), 0);
        QCOMPARE(ShowWindow(0, showWindow::hide), 0);
        QVERIFY(!Form1->CoversScreen());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(HideTaskBarTest)
#include "hide_task_bar_test.moc"
