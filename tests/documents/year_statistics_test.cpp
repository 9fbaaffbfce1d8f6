#include "program/program_state.h"
#include "support/desktop.h"
#include "support/program.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QTextBrowser>
#include <QTextCursor>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The statistics behind cmdStats: an article in the viewer, or a note of the photo over the photo.
class YearStatisticsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {u"67"_s, u"69"_s, u"A1"_s})
            program_->disc.AddGroup(prefix, 2);
        program_->StartBrowsing();
        program_->Click(Form1->cmdYR(3));
    }
    void cleanup() { program_.reset(); }

    void a_topic_with_notes_shows_the_note_of_the_photo_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("photo");
        QTest::addColumn<QString>("file");
        const auto row = [](const char* title, int photo, const char* file) {
            QTest::addRow("%s%d", title, photo)
                << QString::fromLatin1(title) << photo << QString::fromLatin1(file);
        };
        row("Early Torvik Prototypes ", 1, "pt002.rtf");
        row("Early Torvik Prototypes ", 5, "pt010.rtf");
        row("Torvik Kestra I ", 4, "m1008.rtf");
        row("Torvik Kestra I ", 5, "m1010.rtf");
        row("Arlen Mercer Art Print ", 4, "glsj08.rtf");
        row("Arlen Mercer Art Print ", 5, "glsj010.rtf");
        row("Torvik Cookies ", 4, "usa008.rtf");
        row("Torvik Cookies ", 5, "usa0010.rtf");
        row("The Torvik Monopoly Game ", 4, "vck008.rtf");
        row("The Torvik Monopoly Game ", 5, "vck0010.rtf");
        row("Torvik Metal Signs ", 4, "vms08.rtf");
        row("Torvik Metal Signs ", 5, "vms010.rtf");
        row("Torvik Postage Stamps ", 4, "zz008.rtf");
        row("Torvik Postage Stamps ", 5, "zz010.rtf");
        row("Franklin Mint Collector Knives ", 4, "tek008.rtf");
        row("Franklin Mint Collector Knives ", 5, "tek010.rtf");
        row("Franklin Mint Die Cast Models ", 4, "tfm008.rtf");
        row("Franklin Mint Die Cast Models ", 5, "tfm010.rtf");
        row("Danbury Mint Die Cast Models ", 4, "tdm008.rtf");
        row("Danbury Mint Die Cast Models ", 12, "tdm024.rtf");
    }
    void a_topic_with_notes_shows_the_note_of_the_photo()
    {
        QFETCH(QString, title);
        QFETCH(int, photo);
        QFETCH(QString, file);
        program_->disc.AddDocument(file, u"Note "_s + file);
        const Viewed viewed = ClickStats(title, photo);
        QVERIFY(!viewed.came);
        QVERIFY2(program_->messages.Shown().isEmpty(), qPrintable(program_->messages.Last().text));
        QVERIFY(Form1->rtbDetails.Visible());
        QCOMPARE(state.DocumentFile, u"G:\\richtext\\"_s + file);
        QCOMPARE(Form1->rtbDetails.FileName(), state.DocumentFile);
        QCOMPARE(Form1->rtbDetails.Text(), u"Note "_s + file);
        QVERIFY(!txtForm.IsLoaded());
        CheckNotePlace();
    }

    void all_else_opens_an_article_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("window");
        const auto row = [](const char* title, const char* file, const char* window) {
            QTest::newRow(title) << QString::fromLatin1(title) << QString::fromLatin1(file)
                                 << QString::fromLatin1(window);
        };
        row("1969", "69stats.rtf", "The Torvik Vollandry       1969 Statistics");
        row("2000", "a0stats.rtf", "The Torvik Vollandry     2000 Statistics");
        row("2001", "a1stats.rtf", "The Torvik Vollandry     2001 Statistics");
        row("The Classic Harwell ", "sbstats.rtf",
            "The Torvik Vollandry       The Classic Harwell  Specifications");
        row("Torvik Kestra III ", "m3stats.rtf",
            "The Torvik Vollandry       Torvik Kestra III  Specifications");
        row("Torvik Super Stallion ", "msstats.rtf",
            "The Torvik Vollandry       Torvik Super Stallion  Specifications");
    }
    void all_else_opens_an_article()
    {
        QFETCH(QString, title);
        QFETCH(QString, file);
        QFETCH(QString, window);
        program_->disc.AddDocument(file, u"Article "_s + file);
        const Viewed viewed = ClickStats(title);
        QVERIFY2(viewed.came, qPrintable(program_->messages.Last().text));
        QCOMPARE(viewed.caption, window);
        QCOMPARE(state.DocumentTitle, window);
        QCOMPARE(viewed.file, u"G:\\richtext\\"_s + file);
        QCOMPARE(viewed.text, u"Article "_s + file);
        QVERIFY(!Form1->rtbDetails.Visible());
        CheckNotePlace();
    }

    void the_first_Kestra_has_notes_and_so_never_its_article()
    {
        program_->disc.AddDocument(u"m1stats.rtf"_s, u"Article"_s);
        program_->disc.AddDocument(u"m1002.rtf"_s, u"Note"_s);
        QVERIFY(!ClickStats(u"Torvik Kestra I "_s).came);
        QCOMPARE(Form1->rtbDetails.Text(), u"Note"_s);
    }

    void with_nothing_chosen_nothing_happens()
    {
        state.ErrorCode = u"ER999"_s;
        Form1->cmdStats.SetFocus();
        QVERIFY(!ClickStats(u"panYear"_s).came);
        QCOMPARE(state.ErrorCode, u"ER999"_s);
        QCOMPARE(Program::Focus(), u"cmdStats"_s);
        QVERIFY(program_->messages.Shown().isEmpty());
        QCOMPARE(Form1->rtbDetails.Height(), 65.0);
    }

    void a_second_click_hides_the_note_and_moves_the_focus_once_more()
    {
        program_->disc.AddDocument(u"vms02.rtf"_s, u"Note"_s);
        ClickStats(u"Torvik Metal Signs "_s);
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        QVERIFY(Form1->rtbDetails.Visible());
        Form1->cmdStats.SetFocus();
        ClickStats(u"Torvik Metal Signs "_s);
        QVERIFY(!Form1->rtbDetails.Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
    }

    void a_visible_note_is_only_hidden_although_a_year_is_on_show()
    {
        program_->disc.AddDocument(u"69stats.rtf"_s, u"Article"_s);
        Form1->rtbDetails.Show();
        QVERIFY(!ClickStats(u"1969"_s).came);
        QVERIFY(!Form1->rtbDetails.Visible());
    }

    void a_click_on_the_note_hides_it_and_moves_the_focus()
    {
        program_->disc.AddDocument(u"vms02.rtf"_s, u"Note"_s);
        ClickStats(u"Torvik Metal Signs "_s);
        Form1->cmdStats.SetFocus();
        QTest::mouseClick(Form1->rtbDetails.Widget().findChild<QWidget*>(u"qt_scrollarea_viewport"_s),
                          Qt::LeftButton);
        program_->Settle();
        QVERIFY(!Form1->rtbDetails.Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
    }

    void a_click_on_a_link_of_the_note_opens_it_and_leaves_the_note()
    {
        program_->disc.AddFile(u"RichText/vms02.rtf"_s,
                               "{\\rtf1 {\\field{\\*\\fldinst HYPERLINK \"http://quillon.example/a\"}"
                               "{\\fldrslt Quillon}}\\par words without a link}");
        Form1->panYear.SetCaption(u"Torvik Metal Signs "_s);
        program_->Click(Form1->cmdStats);
        QVERIFY(Form1->rtbDetails.Visible());
        auto* pane = static_cast<QTextBrowser*>(&Form1->rtbDetails.Widget());
        const Desktop desktop;
        QTest::mouseClick(pane->viewport(), Qt::LeftButton, {}, MiddleOf(*pane, 3));
        program_->Settle();
        QCOMPARE(desktop.opened, QStringList{u"http://quillon.example/a"_s});
        QVERIFY(Form1->rtbDetails.Visible());
        QTest::mouseClick(pane->viewport(), Qt::LeftButton, {}, MiddleOf(*pane, 12));
        program_->Settle();
        QVERIFY(!Form1->rtbDetails.Visible());
        QCOMPARE(desktop.opened.size(), 1);
    }

    void the_note_comes_in_front_of_the_photo()
    {
        program_->disc.AddDocument(u"vms02.rtf"_s, u"Note"_s);
        Form1->Image4.ZOrder();
        ClickStats(u"Torvik Metal Signs "_s);
        const QWidget& note = Form1->rtbDetails.Widget();
        QWidget* const window = &Form1->Host();
        const QWidget* atItsCentre = window->childAt(note.geometry().center());
        QVERIFY(atItsCentre == &note || note.isAncestorOf(atItsCentre));
    }

    void a_missing_note_is_reported_and_stays_hidden_in_its_new_place()
    {
        Form1->cmdStats.SetFocus();
        QVERIFY(!ClickStats(u"Torvik Metal Signs "_s).came);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Error number: ER027\r\n\r\n Unable to load the text file."_s));
        QVERIFY(!Form1->rtbDetails.Visible());
        CheckNotePlace();
        QCOMPARE(state.DocumentFile, u"G:\\richtext\\vms02.rtf"_s);
    }

    void a_missing_article_is_reported()
    {
        QVERIFY(!ClickStats(u"1969"_s).came);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER027\r"_s));
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        QVERIFY(!txtForm.IsLoaded());
    }

    void a_disc_that_is_gone_is_reported()
    {
        program_->PutDiscIn(QChar());
        QVERIFY(!ClickStats(u"1969"_s).came);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(state.ErrorCode, u"ER027"_s);
    }

    void a_focus_that_cannot_move_is_reported_before_anything_is_shown()
    {
        program_->disc.AddDocument(u"69stats.rtf"_s, u"Article"_s);
        Form1->cmdYR(4).SetEnabled(false);
        QVERIFY(!ClickStats(u"1969"_s).came);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: ER027\r"_s));
        QCOMPARE(Form1->rtbDetails.Height(), 65.0);
    }

private:
    Viewed ClickStats(const QString& title, int photo = 1)
    {
        Form1->panYear.SetCaption(title);
        Form1->panPhoto.SetCaption(photo);
        return ViewerOf(*program_, [&] { program_->Click(Form1->cmdStats); });
    }

    /// Where the character at a position of the text is painted.
    static QPoint MiddleOf(const QTextBrowser& pane, int position)
    {
        QTextCursor cursor(pane.document());
        cursor.setPosition(position);
        return pane.cursorRect(cursor).center();
    }
    static void CheckNotePlace()
    {
        const Form1Controls& form = *Form1;
        QCOMPARE(form.rtbDetails.Width(), 329.0);
        QCOMPARE(form.rtbDetails.Height(), 106.0);
        QCOMPARE(form.rtbDetails.Left(), form.cmdAd.Left() + form.cmdAd.Width() - 329 - 10);
        QCOMPARE(form.rtbDetails.Top(), form.Image4.Top() + 9);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(YearStatisticsTest)
#include "year_statistics_test.moc"
