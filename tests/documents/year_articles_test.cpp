#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "ui/forms/screen.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The articles of a year or topic behind cmdDesc, cmdColors, cmdOptions and cmdNostalgia.
class YearArticlesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {u"67"_s, u"69"_s, u"A1"_s})
            program_->disc.AddGroup(prefix, 2);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void an_article_is_found_by_what_panYear_says_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("file");   // as it lies on the disc, in the folder RichText
        QTest::addColumn<QString>("opened"); // as the program names it, below the drive
        QTest::addColumn<QString>("window");

        const auto row = [](const char* name, const char* button, const char* title, const char* file,
                            const char* folder, const char* window) {
            QTest::newRow(name) << QString::fromLatin1(button) << QString::fromLatin1(title)
                                << QString::fromLatin1(file)
                                << QString::fromLatin1(folder) + QString::fromLatin1(file)
                                << QString::fromLatin1(window);
        };
        const char* const upper = "\\RichText\\";
        const char* const lower = "\\richtext\\";
        row("colours of a year", "cmdColors", "1969", "69colors.rtf", upper,
            "The Torvik Vollandry       1969 Colors");
        row("colours of 2000", "cmdColors", "2000", "a0colors.rtf", upper,
            "The Torvik Vollandry     2000 Colors");
        row("colours of 2001", "cmdColors", "2001", "a1colors.rtf", upper,
            "The Torvik Vollandry     2001 Colors");
        row("colours of the Harwell", "cmdColors", "The Classic Harwell ", "sbcolors.rtf", upper,
            "The Torvik Vollandry       The Classic Harwell  Colors");
        row("options of a year", "cmdOptions", "1999", "99opts.rtf", upper,
            "The Torvik Vollandry       1999 Options");
        row("options of 2000", "cmdOptions", "2000", "a0OPTS.rtf", upper,
            "The Torvik Vollandry     2000 Options");
        row("options of 2001", "cmdOptions", "2001", "a1OPTS.rtf", upper,
            "The Torvik Vollandry     2001 Options");
        row("options of the Harwell", "cmdOptions", "The Classic Harwell ", "sbopts.rtf", upper,
            "The Torvik Vollandry       The Classic Harwell  Options");
        row("description of a year", "cmdDesc", "1967", "67desc.rtf", lower,
            "The Torvik Vollandry       1967 Description");
        row("description of 2001", "cmdDesc", "2001", "a1desc.rtf", lower,
            "The Torvik Vollandry     2001 Description");
        row("nothing chosen", "cmdDesc", "panYear", "Introduction.rtf", lower,
            "The Torvik Vollandry       Introduction");
        row("stamps", "cmdDesc", "Torvik Postage Stamps ", "stamps.rtf", lower,
            "The Torvik Vollandry       Torvik Postage Stamps ");
        row("calendars", "cmdDesc", "Torvik Calendars ", "carstuff.rtf", lower,
            "The Torvik Vollandry       Torvik Calendars ");
        row("knives", "cmdDesc", "Franklin Mint Collector Knives ", "knives.rtf", lower,
            "The Torvik Vollandry       Franklin Mint Collector Knives ");
        row("plates", "cmdDesc", "Franklin Mint Collector Plates ", "plates.rtf", lower,
            "The Torvik Vollandry       Franklin Mint Collector Plates ");
        row("Franklin models", "cmdDesc", "Franklin Mint Die Cast Models ", "franklin.rtf", lower,
            "The Torvik Vollandry       Franklin Mint Die Cast Models ");
        row("Danbury models", "cmdDesc", "Danbury Mint Die Cast Models ", "danbury.rtf", lower,
            "The Torvik Vollandry       Danbury Mint Die Cast Models ");
        row("Monopoly", "cmdDesc", "The Torvik Monopoly Game ", "monopoly.rtf", lower,
            "The Torvik Vollandry       The Torvik Monopoly Game ");
        row("metal signs", "cmdDesc", "Torvik Metal Signs ", "desperat.rtf", lower,
            "The Torvik Vollandry       Torvik Metal Signs ");
        row("prototypes", "cmdDesc", "Early Torvik Prototypes ", "ptdesc.rtf", lower,
            "The Torvik Vollandry       Early Torvik Prototypes Description ");
        row("a topic that only its letters could name", "cmdDesc", "Torvik Kestra III ", "rvdesc.rtf", lower,
            "The Torvik Vollandry       19rv Description");
        row("nostalgia of a year", "cmdNostalgia", "1967", "nostalgia67.rtf", lower,
            "The Torvik Vollandry     Nostalgia 1967");
        row("nostalgia of 2001", "cmdNostalgia", "2001", "nostalgia01.rtf", lower,
            "The Torvik Vollandry     Nostalgia 2001");
    }
    void an_article_is_found_by_what_panYear_says()
    {
        QFETCH(QString, button);
        QFETCH(QString, title);
        QFETCH(QString, file);
        QFETCH(QString, opened);
        QFETCH(QString, window);
        program_->disc.AddDocument(file, u"Text of "_s + file);
        const Viewed viewed = Click(button, title);
        QVERIFY2(viewed.came, qPrintable(program_->messages.Last().text));
        QCOMPARE(viewed.caption, window);
        QCOMPARE(viewed.file, u"G:"_s + opened);
        QCOMPARE(state.DocumentFile, viewed.file);
        QCOMPARE(viewed.text, u"Text of "_s + file);
        QVERIFY(program_->messages.Shown().isEmpty());
        QVERIFY(!txtForm.IsLoaded());
    }

    void titles_of_colours_and_options_are_stored_and_so_are_two_of_the_descriptions()
    {
        for (const QString& file : {u"69colors.rtf"_s, u"69desc.rtf"_s, u"a1desc.rtf"_s,
                                    u"introduction.rtf"_s, u"69opts.rtf"_s, u"stamps.rtf"_s})
            program_->disc.AddDocument(file, file);
        Click(u"cmdColors"_s, u"1969"_s);
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry       1969 Colors"_s);
        Click(u"cmdDesc"_s, u"1969"_s);
        Click(u"cmdDesc"_s, u"Torvik Postage Stamps "_s);
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry       1969 Colors"_s);
        Click(u"cmdOptions"_s, u"1969"_s);
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry       1969 Options"_s);
        Click(u"cmdDesc"_s, u"2001"_s);
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry     2001 Description"_s);
        Click(u"cmdDesc"_s, u"panYear"_s);
        QCOMPARE(state.DocumentTitle, u"The Torvik Vollandry       Introduction"_s);
    }

    void a_missing_article_is_reported_under_the_code_of_its_button_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("code");
        QTest::newRow("colours") << u"cmdColors"_s << u"1969"_s << u"ER029"_s;
        QTest::newRow("colours of a topic") << u"cmdColors"_s << u"Torvik Metal Signs "_s << u"ER029"_s;
        QTest::newRow("colours of the Harwell") << u"cmdColors"_s << u"The Classic Harwell "_s << u"ER029"_s;
        QTest::newRow("options") << u"cmdOptions"_s << u"2001"_s << u"ER026"_s;
        QTest::newRow("options of a topic") << u"cmdOptions"_s << u"Torvik Cookies "_s << u"ER026"_s;
        QTest::newRow("description") << u"cmdDesc"_s << u"1969"_s << u"ER002"_s;
        QTest::newRow("description of a topic") << u"cmdDesc"_s << u"Torvik Postage Stamps "_s << u"ER002"_s;
        QTest::newRow("introduction") << u"cmdDesc"_s << u"panYear"_s << u"ER002"_s;
        QTest::newRow("nostalgia") << u"cmdNostalgia"_s << u"1969"_s << u"ER005"_s;
    }
    void a_missing_article_is_reported_under_the_code_of_its_button()
    {
        QFETCH(QString, button);
        QFETCH(QString, title);
        QFETCH(QString, code);
        QVERIFY(!Click(button, title).came);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY2(program_->messages.Last().text.startsWith(u"Error number: "_s + code + u"\r"_s),
                 qPrintable(program_->messages.Last().text));
        QCOMPARE(program_->messages.Last().style, 16);
        QCOMPARE(state.ErrorCode, code);
    }

    void a_plain_miss_moves_the_focus_on_but_a_failure_leaves_it()
    {
        Form1->cmdColors.SetFocus();
        Click(u"cmdColors"_s, u"1969"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
        Click(u"cmdNostalgia"_s, u"1969"_s);
        QCOMPARE(Program::Focus(), u"cmdNostalgia"_s);
    }

    void a_disc_that_is_gone_is_reported_under_the_same_codes_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("code");
        QTest::newRow("colours") << u"cmdColors"_s << u"ER029"_s;
        QTest::newRow("options") << u"cmdOptions"_s << u"ER026"_s;
        QTest::newRow("description") << u"cmdDesc"_s << u"ER002"_s;
        QTest::newRow("nostalgia") << u"cmdNostalgia"_s << u"ER005"_s;
    }
    void a_disc_that_is_gone_is_reported_under_the_same_codes()
    {
        QFETCH(QString, button);
        QFETCH(QString, code);
        program_->PutDiscIn(QChar());
        QVERIFY(!Click(button, u"1969"_s).came);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(state.ErrorCode, code);
        QCOMPARE(Program::Focus(), button); // a failure is pending, so the focus stays
    }

    void a_disc_that_is_gone_leaves_the_viewer_of_a_description_untouched()
    {
        program_->PutDiscIn(QChar());
        Click(u"cmdDesc"_s, u"1969"_s);
        QVERIFY(!txtForm.IsLoaded());
    }

    void with_nothing_chosen_only_the_description_does_something()
    {
        state.ErrorCode = u"ER999"_s;
        for (const QString& button : {u"cmdColors"_s, u"cmdOptions"_s, u"cmdNostalgia"_s}) {
            QVERIFY(!Click(button, u"panYear"_s).came);
            QCOMPARE(state.ErrorCode, u"ER999"_s);
        }
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_failed_opening_leaves_the_old_caption_for_the_next_stored_title()
    {
        program_->disc.AddDocument(u"69colors.rtf"_s, u"Colours"_s);
        Click(u"cmdDesc"_s, u"1969"_s);
        QVERIFY(txtForm.IsLoaded());
        QVERIFY(!txtForm->Visible());
        QCOMPARE(Click(u"cmdColors"_s, u"1969"_s).caption, u"The Torvik Vollandry       1969 Description"_s);
        QCOMPARE(Click(u"cmdColors"_s, u"1969"_s).caption, u"The Torvik Vollandry       1969 Colors"_s);
    }

    void colours_that_are_missing_never_touch_the_viewer()
    {
        Click(u"cmdColors"_s, u"1969"_s);
        QVERIFY(!txtForm.IsLoaded());
    }

    void a_description_that_is_missing_leaves_its_bare_name_empty()
    {
        state.DocumentFile = u"before"_s;
        Click(u"cmdDesc"_s, u"1969"_s);
        QCOMPARE(state.DocumentFile, QString());
    }

    void the_description_hides_the_wave_buttons_without_disabling_them()
    {
        program_->disc.AddDocument(u"69desc.rtf"_s, u"Description"_s);
        CheckWaveButtons(u"cmdDesc"_s, true);
    }

    void the_others_disable_and_hide_the_wave_buttons()
    {
        program_->disc.AddDocument(u"69colors.rtf"_s, u"Colours"_s);
        program_->disc.AddDocument(u"nostalgia69.rtf"_s, u"Nostalgia"_s);
        CheckWaveButtons(u"cmdColors"_s, false);
        CheckWaveButtons(u"cmdNostalgia"_s, false);
    }

    void nostalgia_overwrites_the_year_code_also_for_a_topic()
    {
        Screen.SetMousePointer(MousePointer::Hourglass);
        Click(u"cmdNostalgia"_s, u"Torvik Metal Signs "_s);
        QCOMPARE(state.YearCode, u"rv"_s);
        QCOMPARE(state.DocumentFile, u"G:\\richtext\\nostalgiarv.rtf"_s);
        QCOMPARE(txtForm->Caption(), u"The Torvik Vollandry     Nostalgia Torv"_s);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void nostalgia_is_reported_before_the_mouse_pointer_comes_back()
    {
        Screen.SetMousePointer(MousePointer::Hourglass);
        MousePointer whileAsked = MousePointer::Default;
        program_->messages.WhenAsked([&] { whileAsked = Screen.Pointer(); });
        Click(u"cmdNostalgia"_s, u"1969"_s);
        QCOMPARE(whileAsked, MousePointer::Hourglass);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void an_article_is_found_whatever_the_letter_case_of_its_name()
    {
        program_->disc.AddDocument(u"69DESC.RTF"_s, u"Capitals"_s);
        QCOMPARE(Click(u"cmdDesc"_s, u"1969"_s).text, u"Capitals"_s);
    }

private:
    Viewed Click(const QString& button, const QString& title)
    {
        Form1Controls& form = *Form1;
        form.panYear.SetCaption(title);
        Control* control = nullptr;
        for (Button* candidate : {&form.cmdDesc, &form.cmdColors, &form.cmdOptions, &form.cmdNostalgia}) {
            if (candidate->Name() == button)
                control = candidate;
        }
        control->SetFocus();
        return ViewerOf(*program_, [&] { program_->Click(*control); });
    }

    /// Has the wave buttons enabled and shown before the click, and looks at what the click made of them.
    void CheckWaveButtons(const QString& button, bool enabled)
    {
        txtForm.Unload();
        for (Button* wave : {&txtForm->SSCommand2, &txtForm->SSCommand3}) {
            wave->SetEnabled(true);
            wave->Show();
        }
        txtForm->SSCommand1.SetWidth(100);
        QList<bool> states;
        double width = 0;
        const ModalVisit visit(
            [&] {
                states = {txtForm->SSCommand2.Enabled(), txtForm->SSCommand3.Enabled(),
                          txtForm->SSCommand2.Visible(), txtForm->SSCommand3.Visible()};
                width = txtForm->SSCommand1.Width();
            },
            [] { txtForm.Unload(); });
        Form1->panYear.SetCaption(u"1969"_s);
        program_->Click(button == u"cmdDesc"_s     ? Form1->cmdDesc
                        : button == u"cmdColors"_s ? Form1->cmdColors
                                                   : Form1->cmdNostalgia);
        QVERIFY(visit.Ran());
        QCOMPARE(states, QList<bool>({enabled, enabled, false, false}));
        QCOMPARE(width, 7316.0);
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(YearArticlesTest)
#include "year_articles_test.moc"
