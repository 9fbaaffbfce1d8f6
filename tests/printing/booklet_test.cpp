#include "program/program_state.h"
#include "support/booklet_run.h"
#include "support/discs/opened_files.h"
#include "support/test_class.h"
#include "ui/forms/screen.h"
#include "ui/printer/printer.h"
#include "windows/main_window.h"

#include <QLabel>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the booklet holds, read back from the printed files.
class BookletTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { run_ = std::make_unique<BookletRun>(); }
    void cleanup() { run_.reset(); }

    // What is printed

    void a_description_is_one_document_for_each_year()
    {
        run_->Print({box::description}, "1967", "1969");
        ExpectPrinted(*run_, {u"Description of 67."_s, u"Description of 68."_s, u"Description of 69."_s});
    }

    void the_details_are_options_statistics_and_colors_in_this_order()
    {
        run_->Print({box::details}, "1967", "1967");
        ExpectPrinted(*run_, {u"Options of 67."_s, u"Statistics of 67."_s, u"Colors of 67."_s});
    }

    void a_year_is_complete_before_the_next_one_begins()
    {
        run_->Print({box::description, box::details}, "1968", "1969");
        QStringList expected;
        for (const char* year : {"68", "69"})
            expected += DocumentsOf(year);
        ExpectPrinted(*run_, expected);
    }

    void one_year_can_be_both_ends()
    {
        run_->Print({box::description}, "1968", "1968");
        ExpectPrinted(*run_, {u"Description of 68."_s});
    }

    void the_range_runs_over_the_turn_of_the_century()
    {
        run_->Print({box::description, box::details}, "1998", "2001");
        QStringList expected;
        for (const char* year : {"98", "99", "A0", "A1"})
            expected += DocumentsOf(year);
        ExpectPrinted(*run_, expected);
    }

    void one_year_of_the_new_century_is_a_range_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::newRow("2000") << u"A0"_s;
        QTest::newRow("2001") << u"A1"_s;
    }
    void one_year_of_the_new_century_is_a_range()
    {
        QFETCH(QString, prefix);
        const char* year = QTest::currentDataTag();
        run_->Print({box::description}, year, year);
        ExpectPrinted(*run_, {u"Description of "_s + prefix + u'.'});
        QCOMPARE(state.DocumentFile, u"G:\\RichText\\"_s + prefix + u"desc.rtf"_s);
    }

    void long_documents_take_the_pages_that_they_need()
    {
        run_->user.disc.AddDocument(u"99desc.rtf"_s, u"One.\\page Two.\\page Three."_s);
        run_->user.disc.AddDocument(u"A1desc.rtf"_s, u"One.\\page Two."_s);
        run_->Print({box::description}, "1999", "2001");
        QCOMPARE(run_->printed.Jobs(), 3);
        QCOMPARE(run_->printed.Pages(1).size(), 3);
        QCOMPARE(run_->printed.Pages(2).size(), 1);
        QCOMPARE(run_->printed.Pages(3).size(), 2);
    }

    void the_boxes_do_not_mind_the_order_in_which_they_are_ticked()
    {
        run_->Print({box::details, box::introduction, box::description}, "1967", "1967");
        ExpectPrinted(*run_, QStringList(u"Introduction."_s) + DocumentsOf("67"));
    }

    void the_introduction_needs_no_year()
    {
        run_->Print({box::introduction});
        ExpectPrinted(*run_, {u"Introduction."_s});
        QCOMPARE(state.DocumentFile, u"G:\\RichText\\introduction.rtf"_s);
    }

    void a_box_without_documents_of_its_own_prints_nothing_data() { AddBoxesWithoutDocuments(); }
    void a_box_without_documents_of_its_own_prints_nothing()
    {
        QFETCH(int, box);
        run_->Print({box}, "1967", "2001");
        ExpectPrinted(*run_, {});
        QVERIFY(!Printer.HasJob());
    }

    void each_document_is_read_once_and_laid_out_for_paper_alone()
    {
        const OpenedFiles opened(run_->user.disc.PathOf(u"RichText"_s));
        run_->Print({box::introduction, box::description, box::details}, "1967", "1968");
        ExpectPrinted(*run_, QStringList(u"Introduction."_s) + DocumentsOf("67") + DocumentsOf("68"));
        QStringList expected{u"introduction.rtf"_s};
        for (const char* year : {"67", "68"}) {
            for (const char* topic : {"desc", "opts", "stats", "colors"})
                expected.append(QString::fromLatin1(year) + QString::fromLatin1(topic) + u".rtf"_s);
        }
        QCOMPARE(opened.Names(), expected);
        QVERIFY(!Form1->rtbText.Document().isLayoutEnabled()); // for the screen, on which nobody sees it
    }

    void every_document_keeps_an_inch_from_the_edges()
    {
        QString wordy;
        for (int count = 0; count < 300; ++count)
            wordy += u"Words enough to fill lines and pages. "_s;
        run_->user.disc.AddDocument(u"67desc.rtf"_s, wordy);
        run_->Print({box::description}, "1967", "1967");
        const QSizeF paper = run_->printed.Paper(1);
        const QRectF ink = InkOf(run_->printed.Image(1, 1));
        constexpr double millimetre = 56.7;
        QVERIFY(qAbs(ink.left() - 1440) < millimetre);
        QVERIFY(ink.top() >= 1440 - millimetre && ink.top() < 1440 + 200);
        QVERIFY(ink.right() <= paper.width() - 1440 + millimetre);
        QVERIFY(ink.bottom() <= paper.height() - 1440 + millimetre);
    }

    // The cover

    void each_cover_picture_stands_at_its_place_in_its_natural_size_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < 4; ++index)
            QTest::newRow(coverArt.at(static_cast<std::size_t>(index)).file) << index;
    }
    void each_cover_picture_stands_at_its_place_in_its_natural_size()
    {
        QFETCH(int, index);
        constexpr double border = 360;      // twips from the paper's edge to the printable area
        constexpr double millimetre = 56.7; // twips
        run_->Print({box::cover, box::introduction});
        const CoverArt& art = coverArt.at(static_cast<std::size_t>(index));
        const QRectF ink = InkOf(run_->printed.Image(1, 1), [&](const QColor& colour) {
            return qAbs(colour.red() - art.colour.red()) < 40 &&
                   qAbs(colour.green() - art.colour.green()) < 40 &&
                   qAbs(colour.blue() - art.colour.blue()) < 40;
        });
        QVERIFY(qAbs(ink.left() - (border + art.place.x())) < millimetre);
        QVERIFY(qAbs(ink.top() - (border + art.place.y())) < millimetre);
        QVERIFY(qAbs(ink.width() - art.size.width() * 15) < millimetre);
        QVERIFY(qAbs(ink.height() - art.size.height() * 15) < millimetre);
    }

    void the_cover_pictures_are_printed_in_order()
    {
        run_->Print({box::cover, box::introduction});
        QList<QSize> expected;
        for (const CoverArt& art : coverArt)
            expected.append(art.size);
        QCOMPARE(run_->printed.PictureSizes(1), expected);
    }

    void no_cover_picture_is_held_after_it_was_printed()
    {
        run_->Print({box::cover, box::introduction});
        QCOMPARE(run_->printed.PictureSizes(1).size(), 4);
        QVERIFY(Form1->Picture3.Picture().IsEmpty());
        QVERIFY(static_cast<QLabel&>(Form1->Picture3.Widget()).pixmap().isNull());
    }

    void the_cover_rides_in_the_job_of_the_first_document()
    {
        run_->Print({box::cover, box::introduction, box::description}, "1967", "1968");
        QCOMPARE(run_->printed.Jobs(), 3);
        QCOMPARE(run_->printed.Pages(1).size(), 2);
        QCOMPARE(run_->printed.Pages(1).at(0).simplified(), QString());
        QCOMPARE(run_->printed.Pages(1).at(1).simplified(), u"Introduction."_s);
        QCOMPARE(run_->printed.Pages(2).size(), 1);
    }

    void without_an_introduction_the_cover_rides_with_the_first_year()
    {
        run_->Print({box::cover, box::details}, "1967", "1967");
        QCOMPARE(run_->printed.Jobs(), 3);
        QCOMPARE(run_->printed.Pages(1).size(), 2);
        QCOMPARE(run_->printed.Pages(1).at(1).simplified(), u"Options of 67."_s);
    }

    void a_cover_alone_needs_no_year_and_leaves_its_job_open()
    {
        run_->Print({box::cover});
        ExpectSuccess(*run_);
        QVERIFY(Printer.HasJob());
        QCOMPARE(run_->printed.Jobs(), 0);
        Printer.EndDoc(); // as the end of the program does
        QCOMPARE(run_->printed.Jobs(), 1);
        QCOMPARE(run_->printed.Pages(1).size(), 2);
        QVERIFY(!InkOf(run_->printed.Image(1, 1)).isNull());
        QVERIFY(InkOf(run_->printed.Image(1, 2)).isNull());
    }

    void the_next_document_continues_the_job_of_a_cover_that_stood_alone()
    {
        run_->Print({box::cover});
        run_->user.Click(Form1->Check1(box::cover));
        run_->user.Click(Form1->Check1(box::introduction));
        run_->user.Click(Form1->cmdPrint);
        QVERIFY(!Printer.HasJob());
        QCOMPARE(run_->printed.Jobs(), 1);
        QCOMPARE(run_->printed.Pages(1).size(), 2);
        QCOMPARE(run_->printed.Pages(1).at(1).simplified(), u"Introduction."_s);
    }

    // What the user is told

    void success_is_told_and_the_buttons_say_so_afterwards()
    {
        run_->Print({box::cover, box::description}, "1967", "1968");
        ExpectSuccess(*run_);
        QCOMPARE(run_->user.messages.Count(), 1);
        QCOMPARE(state.MessageText, u"Booklet printed!\r\n"_s);
        QVERIFY(Form1->pnlPrint.Visible());
        QVERIFY(Form1->Check1(box::cover).Value() && Form1->Check1(box::description).Value());
        QCOMPARE(Form1->List1(0).Text(), u"1967"_s);
        QCOMPARE(Form1->List1(1).Text(), u"1968"_s);
        QVERIFY(Form1->cmdPrint.Enabled());
    }

    void the_captions_change_only_after_the_message()
    {
        run_->user.messages.WhenAsked([this] {
            seen_ = {Form1->cmdPrint.Caption(), Form1->cmdOK.Caption()};
            QCOMPARE(Screen.Pointer(), MousePointer::Default);
        });
        run_->Print({box::introduction});
        QCOMPARE(seen_, QStringList({u"Print"_s, u"Cancel"_s}));
    }

    void printing_again_prints_the_same_again()
    {
        run_->Print({box::introduction, box::description}, "1967", "1968");
        run_->user.messages.Clear();
        run_->user.Click(Form1->cmdPrint);
        ExpectSuccess(*run_);
        const QStringList booklet{u"Introduction."_s, u"Description of 67."_s, u"Description of 68."_s};
        ExpectPrinted(*run_, booklet + booklet);
    }

    void clear_begins_anew_after_a_booklet()
    {
        run_->Print({box::introduction});
        run_->user.Click(Form1->SSCommand7);
        QCOMPARE(Form1->cmdPrint.Caption(), u"Print"_s);
        QCOMPARE(Form1->cmdOK.Caption(), u"Cancel"_s);
        QVERIFY(!Form1->cmdPrint.Enabled());
    }

    void exit_hides_the_panel_after_a_booklet()
    {
        run_->Print({box::introduction});
        QCOMPARE(Form1->cmdOK.Caption(), u"Exit"_s);
        run_->user.Click(Form1->cmdOK);
        QVERIFY(!Form1->pnlPrint.Visible());
    }

private:
    QStringList seen_;
    std::unique_ptr<BookletRun> run_;
};

TORVIK_TEST(BookletTest)
#include "booklet_test.moc"
