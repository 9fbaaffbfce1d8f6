#include "program/program_state.h"
#include "search/find_fixture.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/find_window.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"

#include <QAbstractItemView>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What a hit brings up, and how it is opened.
class OpenFoundTest : public FindFixture {
    Q_OBJECT

private Q_SLOTS:
    void return_opens_the_article_with_its_year_and_stands_at_the_first_hit()
    {
        Find(u"scoop 1969"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        const Seen seen = VisitViewer([&] { program_->Press(frmFind->txtFind, Qt::Key_Return); });
        QCOMPARE(seen.title, u"The Torvik Vollandry       1969 Description"_s);
        QCOMPARE(seen.marked, QStringList({u"scoop"_s, u"1969"_s}));
        QCOMPARE(seen.bar, u"1 of 2"_s);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69A.JPG"_s);
        // The form is there again, with its list.
        QVERIFY(frmFind->Visible());
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        QCOMPARE(Program::Focus(), u"txtFind"_s);
        QCOMPARE(state.TextToFind, QString());
    }

    void a_hit_far_down_is_in_view()
    {
        Find(u"\"a hood\""_s);
        const Seen seen = VisitViewer([&] { program_->Click(frmFind->cmdOpen); });
        QCOMPARE(seen.title, u"The Torvik Vollandry       Glossary"_s);
        QVERIFY(seen.isFirstInView);
    }

    void a_double_click_opens_what_was_clicked()
    {
        Find(u"hood"_s);
        auto& view = static_cast<QAbstractItemView&>(frmFind->lstFound.Widget());
        const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
        const Seen seen = VisitViewer([&] {
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, second);
        });
        QCOMPARE(seen.title, u"The Torvik Vollandry       Glossary"_s);
    }

    void return_in_the_list_opens_the_chosen_row()
    {
        Find(u"roof"_s);
        frmFind->lstFound.SetFocus();
        program_->Press(frmFind->lstFound, Qt::Key_Down);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        const QString second = Rows().at(1);
        program_->Press(frmFind->lstFound, Qt::Key_Return);
        QCOMPARE(u"%1, photo %2"_s.arg(Form1->panYear.Caption(), Form1->panPhoto.Caption()),
                 second.section(u" | "_s, 0, 0));
    }

