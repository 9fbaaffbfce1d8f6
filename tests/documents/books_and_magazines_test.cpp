#include "documents/books_and_magazines.h"
#include "program/program_state.h"
#include "support/browsing_fixture.h"
#include "support/menu_choice.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "ui/forms/form_window.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QAction>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

enum Way { Stored, Late, Before, After };

const QString earlier = u"The title that was stored before"_s;

} // namespace

/// The documents behind the entries of the Literature, Miscellaneous and Help menus.
class BooksAndMagazinesTest : public BrowsingFixture {
    Q_OBJECT

private Q_SLOTS:
    void an_entry_opens_its_document_data() { Rows(); }
    void an_entry_opens_its_document()
    {
        QFETCH(QString, entry);
        QFETCH(QString, menu);
        QFETCH(QString, path);
        QFETCH(QString, title);
        QFETCH(int, way);
        program_->disc.AddDocument(FileOf(path), u"Text of "_s + FileOf(path));
        state.DocumentTitle = earlier;
        QCOMPARE(ActionOf(entry)->text(), menu);

        const Viewed viewed = Open(entry);
        QVERIFY2(viewed.came, qPrintable(program_->messages.Last().text));
        QCOMPARE(viewed.file, u"G:"_s + path);
        QCOMPARE(state.DocumentFile, viewed.file);
        QCOMPARE(viewed.text, u"Text of "_s + FileOf(path));
        QCOMPARE(viewed.caption, way == Late ? earlier : title);
        QCOMPARE(state.DocumentTitle, way == Before || way == After ? earlier : title);
        QVERIFY(program_->messages.Shown().isEmpty());
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
    }

    void a_missing_document_is_reported_under_the_code_of_its_entry_data() { Rows(); }
    void a_missing_document_is_reported_under_the_code_of_its_entry()
    {
        QFETCH(QString, entry);
        QFETCH(QString, title);
        QFETCH(int, way);
        QFETCH(QString, code);
        state.DocumentTitle = earlier;
        Form1->cmdDesc.SetFocus();
        QVERIFY(!Open(entry).came);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY2(program_->messages.Last().text.startsWith(u"Error number: "_s + code + u"\r"_s),
                 qPrintable(program_->messages.Last().text));
        QCOMPARE(state.ErrorCode, code);
        QVERIFY(txtForm.IsLoaded());
        QVERIFY(!txtForm->Visible());
        QCOMPARE(Program::Focus(), u"cmdDesc"_s);
        // What comes after the file has not happened; what comes before it has.
        QCOMPARE(state.DocumentTitle, way == Stored ? title : earlier);
        QCOMPARE(txtForm->Caption(), way == Stored || way == Before ? title : earlier);
    }

    void before_the_failure_no_code_is_set()
    {
        program_->disc.AddDocument(u"books.rtf"_s, u"Books"_s);
        state.ErrorCode = u"ER999"_s;
        QVERIFY(Open(u"mnuBooks"_s).came);
        QCOMPARE(state.ErrorCode, u"ER999"_s);
    }

    void the_introduction_leaves_the_buttons_as_the_load_made_them_and_the_others_settle_them_data()
    {
        Rows();
    }
    void the_introduction_leaves_the_buttons_as_the_load_made_them_and_the_others_settle_them()
    {
        QFETCH(QString, entry);
        QFETCH(QString, path);
        program_->disc.AddDocument(FileOf(path), FileOf(path));
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
        ActionOf(entry)->trigger();
        QVERIFY(visit.Ran());
        const bool untouched = entry == u"mnuIntro"_s;
        QCOMPARE(states, QList<bool>(4, untouched));
        QCOMPARE(width, untouched ? 100.0 : 7316.0);
    }

    void after_credits_whats_new_bears_the_last_stored_title()
    {
        AddAll({u"books.rtf"_s, u"credits.rtf"_s, u"whatsnew.rtf"_s});
        Open(u"mnuBooks"_s);
        QCOMPARE(Open(u"mnuCredits"_s).caption, u"The Torvik Vollandry       Credits"_s);
        const Viewed whatsNew = Open(u"mnuWhatsNew"_s);
        QCOMPARE(whatsNew.text, u"whatsnew.rtf"_s);
        QCOMPARE(whatsNew.caption, u"The Torvik Vollandry       Books"_s);
    }

