#include "platform/files/disk_space.h"
#include "platform/paths/program_folder.h"
#include "platform/system/settings_store.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "support/while_waiting.h"
#include "ui/forms/program_end.h"
#include "ui/forms/program_title.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QAbstractButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString question = u"To improve performance, the Torvik photos may be copied from\r\n"
                         "the Torvik Vollandry CDROM to your hard drive before you install\r\n"
                         "the Torvik Vollandry Screen Saver.\r\n"
                         "\r\n"
                         "Would you like to copy the photos now?"_s;

const QString success = u"The Torvik Vollandry Screen Saver has been installed!\r\n"
                        "\r\n"
                        "If you have not already done so, you must now activate \r\n"
                        "the Torvik Vollandry Screen Saver.\r\n"
                        "\r\n"
                        "To do this follow these steps:\r\n"
                        "    1) Click the Start button on the Windows desktop \r\n"
                        "    2) Click the Settings button                    \r\n"
                        "    3) Click on Control Panel                       \r\n"
                        "    4) Double click on the Display icon             \r\n"
                        "    5) Select the Screen Saver tab                  \r\n"
                        "    6) Click the dropdown arrow to the left of the Settings button\r\n"
                        "    7) Select Torvik2001                           \r\n"
                        "    8) Click OK                            "_s;

const QString noSaver = u"Error number: ER049\r\n\r\n Unable to find Screen Saver.\r\n\r\n"
                        "Make sure that the Torvik Vollandry is in the CDROM drive."_s;
const QString noHelp =
    u"Error number: ER052\r\n\r\n Unable to load 'Install Screen Saver Help' text file.\r\n\r\n"
    "Make sure that the Torvik Vollandry is in the CDROM drive."_s;

