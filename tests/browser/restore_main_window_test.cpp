#include "browser/restore_main_window.h"
#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/article_window.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Rebuilding the main window. What each title does to the buttons is told in the test of the catalogue.
class RestoreMainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        for (const char* file :
             {"emblems/emb69.jpg", "emblems/EMBpt.jpg", "emblems/embsb.jpg", "SCRIPTS/scri69.jpg",
              "SCRIPTS/SCRIpt.jpg", "SCRIPTS/SCRISB.jpg", "Clipart/69clip.jpg"})
            program_->disc.AddFile(QString::fromLatin1(file), TestDisc::Jpeg(Qt::blue, {90, 30}));
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void with_nothing_chosen_only_the_window_and_the_description_are_enabled()
    {
        Form1->panYear.SetCaption(nothingChosen);
        Form1->SetEnabled(false);
        Form1->cmdDesc.SetEnabled(false);
        Form1->cmdColors.SetEnabled(false);
        Form1->SpinButton1.Hide();
        state.SlideRestorePending = true;
        state.YearCode = u"xx"_s;
        RestoreMainWindow();
        QVERIFY(!state.SlideRestorePending);
        QVERIFY(Form1->Enabled());
        QVERIFY(Form1->cmdDesc.Enabled());
        QVERIFY(!Form1->cmdColors.Enabled());
        QVERIFY(!Form1->SpinButton1.Visible());
        QVERIFY(!Form1->cmdYR(1).Enabled());
        QCOMPARE(state.YearCode, u"xx"_s);
    }

    void with_a_year_the_caption_panels_and_all_buttons_come_back()
    {
        Form1->panYear.SetCaption(u"1969"_s);
        for (Control* control :
             std::initializer_list<Control*>{&Form1->SpinButton1, &Form1->panPhoto, &Form1->panYear})
            control->Hide();
        for (int index = 1; index <= 35; ++index)
            Form1->cmdYR(index).SetEnabled(false);
        RestoreMainWindow();
        for (const Control* control :
             std::initializer_list<const Control*>{&Form1->SpinButton1, &Form1->panPhoto, &Form1->panYear})
            QVERIFY(control->Visible());
        for (int index = 1; index <= 35; ++index)
            QVERIFY(Form1->cmdYR(index).Enabled());
        QCOMPARE(state.YearCode, u"69"_s);
    }

    void the_code_of_2000_is_left_raw()
    {
        Form1->panYear.SetCaption(u"2000"_s);
        RestoreMainWindow();
        QCOMPARE(state.YearCode, u"00"_s);
    }

    void side_forms_are_unloaded()
    {
        state.SlideShowOpen = true; // else the slide show asks whether it may go
        frmSlide.LoadForm();
        txtForm.LoadForm();
        Form1->panYear.SetCaption(nothingChosen);
        RestoreMainWindow();
        QVERIFY(!frmSlide.IsLoaded());
        QVERIFY(!txtForm.IsLoaded());
    }

    void overlays_that_are_open_are_loaded_for_the_new_year()
    {
        ShowOverlays();
        Form1->panYear.SetCaption(u"1969"_s);
        RestoreMainWindow();
        QCOMPARE(Form1->picEmblem.Picture().FileName(), u"emb69.jpg"_s);
        QCOMPARE(Form1->picScript.Picture().FileName(), u"scri69.jpg"_s);
        QCOMPARE(Form1->picClipArt.Picture().FileName(), u"69clip.jpg"_s);
        QVERIFY(OverlaysVisible());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void overlays_that_are_closed_stay_closed()
    {
        Form1->panYear.SetCaption(u"1970"_s);
        RestoreMainWindow();
        QVERIFY(program_->messages.Shown().isEmpty());
        QVERIFY(!Form1->picEmblem.Visible());
    }

    void most_topics_close_the_overlays_data()
    {
        QTest::addColumn<QString>("title");
        for (const char* title : {"Torvik Kestra I ", "Torvik Kestra III ", "Torvik Super Stallion ",
                                  "Danbury Mint Die Cast Models ", "Franklin Mint Collector Knives ",
                                  "Franklin Mint Die Cast Models ", "Torvik Metal Signs ", "Torvik Cookies ",
                                  "The Torvik Monopoly Game ", "Torvik Postage Stamps "})
            QTest::newRow(title) << QString::fromLatin1(title);
    }

    void most_topics_close_the_overlays()
    {
        QFETCH(QString, title);
        ShowOverlays();
        Form1->panYear.SetCaption(title);
        RestoreMainWindow();
        QVERIFY(!Form1->picEmblem.Visible());
        QVERIFY(!Form1->picScript.Visible());
        QVERIFY(!Form1->picClipArt.Visible());
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_prototypes_reload_them_as_a_year_does()
    {
        Form1->picEmblem.Show();
        Form1->picScript.Show();
        Form1->panYear.SetCaption(u"Early Torvik Prototypes "_s);
        RestoreMainWindow();
        QCOMPARE(Form1->picEmblem.Picture().FileName(), u"EMBpt.jpg"_s);
        QCOMPARE(Form1->picScript.Picture().FileName(), u"SCRIpt.jpg"_s);
        QVERIFY(Form1->picEmblem.Visible());
    }

    void the_harwell_closes_the_clip_art_and_reloads_the_others()
    {
        ShowOverlays();
        Form1->panYear.SetCaption(u"The Classic Harwell "_s);
        RestoreMainWindow();
        QVERIFY(!Form1->picClipArt.Visible());
        QCOMPARE(Form1->picEmblem.Picture().FileName(), u"embsb.jpg"_s);
        QCOMPARE(Form1->picScript.Picture().FileName(), u"SCRISB.jpg"_s);
    }

    void a_missing_overlay_is_reported_by_its_code()
    {
        Form1->picEmblem.Show();
        Form1->panYear.SetCaption(u"1970"_s);
        RestoreMainWindow();
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER022"_s));
        QVERIFY(!Form1->picEmblem.Visible());
    }

private:
    void ShowOverlays()
    {
        Form1->picEmblem.Show();
        Form1->picScript.Show();
        Form1->picClipArt.Show();
    }
    bool OverlaysVisible() const
    {
        return Form1->picEmblem.Visible() && Form1->picScript.Visible() && Form1->picClipArt.Visible();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(RestoreMainWindowTest)
#include "restore_main_window_test.moc"
