#include "hard_drive/saver_panel_fixture.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString noHelp =
    u"Error number: ER052\r\n\r\n Unable to load 'Install Screen Saver Help' text file.\r\n\r\n"
    "Make sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// The panel that installs the screen saver: how it opens and closes, its delay, its help.
class SaverPanelButtonsTest : public SaverPanelFixture {
    Q_OBJECT

private Q_SLOTS:
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

private:
    static bool IsInFrontOf(const Control& front, const Control& back)
    {
        const QObjectList& siblings = front.Widget().parentWidget()->children();
        return siblings.indexOf(&front.Widget()) > siblings.indexOf(&back.Widget());
    }
};

TORVIK_TEST(SaverPanelButtonsTest)
#include "saver_panel_buttons_test.moc"