const QByteArray saverFile = "the saver itself, in more than one block\n" + QByteArray(70'000, 's');

QString Setting(const char* key)
{
    return GetSetting(u"SCRNSAVE: The Torvik Vollandry 2001"_s, u"Settings"_s, QString::fromLatin1(key),
                      u"(none)"_s);
}

QByteArray Content(const QString& hostFile)
{
    QFile file(hostFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

bool WaitHasBegun()
{
    return state.CopyForSaver;
}

} // namespace

/// The panel that installs the screen saver.
class SaverPanelButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        dataBefore_ = qgetenv("XDG_DATA_HOME");
        configBefore_ = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_DATA_HOME", home_->filePath(u"data"_s).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home_->filePath(u"config"_s).toLocal8Bit());
        QVERIFY(QDir(home_->path()).mkpath(u"config"_s));
        SetDiskMeter([](const QString&) { return DiskClusters{8, 512, 100'000'000, 100'000'000}; });
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddGroup(u"68"_s, 1);
        program_->AddToProgramFolder(u"Torvik2001.scr"_s, saverFile);
        QVERIFY(QFile::setPermissions(program_->InProgramFolder(u"Torvik2001.scr"_s),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                          QFile::ReadOther | QFile::ExeOther));
        program_->StartBrowsing();
    }
    void cleanup()
    {
        program_.reset();
        SetDiskMeter({});
        qputenv("XDG_DATA_HOME", dataBefore_);
        qputenv("XDG_CONFIG_HOME", configBefore_);
        home_.reset();
    }

    // Opening

    void the_menu_entry_opens_the_panel_below_the_top_of_the_photo_in_the_middle_over_the_year_bar()
    {
        Open();
        QVERIFY(Form1->pnlSSaver.Visible());
        QCOMPARE(Form1->pnlSSaver.Top(), Form1->Image4.Top() + 5);
        const double right = (Form1->cmdExit.Left() + Form1->cmdExit.Width()) / 15;
        QVERIFY(qAbs(Form1->pnlSSaver.Left() - (right - Form1->pnlSSaver.Width()) / 2) < 0.001);
        QVERIFY(IsInFrontOf(Form1->pnlSSaver, Form1->Image4));
    }

    void the_panel_comes_in_front_of_the_other_panels()
    {
        Form1->pnlPrint.ZOrder();
        Open();
        QVERIFY(IsInFrontOf(Form1->pnlSSaver, Form1->pnlPrint));
    }

    void selected_photos_can_be_chosen_when_the_play_list_has_a_photo_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("no folder") << QString() << false;
        QTest::newRow("no photo") << "ssTorviks/note.txt" << false;
        QTest::newRow("a photo") << "ssTorviks/67A.JPG" << true;
        QTest::newRow("small letters") << "sstorviks/67a.jpg" << true;
        QTest::newRow("photos elsewhere") << "Torviks/67A.JPG" << false;
    }

    void selected_photos_can_be_chosen_when_the_play_list_has_a_photo()
    {
        QFETCH(QString, file);
        if (!file.isEmpty())
            program_->AddToProgramFolder(file, "photo");
        Open();
        QTEST(Form1->Option1(1).Enabled(), "enabled");
        QVERIFY(Form1->Option1(0).Enabled());
    }

    void a_play_list_that_was_emptied_disables_the_choice_but_leaves_it()
    {
        FillPlayList();
        Open();
        program_->Click(Form1->Option1(1));
        QVERIFY(Form1->Option1(1).Value());
        QVERIFY(QFile::remove(program_->InProgramFolder(u"ssTorviks/67A.JPG"_s)));
        Open();
        QVERIFY(!Form1->Option1(1).Enabled());
        QVERIFY(Form1->Option1(1).Value());
        program_->Click(Form1->SSCommand4);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\ssTorviks\\"_s);
    }

    void opening_resets_the_delay_and_the_button_but_not_what_the_panel_shows()
    {
        Open();
        Spin("Up");
        Form1->SSCommand6.SetCaption(u"Exit"_s);
        program_->Click(Form1->SSCommand6);
        Open();
        QCOMPARE(state.SlideDelay, 1000);
        QCOMPARE(Form1->panInterval.Caption(), u"2 Seconds"_s);
        QCOMPARE(Form1->SSCommand6.Caption(), u"Cancel"_s);
    }

    void the_closing_button_hides_the_panel_whatever_it_says_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::newRow("before") << "Cancel";
        QTest::newRow("after an installation") << "Exit";
    }

    void the_closing_button_hides_the_panel_whatever_it_says()
    {
        QFETCH(QString, caption);
        Open();
        Form1->SSCommand6.SetCaption(caption);
        program_->Click(Form1->SSCommand6);
        QVERIFY(!Form1->pnlSSaver.Visible());
        QCOMPARE(Form1->SSCommand6.Caption(), caption);
        QCOMPARE(Setting("Interval"), u"(none)"_s);
    }

    // The delay

    void the_up_arrow_steps_through_all_delays()
    {
        Open();
        QStringList captions;
        for (int press = 0; press < 16; ++press) {
            Spin("Up");
            captions.append(Form1->panInterval.Caption());
        }
        QStringList wanted;
        for (const int seconds : {2, 3, 4, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 1})
            wanted.append(u"%1 Seconds"_s.arg(seconds));
        QCOMPARE(captions, wanted);
        QCOMPARE(state.SlideDelay, 1000);
    }

    void the_down_arrow_steps_back_through_all_delays()
    {
        Open();
        QStringList captions;
        for (int press = 0; press < 16; ++press) {
            Spin("Down");
            captions.append(Form1->panInterval.Caption());
        }
        QStringList wanted;
        for (const int seconds : {60, 55, 50, 45, 40, 35, 30, 25, 20, 15, 10, 5, 4, 3, 2, 1})
            wanted.append(u"%1 Seconds"_s.arg(seconds));
        QCOMPARE(captions, wanted);
    }

    // Installing

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

    // The question

    void without_local_photos_the_user_is_asked_and_no_takes_those_of_the_disc()
    {
        Open();
        program_->messages.Answer(msgbox::answerNo);
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Count(), 2);
        const MessageRequest asked = program_->messages.Shown().first();
        QCOMPARE(asked.text, question);
        QCOMPARE(asked.style, msgbox::question | msgbox::yesNo);
        QCOMPARE(asked.title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(int(state.MessageResult), msgbox::answerNo);
        QCOMPARE(Setting("TorviksDir"), u"G:\\Torviks\\"_s);
        QCOMPARE(program_->messages.Last().text, success);
        QVERIFY(!Form1->pnlProgress.Visible());
        QVERIFY(!state.CopyForSaver);
    }

    void a_folder_without_photos_counts_as_none()
    {
        program_->AddToProgramFolder(u"Torviks/note.txt"_s, "no photo");
        Open();
        program_->messages.Answer(msgbox::answerNo);
        program_->Click(Form1->SSCommand4);
        QCOMPARE(program_->messages.Shown().first().text, question);
    }

    void yes_opens_the_copy_panel_and_goes_on_when_the_copy_is_done()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        bool photos = false;
        QString button;
        QString settingBefore;
        const WhileWaiting wait(WaitHasBegun, [&] {
            photos = state.CopyingPhotos && Form1->pnlProgress.Visible();
            button = Form1->cmdCopy.Caption();
            settingBefore = Setting("TorviksDir");
            program_->Click(Form1->cmdCopy);
        });
        program_->Click(Form1->SSCommand4);
        QVERIFY(wait.Ran());
        QVERIFY(photos);
        QCOMPARE(button, u"Copy Photos"_s);
        QCOMPARE(settingBefore, u"(none)"_s);
        QCOMPARE(int(state.MessageResult), msgbox::answerYes);
        QVERIFY(!state.CopyForSaver);
        QVERIFY(QFile::exists(program_->InProgramFolder(u"Torviks/67A.JPG"_s)));
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(Form1->SSCommand6.Caption(), u"Exit"_s);
    }

    void the_window_lives_while_the_installation_waits()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        QString title;
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->Click(Form1->cmdCancel);
            program_->Click(Form1->cmdYR(2));
            title = Form1->panYear.Caption();
            Form1->mnuExit.Click.Fire();
        });
        program_->Click(Form1->SSCommand4);
        QCOMPARE(title, u"1968"_s);
    }

    void closing_the_program_ends_the_wait_and_installs_nothing()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        const WhileWaiting wait(WaitHasBegun, [&] { program_->Click(Form1->cmdExit); });
        program_->Click(Form1->SSCommand4);
        QVERIFY(wait.Ran());
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Setting("TorviksDir"), u"(none)"_s);
        QVERIFY(!QFile::exists(InstalledSaver()));
    }

    void install_pressed_again_during_the_wait_installs_when_the_copy_is_done()
    {
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->messages.Answer(msgbox::answerYes);
            const WhileWaiting inner(WaitHasBegun, [&] { program_->Click(Form1->cmdCopy); });
            program_->Click(Form1->SSCommand4);
            QVERIFY(inner.Ran());
        });
        InstallWithAYes();
        QVERIFY(wait.Ran());
        QVERIFY(!state.CopyForSaver);
        QStringList texts;
        for (const MessageRequest& box : program_->messages.Shown())
            texts.append(box.text);
        QCOMPARE(texts,
                 (QStringList{question, question, u"Photos successfully copied!\r\n"_s, success, success}));
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
        QCOMPARE(Content(InstalledSaver()), saverFile);
    }

    void install_pressed_again_with_a_no_installs_and_the_first_goes_on_waiting()
    {
        bool waits = false;
        QString folder;
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->messages.Answer(msgbox::answerNo);
            program_->Click(Form1->SSCommand4);
            folder = Setting("TorviksDir");
            waits = state.CopyForSaver;
            program_->Click(Form1->cmdCopy);
        });
        InstallWithAYes();
        QVERIFY(wait.Ran());
        QVERIFY(waits);
        QCOMPARE(folder, u"G:\\Torviks\\"_s);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
        QCOMPARE(program_->messages.Last().text, success);
    }

    void closing_the_program_ends_every_wait()
    {
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->messages.Answer(msgbox::answerYes);
            const WhileWaiting inner(WaitHasBegun, [&] { Form1->Host().window()->close(); });
            program_->Click(Form1->SSCommand4);
        });
        InstallWithAYes();
        QVERIFY(ProgramIsEnding());
        QCOMPARE(program_->messages.Count(), 2);
        QCOMPARE(Setting("TorviksDir"), u"(none)"_s);
    }

    void closing_the_play_list_during_the_wait_leaves_the_copy_to_come()
    {
        program_->Click(Form1->Image4, Qt::RightButton);
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->Click(frmSSPhoto->SSCommand9);
            program_->Click(Form1->cmdCopy);
        });
        InstallWithAYes();
        QVERIFY(wait.Ran());
        QVERIFY(!frmSSPhoto.IsLoaded());
        QCOMPARE(program_->messages.Last().text, success);
    }

    void a_copy_that_is_never_made_is_waited_for_forever_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("the panel is cancelled") << "cancelled";
        QTest::newRow("copying again is declined") << "declined";
        QTest::newRow("there is no room") << "no room";
    }

    void a_copy_that_is_never_made_is_waited_for_forever()
    {
        QFETCH(QString, reason);
        if (reason == u"declined"_s)
            program_->AddToProgramFolder(u"Torviks/note.txt"_s, "no photo");
        if (reason == u"no room"_s)
            SetDiskMeter([](const QString&) { return DiskClusters{8, 512, 1024, 2048}; });
        Open();
        program_->messages.Answer(msgbox::answerYes);
        int rounds = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            constexpr int enough = 20;
            if (!WaitHasBegun())
                return;
            timer.stop();
            if (rounds == 0 && reason == u"cancelled"_s)
                program_->Click(Form1->cmdCancel);
            if (rounds == 0 && reason == u"declined"_s)
                program_->Click(Form1->cmdCopy); // the script answers Cancel
            if (++rounds == enough)
                Form1->mnuExit.Click.Fire();
            else
                timer.start(0);
        });
        timer.start(0);
        program_->Click(Form1->SSCommand4);
        QCOMPARE(rounds, 20);
        QVERIFY(state.CopyForSaver);
        QCOMPARE(program_->messages.Count(), reason == u"cancelled"_s ? 1 : 2);
        QCOMPARE(Setting("TorviksDir"), u"(none)"_s);
    }

    void a_later_copy_from_the_menu_ends_the_wait()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        const WhileWaiting wait(WaitHasBegun, [&] {
            program_->Click(Form1->cmdCancel);
            Form1->mnuCopy.Click.Fire();
            program_->Click(Form1->cmdCopy);
        });
        program_->Click(Form1->SSCommand4);
        QVERIFY(wait.Ran());
        QCOMPARE(program_->messages.Last().text, success);
        QCOMPARE(Setting("TorviksDir"), ProgramFolder() + u"\\Torviks\\"_s);
    }

    // Failures

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

    // Help

    void help_opens_its_document()
    {
        program_->disc.AddDocument(u"SsHelp.rtf"_s, u"How to install it"_s);
        Open();
        bool waveButtons = true;
        bool okIsWide = false;
        Viewed viewed;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                waveButtons = txtForm->SSCommand2.Visible() || txtForm->SSCommand3.Visible();
                okIsWide =
                    txtForm->SSCommand1.Width() == txtForm->rtbText.Width() - txtForm->cmdPrint.Width() - 4;
                viewed = {true, txtForm->Caption(), txtForm->rtbText.FileName(), txtForm->rtbText.Text()};
                program_->Click(txtForm->SSCommand1);
            },
            [] { txtForm.Unload(); });
        program_->Click(Form1->SSCommand5);
        QVERIFY(viewed.came);
        QCOMPARE(viewed.caption, u"The Torvik Vollandry       Install Screen Saver Help"_s);
        QCOMPARE(viewed.file, u"G:\\richtext\\SsHelp.rtf"_s);
        QCOMPARE(state.DocumentFile, viewed.file);
        QCOMPARE(viewed.text, u"How to install it"_s);
        QVERIFY(!waveButtons);
        QVERIFY(okIsWide);
        QVERIFY(program_->messages.Shown().isEmpty());
        QVERIFY(Form1->pnlSSaver.Visible());
    }

    void missing_help_is_reported_without_the_viewer()
    {
        Open();
        program_->Click(Form1->SSCommand5);
        AssertOnly(noHelp);
        QVERIFY(!txtForm.IsLoaded());
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry       Install Screen Saver Help"_s);
    }

    void help_that_cannot_be_read_is_reported()
    {
        program_->disc.AddFile(u"RichText/sshelp.rtf"_s, "");
        Open();
        program_->Click(Form1->SSCommand5);
        AssertOnly(noHelp);
        QVERIFY(!txtForm->Visible());
    }

    void help_from_a_drive_that_is_gone_is_reported()
    {
        Open();
        program_->PutDiscIn({});
        program_->Click(Form1->SSCommand5);
        AssertOnly(noHelp);
    }

    // What does not touch it

    void the_settings_of_the_window_and_of_the_saver_are_apart()
    {
        AddLocalPhotos();
        Open();
        program_->Click(Form1->SSCommand4);
        QCOMPARE(GetSetting(applicationTitle, u"Settings"_s, u"Interval"_s, u"(none)"_s), u"(none)"_s);
    }

