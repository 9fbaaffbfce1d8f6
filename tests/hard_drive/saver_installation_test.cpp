#include "hard_drive/saver_panel_fixture.h"
#include "platform/paths/program_folder.h"
#include "platform/system/settings_store.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/test_class.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString noSaver = u"Error number: ER049\r\n\r\n Unable to find Screen Saver.\r\n\r\n"
                        "Make sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// What an installation of the screen saver writes, and what it tells when it cannot.
class SaverInstallationTest : public SaverPanelFixture {
    Q_OBJECT

private Q_SLOTS:
    void an_installation_writes_both_settings_copies_the_saver_and_tells_how_to_go_on()
    {
        FillPlayList();
        Open();
        program_->Click(Form1->Option1(1));
        for (int press = 0; press < 5; ++press)
            Spin("Up");
        program_->Click(Form1->SSCommand4);
        QCOMPARE(Setting("Interval"), u"10"_s);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\ssTorviks\\"_s);
        QCOMPARE(Content(InstalledSaver()), saverFile);
        QVERIFY(QFileInfo(InstalledSaver()).isExecutable());
        QCOMPARE(state.CopySource, ProgramFolder() + u"\\Torvik2001.scr"_s);
        QCOMPARE(state.CopyTarget, WindowsFolder() + u"\\Torvik2001.scr"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(program_->messages.Last().style, msgbox::ok);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(Form1->SSCommand6.Caption(), u"Exit"_s);
        QVERIFY(Form1->pnlSSaver.Visible());
    }

    void the_button_says_exit_only_after_the_message()
    {
        FillPlayList();
        Open();
        program_->Click(Form1->Option1(1));
        QString caption;
        program_->messages.WhenAsked([&caption] { caption = Form1->SSCommand6.Caption(); });
        program_->Click(Form1->SSCommand4);
        QCOMPARE(caption, u"Cancel"_s);
    }

    void the_delay_is_saved_in_seconds_with_its_fraction_data()
    {
        QTest::addColumn<int>("delay");
        QTest::addColumn<QString>("saved");
        QTest::newRow("one second") << 1000 << "1";
        QTest::newRow("sixty") << 60000 << "60";
        QTest::newRow("a fraction") << 1500 << "1.5";
        QTest::newRow("a thousandth") << 12345 << "12.345";
    }

    void the_delay_is_saved_in_seconds_with_its_fraction()
    {
        QFETCH(int, delay);
        AddLocalPhotos();
        Open();
        state.SlideDelay = delay;
        program_->Click(Form1->SSCommand4);
        QTEST(Setting("Interval"), "saved");
    }

    void with_local_photos_all_photos_are_those_without_a_question()
    {
        AddLocalPhotos();
        Open();
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
    }

    void selected_photos_win_over_local_ones()
    {
        AddLocalPhotos();
        FillPlayList();
        Open();
        program_->Click(Form1->Option1(1));
        program_->Click(Form1->SSCommand4);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\ssTorviks\\"_s);
    }

    void an_installation_replaces_the_one_before()
    {
        AddLocalPhotos();
        FillPlayList();
        Open();
        program_->Click(Form1->SSCommand4);
        program_->AddToProgramFolder(u"Torvik2001.scr"_s, "a newer saver");
        program_->Click(Form1->Option1(1));
        Spin("Down");
        program_->Click(Form1->SSCommand4);
        QCOMPARE(Setting("Interval"), u"60"_s);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\ssTorviks\\"_s);
        QCOMPARE(Content(InstalledSaver()), QByteArray("a newer saver"));
        QCOMPARE(QDir(QFileInfo(InstalledSaver()).path()).entryList(QDir::Files),
                 QStringList{u"Torvik2001.scr"_s});
    }

    void a_missing_saver_is_reported_and_the_settings_stay_written()
    {
        AddLocalPhotos();
        QVERIFY(QFile::remove(program_->InProgramFolder(u"Torvik2001.scr"_s)));
        Open();
        program_->Click(Form1->SSCommand4);
        AssertOnly(noSaver);
        QCOMPARE(state.ErrorCode, u"ER049"_s);
        QCOMPARE(Setting("Interval"), u"1"_s);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
        QCOMPARE(Form1->SSCommand6.Caption(), u"Cancel"_s);
        QVERIFY(Form1->pnlSSaver.Visible());
        QVERIFY(Form1->Enabled());
        QVERIFY(!QFile::exists(InstalledSaver()));
    }

    void a_windows_folder_that_takes_no_file_is_reported()
    {
        AddLocalPhotos();
        QVERIFY(QDir().mkpath(home_->filePath(u"data/torvik2001"_s)));
        QFile inItsPlace(home_->filePath(u"data/torvik2001/windows"_s));
        QVERIFY(inItsPlace.open(QIODevice::WriteOnly));
        Open();
        program_->Click(Form1->SSCommand4);
        AssertOnly(noSaver);
        QCOMPARE(Setting("Interval"), u"1"_s);
    }

    void settings_that_cannot_be_written_are_reported_and_nothing_is_copied()
    {
        AddLocalPhotos();
        QFile inItsPlace(home_->filePath(u"blocked"_s));
        QVERIFY(inItsPlace.open(QIODevice::WriteOnly));
        qputenv("XDG_CONFIG_HOME", home_->filePath(u"blocked"_s).toLocal8Bit());
        Open();
        program_->Click(Form1->SSCommand4);
        AssertOnly(noSaver);
        QVERIFY(!QFile::exists(InstalledSaver()));
    }

    void a_failure_while_the_user_is_asked_is_reported_too()
    {
        Open();
        program_->messages.WhenAsked([] { Fail(failure::deviceIo); });
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(program_->messages.Last().text, noSaver);
    }

    void a_second_try_after_a_failure_installs()
    {
        AddLocalPhotos();
        QVERIFY(QFile::remove(program_->InProgramFolder(u"Torvik2001.scr"_s)));
        Open();
        program_->Click(Form1->SSCommand4);
        program_->AddToProgramFolder(u"Torvik2001.scr"_s, saverFile);
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(Content(InstalledSaver()), saverFile);
    }

    void a_data_folder_with_blanks_gets_the_saver()
    {
        AddLocalPhotos();
        qputenv("XDG_DATA_HOME", home_->filePath(u"my own data"_s).toLocal8Bit());
        QVERIFY(QDir(home_->path()).mkdir(u"m"_s)); // where a name that is cut at its blank would lead
        Open();
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(Content(home_->filePath(u"my own data/torvik2001/windows/Torvik2001.scr"_s)), saverFile);
        QVERIFY(!QFile::exists(home_->filePath(u"m/Torvik2001.scr"_s)));
    }

    void the_settings_of_the_window_and_of_the_saver_are_apart()
    {
        AddLocalPhotos();
        Open();
        program_->Click(Form1->SSCommand4);
        QCOMPARE(GetSetting(applicationTitle, u"Settings"_s, u"Interval"_s, u"(none)"_s), u"(none)"_s);
    }
};

TORVIK_TEST(SaverInstallationTest)
#include "saver_installation_test.moc"
