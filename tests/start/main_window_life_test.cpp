#include "program/program_state.h"
#include "program/task_bar.h"
#include "start/main_window_life.h"
#include "support/program.h"
#include "support/saved_settings.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/splash.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Lets a panel lie over the year bar before the window is loaded.
bool barIsCovered = false;

void CoverBar(Form1Controls& form)
{
    if (barIsCovered)
        form.pnlSound.ZOrder();
}

} // namespace

/// The main window from its Load to its closing.
class MainWindowLifeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Form1.Bind(CoverBar); }
    void init()
    {
        program_ = std::make_unique<Program>();
        ForgetSettings();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->disc.AddGroup(u"68"_s, 2);
    }
    void cleanup()
    {
        program_.reset();
        ForgetSettings();
    }

    void ampersands_are_doubled_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("doubled");
        QTest::newRow("none") << u"Torvik"_s << u"Torvik"_s;
        QTest::newRow("one") << u"A & B"_s << u"A && B"_s;
        QTest::newRow("two together") << u"A && B"_s << u"A &&&& B"_s;
        QTest::newRow("at both ends") << u"&x&"_s << u"&&x&&"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void ampersands_are_doubled()
    {
        QFETCH(QString, text);
        QFETCH(QString, doubled);
        QCOMPARE(DoubleAmpersands(text), doubled);
    }

    void the_load_leaves_its_traces_in_the_record()
    {
        program_->StartBrowsing();
        QVERIFY(!Form2.IsLoaded());
        QCOMPARE(state.DocumentFile, u"G:\\richtext\\desc.rtf"_s);
        QCOMPARE(Form1->mnuMag(1).Caption(), u"Torvik Illustrated"_s);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void the_load_brings_the_pointer_back_and_the_bar_to_the_front()
    {
        barIsCovered = true;
        program_->Start();
        state.FirstActivation = false; // which would bring the pointer back as well
        Screen.SetMousePointer(MousePointer::Hourglass);
        program_->PassSplash();
        barIsCovered = false;
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
        const QObjectList siblings = Form1->Frame1.Widget().parentWidget()->children();
        QVERIFY(siblings.indexOf(&Form1->Frame1.Widget()) > siblings.indexOf(&Form1->pnlSound.Widget()));
    }

    void the_first_activation_shows_the_first_photo_of_1967()
    {
        program_->StartBrowsing();
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
        QVERIFY(Form1->Image4.Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
        QVERIFY(!Form1->cmdYR(1).Enabled());
        QVERIFY(Form1->cmdYR(2).Enabled());
        QCOMPARE(int(state.CurrentYearButton), 1);
        QCOMPARE(int(state.NextYearButton), 1);
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        QVERIFY(!state.FirstActivation);
        QVERIFY(!state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void the_first_year_button_comes_back_with_the_next_selection()
    {
        program_->StartBrowsing();
        program_->Click(Form1->cmdYR(2));
        QVERIFY(Form1->cmdYR(1).Enabled());
    }

    void a_second_activation_changes_nothing()
    {
        program_->StartBrowsing();
        program_->Click(Form1->cmdYR(2));
        Form1->Activate.Fire();
        QCOMPARE(Form1->panYear.Caption(), u"1968"_s);
        QVERIFY(Form1->cmdYR(1).Enabled());
    }

    void the_return_from_a_slide_show_rebuilds_the_window()
    {
        program_->StartBrowsing();
        Form1->Image4.Hide();
        Form1->cmdDesc.SetEnabled(false);
        state.SlideRestorePending = true;
        Form1->Activate.Fire();
        QVERIFY(Form1->Image4.Visible());
        QVERIFY(Form1->cmdDesc.Enabled());
        QVERIFY(!state.SlideRestorePending);
    }

    void without_a_title_the_return_leaves_the_photo_hidden()
    {
        program_->StartBrowsing();
        Form1->panYear.SetCaption(nothingChosen);
        Form1->Image4.Hide();
        state.SlideRestorePending = true;
        Form1->Activate.Fire();
        QVERIFY(!Form1->Image4.Visible());
        QVERIFY(!state.SlideRestorePending);
    }

    void without_the_mark_an_activation_rebuilds_nothing()
    {
        program_->StartBrowsing();
        Form1->Image4.Hide();
        Form1->Activate.Fire();
        QVERIFY(!Form1->Image4.Visible());
    }

    void a_resize_brings_a_hidden_task_bar_back()
    {
        program_->StartBrowsing();
        state.TrayWindow = FindWindowByClass(u"Shell_TrayWnd"_s);
        ShowWindow(state.TrayWindow, showWindow::hide);
        Form1->mnuHideStatus.SetCaption(u"ShowStatusBar"_s);
        Form1->SetWidth(11000);
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
        QVERIFY(!Form1->CoversScreen());
    }

    void a_resize_with_the_task_bar_showing_changes_nothing()
    {
        program_->StartBrowsing();
        state.ApiResult = 77;
        Form1->SetWidth(11000);
        QCOMPARE(Form1->mnuHideStatus.Caption(), u"HideStatusBar"_s);
        QCOMPARE(state.ApiResult, 77);
    }

    void closing_shows_a_hidden_task_bar_and_ends_the_sound()
    {
        program_->StartBrowsing();
        state.TrayWindow = FindWindowByClass(u"Shell_TrayWnd"_s);
        ShowWindow(state.TrayWindow, showWindow::hide);
        program_->disc.AddFile(u"wav/x.wav"_s, "RIFF");
        Form1->MMControl1.SetFileName(u"G:\\wav\\x.wav"_s);
        Form1->MMControl1.Command(u"open"_s);
        Form1->mnuExit.Click.Fire();
        QVERIFY(!Form1->CoversScreen());
        QVERIFY(!Form1->MMControl1.IsOpen());
        QCOMPARE(state.ApiResult, 0);
    }

    void the_end_by_cancel_saves_nothing_and_leaves_the_task_bar_hidden()
    {
        program_->StartBrowsing();
        state.TrayWindow = FindWindowByClass(u"Shell_TrayWnd"_s);
        ShowWindow(state.TrayWindow, showWindow::hide);
        program_->disc.Remove(u"Torviks"_s);
        program_->PutDiscIn({});
        program_->DoubleClick(Form1->panPhoto);
        QVERIFY(ProgramIsEnding());
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER037"_s));
        QVERIFY(Form1->CoversScreen());
        QCOMPARE(Saved(u"MainLeft"_s), u"(none)"_s);
    }

    void the_progress_panel_can_be_hidden_from_outside()
    {
        program_->StartBrowsing();
        Form1->pnlProgress.Show();
        HideProgressPanel();
        QVERIFY(!Form1->pnlProgress.Visible());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(MainWindowLifeTest)
#include "main_window_life_test.moc"