private:
    void Open()
    {
        Form1->mnuSaver.Click.Fire();
        program_->Settle();
    }

    /// Opens the panel, presses Install and wants the photos copied; returns when that click is over.
    void InstallWithAYes()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(Form1->SSCommand4);
    }

    void Spin(const char* part)
    {
        auto* arrow = Form1->SpinInterval.Widget().findChild<QAbstractButton*>(
            u"SpinInterval(%1)"_s.arg(QString::fromLatin1(part)));
        QVERIFY(arrow != nullptr);
        QTest::mouseClick(arrow, Qt::LeftButton);
    }

    void FillPlayList()
    {
        program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
    }

    void AddLocalPhotos()
    {
        program_->AddToProgramFolder(u"Torviks/67A.JPG"_s, TestDisc::Jpeg(Qt::red, {8, 8}));
    }

    QString InstalledSaver() const { return home_->filePath(u"data/torvik2001/windows/Torvik2001.scr"_s); }

    void AssertOnly(const QString& message) const
    {
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, message);
        QCOMPARE(program_->messages.Last().style, msgbox::critical);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry"_s);
    }

    static bool IsInFrontOf(const Control& front, const Control& back)
    {
        const QObjectList& siblings = front.Widget().parentWidget()->children();
        return siblings.indexOf(&front.Widget()) > siblings.indexOf(&back.Widget());
    }

    std::unique_ptr<QTemporaryDir> home_;
    std::unique_ptr<Program> program_;
    QByteArray dataBefore_;
    QByteArray configBefore_;
};

TORVIK_TEST(SaverPanelButtonsTest)
#include "saver_panel_buttons_test.moc"
