#include "hard_drive/saver_panel_fixture.h"
#include "platform/files/disk_space.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/test_class.h"
#include "support/while_waiting.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString question = u"To improve performance, the Torvik photos may be copied from\r\n"
                         "the Torvik Vollandry CDROM to your hard drive before you install\r\n"
                         "the Torvik Vollandry Screen Saver.\r\n"
                         "\r\n"
                         "Would you like to copy the photos now?"_s;

bool WaitHasBegun()
{
    return state.CopyForSaver;
}

} // namespace

/// An installation that asks for a copy of the photos and waits until it is made.
class SaverWaitsForCopyTest : public SaverPanelFixture {
    Q_OBJECT

private Q_SLOTS:
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

private:
    /// Opens the panel, presses Install and wants the photos copied; returns when that click is over.
    void InstallWithAYes()
    {
        Open();
        program_->messages.Answer(msgbox::answerYes);
        program_->Click(Form1->SSCommand4);
    }
};

TORVIK_TEST(SaverWaitsForCopyTest)
#include "saver_waits_for_copy_test.moc"
