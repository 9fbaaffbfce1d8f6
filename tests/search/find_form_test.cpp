#include "platform/paths/drives.h"
#include "program/catalogue/articles.h"
#include "program/catalogue/library.h"
#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "program/search_words.h"
#include "support/discs/image_maker.h"
#include "support/modal_visit.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "windows/article_window.h"
#include "windows/find_window.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The rows as "title | line", found words in brackets.
QStringList Rows()
{
    QStringList rows;
    for (int index = 0; index < frmFind->lstFound.ListCount(); ++index) {
        RichListRow row = frmFind->lstFound.List(index);
        for (auto piece = row.bold.rbegin(); piece != row.bold.rend(); ++piece) {
            row.line.insert(piece->End(), u']');
            row.line.insert(piece->begin, u'[');
        }
        rows.append(row.title + u" | "_s + row.line);
    }
    return rows;
}

QStringList MarkedIn(const RichTextBox& box)
{
    QStringList marked;
    for (const auto& mark : static_cast<QTextBrowser&>(box.Widget()).extraSelections())
        marked.append(mark.cursor.selectedText());
    return marked;
}

} // namespace

/// The form that finds words in all that the disc holds.
class FindFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        TestDisc& disc = program_->disc;
        for (const char* group : {"67", "69", "A1", "TD", "M1"})
            disc.AddGroup(QString::fromLatin1(group), 6);
        disc.AddDocument(u"69desc.rtf"_s, u"The hood scoop of 1969 is painted."_s);
        disc.AddDocument(u"a1colors.rtf"_s, u"Velvet black and no other."_s);
        disc.AddDocument(u"nostalgia69.rtf"_s, u"A moon walk."_s);
        disc.AddDocument(u"glossary.rtf"_s,
                         u"Scoop: an opening. "_s + u"more\\par "_s.repeated(200) + u"a hood"_s);
        disc.AddDocument(u"69c.rtf"_s, u"A silver roof."_s);
        disc.AddDocument(u"69a.rtf"_s, u"A golden roof."_s);
        disc.AddDocument(u"tdm010.rtf"_s, u"A tiny bumper."_s);
        disc.AddDocument(u"tda.rtf"_s, u"A tiny wheel."_s);
        disc.AddFile(u"movies/TheSuperGlider.avi"_s, "no movie");
        disc.AddFile(u"wav/taxi.wav"_s, "no sound");
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void control_and_f_opens_the_form_beside_the_main_window()
    {
        OpenForm();
        QVERIFY(frmFind.IsLoaded() && frmFind->Visible());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QCOMPARE(frmFind->Caption(), u"Find"_s);
        QCOMPARE(Program::Focus(), u"txtFind"_s);
        QVERIFY(!frmFind->cmdOpen.Enabled());
    }

    void it_lies_over_the_photo_clear_of_the_caption_of_the_photo()
    {
        OpenForm();
        const double captionEnd = Form1->Top() + (Form1->Image4.Top() + 9 + 106 + 19 + 19) *
                                                     twipsPerPixel; // caption bar and menu bar
        QVERIFY(frmFind->Top() > captionEnd);
        QVERIFY(frmFind->Top() + frmFind->Height() <=
                Form1->Top() + (Form1->Image4.Top() + Form1->Image4.Height() + 38) * twipsPerPixel);
    }

    void hits_come_after_a_rest_of_80_milliseconds()
    {
        OpenForm();
        WaitForEnd();
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"hood"_s);
        Clock::Turn(79);
        program_->Settle();
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        Clock::Turn(1);
        WaitFor(u"2 found\n%1"_s);
        QCOMPARE(Rows().first(),
                 u"The Torvik Vollandry 1969 Description | The [hood] scoop of 1969 is painted."_s);
        QCOMPARE(Rows().last(), u"The Torvik Vollandry Glossary | …more more more more more a [hood]"_s);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        QVERIFY(frmFind->cmdOpen.Enabled());
        QCOMPARE(Program::Focus(), u"txtFind"_s);
    }

    void typing_on_without_a_rest_asks_once()
    {
        OpenForm();
        WaitForEnd();
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"h"_s);
        Clock::Turn(60);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u"ood"_s);
        Clock::Turn(60);
        program_->Settle();
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        Clock::Turn(20);
        WaitFor(u"2 found\n%1"_s);
    }

    void the_list_is_never_empty_between_two_answers()
    {
        Find(u"hood"_s);
        auto& view = static_cast<QAbstractItemView&>(frmFind->lstFound.Widget());
        int fewest = view.model()->rowCount();
        connect(view.model(), &QAbstractItemModel::rowsRemoved, this,
                [&] { fewest = std::min(fewest, view.model()->rowCount()); });
        QTest::keyClick(&frmFind->txtFind.Widget(), Qt::Key_End);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u" scoop"_s);
        program_->Settle();
        Clock::Turn(80);
        QCOMPARE(frmFind->lstFound.ListCount(), 2); // stays until the answer is there
        QCOMPARE(FirstLine(), u"2 found"_s);
        QTest::keyClicks(&frmFind->txtFind.Widget(), u" painted"_s);
        Clock::Turn(80);
        QTRY_COMPARE(frmFind->lstFound.ListCount(), 1);
        QCOMPARE(fewest, 1);
    }

    void nothing_found_is_told_and_an_empty_box_tells_nothing()
    {
        Find(u"submarine"_s);
        QCOMPARE(FirstLine(), u"Nothing found"_s);
        QVERIFY(!frmFind->cmdOpen.Enabled());
        Find(u"hood"_s);
        Find(QString());
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"ound"_s));
        Find(u"\"-(*"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 0);
    }

    void arrow_and_page_keys_walk_the_list_while_the_letters_stay()
    {
        Find(u"roof"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
        QWidget& box = frmFind->txtFind.Widget();
        program_->Press(frmFind->txtFind, Qt::Key_Down);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_Down);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_PageUp);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        program_->Press(frmFind->txtFind, Qt::Key_PageDown);
        QCOMPARE(frmFind->lstFound.ListIndex(), 1);
        program_->Press(frmFind->txtFind, Qt::Key_Up);
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        QVERIFY(box.hasFocus());
        QCOMPARE(frmFind->txtFind.Text(), u"roof"_s);
    }

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

    void other_words_bring_the_best_hit_into_view()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"A spare wheel in the boot."_s);
        Find(u"spare"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 30);
        auto& view = static_cast<QAbstractItemView&>(frmFind->lstFound.Widget());
        view.scrollToBottom(); // by the wheel, which leaves the choice where it is
        QCOMPARE(frmFind->lstFound.ListIndex(), 0);
        Ask(u"spare wheel"_s);
        QTRY_COMPARE(Rows().first(),
                     u"The Torvik Vollandry 1970 Description | A [spare] [wheel] in the boot."_s);
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(0, 0))));
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

    void escape_closes_the_form_and_the_words_are_kept_for_no_one()
    {
        Find(u"hood"_s);
        program_->Press(frmFind->txtFind, Qt::Key_Escape);
        QVERIFY(!frmFind.IsLoaded());
        OpenForm();
        QCOMPARE(frmFind->txtFind.Text(), QString());
        Find(u"hood"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
        program_->Click(frmFind->cmdClose);
        QVERIFY(!frmFind.IsLoaded());
    }

    void control_and_f_again_selects_the_words()
    {
        Find(u"hood"_s);
        Form1->Window().activateWindow();
        Form1->cmdYR(3).SetFocus();
        program_->Settle();
        QCOMPARE(Program::Focus(), u"cmdYR(3)"_s);
        QTest::keyClick(&Form1->cmdYR(3).Widget(), Qt::Key_F, Qt::ControlModifier);
        program_->Settle();
        QCOMPARE(Program::Focus(), u"txtFind"_s);
        QCOMPARE(frmFind->txtFind.SelText(), u"hood"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 2);
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

    void another_disc_is_read_anew_at_the_next_search()
    {
        Find(u"hood"_s);
        TestDisc other;
        other.AddGroup(u"67"_s, 1);
        other.AddDocument(u"books.rtf"_s, u"A book about a hood."_s);
        SetDriveOptions({{u'G', other.Folder()}});
        RefreshDrives();
        Find(u"book hood"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a [hood]."_s});
        Find(u"silver"_s);
        QCOMPARE(FirstLine(), u"Nothing found"_s);
    }

    void an_image_is_searched_and_the_next_one_of_the_same_name_as_well()
    {
        PutImageIn("A book about a hood.");
        Find(u"book"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a hood."_s});
        PutImageIn("A book about a roof.");
        Find(u"book"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A [book] about a roof."_s});
    }

    void an_image_that_lost_its_end_is_searched_as_far_as_it_goes()
    {
        ImageMaker maker;
        const int texts = maker.AddFolder("RICHTEXT");
        maker.AddFile("BOOKS.RTF;1", "{\\rtf1 A book about a hood.}", texts);
        maker.AddFile("CATALOGS.RTF;1", "{\\rtf1 A catalog with a hood.}", texts);
        PutImageIn(maker.Iso().chopped(ImageMaker::block));
        Find(u"hood"_s);
        QCOMPARE(Rows(), QStringList{u"The Torvik Vollandry Books | A book about a [hood]."_s});
        // 175 articles of the years, 20 of the library, the description of a topic; one could be read.
        QCOMPARE(frmFind->lblFound.Caption(),
                 u"1 found\n%1 are missing or cannot be read"_s.arg(35 * 5 + 20 + 1 - 1));
    }

    void without_a_disc_the_last_index_answers_on()
    {
        Find(u"hood"_s);
        program_->PutDiscIn({});
        Find(u"silver"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
    }

    void a_disc_that_goes_away_while_it_is_read_is_told_and_read_when_it_is_back()
    {
        for (int year = 70; year < 100; ++year) {
            for (const char* ending : {"desc.rtf", "opts.rtf", "stats.rtf", "colors.rtf"})
                program_->disc.AddDocument(QString::number(year) + QLatin1String(ending),
                                           u"much to be read\\par "_s.repeated(4000));
        }
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QVERIFY(QFile::rename(program_->disc.PathOf(u"RichText"_s), program_->disc.PathOf(u"Away"_s)));
        WaitForEnd();
        const QRegularExpression told(u"^The disc is gone: [1-9]\\d* of [1-9]\\d* were not read$"_s);
        QVERIFY2(told.match(frmFind->lblFound.Caption()).hasMatch(), qPrintable(frmFind->lblFound.Caption()));
        Find(u"glider"_s); // by its title, from the index as it is
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        QVERIFY(QFile::rename(program_->disc.PathOf(u"Away"_s), program_->disc.PathOf(u"RichText"_s)));
        Find(u"bumper"_s);
        QCOMPARE(frmFind->lstFound.ListCount(), 1);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"gone"_s));
    }

    void progress_is_shown_while_the_disc_is_read()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"much to be read\\par "_s.repeated(4000));
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QVERIFY(frmFind->ProgressGuage.Visible());
        const QRegularExpression told(u"^Reading \\d+ of [1-9]\\d*$"_s);
        QVERIFY2(told.match(frmFind->lblFound.Caption()).hasMatch(), qPrintable(frmFind->lblFound.Caption()));
        int last = 0;
        QVERIFY(QTest::qWaitFor(
            [&] {
                last = std::max(last, frmFind->ProgressGuage.FloodPercent());
                return !frmFind->ProgressGuage.Visible();
            },
            20'000));
        QVERIFY(last > 0);
        QVERIFY(!frmFind->lblFound.Caption().contains(u"Reading"_s));
    }

    void nothing_found_is_told_only_when_all_is_read()
    {
        for (int year = 70; year < 100; ++year)
            program_->disc.AddDocument(u"%1desc.rtf"_s.arg(year), u"much to be read\\par "_s.repeated(4000));
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        frmFind->txtFind.SetText(u"submarine"_s);
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        QStringList told;
        QVERIFY(QTest::qWaitFor(
            [&] {
                told.append(FirstLine());
                return !frmFind->ProgressGuage.Visible();
            },
            20'000));
        QVERIFY(told.size() > 1);
        QCOMPARE(told.takeLast(), u"Nothing found"_s);
        QVERIFY2(!told.contains(u"Nothing found"_s), qPrintable(told.join(u'|')));
    }

    void damaged_and_missing_articles_are_counted()
    {
        OpenForm();
        WaitForEnd();
        const int missing = 35 * 5 + 20 + 1 - 4; // of which four are there; a topic lacks one
        QCOMPARE(frmFind->lblFound.Caption(), u"%1 are missing or cannot be read"_s.arg(missing));
        program_->disc.AddFile(u"RichText/books.rtf"_s, {});
        Find(u"hood"_s);
        QCOMPARE(frmFind->lblFound.Caption(), u"2 found\n%1 are missing or cannot be read"_s.arg(missing));
    }

    void one_missing_article_is_told_as_one()
    {
        AddAllArticles();
        program_->disc.Remove(u"RichText/68desc.rtf"_s);
        OpenForm();
        WaitForEnd();
        QCOMPARE(frmFind->lblFound.Caption(), u"1 is missing or cannot be read"_s);
    }

    void the_form_takes_the_users_size()
    {
        OpenForm();
        frmFind->SetWidth(12'000);
        frmFind->SetHeight(9'000);
        program_->Settle();
        QCOMPARE(frmFind->txtFind.Width(), frmFind->ScaleWidth() - 240);
        QCOMPARE(frmFind->lstFound.Width(), frmFind->ScaleWidth() - 240);
        QVERIFY(frmFind->lstFound.Top() + frmFind->lstFound.Height() < frmFind->lblFound.Top());
        QVERIFY(frmFind->cmdClose.Left() + frmFind->cmdClose.Width() <= frmFind->ScaleWidth());
        frmFind->SetWidth(600);
        frmFind->SetHeight(600);
        program_->Settle();
        QVERIFY(frmFind->lstFound.Height() >= 0);
    }

    void every_part_has_a_name_for_a_screen_reader()
    {
        OpenForm();
        QCOMPARE(frmFind->txtFind.Widget().accessibleName(),
                 u"Words to find, \"words in a row\", -without"_s);
        QCOMPARE(frmFind->lstFound.Widget().accessibleName(), u"What was found"_s);
        QCOMPARE(frmFind->cmdOpen.Widget().accessibleName(), u"Open"_s);
        QCOMPARE(frmFind->cmdClose.Widget().accessibleName(), u"Close"_s);
        Find(u"silver"_s);
        QVERIFY(frmFind->lblFound.Widget().accessibleName().startsWith(u"1 found"_s));
    }

private:
    struct Seen {
        QString title;
        QStringList marked;
        QString bar;
        bool isFirstInView = false;
    };

    void OpenForm()
    {
        QTest::keyClick(&Form1->cmdYR(2).Widget(), Qt::Key_F, Qt::ControlModifier);
        program_->Settle();
        frmFind->Window().activateWindow();
        program_->Settle();
    }

    /// Opens the form on a disc that takes a while to be read.
    void OpenFormOnLongDisc()
    {
        for (int year = 70; year < 100; ++year) {
            for (const char* ending : {"desc.rtf", "opts.rtf"})
                program_->disc.AddDocument(QString::number(year) + QLatin1String(ending),
                                           u"much to be read\\par "_s.repeated(4000));
        }
        Form1->KeyDown.Fire(key::letterF, held::ctrl);
        program_->Settle();
        frmFind->Window().activateWindow();
        QVERIFY(frmFind->ProgressGuage.Visible());
    }

    /// Everything that a button or menu entry asks for, as far as the disc lacks it.
    void AddAllArticles()
    {
        const auto add = [this](const QString& file) {
            const QString relative = QString(file).remove(0, 1).replace(u'\\', u'/');
            if (!QFile::exists(program_->disc.PathOf(relative)))
                program_->disc.AddDocument(relative.section(u'/', -1), u"A word."_s);
        };
        for (int button = 1; button <= yearCount; ++button) {
            const QString year = YearOfButton(button);
            for (const ArticleButton each : {ArticleButton::Description, ArticleButton::Options,
                                             ArticleButton::Statistics, ArticleButton::Colors})
                add(ArticleOf(each, year).file);
            add(NostalgiaOf(year).file);
        }
        for (const Topic& topic : Topics()) {
            for (const ArticleButton each : {ArticleButton::Description, ArticleButton::Options,
                                             ArticleButton::Statistics, ArticleButton::Colors}) {
                if (AsksForArticle(each, topic))
                    add(ArticleOf(each, QString::fromLatin1(topic.title)).file);
            }
        }
        for (const LibraryDocument& document : LibraryDocuments())
            add(QLatin1String(document.file));
    }

    void WaitForEnd()
    {
        QVERIFY(QTest::qWaitFor([] { return !frmFind->ProgressGuage.Visible(); }, 20'000));
    }

    /// Puts an image in the drive, the only document of which holds a text.
    void PutImageIn(const char* text)
    {
        ImageMaker maker;
        maker.AddFile("BOOKS.RTF;1", "{\\rtf1 " + QByteArray(text) + "}", maker.AddFolder("RICHTEXT"));
        PutImageIn(maker.Iso());
    }
    void PutImageIn(const QByteArray& image)
    {
        QFile::remove(program_->InProgramFolder(u"disc.iso"_s));
        program_->AddToProgramFolder(u"disc.iso"_s, image);
        SetDriveOptions({{u'G', program_->InProgramFolder(u"disc.iso"_s)}});
    }

    static QString FirstLine() { return frmFind->lblFound.Caption().section(u'\n', 0, 0); }

    /// Waits for a text of lblFound; "%1" stands for the line of what could not be read.
    void WaitFor(const QString& text)
    {
        const QString first = text.section(u'\n', 0, 0);
        QVERIFY2(QTest::qWaitFor([&] { return FirstLine() == first && !frmFind->ProgressGuage.Visible(); },
                                 20'000),
                 qPrintable(frmFind->lblFound.Caption()));
    }

    /// Types words anew and waits for their answer from a disc that is read to its end.
    void Find(const QString& words)
    {
        if (!frmFind.IsLoaded())
            OpenForm();
        Ask({});
        QVERIFY2(QTest::qWaitFor([] { return IsAllRead() && frmFind->lstFound.ListCount() == 0; }, 20'000),
                 qPrintable(frmFind->lblFound.Caption()));
        Ask(words);
        if (LookForSomething(SearchTermsOf(words)))
            QVERIFY2(QTest::qWaitFor([] { return IsAllRead() && IsCounted(); }, 20'000),
                     qPrintable(frmFind->lblFound.Caption()));
        program_->Settle();
    }

    void Ask(const QString& words)
    {
        frmFind->txtFind.SetText(words);
        Clock::Turn(80);
        program_->Settle();
    }

    static bool IsAllRead() { return !frmFind->ProgressGuage.Visible(); }
    static bool IsCounted() { return FirstLine().endsWith(u"ound"_s); }

    template <typename Opening>
    Seen VisitViewer(Opening&& opening)
    {
        Seen seen;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                seen.title = txtForm->Caption();
                seen.marked = MarkedIn(txtForm->rtbText);
                seen.bar = txtForm->panFind.Visible() ? txtForm->lblFindText.Caption() : u"closed"_s;
                auto& pane = static_cast<QTextBrowser&>(txtForm->rtbText.Widget());
                if (!pane.extraSelections().isEmpty()) {
                    QTextCursor first = pane.extraSelections().first().cursor;
                    first.setPosition(first.selectionStart());
                    seen.isFirstInView = pane.viewport()->rect().contains(pane.cursorRect(first));
                }
                program_->Click(txtForm->SSCommand1);
            },
            [] { txtForm.Unload(); });
        opening();
        program_->Settle();
        return seen;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(FindFormTest)
#include "find_form_test.moc"