    void an_empty_title_reaches_the_window_system_as_it_is()
    {
        AddAll({u"whatsnew.rtf"_s});
        QString title = u"unread"_s;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                title = txtForm->Window().windowHandle()->title();
            },
            [] { txtForm.Unload(); });
        ChooseMenu(*Form1, u"mnuWhatsNew"_s);
        QVERIFY(visit.Ran());
        QCOMPARE(title.trimmed(), QString());
        QVERIFY2(title != QGuiApplication::applicationDisplayName(), qPrintable(title));
    }

    void whats_new_as_the_first_document_has_no_title()
    {
        AddAll({u"whatsnew.rtf"_s});
        QCOMPARE(Open(u"mnuWhatsNew"_s).caption, QString());
        QCOMPARE(Open(u"mnuWhatsNew"_s).caption, u"The Torvik Vollandry       What's New"_s);
    }

    void a_magazine_after_the_books_bears_their_title_and_the_next_late_entry_its_own()
    {
        AddAll({u"books.rtf"_s, u"magmi.rtf"_s, u"PRIntro.rtf"_s});
        Open(u"mnuBooks"_s);
        QCOMPARE(Open(u"mnuMag(1)"_s).caption, u"The Torvik Vollandry       Books"_s);
        QCOMPARE(Open(u"mnuPR(1)"_s).caption, u"The Torvik Vollandry       Magazines"_s);
    }

    void the_print_question_quotes_a_stale_title_too()
    {
        AddAll({u"books.rtf"_s, u"magmi.rtf"_s});
        Open(u"mnuBooks"_s);
        const ModalVisit visit([&] { program_->Click(txtForm->cmdPrint); }, [] { txtForm.Unload(); });
        ActionOf(u"mnuMag(1)"_s)->trigger();
        QVERIFY(visit.Ran());
        QCOMPARE(program_->messages.Last().text,
                 u"Would you like to print the \r\n\r\nThe Torvik Vollandry       Books?"_s);
    }

    void a_stored_title_comes_too_late_for_a_viewer_that_a_failure_left_loaded()
    {
        AddAll({u"catalogs.rtf"_s});
        Open(u"mnuBooks"_s); // is not there
        QCOMPARE(Open(u"mnuCatalogs"_s).caption, u"The Torvik Vollandry       Books"_s);
        QCOMPARE(Open(u"mnuCatalogs"_s).caption, u"The Torvik Vollandry       Catalogs"_s);
    }

    void an_index_that_no_entry_has_opens_what_was_open_before_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("0") << 0;
        QTest::newRow("after the last") << 6;
        QTest::newRow("negative") << -1;
    }
    void an_index_that_no_entry_has_opens_what_was_open_before()
    {
        QFETCH(int, index);
        AddAll({u"books.rtf"_s});
        for (const auto show : {ShowMagazine, ShowPressRelease, ShowMiscellaneous}) {
            Open(u"mnuBooks"_s);
            QCOMPARE(ViewerOf(*program_, [&] { show(index); }).text, u"books.rtf"_s);
        }
    }

    void two_documents_without_an_entry_can_be_opened_data()
    {
        QTest::addColumn<bool>("guide");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("code");
        QTest::newRow("guide of the sibling")
            << true << u"\\RichText\\idsellark.rtf"_s << u"The Torvik Vollandry       Identification Guide"_s
            << u"ER050"_s;
        QTest::newRow("engines") << false << u"\\RichText\\ENGINES.rtf"_s
                                 << u"The Torvik Vollandry       Torvik Engines"_s << u"ER006"_s;
    }
    void two_documents_without_an_entry_can_be_opened()
    {
        QFETCH(bool, guide);
        QFETCH(QString, path);
        QFETCH(QString, title);
        QFETCH(QString, code);
        const auto show = guide ? ShowSiblingGuide : ShowEngines;
        QVERIFY(!ViewerOf(*program_, show).came);
        QCOMPARE(state.ErrorCode, code);
        QCOMPARE(program_->messages.Count(), 1);
        txtForm.Unload();

        program_->disc.AddDocument(FileOf(path), FileOf(path));
        const Viewed viewed = ViewerOf(*program_, show);
        QCOMPARE(viewed.file, u"G:"_s + path);
        QCOMPARE(viewed.caption, title);
        QCOMPARE(state.DocumentTitle, title);
    }

