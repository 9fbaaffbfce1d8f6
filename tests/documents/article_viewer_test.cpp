#include "documents/article_viewer.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/desktop.h"
#include "support/modal_visit.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "support/viewer_visit.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "ui/printer/printer.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QApplication>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The document viewer: how it comes up, its buttons, and how it goes.
class ArticleViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {u"67"_s, u"69"_s, u"A1"_s})
            program_->disc.AddGroup(prefix, 2);
        program_->disc.AddDocument(u"some.rtf"_s, u"Some words about a car."_s);
        program_->StartBrowsing();
        state.DocumentFile = u"G:\\RichText\\some.rtf"_s;
        state.DocumentTitle = u"A title of its own"_s;
    }
    void cleanup() { program_.reset(); }

    void loading_takes_the_title_and_centres_the_window()
    {
        txtForm.LoadForm();
        QCOMPARE(txtForm->Caption(), u"A title of its own"_s);
        QCOMPARE(txtForm->Left(), (Screen.Width() - txtForm->Width()) / 2);
        QCOMPARE(txtForm->Top(), (Screen.Height() - txtForm->Height()) / 2);
        QCOMPARE(txtForm->Left(), 2017.5);
        QVERIFY(!txtForm->Visible());
    }

    void loading_puts_the_wave_buttons_away_and_gives_their_room_to_ok()
    {
        txtForm.LoadForm();
        for (Button* button : {&txtForm->SSCommand2, &txtForm->SSCommand3}) {
            QVERIFY(!button->Enabled());
            QVERIFY(!button->Visible());
        }
        QCOMPARE(txtForm->SSCommand1.Width(), 7695.0 - 375 - 4);
        QVERIFY(txtForm->SSCommand1.Left() + txtForm->SSCommand1.Width() <= txtForm->cmdPrint.Left());
    }

    void controls_lie_where_they_were_drawn()
    {
        txtForm.LoadForm();
        QCOMPARE(txtForm->ScaleWidth(), 7965.0);
        QCOMPARE(txtForm->ScaleHeight(), 6840.0);
        CheckPlace(txtForm->rtbText, {120, 120, 7695, 6135});
        CheckPlace(txtForm->cmdPrint, {7440, 6360, 375, 375});
        CheckPlace(txtForm->SSCommand2, {6480, 6360, 390, 375});
        CheckPlace(txtForm->SSCommand3, {6960, 6360, 375, 375});
        QCOMPARE(txtForm->SSCommand1.Left(), 120.0);
        QCOMPARE(txtForm->SSCommand1.Top(), 6360.0);
        QCOMPARE(txtForm->SSCommand1.Height(), 375.0);
        QCOMPARE(txtForm->SSCommand1.Caption(), u"OK"_s);
    }

    void picture_buttons_have_no_caption_and_say_what_they_do()
    {
        txtForm.LoadForm();
        const QList<QPair<Button*, QString>> expected{
            {&txtForm->cmdPrint, u"Print"_s},
            {&txtForm->SSCommand2, u"Play the narration"_s},
            {&txtForm->SSCommand3, u"Stop the narration"_s},
        };
        for (const auto& [button, spoken] : expected) {
            QCOMPARE(button->Caption(), QString());
            QCOMPARE(button->Widget().accessibleName(), spoken);
            const QImage drawn = button->Widget().grab().toImage();
            QVERIFY2(ColoursOf(drawn) > 6, qPrintable(spoken)); // more than bevel and face
        }
    }

    void tab_walks_from_the_text_over_ok_to_print_the_wave_buttons_and_the_bar()
    {
        txtForm.LoadForm();
        QStringList order;
        QWidget* const first = &txtForm->rtbText.Widget();
        QWidget* widget = first;
        do {
            if (Control::OfWidget(widget) != nullptr)
                order.append(widget->objectName());
            widget = widget->nextInFocusChain();
        } while (widget != first);
        QCOMPARE(order, QStringList({u"rtbText"_s, u"SSCommand1"_s, u"cmdPrint"_s, u"SSCommand2"_s,
                                     u"SSCommand3"_s, u"panFind"_s, u"txtFindText"_s, u"cmdFindBefore"_s,
                                     u"cmdFindNext"_s, u"lblFindText"_s}));
    }

    void a_click_on_a_link_opens_it_outside_and_leaves_the_viewer()
    {
        program_->disc.AddFile(u"RichText/some.rtf"_s,
                               "{\\rtf1 {\\field{\\*\\fldinst HYPERLINK \"http://quillon.example/a\"}"
                               "{\\fldrslt Quillon}}\\par words without a link}");
        const Desktop desktop;
        bool stays = false;
        Open([&] {
            auto& pane = static_cast<QTextBrowser&>(txtForm->rtbText.Widget());
            QTextCursor cursor(pane.document());
            cursor.setPosition(3);
            QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, pane.cursorRect(cursor).center());
            program_->Settle();
            stays = txtForm->Visible() && txtForm->rtbText.FileName() == state.DocumentFile &&
                    txtForm->rtbText.Text().startsWith(u"Quillon"_s);
        });
        QCOMPARE(desktop.opened, QStringList{u"http://quillon.example/a"_s});
        QVERIFY(stays);
    }

    void opening_shows_the_document_over_the_main_window_with_the_focus_on_ok()
    {
        QString focus;
        bool modal = false;
        const Viewed viewed = Open([&] {
            focus = Program::Focus();
            modal = QApplication::activeModalWidget() == txtForm->rtbText.Widget().window();
        });
        QVERIFY(viewed.came);
        QCOMPARE(viewed.caption, u"A title of its own"_s);
        QCOMPARE(viewed.file, u"G:\\RichText\\some.rtf"_s);
        QCOMPARE(viewed.text, u"Some words about a car."_s);
        QCOMPARE(focus, u"SSCommand1"_s);
        QVERIFY(modal);
        QVERIFY(!txtForm.IsLoaded());
    }

    void a_missing_document_fails_in_the_caller_and_leaves_the_viewer_loaded_and_hidden()
    {
        state.DocumentFile = u"G:\\RichText\\none.rtf"_s;
        QCOMPARE(ResumeNext([] { OpenViewer(); }), failure::fileNotFound);
        QVERIFY(txtForm.IsLoaded());
        QVERIFY(!txtForm->Visible());
    }

    void ok_closes_enables_the_main_window_and_moves_the_focus_on_data() { YearRows(); }
    void ok_closes_enables_the_main_window_and_moves_the_focus_on()
    {
        QFETCH(int, button);
        QFETCH(QString, focus);
        state.CurrentYearButton = button;
        Form1->cmdYR(1).SetEnabled(true);
        Form1->SetEnabled(false);
        Open([] {});
        QVERIFY(!txtForm.IsLoaded());
        QVERIFY(Form1->Enabled());
        QCOMPARE(Program::Focus(), focus);
        QCOMPARE(int(state.CurrentYearButton), button);
    }

    void a_double_click_in_the_text_closes_without_a_question_data() { YearRows(); }
    void a_double_click_in_the_text_closes_without_a_question()
    {
        QFETCH(int, button);
        QFETCH(QString, focus);
        state.CurrentYearButton = button;
        Form1->cmdYR(1).SetEnabled(true);
        Form1->SetEnabled(false);
        bool open = true;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                QTest::mouseDClick(Pane(), Qt::LeftButton);
                program_->Settle();
                open = txtForm.IsLoaded();
            },
            [] { txtForm.Unload(); });
        OpenViewer();
        program_->Settle();
        QVERIFY(visit.Ran());
        QVERIFY(!open);
        QVERIFY(Form1->Enabled());
        QCOMPARE(Program::Focus(), focus);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void a_single_click_in_the_text_does_nothing()
    {
        bool open = false;
        Open([&] {
            QTest::mouseClick(Pane(), Qt::LeftButton);
            program_->Settle();
            open = txtForm.IsLoaded() && txtForm->Visible();
        });
        QVERIFY(open);
    }

    void escape_leaves_the_viewer_open()
    {
        bool openFromOk = false;
        bool openFromText = false;
        Open([&] {
            program_->Press(Qt::Key_Escape);
            openFromOk = txtForm.IsLoaded() && txtForm->Visible();
            txtForm->rtbText.SetFocus();
            program_->Press(Qt::Key_Escape);
            openFromText = txtForm.IsLoaded() && txtForm->Visible();
        });
        QVERIFY(openFromOk);
        QVERIFY(openFromText);
    }

    void enter_and_the_space_bar_press_ok()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            bool open = true;
            const ModalVisit visit(
                [&] {
                    program_->Settle();
                    program_->Press(key);
                    open = txtForm.IsLoaded();
                },
                [] { txtForm.Unload(); });
            OpenViewer();
            QVERIFY(visit.Ran());
            QVERIFY(!open);
        }
    }

    void the_print_question_quotes_the_window_and_no_leaves_all_as_it_is()
    {
        const PrintFolder printed;
        bool open = false;
        Open([&] {
            txtForm->SetCaption(u"What the window says"_s);
            program_->messages.Answer(msgbox::answerNo);
            program_->Click(txtForm->cmdPrint);
            open = txtForm.IsLoaded() && txtForm->Visible();
        });
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Would you like to print the \r\n\r\nWhat the window says?"_s);
        QCOMPARE(box.style, 36);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(state.MessageText, box.text);
        QCOMPARE(state.MessageAnswer, u"7"_s);
        QVERIFY(open);
        QVERIFY(printed.Files().isEmpty());
    }

    void yes_prints_the_document_with_an_inch_around_it_and_says_so()
    {
        const PrintFolder printed;
        bool open = false;
        Open([&] {
            program_->messages.Answer(msgbox::answerYes);
            program_->Click(txtForm->cmdPrint);
            open = txtForm.IsLoaded() && txtForm->Visible();
        });
        QVERIFY(open);
        QCOMPARE(state.MessageAnswer, u"6"_s);
        QCOMPARE(program_->messages.Count(), 2);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Printing complete!"_s);
        QCOMPARE(box.style, 48);
        QCOMPARE(box.title, u"The Torvik Vollandry"_s);
        QCOMPARE(printed.Files(), QStringList(u"job-1.pdf"_s));
        QCOMPARE(printed.Pages(1).size(), 1);
        QCOMPARE(printed.Pages(1).first().simplified(), u"Some words about a car."_s);
        const QRectF ink = InkOf(printed.Image(1, 1));
        QVERIFY2(ink.left() >= 1420 && ink.left() < 1500, qPrintable(QString::number(ink.left())));
        QVERIFY2(ink.top() >= 1420 && ink.top() < 1600, qPrintable(QString::number(ink.top())));
        QVERIFY(!Printer.HasJob());
    }

    void a_printer_that_fails_ends_the_program_with_the_run_time_error()
    {
        Printer.PrintTo(u"/proc/nothing/here"_s);
        const ModalVisit visit(
            [&] {
                program_->Settle();
                program_->messages.Answer(msgbox::answerYes);
                QTest::mouseClick(&txtForm->cmdPrint.Widget(), Qt::LeftButton);
            },
            [] { QVERIFY(ProgramIsEnding()); });
        bool ended = false;
        try {
            OpenViewer();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        Printer.PrintTo({});
        QVERIFY(visit.Ran());
        QVERIFY(ended);
        QCOMPARE(program_->messages.Last().text, u"Run-time error '482':\r\n\r\nPrinter error"_s);
        QCOMPARE(program_->messages.Count(),
                 2); // the question and the failure; nothing is said to be complete
    }

private:
    /// Opens the viewer, does something in it, and closes it with OK.
    template <typename Action>
    Viewed Open(Action&& action)
    {
        Viewed viewed;
        const ModalVisit visit(
            [&] {
                program_->Settle();
                viewed = {true, txtForm->Caption(), txtForm->rtbText.FileName(), txtForm->rtbText.Text()};
                action();
                program_->Click(txtForm->SSCommand1);
            },
            [] { txtForm.Unload(); });
        OpenViewer();
        program_->Settle();
        return viewed;
    }

    static QWidget* Pane()
    {
        return txtForm->rtbText.Widget().findChild<QWidget*>(u"qt_scrollarea_viewport"_s);
    }

    static void CheckPlace(const Control& control, const Twips& place)
    {
        QCOMPARE(control.Left(), place.left);
        QCOMPARE(control.Top(), place.top);
        QCOMPARE(control.Width(), place.width);
        QCOMPARE(control.Height(), place.height);
    }

    static int ColoursOf(const QImage& image)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        }
        return static_cast<int>(colours.size());
    }

    static void YearRows()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("focus");
        QTest::newRow("1967") << 1 << u"cmdYR(2)"_s;
        QTest::newRow("1969") << 3 << u"cmdYR(4)"_s;
        QTest::newRow("2000") << 34 << u"cmdYR(35)"_s;
        QTest::newRow("from the last year round to the first") << 35 << u"cmdYR(1)"_s;
        QTest::newRow("a topic") << 0 << u"cmdYR(1)"_s;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(ArticleViewerTest)
#include "article_viewer_test.moc"
