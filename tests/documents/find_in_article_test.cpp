#include "documents/find_in_article.h"
#include "program/program_state.h"
#include "support/desktop.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/article_window.h"
#include "windows/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QTextBrowser& Pane()
{
    return static_cast<QTextBrowser&>(txtForm->rtbText.Widget());
}

/// What is marked strongly, and what faintly.
QStringList Marked(const QColor& colour)
{
    QStringList marked;
    for (const auto& mark : Pane().extraSelections()) {
        if (mark.format.background().color() == colour)
            marked.append(mark.cursor.selectedText());
    }
    return marked;
}

QString Present()
{
    return Marked(look::presentMark).join(u'|');
}

int CountOf(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

bool IsInView(const QString& word)
{
    QTextCursor cursor(Pane().document());
    cursor.setPosition(static_cast<int>(txtForm->rtbText.Text().indexOf(word)));
    return Pane().viewport()->rect().contains(Pane().cursorRect(cursor));
}

} // namespace

/// The bar of the document viewer that finds words in the text on show.
class FindInArticleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->disc.AddDocument(u"some.rtf"_s, u"A Red car, a red hood, "_s +
                                                      u"more of it\\par "_s.repeated(200) +
                                                      u"and a redder roof."_s);
        program_->StartBrowsing();
        Open(u"some.rtf"_s);
    }
    void cleanup() { program_.reset(); }

    void control_and_f_opens_the_bar_below_the_text()
    {
        QVERIFY(!txtForm->panFind.Visible());
        const double height = txtForm->rtbText.Height();
        Key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(txtForm->panFind.Visible());
        QCOMPARE(Program::Focus(), u"txtFindText"_s);
        QVERIFY(txtForm->rtbText.Height() < height);
        QVERIFY(txtForm->rtbText.Top() + txtForm->rtbText.Height() <= txtForm->panFind.Top());
        QVERIFY(txtForm->panFind.Top() + txtForm->panFind.Height() <= txtForm->SSCommand1.Top());
        QCOMPARE(txtForm->lblFindText.Caption(), QString());
        QVERIFY(!txtForm->cmdFindNext.Enabled());
    }

    void hits_are_marked_and_counted_while_one_types()
    {
        Type(u"red"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 3"_s);
        QCOMPARE(Present(), u"Red"_s);
        QCOMPARE(Marked(look::mark), QStringList({u"red"_s, u"redder"_s}));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); // the word is whole now
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 2"_s);
        QCOMPARE(Marked(look::mark), QStringList({u"red"_s}));
    }

    void every_hit_is_counted_and_reached_however_many_there_are()
    {
        program_->disc.AddDocument(u"many.rtf"_s, u"red car\\par "_s.repeated(6000));
        Open(u"many.rtf"_s);
        Type(u"red"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 6000"_s);
        QCOMPARE(Present(), u"red"_s);
        Key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(txtForm->lblFindText.Caption(), u"6000 of 6000, on from the end"_s);
        QCOMPARE(Present(), u"red"_s);
        QVERIFY(Pane().verticalScrollBar()->value() > 0);
    }

    void next_and_before_walk_and_tell_when_they_go_round()
    {
        Type(u"red"_s);
        const auto step = [this](Qt::Key key, Qt::KeyboardModifiers held) {
            Key(key, held);
            return txtForm->lblFindText.Caption();
        };
        QCOMPARE(step(Qt::Key_F3, {}), u"2 of 3"_s);
        QCOMPARE(step(Qt::Key_Return, {}), u"3 of 3"_s);
        QCOMPARE(Present(), u"redder"_s);
        QVERIFY(IsInView(u"redder"_s));
        QCOMPARE(step(Qt::Key_F3, {}), u"1 of 3, on from the top"_s);
        QVERIFY(IsInView(u"Red"_s));
        QCOMPARE(step(Qt::Key_F3, Qt::ShiftModifier), u"3 of 3, on from the end"_s);
        QCOMPARE(step(Qt::Key_Return, Qt::ShiftModifier), u"2 of 3"_s);
        program_->Click(txtForm->cmdFindNext);
        QCOMPARE(txtForm->lblFindText.Caption(), u"3 of 3"_s);
        program_->Click(txtForm->cmdFindBefore);
        QCOMPARE(txtForm->lblFindText.Caption(), u"2 of 3"_s);
    }

    void typing_on_stays_at_the_place_where_one_is()
    {
        Type(u"re"_s);
        Key(Qt::Key_F3);
        Key(Qt::Key_F3);
        QCOMPARE(Present(), u"redder"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"dd"_s);
        QCOMPARE(Present(), u"redder"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 1"_s);
    }

    void what_is_not_there_is_told()
    {
        Type(u"submarine"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), u"Not found"_s);
        QVERIFY(Pane().extraSelections().isEmpty());
        Key(Qt::Key_F3);
        Key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(txtForm->lblFindText.Caption(), u"Not found"_s);
        Type(u"\"(*"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), QString());
    }

    void escape_closes_the_bar_alone()
    {
        const double height = txtForm->rtbText.Height();
        Type(u"red"_s);
        Key(Qt::Key_Escape);
        QVERIFY(txtForm.IsLoaded() && txtForm->Visible());
        QVERIFY(!txtForm->panFind.Visible());
        QVERIFY(Pane().extraSelections().isEmpty());
        QCOMPARE(txtForm->rtbText.Height(), height);
        QCOMPARE(Program::Focus(), u"rtbText"_s);
        Key(Qt::Key_Escape);
        QVERIFY(txtForm.IsLoaded() && txtForm->Visible());
    }

    void f3_opens_the_bar_where_it_is_closed_with_the_words_before()
    {
        Type(u"red"_s);
        Key(Qt::Key_Escape);
        Key(Qt::Key_F3);
        QVERIFY(txtForm->panFind.Visible());
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 3"_s);
        QCOMPARE(txtForm->txtFindText.SelText(), u"red"_s);
    }

    void what_was_asked_for_is_found_when_the_viewer_comes_up()
    {
        state.TextToFind = u"redder"_s;
        Open(u"some.rtf"_s);
        QVERIFY(txtForm->panFind.Visible());
        QCOMPARE(txtForm->txtFindText.Text(), u"redder"_s);
        QCOMPARE(Present(), u"redder"_s);
        QVERIFY(IsInView(u"redder"_s));
        QCOMPARE(state.TextToFind, QString());
        QCOMPARE(Program::Focus(), u"SSCommand1"_s); // Enter closes, as ever
        Key(Qt::Key_F3);
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 1, on from the top"_s);
    }

    void nothing_comes_up_for_what_the_text_does_not_hold()
    {
        state.TextToFind = u"submarine"_s;
        Open(u"some.rtf"_s);
        QVERIFY(!txtForm->panFind.Visible());
        QVERIFY(Pane().extraSelections().isEmpty());
        QCOMPARE(state.TextToFind, QString());
    }

    void copying_and_printing_take_no_notice_of_marks()
    {
        const Desktop desktop;
        Type(u"red"_s);
        txtForm->rtbText.SetFocus();
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().startsWith(u"A Red car, a red hood"_s));
        const QString html = QApplication::clipboard()->mimeData()->html();
        QVERIFY(!html.contains(look::presentMark.name()) && !html.contains(look::mark.name()));
        QVERIFY(!txtForm->rtbText.Document().toHtml().contains(look::mark.name()));
        Key(Qt::Key_F3); // the selection stays
        QVERIFY(Pane().textCursor().hasSelection());

        Key(Qt::Key_Escape);
        const PrintFolder printed;
        Print();
        Type(u"red"_s);
        QCOMPARE(txtForm->lblFindText.Caption(), u"1 of 3"_s);
        Print();
        QCOMPARE(printed.Jobs(), 2);
        QVERIFY(InkOf(printed.Image(1, 1)).isValid());
        QCOMPARE(printed.Image(2, 1), printed.Image(1, 1));
    }

    void marks_can_be_read_on_every_ground_data()
    {
        QTest::addColumn<QString>("ground");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("paper") << QString() << QColor(Qt::white);
        QTest::newRow("black") << u"\\chcbpat1\\cf2 "_s << QColor(Qt::black);
        QTest::newRow("blue") << u"\\chcbpat3\\cf2 "_s << QColor(0, 0, 160);
    }
    void marks_can_be_read_on_every_ground()
    {
        QFETCH(QString, ground);
        QFETCH(QColor, colour);
        program_->disc.AddFile(
            u"RichText/ground.rtf"_s,
            "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;\\red255\\green255\\blue255;"
            "\\red0\\green0\\blue160;}\\fs60 " +
                ground.toLatin1() + "red and red again}");
        Open(u"ground.rtf"_s);
        const QImage before = Pane().viewport()->grab().toImage();
        QVERIFY(CountOf(before, colour) > 0);
        Type(u"red"_s);
        const QImage marked = Pane().viewport()->grab().toImage();
        for (const QColor& mark : {look::presentMark, look::mark})
            QVERIFY(CountOf(marked, mark) > CountOf(before, mark) + 500);
        QVERIFY(CountOf(marked, look::text) > CountOf(before, look::text)); // dark letters on both
    }

private:
    void Open(const QString& name)
    {
        txtForm.Unload();
        program_->Settle();
        txtForm->rtbText.SetFileName(u"G:\\RichText\\"_s + name);
        txtForm->Show();
        txtForm->Window().activateWindow();
        program_->Settle();
    }

    /// Answers the question whether to print, and the box that tells of the end.
    void Print()
    {
        program_->messages.Answer(msgbox::answerYes);
        program_->messages.Answer(msgbox::answerOk);
        program_->Click(txtForm->cmdPrint);
    }

    void Key(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        QWidget* focused = QApplication::focusWidget();
        QVERIFY(focused != nullptr);
        QTest::keyClick(focused, key, held);
        program_->Settle();
    }

    void Type(const QString& words)
    {
        Key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), words);
        program_->Settle();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(FindInArticleTest)
#include "find_in_article_test.moc"