private:
    static void Rows()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("way");
        QTest::addColumn<QString>("code");
        const auto row = [](const char* entry, const char* menu, const char* path, const char* title, Way way,
                            const char* code) {
            QTest::newRow(entry) << QString::fromLatin1(entry) << QString::fromLatin1(menu)
                                 << QString::fromLatin1(path) << QString::fromLatin1(title) << int(way)
                                 << QString::fromLatin1(code);
        };
        const char* const magazines = "The Torvik Vollandry       Magazines";
        const char* const release = "The Torvik Vollandry       1964 Press Release";
        row("mnuBooks", "Torvik Books", "\\RichText\\books.rtf", "The Torvik Vollandry       Books", Stored,
            "ER004");
        row("mnuCatalogs", "Torvik Catalogs", "\\richtext\\catalogs.rtf",
            "The Torvik Vollandry       Catalogs", Stored, "ER005");
        row("mnuMag(1)", "Torvik Illustrated", "\\richtext\\magmi.rtf", magazines, Late, "ER008");
        row("mnuMag(2)", "Torvik Monthly", "\\richtext\\magmm.rtf", magazines, Late, "ER008");
        row("mnuMag(3)", "Muscle Torvik and Fast Fords", "\\richtext\\magmmff.rtf", magazines, Late, "ER008");
        row("mnuMag(4)", "Torvik && Fords", "\\richtext\\mag4.rtf", magazines, Late, "ER008");
        row("mnuMag(5)", "5.0 Torvik", "\\richtext\\mag5.rtf", magazines, Late, "ER008");
        row("mnuAdsList", "Torvik Advertising Checklist", "\\RichText\\TorvikAdsList.rtf",
            "The Torvik Vollandry     Torvik Advertising Checklist ", Before, "ER004");
        row("mnuPR(1)", "Introduction", "\\richtext\\PRIntro.rtf", release, Late, "ER030");
        row("mnuPR(2)", "Market", "\\richtext\\PRMarket.rtf", release, Late, "ER030");
        row("mnuPR(3)", "Options", "\\richtext\\PROptions.rtf", release, Late, "ER030");
        row("mnuMisc(1)", "Torvik Engines", "\\richtext\\stats.rtf", "The Torvik Vollandry       Statistics",
            Stored, "ER009");
        row("mnuMisc(2)", "Torvik Glossary", "\\richtext\\glossary.rtf",
            "The Torvik Vollandry       Glossary", Stored, "ER009");
        row("mnuMisc(3)", "Torvik Identification Guide", "\\richtext\\idTorvik.rtf",
            "The Torvik Vollandry       Identification Guide", Stored, "ER009");
        row("mnuMisc(4)", "Torvik Timelime", "\\richtext\\timeline.rtf",
            "The Torvik Vollandry       Timeline", Stored, "ER009");
        row("mnuWhatsNew", "What's New", "\\richtext\\whatsnew.rtf", "The Torvik Vollandry       What's New",
            Late, "ER056");
        row("mnuIntro", "Introduction", "\\RichText\\introduction.rtf",
            "The Torvik Vollandry       Introduction", After, "ER007");
        row("mnuNotice", "Notice", "\\richtext\\notice.rtf", "The Torvik Vollandry       Notice", After,
            "ER025");
        row("mnuCredits", "Credits", "\\richtext\\credits.rtf", "The Torvik Vollandry       Credits", Before,
            "ER010");
        row("mnuContrib", "Contributions", "\\richtext\\contrib.rtf",
            "The Torvik Vollandry       Contributions", Before, "ER053");
    }

    static QString FileOf(const QString& path) { return path.mid(path.lastIndexOf(u'\\') + 1); }

    void AddAll(const QStringList& files)
    {
        for (const QString& file : files)
            program_->disc.AddDocument(file, file);
    }

    static QAction* ActionOf(const QString& name)
    {
        auto* action = Form1->Window().findChild<QAction*>(name);
        if (action == nullptr)
            qFatal("there is no menu entry %s", qPrintable(name));
        return action;
    }

    Viewed Open(const QString& entry)
    {
        return ViewerOf(*program_, [&] { ActionOf(entry)->trigger(); });
    }
};

TORVIK_TEST(BooksAndMagazinesTest)
#include "books_and_magazines_test.moc"
