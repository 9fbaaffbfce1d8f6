#include "browser/select_year.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Putting a title on show.
class SelectYearTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "69", "A0", "VM"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        program_->StartBrowsing();
        Form1->cmdYR(1).SetEnabled(true);
    }
    void cleanup() { program_.reset(); }

    void the_first_photo_of_the_year_is_shown()
    {
        Form1->Image4.Hide();
        Form1->rtbDetails.Show();
        Form1->mnuNames.SetVisible(false);
        Select(u"1969"_s);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"69A.JPG"_s);
        QVERIFY(Form1->Image4.Visible());
        QVERIFY(!Form1->rtbDetails.Visible());
        QVERIFY(Form1->mnuNames.Visible());
        QVERIFY(state.SkipFirstPhoto);
        QCOMPARE(int(state.PhotoIndex), 3);
        QCOMPARE(int(state.ShownPhotoIndex), 3);
        QCOMPARE(int(state.TorviksPathPos), 3);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69A.JPG"_s);
    }

    void the_file_name_follows_only_when_it_is_wanted()
    {
        Select(u"1969"_s);
        QCOMPARE(Form1->txtFile.Text(), QString());
        state.ShowFileNames = true;
        Select(u"1967"_s);
        QCOMPARE(Form1->txtFile.Text(), u"67A.JPG"_s);
    }

    void a_file_name_is_shown_by_its_first_twelve_characters()
    {
        program_->disc.AddPhoto(u"68LONGNAME0001.JPG"_s);
        program_->DoubleClick(Form1->panPhoto);
        state.ShowFileNames = true;
        Select(u"1968"_s);
        QCOMPARE(Form1->txtFile.Text(), u"68LONGNAME00"_s);
    }

    void a_year_without_photos_is_ER023_and_keeps_its_title()
    {
        state.CurrentYearButton = 3;
        Select(u"1970"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text,
                 u"Error number: ER023\r\n\r\n Torvik photo not found for year selected.\r\n\r\n"
                 "Make sure that the Torvik Vollandry is in the CDROM drive."_s);
        QVERIFY(!Form1->Image4.Visible());
        QCOMPARE(Form1->panYear.Caption(), u"1970"_s);
        QCOMPARE(int(state.PhotoIndex), int(state.PhotoCount) + 1);
        QCOMPARE(int(state.ShownPhotoIndex), int(state.PhotoCount) + 1);
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
    }

    void a_photo_that_cannot_be_loaded_is_ER023_and_the_focus_stays()
    {
        program_->disc.AddFile(u"Torviks/69A.JPG"_s, "no picture");
        Form1->cmdYR(20).SetFocus();
        Select(u"1969"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER023"_s));
        QVERIFY(!Form1->Image4.Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(20)"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 3);
    }

    void on_a_disc_that_lost_its_photos_every_year_is_ER023_and_the_window_stays_usable()
    {
        program_->disc.Remove(u"Torviks"_s);
        program_->DoubleClick(Form1->panPhoto);
        program_->messages.Clear();
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER023"_s));
        QVERIFY(!ProgramIsEnding());
        program_->disc.AddGroup(u"69"_s, 2);
        program_->DoubleClick(Form1->panPhoto);
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"69A.JPG"_s);
    }

    void the_next_good_year_shows_its_photo_again()
    {
        Select(u"1970"_s);
        Select(u"1969"_s);
        QVERIFY(Form1->Image4.Visible());
    }

    void the_code_is_compared_with_its_letter_case()
    {
        program_->disc.AddPhoto(u"MUA.JPG"_s);
        program_->DoubleClick(Form1->panPhoto);
        program_->messages.Clear();
        Select(u"Lemuel Ostrand Art Print "_s);
        QCOMPARE(state.YearCode, u"mu"_s);
        QCOMPARE(program_->messages.Count(), 1);
    }

    void the_play_list_follows()
    {
        program_->AddToProgramFolder(u"ssTorviks/69A.JPG"_s, "x");
        Select(u"1969"_s);
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        Select(u"1967"_s);
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(!frmSSPhoto->SSCommand8.Enabled());
    }

    void a_special_topic_turns_to_its_own_buttons()
    {
        state.SteppedForward = true;
        state.SteppedBackward = true;
        Form1->panYear.SetCaption(u"Torvik Metal Signs "_s);
        ShowSpecialTopic();
        QCOMPARE(Form1->Image4.Picture().FileName(), u"VMA.JPG"_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
        for (const Button* button : {&Form1->cmdOptions, &Form1->cmdColors, &Form1->cmdScript,
                                     &Form1->cmdEmblem, &Form1->cmdAd, &Form1->cmdNostalgia})
            QVERIFY(!button->Enabled());
        QCOMPARE(int(state.CurrentYearButton), 0);
        QCOMPARE(int(state.PhotoIndex), 0);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QVERIFY(!state.SteppedForward);
        QVERIFY(!state.SteppedBackward);
        QVERIFY(Form1->cmdYR(1).Enabled());
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void back_in_a_year_the_statistics_button_keeps_its_topic_caption()
    {
        Form1->panYear.SetCaption(u"Torvik Metal Signs "_s);
        ShowSpecialTopic();
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
        for (const Button* button :
             {&Form1->cmdOptions, &Form1->cmdColors, &Form1->cmdScript, &Form1->cmdEmblem, &Form1->cmdAd,
              &Form1->cmdNostalgia, &Form1->cmdClipArt})
            QVERIFY(button->Enabled());
    }

private:
    void Select(const QString& title)
    {
        program_->messages.Clear();
        Form1->panYear.SetCaption(title);
        SelectYear();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SelectYearTest)
#include "select_year_test.moc"
