#include "program/help_position.h"
#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/program_end.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString stopButton = u"mmSlide(Stop)"_s;
const QString reported = u"Error number: ER017\r\n\r\n Unable to load Slide Show photo.\r\n\r\n"
                         "Make sure that the Torvik Vollandry is in the CDROM drive."_s;

} // namespace

/// The ways out of the slide show.
class LeaveSlideShowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "68", "99", "A0", "A1", "CW", "GB", "M1", "M3", "MS",
                                   "PT", "SB", "TC", "TD", "TE", "TF", "US", "VC", "VM", "ZZ"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void stop_carries_the_photo_over()
    {
        QVERIFY(LeaveAt(u"68B"_s));
        QVERIFY(!frmSlide.IsLoaded());
        QCOMPARE(Form1->Image4.Picture().FileName(), u"68B.JPG"_s);
        QVERIFY(Form1->Image4.Visible());
        QCOMPARE(Form1->panPhoto.Caption(), u"2"_s);
        QCOMPARE(Form1->panYear.Caption(), u"1968 "_s);
        QVERIFY(Form1->panYear.Visible());
        QCOMPARE(Form1->txtFile.Text(), u"68B.JPG"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 4);
        QCOMPARE(int(state.PhotoIndex), 3);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\68B.JPG"_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Engines"_s);
        QVERIFY(!state.SlideShowOpen);
        QVERIFY(!state.SlideRestorePending);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void each_caption_gives_the_main_window_its_buttons_focus_and_code_data()
    {
        QTest::addColumn<QString>("photo");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("statistics"); // caption of cmdStats
        QTest::addColumn<bool>("sixEnabled");
        QTest::addColumn<bool>("description");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<int>("yearButton");
        QTest::addColumn<QString>("code");
        const auto row = [](const char* photo, const char* title, const char* statistics, bool sixEnabled,
                            bool description, int focus, int yearButton, const char* code) {
            QTest::newRow(title) << QString::fromLatin1(photo) << QString::fromLatin1(title)
                                 << QString::fromLatin1(statistics) << sixEnabled << description
                                 << u"cmdYR(%1)"_s.arg(focus) << yearButton << QString::fromLatin1(code);
        };
        row("ZZA", "Torvik Postage Stamps ", "Details", false, true, 1, 0, "ZZ");
        row("VMA", "Torvik Metal Signs ", "Details", false, true, 1, 0, "VM");
        row("M1A", "Torvik Kestra I ", "Details", false, false, 1, 0, "M1");
        row("PTA", "Early Torvik Prototypes ", "Details", false, false, 1, 0, "PT");
        row("VCA", "Torvik Cookies ", "Details", false, false, 1, 0, "VC");
        row("M3A", "Torvik Kestra III ", "Details", false, true, 1, 0, "M3");
        row("MSA", "Torvik Super Stallion ", "Details", false, true, 1, 0, "MS");
        row("TDA", "Danbury Mint Die Cast Models ", "Details", false, true, 1, 0, "TD");
        row("TFA", "Franklin Mint Die Cast Models ", "Details", false, true, 1, 0, "TF");
        row("TEA", "Franklin Mint Collector Knives ", "Details", false, true, 1, 0, "TE");
        row("A0A", "2000", "Engines", true, true, 35, 34, "00");
        row("A1A", "2001", "Engines", true, true, 1, 0, "01");
        row("67A", "1967 ", "Engines", true, true, 2, 1, "67");
        row("68A", "1968 ", "Engines", true, true, 3, 2, "68");
        row("99A", "1999 ", "Engines", true, true, 34, 33, "99");
    }

    void each_caption_gives_the_main_window_its_buttons_focus_and_code()
    {
        QFETCH(QString, photo);
        QFETCH(QString, title);
        QFETCH(QString, statistics);
        QFETCH(bool, sixEnabled);
        QFETCH(bool, description);
        QFETCH(QString, focus);
        QFETCH(int, yearButton);
        QFETCH(QString, code);
        QVERIFY(LeaveAt(photo));
        QCOMPARE(Form1->panYear.Caption(), title);
        QCOMPARE(Form1->cmdStats.Caption(), statistics);
        for (const Button* button : {&Form1->cmdOptions, &Form1->cmdColors, &Form1->cmdScript,
                                     &Form1->cmdEmblem, &Form1->cmdAd, &Form1->cmdNostalgia})
            QVERIFY2(button->Enabled() == sixEnabled, qPrintable(button->Name()));
        QCOMPARE(Form1->cmdDesc.Enabled(), description);
        QCOMPARE(Program::Focus(), focus);
        QCOMPARE(int(state.CurrentYearButton), yearButton);
        QCOMPARE(state.YearCode, code);
        QCOMPARE(int(state.PhotoIndex), state.ShownPhotoIndex - 1);
        QVERIFY(!state.SlideShowOpen);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void the_harwell_keeps_some_buttons_and_its_focus_is_the_first_year()
    {
        QVERIFY(LeaveAt(u"SBA"_s));
        QCOMPARE(Form1->panYear.Caption(), u"The Classic Harwell "_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Engines"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
        QCOMPARE(int(state.CurrentYearButton), 0);
        QCOMPARE(state.YearCode, u"SB"_s);
        QVERIFY(Form1->cmdOptions.Enabled());
        QVERIFY(!Form1->cmdNostalgia.Enabled());
    }

    void the_exit_itself_takes_the_code_of_the_topic()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            program_->Press(Qt::Key_Comma);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"ZZB.JPG"_s);
            ClickSlidePart(*program_, stopButton);
            QCOMPARE(state.YearCode, u"ZZ"_s);
        }));
        QCOMPARE(state.YearCode, u"ZZ"_s);
    }

    void the_exit_itself_shows_the_photo_pane()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            Form1->Image4.Hide();
            ClickSlidePart(*program_, stopButton);
            QVERIFY(Form1->Image4.Visible());
        }));
    }

    void the_photos_of_2000_can_be_stepped_through_on_the_main_window()
    {
        QVERIFY(LeaveAt(u"A0B"_s));
        program_->Press(Form1->cmdYR(35), Qt::Key_Comma);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"A0A.JPG"_s);
        QCOMPARE(state.YearCode, u"A0"_s);
    }

    void the_photos_of_the_topic_can_be_stepped_through_on_the_main_window()
    {
        QVERIFY(LeaveAt(u"VCA"_s));
        state.SkipFirstPhoto = false;
        program_->Press(*Control::OfWidget(QApplication::focusWidget()), Qt::Key_Period);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"VCA.JPG"_s);
        program_->Press(Form1->cmdYR(1), Qt::Key_Period);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"VCB.JPG"_s);
    }

    void a_caption_without_digits_is_reported_and_the_rest_is_left_out_data()
    {
        QTest::addColumn<QString>("photo");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("code");
        QTest::newRow("calendars") << u"TCB"_s << u"19TC "_s << u"TC"_s;
        QTest::newRow("board game") << u"USA"_s << u"19US "_s << u"US"_s;
        QTest::newRow("art prints") << u"GBA"_s << u"19GB "_s << u"GB"_s;
        QTest::newRow("Tarrant") << u"CWA"_s << u"The Tarrant Torvik "_s << u"e "_s;
    }

    void a_caption_without_digits_is_reported_and_the_rest_is_left_out()
    {
        QFETCH(QString, photo);
        QFETCH(QString, title);
        QFETCH(QString, code);
        QVERIFY(LeaveAt(photo));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, reported);
        QCOMPARE(Form1->panYear.Caption(), title);
        QCOMPARE(Form1->Image4.Picture().FileName(), photo + u".JPG"_s);
        QCOMPARE(state.YearCode, code);
        QVERIFY(state.SlideShowOpen);
        QCOMPARE(int(state.PhotoIndex), int(state.ShownPhotoIndex));
        QCOMPARE(int(state.CurrentYearButton), 0);
        QVERIFY(!frmSlide.IsLoaded());
        QVERIFY(Form1->Enabled());
        QVERIFY(!ProgramIsEnding());
    }

    void after_such_a_report_the_next_show_works()
    {
        QVERIFY(LeaveAt(u"TCA"_s));
        QVERIFY(LeaveAt(u"67B"_s));
        QCOMPARE(Form1->panYear.Caption(), u"1967 "_s);
        QVERIFY(!state.SlideShowOpen);
    }

    void the_plain_caption_of_the_middle_is_reported_for_2000_too()
    {
        state.ShownPhotoIndex = 1;
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->panYear.SetCaption(u"19A0"_s);
            ClickSlidePart(*program_, stopButton);
        }));
        QCOMPARE(program_->messages.Last().text, reported);
    }

    void a_prefix_of_digits_that_are_no_year_of_the_bar_is_reported()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->panYear.SetCaption(u"1912 "_s);
            ClickSlidePart(*program_, stopButton);
        }));
        QCOMPARE(program_->messages.Last().text, reported);
        QCOMPARE(int(state.CurrentYearButton), 0);
    }

    void a_running_show_lands_on_the_photo_on_show_as_well()
    {
        state.ShownPhotoIndex = 1;
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            Clock::Turn(3000);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"68B.JPG"_s);
            ClickSlidePart(*program_, stopButton);
        }));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"68B.JPG"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 4);
        QCOMPARE(int(state.PhotoIndex), 3);
        Clock::Turn(60'000);
        QVERIFY(!frmSlide.IsLoaded());
    }

    void stop_at_photo_0_lands_on_the_first_photo()
    {
        state.ShownPhotoIndex = 0;
        QVERIFY(InSlideShow(*program_, [&] { ClickSlidePart(*program_, stopButton); }));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        QCOMPARE(int(state.PhotoIndex), 0);
    }

    void with_no_year_chosen_stop_only_rebuilds_the_window()
    {
        Form1->panYear.SetCaption(nothingChosen);
        Form1->cmdDesc.SetEnabled(false);
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            ClickSlidePart(*program_, stopButton);
        }));
        QVERIFY(!frmSlide.IsLoaded());
        QCOMPARE(Form1->panYear.Caption(), nothingChosen);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 1);
        QCOMPARE(int(state.PhotoIndex), 2);
        QVERIFY(Form1->cmdDesc.Enabled());
        QVERIFY(state.SlideShowOpen);
    }

    void a_photo_that_is_gone_is_reported_and_the_show_stays()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Next)"_s);
            program_->disc.Remove(u"Torviks/67B.JPG"_s);
            state.SlideRestorePending = true;
            ClickSlidePart(*program_, stopButton);
            QVERIFY(!state.SlideRestorePending);
            QCOMPARE(program_->messages.Count(), 1);
            QCOMPARE(program_->messages.Last().text, reported);
            QVERIFY(frmSlide.IsLoaded() && frmSlide->Visible());
            QCOMPARE(Form1->Image4.Picture().FileName(), u"67A.JPG"_s);
            QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
            QCOMPARE(int(state.ShownPhotoIndex), 1);
        }));
    }

    void the_file_name_and_the_play_list_speak_of_the_photo_carried_over()
    {
        program_->AddToProgramFolder(u"ssTorviks/68A.JPG"_s, "x");
        QVERIFY(frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(LeaveAt(u"68A"_s));
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
        QVERIFY(frmSSPhoto->SSCommand8.Enabled());
        Form1->mnuNames.Click.Fire();
        QCOMPARE(Form1->txtFile.Text(), u"68A.JPG"_s);
    }

    void the_exit_button_leaves_the_main_window_as_it_was()
    {
        program_->Click(Form1->cmdYR(2));
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Prev)"_s);
            program_->Click(frmSlide->cmdExit);
            QVERIFY(!frmSlide.IsLoaded());
        }));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"68A.JPG"_s);
        QCOMPARE(Form1->panYear.Caption(), u"1968"_s);
        QCOMPARE(int(state.ShownPhotoIndex), 3);
        QVERIFY(state.SlideShowOpen);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void the_exit_button_leaves_a_running_show_too()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            program_->Click(frmSlide->cmdExit);
            Clock::Turn(60'000);
            QVERIFY(!frmSlide.IsLoaded());
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_hidden_photo_comes_back_with_the_return_to_the_main_window()
    {
        Form1->Image4.Hide();
        QVERIFY(InSlideShow(*program_, [&] { program_->Click(frmSlide->cmdExit); }));
        QVERIFY(Form1->Image4.Visible());
    }

    void a_topic_on_the_main_window_keeps_its_code_over_a_show()
    {
        Form1->panYear.SetCaption(u"Torvik Cookies "_s);
        state.YearCode = u"VC"_s;
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(state.YearCode, u"67"_s);
            program_->Click(frmSlide->cmdExit);
        }));
        QCOMPARE(state.YearCode, u"VC"_s);
    }

    void a_title_without_photos_keeps_its_code_over_a_show()
    {
        Form1->mnuArt(1).Click.Fire();
        QCOMPARE(state.YearCode, u"mu"_s);
        const int reports = program_->messages.Count();
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(state.YearCode, u"67"_s);
            program_->Click(frmSlide->cmdExit);
        }));
        QCOMPARE(Form1->panYear.Caption(), u"Lemuel Ostrand Art Print "_s);
        QCOMPARE(state.YearCode, u"mu"_s);
        program_->Press(Form1->cmdYR(1), Qt::Key_Period); // it has no photo to step to
        QVERIFY(Form1->Image4.Picture().IsEmpty());
        QCOMPARE(program_->messages.Count(), reports);
    }

    void a_picture_over_the_photo_that_is_missing_is_told_once()
    {
        Form1->picEmblem.Show();
        Form1->picScript.Show();
        Form1->picClipArt.Show();
        QVERIFY(LeaveAt(u"68A"_s));
        QStringList codes;
        for (const MessageRequest& box : program_->messages.Shown())
            codes.append(box.text.mid(14, 5));
        QCOMPARE(codes.join(u' '), u"ER024 ER021 ER022"_s);
        QVERIFY(Form1->picClipArt.Visible());
        QVERIFY(!Form1->picEmblem.Visible());
    }

    void a_clip_art_that_is_still_missing_is_told_again_when_the_year_is_chosen_again()
    {
        Form1->picClipArt.Show();
        QVERIFY(LeaveAt(u"68A"_s));
        program_->messages.Clear();
        for (int time = 1; time <= 2; ++time) {
            program_->Click(Form1->cmdYR(2));
            QCOMPARE(program_->messages.Count(), time);
            QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER024"_s));
        }
    }

    void a_missing_clip_art_is_told_on_the_way_back_by_the_exit_button_too()
    {
        program_->Click(Form1->cmdYR(2));
        Form1->picClipArt.Show();
        for (int time = 1; time <= 2; ++time) {
            QVERIFY(InSlideShow(*program_, [&] { program_->Click(frmSlide->cmdExit); }));
            QCOMPARE(program_->messages.Count(), time);
            QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER024"_s));
        }
    }

    void stop_on_nothing_is_reported()
    {
        Form1->mnuArt(1).Click.Fire();
        program_->messages.Clear();
        QVERIFY(InSlideShow(*program_, [&] { ClickSlidePart(*program_, stopButton); }));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, reported);
        QCOMPARE(Form1->panYear.Caption(), u"19 "_s);
        QVERIFY(Form1->Image4.Picture().IsEmpty());
        QVERIFY(!ProgramIsEnding());
        program_->Click(Form1->cmdYR(2));
        QCOMPARE(Form1->Image4.Picture().FileName(), u"68A.JPG"_s);
    }

    void closing_the_window_asks_nothing_during_a_show()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->Window().close();
            QVERIFY(!frmSlide.IsLoaded());
        }));
        QCOMPARE(program_->messages.Count(), 0);
    }

    void closing_a_form_that_no_show_has_opened_asks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::newRow("OK") << msgbox::answerOk << true;
        QTest::newRow("Cancel") << msgbox::answerCancel << false;
    }

    void closing_a_form_that_no_show_has_opened_asks()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        state.SlideShowOpen = false;
        frmSlide.LoadForm();
        program_->messages.Answer(answer);
        QCOMPARE(frmSlide.Unload(), closes);
        QCOMPARE(frmSlide.IsLoaded(), !closes);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text, u"Exit The Torvik Vollandry?"_s);
        QCOMPARE(program_->messages.Last().style, 33);
        QCOMPARE(program_->messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(int(state.MessageResult), answer);
        state.SlideShowOpen = true;
    }

    void loading_refreshes_the_play_list_buttons_and_notes_the_window_for_the_help()
    {
        program_->AddToProgramFolder(u"ssTorviks/67A.JPG"_s, "x");
        state.HelpWindowHandle = 0;
        frmSlide.LoadForm();
        QCOMPARE(state.HelpWindowHandle, frmSlide->WindowNumber());
        QVERIFY(state.HelpWindowHandle != 0);
        QCOMPARE(state.HelpWindowInfo.wStructSize, 26);
        QVERIFY(!frmSSPhoto->SSCommand7.Enabled());
    }

    void unloading_closes_the_help()
    {
        QWidget help;
        help.setObjectName(u"HelpViewer"_s);
        help.show();
        state.SlideShowOpen = true;
        frmSlide.LoadForm();
        QVERIFY(help.isVisible());
        frmSlide.Unload();
        QVERIFY(!help.isVisible());
    }

private:
    /// Runs a show to a photo ("68B") by the keys and leaves it with the bar's Exit.
    bool LeaveAt(const QString& photo)
    {
        return InSlideShow(*program_, [&] {
            for (int step = 0; step < state.PhotoCount; ++step) {
                if (frmSlide->Image1.Picture().FileName() == photo + u".JPG"_s)
                    break;
                program_->Press(Qt::Key_Period);
            }
            QCOMPARE(frmSlide->Image1.Picture().FileName(), photo + u".JPG"_s);
            ClickSlidePart(*program_, stopButton);
        });
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(LeaveSlideShowTest)
#include "leave_slide_show_test.moc"
