#include "platform/system/settings_store.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/saved_settings.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"

#include <QFile>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

void SavePlace(const QString& key, const QString& value)
{
    SaveSetting(applicationTitle, u"Settings"_s, key, value);
}

} // namespace

/// Where the main window stands, from one run to the next.
class MainWindowPlaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        ForgetSettings();
        program_->disc.AddGroup(u"67"_s, 3);
    }
    void cleanup()
    {
        program_.reset();
        ForgetSettings();
    }

    void without_settings_the_window_covers_the_screen()
    {
        program_->StartBrowsing();
        QCOMPARE(Form1->Left(), 0.0);
        QCOMPARE(Form1->Top(), 0.0);
        QCOMPARE(Form1->Width(), 12000.0);
        QCOMPARE(Form1->Height(), 9000.0);
        QVERIFY(Form1->Visible());
    }

    void the_placement_of_the_last_run_comes_back()
    {
        SavePlace(u"MainLeft"_s, u"300"_s);
        SavePlace(u"MainTop"_s, u"150"_s);
        SavePlace(u"MainWidth"_s, u"10500"_s);
        SavePlace(u"MainHeight"_s, u"8250"_s);
        program_->StartBrowsing();
        QCOMPARE(Form1->Left(), 300.0);
        QCOMPARE(Form1->Top(), 150.0);
        QCOMPARE(Form1->Width(), 10500.0);
        QCOMPARE(Form1->Height(), 8250.0);
    }

    void a_setting_that_holds_no_number_is_a_failure_without_a_trap()
    {
        SavePlace(u"MainTop"_s, u"somewhere"_s);
        program_->StartBrowsing();
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(
            program_->messages.Last().text,
            u"Run-time error '13':\r\n\r\nType mismatch\r\n\r\n"
            "The setting \"MainTop\" holds \"somewhere\" instead of a number. Correct it or delete its line, "
            "in the section [Settings] of the file\r\n"_s +
                SettingsPlace(applicationTitle));
        QVERIFY(QFile::exists(SettingsPlace(applicationTitle)));
        QVERIFY(ProgramIsEnding());
        QCOMPARE(Saved(u"MainTop"_s), u"somewhere"_s);
    }

    void closing_saves_the_placement_and_ends_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"cmdExit", "mnuExit", "close box"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }

    void closing_saves_the_placement_and_ends()
    {
        QFETCH(QString, way);
        program_->StartBrowsing();
        Form1->SetLeft(450);
        Form1->SetTop(600);
        Form1->SetWidth(11250);
        Form1->SetHeight(8400);
        program_->Settle();
        if (way == u"cmdExit"_s)
            program_->Click(Form1->cmdExit);
        else if (way == u"mnuExit"_s)
            Form1->mnuExit.Click.Fire();
        else
            Form1->Window().close();
        QVERIFY(ProgramIsEnding());
        QVERIFY(program_->messages.Shown().isEmpty());
        QCOMPARE(Saved(u"MainLeft"_s), u"450"_s);
        QCOMPARE(Saved(u"MainTop"_s), u"600"_s);
        QCOMPARE(Saved(u"MainWidth"_s), u"11250"_s);
        QCOMPARE(Saved(u"MainHeight"_s), u"8400"_s);
    }

    void closing_while_minimized_keeps_the_settings_of_the_run_before()
    {
        SavePlace(u"MainLeft"_s, u"300"_s);
        program_->StartBrowsing();
        Form1->SetLeft(900);
        Form1->SetWindowState(Form::State::Minimized);
        program_->Settle();
        QCOMPARE(Form1->WindowState(), Form::State::Minimized);
        Form1->mnuExit.Click.Fire();
        QVERIFY(ProgramIsEnding());
        QCOMPARE(Saved(u"MainLeft"_s), u"300"_s);
        QCOMPARE(Saved(u"MainWidth"_s), u"(none)"_s);
    }

    void closing_while_maximized_saves_what_an_ordinary_window_takes_for_the_same_area()
    {
        SaveFour();
        program_->StartBrowsing();
        QTRY_VERIFY(!Form1->IsSettling());
        Form1->Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(Form1->Left() == 0.0 && !Form1->IsSettling());
        const QRect covered = Form1->Window().windowHandle()->frameGeometry();
        Form1->mnuExit.Click.Fire();
        QCOMPARE(Saved(u"MainLeft"_s), u"0"_s);
        QCOMPARE(Saved(u"MainTop"_s), u"0"_s);
        QVERIFY(Saved(u"MainWidth"_s).toDouble() > 6000);

        program_.reset();
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 3);
        program_->StartBrowsing();
        QTRY_VERIFY(!Form1->IsSettling());
        QCOMPARE(Form1->WindowState(), Form::State::Normal);
        QCOMPARE(Form1->Window().windowHandle()->frameGeometry(), covered);
    }

    void only_the_saved_place_counts_on_another_screen_than_800_by_600()
    {
        SaveFour();
        program_->SetScreen({1024, 768});
        program_->StartBrowsing();
        QCOMPARE(Form1->Left(), 450.0);
        QCOMPARE(Form1->Top(), 600.0);
        QCOMPARE(Form1->Width(), 11994.0);
        QCOMPARE(Form1->Height(), 9100.0);
    }

    void the_window_comes_up_once_at_its_last_size_and_place()
    {
        SavePlace(u"MainLeft"_s, u"450"_s);
        program_->SetScreen({1024, 768});
        program_->Start();
        Clock::Turn(5000);
        QVERIFY(Form1.IsLoaded());
        QVERIFY(Form1->Visible());
        QVERIFY(!Form1->Window().isVisible()); // the event loop has not turned yet
        program_->Settle();
        QVERIFY(Form1->Window().isVisible());
        QCOMPARE(Form1->Window().pos(), QPoint(30, 0));
        QCOMPARE(Form1->Window().size(), QSize(800, 588));
    }

private:
    static void SaveFour()
    {
        SavePlace(u"MainLeft"_s, u"450"_s);
        SavePlace(u"MainTop"_s, u"600"_s);
        SavePlace(u"MainWidth"_s, u"6000"_s);
        SavePlace(u"MainHeight"_s, u"6000"_s);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(MainWindowPlaceTest)
#include "main_window_place_test.moc"