    void return_before_the_answer_opens_it_when_it_comes()
    {
        OpenForm();
        WaitForEnd();
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"velvet"_s);
        const Seen seen = VisitViewer([&] {
            program_->Press(frmFind->txtFind, Qt::Key_Return);
            QVERIFY(QTest::qWaitFor([] { return Form1->panYear.Caption() == u"2001"_s; }, 20'000));
        });
        QCOMPARE(seen.title, u"The Torvik Vollandry     2001 Colors"_s);
        QCOMPARE(seen.marked, QStringList{u"Velvet"_s});
    }

    void return_waits_for_the_first_hit_of_what_is_still_to_be_read()
    {
        OpenFormOnLongDisc();
        frmFind->txtFind.SetText(u"silver"_s); // a caption, and these are read last
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(Form1->panYear.Caption(), u"1969"_s, 20'000);
        QCOMPARE(Form1->panPhoto.Caption(), u"3"_s);
        QCOMPARE(MarkedIn(Form1->rtbDetails), QStringList{u"silver"_s});
    }

    void return_for_what_is_not_on_the_disc_opens_nothing_later()
    {
        OpenFormOnLongDisc();
        frmFind->txtFind.SetText(u"bronze"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        WaitForEnd();
        QTRY_COMPARE(FirstLine(), u"Nothing found"_s);
        program_->disc.AddDocument(u"69d.rtf"_s, u"A bronze roof."_s); // another disc, as it were
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QTRY_COMPARE_WITH_TIMEOUT(frmFind->lstFound.ListCount(), 1, 20'000);
        program_->Settle();
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
    }

    void nothing_comes_up_before_a_person_who_went_on_to_the_main_window()
    {
        OpenFormOnLongDisc();
        frmFind->txtFind.SetText(u"silver"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        Form1->Window().activateWindow();
        Form1->cmdYR(3).SetFocus();
        QTRY_COMPARE_WITH_TIMEOUT(frmFind->lstFound.ListCount(), 1, 20'000);
        WaitForEnd();
        program_->Settle();
        QCOMPARE(Program::Focus(), u"cmdYR(3)"_s);
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
    }

    void nostalgia_opens_with_its_year()
    {
        Find(u"moon"_s);
        const Seen seen = VisitViewer([&] { program_->Click(frmFind->cmdOpen); });
        QCOMPARE(seen.title, u"The Torvik Vollandry     Nostalgia 1969"_s);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
    }

    void a_caption_comes_with_its_photo_and_is_marked_there()
    {
        Find(u"silver"_s);
        QCOMPARE(Rows(), QStringList{u"1969, photo 3 | A [silver] roof."_s});
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"3"_s);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69C.JPG"_s);
        QVERIFY(Form1->rtbDetails.Visible());
        QCOMPARE(Form1->rtbDetails.Text().trimmed(), u"A silver roof."_s);
        QCOMPARE(Form1->rtbDetails.Width(), 329);
        QCOMPARE(MarkedIn(Form1->rtbDetails), QStringList{u"silver"_s});
        QVERIFY(frmFind->Visible());
    }

    void browsing_goes_on_from_a_caption_that_was_found()
    {
        Find(u"golden"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        Form1->rtbDetails.Hide();
        program_->Press(Form1->cmdYR(5), Qt::Key_Period);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69B.JPG"_s);
        program_->Press(Form1->cmdYR(5), Qt::Key_Comma);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69A.JPG"_s);
    }

    void a_note_comes_with_its_topic_and_photo()
    {
        Find(u"bumper"_s);
        QCOMPARE(Rows(), QStringList{u"Danbury Mint Die Cast Models, photo 5 | A tiny [bumper]."_s});
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(Form1->panYear.Caption(), u"Danbury Mint Die Cast Models "_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"5"_s);
        QVERIFY(Form1->rtbDetails.Visible());
        QCOMPARE(Form1->rtbDetails.FileName(), u"G:\\richtext\\tdm010.rtf"_s);
        QCOMPARE(MarkedIn(Form1->rtbDetails), QStringList{u"bumper"_s});
    }

    void a_topic_that_stands_in_no_menu_comes_with_its_photo_too()
    {
        program_.reset();
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->disc.AddGroup(u"VC"_s, 3);
        program_->disc.AddDocument(u"vcb.rtf"_s, u"A round biscuit."_s);
        program_->StartBrowsing();
        Find(u"biscuit"_s);
        QCOMPARE(Rows(), QStringList{u"Torvik Cookies, photo 2 | A round [biscuit]."_s});
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(Form1->panYear.Caption(), u"Torvik Cookies "_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"2"_s);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\VCB.JPG"_s);
        QCOMPARE(MarkedIn(Form1->rtbDetails), QStringList{u"biscuit"_s});
    }

    void a_movie_opens_in_the_player()
    {
        Find(u"glider"_s);
        QString title;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                if (frmMovie.IsLoaded()) {
                    title = frmMovie->Caption();
                    program_->Click(frmMovie->SSCommand1);
                }
            },
            [] { frmMovie.Unload(); });
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(title, u"Torvik Movies - The Super Glider"_s);
    }

    void a_sound_is_played_from_its_panel()
    {
        Find(u"taxi"_s);
        QCOMPARE(Rows(), QStringList{u"Taxi Horns | "_s});
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QVERIFY(Form1->pnlSound.Visible());
        QCOMPARE(state.SoundFile, u"G:\\wav\\taxi.wav"_s);
    }

    void nothing_opens_while_the_main_window_takes_no_input()
    {
        Find(u"silver"_s);
        Form1->SetEnabled(false);
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QCOMPARE(frmFind->lblFound.Caption(), u"The main window is busy"_s);
        Form1->SetEnabled(true);
    }

    void a_document_that_is_gone_is_reported_as_its_button_reports_it()
    {
        Find(u"moon"_s);
        program_->disc.Remove(u"RichText/nostalgia69.rtf"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Return);
        QCOMPARE(program_->messages.Shown().size(), 1);
        QVERIFY(program_->messages.Shown().first().text.startsWith(u"Error number: ER005"_s));
        QVERIFY(!txtForm->Visible());
        QCOMPARE(state.TextToFind, QString());
    }
};

TORVIK_TEST(OpenFoundTest)
#include "open_found_test.moc"
