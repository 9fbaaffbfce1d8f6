#include "program/program_state.h"
#include "support/program.h"
#include "support/viewer_visit.h"
#include "ui/forms/screen.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QTest>

using namespace torvik;

/// The articles of a year or topic behind cmdDesc, cmdColors, cmdOptions and cmdNostalgia.
class YearArticlesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {QStringLiteral("67"), QStringLiteral("69"), QStringLiteral("A1")})
            program_->Disc.AddGroup(prefix, 2);
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
        program_->Disc.AddDocument(file, QStringLiteral("Text of ") + file);
        const Viewed viewed = Click(button, title);
        QVERIFY2(viewed.Came, qPrintable(program_->Messages.Last().Text));
        QCOMPARE(viewed.Caption, window);
        QCOMPARE(viewed.File, QStringLiteral("G:") + opened);
        QCOMPARE(state.DocumentFile, viewed.File);
        QCOMPARE(viewed.Text, QStringLiteral("Text of ") + file);
        QVERIFY(program_->Messages.Shown().isEmpty());
        QVERIFY(!txtForm.IsLoaded());
    }

    void titles_of_colours_and_options_are_stored_and_so_are_two_of_the_descriptions()
    {
        for (const QString& file :
             {QStringLiteral("69colors.rtf"), QStringLiteral("69desc.rtf"), QStringLiteral("a1desc.rtf"),
              QStringLiteral("introduction.rtf"), QStringLiteral("69opts.rtf"), QStringLiteral("stamps.rtf")})
            program_->Disc.AddDocument(file, file);
        Click(QStringLiteral("cmdColors"), QStringLiteral("1969"));
        QCOMPARE(state.DocumentTitle, QStringLiteral("The Torvik Vollandry       1969 Colors"));
        Click(QStringLiteral("cmdDesc"), QStringLiteral("1969"));
        Click(QStringLiteral("cmdDesc"), QStringLiteral("Torvik Postage Stamps "));
        QCOMPARE(state.DocumentTitle, QStringLiteral("The Torvik Vollandry       1969 Colors"));
        Click(QStringLiteral("cmdOptions"), QStringLiteral("1969"));
        QCOMPARE(state.DocumentTitle, QStringLiteral("The Torvik Vollandry       1969 Options"));
        Click(QStringLiteral("cmdDesc"), QStringLiteral("2001"));
        QCOMPARE(state.DocumentTitle, QStringLiteral("The Torvik Vollandry     2001 Description"));
        Click(QStringLiteral("cmdDesc"), QStringLiteral("panYear"));
        QCOMPARE(state.DocumentTitle, QStringLiteral("The Torvik Vollandry       Introduction"));
    }

    void a_missing_article_is_reported_under_the_code_of_its_button_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("code");
        QTest::newRow("colours") << QStringLiteral("cmdColors") << QStringLiteral("1969")
                                 << QStringLiteral("ER029");
        QTest::newRow("colours of a topic")
            << QStringLiteral("cmdColors") << QStringLiteral("Torvik Metal Signs ")
            << QStringLiteral("ER029");
        QTest::newRow("colours of the Harwell")
            << QStringLiteral("cmdColors") << QStringLiteral("The Classic Harwell ")
            << QStringLiteral("ER029");
        QTest::newRow("options") << QStringLiteral("cmdOptions") << QStringLiteral("2001")
                                 << QStringLiteral("ER026");
        QTest::newRow("options of a topic")
            << QStringLiteral("cmdOptions") << QStringLiteral("Torvik Cookies ") << QStringLiteral("ER026");
        QTest::newRow("description") << QStringLiteral("cmdDesc") << QStringLiteral("1969")
                                     << QStringLiteral("ER002");
        QTest::newRow("description of a topic")
            << QStringLiteral("cmdDesc") << QStringLiteral("Torvik Postage Stamps ")
            << QStringLiteral("ER002");
        QTest::newRow("introduction")
            << QStringLiteral("cmdDesc") << QStringLiteral("panYear") << QStringLiteral("ER002");
        QTest::newRow("nostalgia") << QStringLiteral("cmdNostalgia") << QStringLiteral("1969")
                                   << QStringLiteral("ER005");
    }
    void a_missing_article_is_reported_under_the_code_of_its_button()
    {
        QFETCH(QString, button);
        QFETCH(QString, title);
        QFETCH(QString, code);
        QVERIFY(!Click(button, title).Came);
        QCOMPARE(program_->Messages.Count(), 1);
        QVERIFY2(program_->Messages.Last().Text.startsWith(QStringLiteral("Error number: ") + code +
                                                           QStringLiteral("\r")),
                 qPrintable(program_->Messages.Last().Text));
        QCOMPARE(program_->Messages.Last().Style, 16);
        QCOMPARE(state.ErrorCode, code);
    }

    void a_plain_miss_moves_the_focus_on_but_a_failure_leaves_it()
    {
        Form1->cmdColors.SetFocus();
        Click(QStringLiteral("cmdColors"), QStringLiteral("1969"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(2)"));
        Click(QStringLiteral("cmdNostalgia"), QStringLiteral("1969"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdNostalgia"));
    }

    void a_disc_that_is_gone_is_reported_under_the_same_codes_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("code");
        QTest::newRow("colours") << QStringLiteral("cmdColors") << QStringLiteral("ER029");
        QTest::newRow("options") << QStringLiteral("cmdOptions") << QStringLiteral("ER026");
        QTest::newRow("description") << QStringLiteral("cmdDesc") << QStringLiteral("ER002");
        QTest::newRow("nostalgia") << QStringLiteral("cmdNostalgia") << QStringLiteral("ER005");
    }
    void a_disc_that_is_gone_is_reported_under_the_same_codes()
    {
        QFETCH(QString, button);
        QFETCH(QString, code);
        program_->PutDiscIn(QChar());
        QVERIFY(!Click(button, QStringLiteral("1969")).Came);
        QCOMPARE(program_->Messages.Count(), 1);
        QCOMPARE(state.ErrorCode, code);
        QCOMPARE(Program::Focus(), button); // a failure is pending, so the focus stays
    }

    void a_disc_that_is_gone_leaves_the_viewer_of_a_description_untouched()
    {
        program_->PutDiscIn(QChar());
        Click(QStringLiteral("cmdDesc"), QStringLiteral("1969"));
        QVERIFY(!txtForm.IsLoaded());
    }

    void with_nothing_chosen_only_the_description_does_something()
    {
        state.ErrorCode = QStringLiteral("ER999");
        for (const QString& button :
             {QStringLiteral("cmdColors"), QStringLiteral("cmdOptions"), QStringLiteral("cmdNostalgia")}) {
            QVERIFY(!Click(button, QStringLiteral("panYear")).Came);
            QCOMPARE(state.ErrorCode, QStringLiteral("ER999"));
        }
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void a_failed_opening_leaves_the_old_caption_for_the_next_stored_title()
    {
        program_->Disc.AddDocument(QStringLiteral("69colors.rtf"), QStringLiteral("Colours"));
        Click(QStringLiteral("cmdDesc"), QStringLiteral("1969"));
        QVERIFY(txtForm.IsLoaded());
        QVERIFY(!txtForm->Visible());
        QCOMPARE(Click(QStringLiteral("cmdColors"), QStringLiteral("1969")).Caption,
                 QStringLiteral("The Torvik Vollandry       1969 Description"));
        QCOMPARE(Click(QStringLiteral("cmdColors"), QStringLiteral("1969")).Caption,
                 QStringLiteral("The Torvik Vollandry       1969 Colors"));
    }

    void colours_that_are_missing_never_touch_the_viewer()
    {
        Click(QStringLiteral("cmdColors"), QStringLiteral("1969"));
        QVERIFY(!txtForm.IsLoaded());
    }

    void a_description_that_is_missing_leaves_its_bare_name_empty()
    {
        state.DocumentFile = QStringLiteral("before");
        Click(QStringLiteral("cmdDesc"), QStringLiteral("1969"));
        QCOMPARE(state.DocumentFile, QString());
    }

    void the_description_hides_the_wave_buttons_without_disabling_them()
    {
        program_->Disc.AddDocument(QStringLiteral("69desc.rtf"), QStringLiteral("Description"));
        CheckWaveButtons(QStringLiteral("cmdDesc"), true);
    }

    void the_others_disable_and_hide_the_wave_buttons()
    {
        program_->Disc.AddDocument(QStringLiteral("69colors.rtf"), QStringLiteral("Colours"));
        program_->Disc.AddDocument(QStringLiteral("nostalgia69.rtf"), QStringLiteral("Nostalgia"));
        CheckWaveButtons(QStringLiteral("cmdColors"), false);
        CheckWaveButtons(QStringLiteral("cmdNostalgia"), false);
    }

    void nostalgia_overwrites_the_year_code_also_for_a_topic()
    {
        Screen.SetMousePointer(MousePointer::Hourglass);
        Click(QStringLiteral("cmdNostalgia"), QStringLiteral("Torvik Metal Signs "));
        QCOMPARE(state.YearCode, QStringLiteral("rv"));
        QCOMPARE(state.DocumentFile, QStringLiteral("G:\\richtext\\nostalgiarv.rtf"));
        QCOMPARE(txtForm->Caption(), QStringLiteral("The Torvik Vollandry     Nostalgia Torv"));
        QCOMPARE(program_->Messages.Count(), 1);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void nostalgia_is_reported_before_the_mouse_pointer_comes_back()
    {
        Screen.SetMousePointer(MousePointer::Hourglass);
        MousePointer whileAsked = MousePointer::Default;
        program_->Messages.WhenAsked([&] { whileAsked = Screen.Pointer(); });
        Click(QStringLiteral("cmdNostalgia"), QStringLiteral("1969"));
        QCOMPARE(whileAsked, MousePointer::Hourglass);
        QCOMPARE(Screen.Pointer(), MousePointer::Default);
    }

    void an_article_is_found_whatever_the_letter_case_of_its_name()
    {
        program_->Disc.AddDocument(QStringLiteral("69DESC.RTF"), QStringLiteral("Capitals"));
        QCOMPARE(Click(QStringLiteral("cmdDesc"), QStringLiteral("1969")).Text, QStringLiteral("Capitals"));
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
        Form1->panYear.SetCaption(QStringLiteral("1969"));
        program_->Click(button == QStringLiteral("cmdDesc")     ? Form1->cmdDesc
                        : button == QStringLiteral("cmdColors") ? Form1->cmdColors
                                                                : Form1->cmdNostalgia);
        QVERIFY(visit.Ran());
        QCOMPARE(states, QList<bool>({enabled, enabled, false, false}));
        QCOMPARE(width, 7316.0);
    }

    std::unique_ptr<Program> program_;
};

QTEST_MAIN(YearArticlesTest)
#include "year_articles_test.moc"
