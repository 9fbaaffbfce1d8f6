#include "support/desktop.h"
#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/rich_text_box.h"
#include "ui/form_fixture.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    RichTextBox rtbText{*this, u"rtbText"_s, {0, 0, 4500, 3000}};
};

FormHandle<MainForm> Main;

QTextBrowser& Pane()
{
    return static_cast<QTextBrowser&>(Main->rtbText.Widget());
}

/// The rows of the pane that hold ink in a column, both in pixels.
QList<int> InkedRows(int x)
{
    const QImage image = Pane().viewport()->grab().toImage();
    QList<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (qGray(image.pixel(x, y)) < 128)
            rows.append(y);
    }
    return rows;
}

} // namespace

/// The pane that shows a rich-text file.
class RichTextBoxTest : public FormFixture {
    Q_OBJECT

public:
    RichTextBoxTest() : FormFixture(Main) {}

private Q_SLOTS:
    void a_file_is_shown_and_its_text_spoken()
    {
        QCOMPARE(Pane().accessibleName(), u"rtbText"_s);
        const QString path = folder_.Add(u"67a.rtf"_s, "{\\rtf1\\ansi The first {\\b Torvik}.\\par Red.}");
        Main->rtbText.SetFileName(path);
        QCOMPARE(Main->rtbText.FileName(), path);
        QVERIFY(Main->rtbText.Text().startsWith(u"The first Torvik.\nRed."_s));
        QCOMPARE(Pane().accessibleName(), Main->rtbText.Text());
    }

    void another_file_takes_the_place_of_the_first()
    {
        Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1 one}"));
        Main->rtbText.SetFileName(folder_.Add(u"b.rtf"_s, "{\\rtf1 two}"));
        QCOMPARE(Main->rtbText.Text().trimmed(), u"two"_s);
    }

    void the_text_stays_when_the_next_file_fails()
    {
        const QString first = folder_.Add(u"a.rtf"_s, "{\\rtf1 one}");
        Main->rtbText.SetFileName(first);
        const QString empty = folder_.Add(u"empty.rtf"_s, {});
        QCOMPARE(ResumeNext([&] { Main->rtbText.SetFileName(empty); }), 321);
        QCOMPARE(ResumeNext([&] { Main->rtbText.SetFileName(folder_.PathOf(u"none.rtf"_s)); }), 53);
        QCOMPARE(ResumeNext([&] { Main->rtbText.SetFileName(folder_.PathOf(u"no\\x.rtf"_s)); }), 76);
        QCOMPARE(Main->rtbText.Text().trimmed(), u"one"_s);
        QCOMPARE(Main->rtbText.FileName(), first);
    }

    void the_user_cannot_change_the_text_but_select_it()
    {
        Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1 one}"));
        Main->rtbText.SetFocus();
        QTest::keyClicks(&Pane(), u"abc"_s);
        QCOMPARE(Main->rtbText.Text().trimmed(), u"one"_s);
        QTest::keyClick(&Pane(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Pane().textCursor().selectedText().trimmed(), u"one"_s);
    }

    void a_press_or_click_on_the_text_is_one_of_the_pane()
    {
        int clicks = 0;
        QList<int> downs;
        Main->rtbText.Click = [&] { ++clicks; };
        Main->rtbText.MouseDown = [&](int button) { downs.append(button); };
        QTest::mouseClick(Pane().viewport(), Qt::LeftButton);
        QTest::mousePress(Pane().viewport(), Qt::RightButton);
        QCOMPARE(clicks, 1);
        QCOMPARE(downs, (QList<int>{mouse::left, mouse::right}));
    }

    void web_and_mail_addresses_open_outside_and_nothing_else_does()
    {
        const QStringList addresses{u"http://example.com/a"_s, u"https://example.com/b"_s,
                                    u"mailto:a@example.com"_s, u"file:///etc/passwd"_s, u"other.rtf"_s};
        QByteArray text = "{\\rtf1 ";
        for (const QString& address : addresses)
            text +=
                "{\\field{\\*\\fldinst HYPERLINK \"" + address.toLatin1() + "\"}{\\fldrslt a link}}\\par ";
        const QString file = folder_.Add(u"links.rtf"_s, text + '}');
        Main->rtbText.SetFileName(file);
        const Desktop desktop;
        for (int line = 0; line < addresses.size(); ++line) {
            QTextCursor cursor(Pane().document()->findBlockByNumber(line));
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, 3);
            QTest::mouseClick(Pane().viewport(), Qt::LeftButton, {}, Pane().cursorRect(cursor).center());
        }
        QCOMPARE(desktop.opened, addresses.first(3));
        QCOMPARE(Main->rtbText.FileName(), file);
        QVERIFY(Main->rtbText.Text().startsWith(u"a link\na link\n"_s));
        QVERIFY(!Pane().source().isValid());
    }

    void a_link_inside_the_document_brings_its_place_into_view()
    {
        const Desktop desktop;
        Main->rtbText.SetFileName(folder_.Add(
            u"a.rtf"_s,
            "{\\rtf1 {\\field{\\*\\fldinst HYPERLINK \\\\l \"rear wheels\"}{\\fldrslt go}}\\par " +
                QByteArray("line\\par ").repeated(200) + "{\\*\\bkmkstart rear wheels}there\\par}"));
        QScrollBar& bar = *Pane().verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        QTest::mouseClick(Pane().viewport(), Qt::LeftButton, {}, Pane().cursorRect().center() + QPoint(4, 0));
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY(desktop.opened.isEmpty());
    }

    void marks_lie_under_pieces_of_the_text_and_change_nothing_of_it()
    {
        Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1 a red car, a red hood}"));
        const QString html = Main->rtbText.Document().toHtml();
        Main->rtbText.SetMarks({{2, 3}, {13, 3}}, 1);
        const auto marks = Pane().extraSelections();
        QCOMPARE(marks.size(), 2);
        for (const auto& mark : marks) {
            QCOMPARE(mark.cursor.selectedText(), u"red"_s);
            QCOMPARE(mark.format.foreground().color(), look::text);
        }
        QCOMPARE(marks[0].format.background().color(), look::mark);
        QCOMPARE(marks[1].format.background().color(), look::presentMark);
        QCOMPARE(Main->rtbText.Document().toHtml(), html); // what is printed
        QVERIFY(!Pane().textCursor().hasSelection());      // what is copied
        Main->rtbText.SetMarks({}, -1);
        QVERIFY(Pane().extraSelections().isEmpty());
    }

    void a_text_in_a_hidden_pane_is_laid_out_when_the_pane_is_shown()
    {
        Main->rtbText.Hide();
        Main->rtbText.SetFileName(
            folder_.Add(u"a.rtf"_s, "{\\rtf1 " + QByteArray("some words\\par ").repeated(300) + "}"));
        QVERIFY(!Pane().document()->isLayoutEnabled());
        QVERIFY(Main->rtbText.Text().startsWith(u"some words\nsome words\n"_s));
        Main->rtbText.Show();
        QVERIFY(Pane().document()->isLayoutEnabled());
        QVERIFY(Pane().verticalScrollBar()->isVisible());
        QCOMPARE(Pane().document()->textWidth(), double(Pane().viewport()->width()));
        QVERIFY(Pane().document()->pageCount() > 0);
        QVERIFY(Pane().verticalScrollBar()->maximum() > 100);
        QCOMPARE(Pane().verticalScrollBar()->value(), 0);
    }

    void a_short_text_in_many_characters_has_no_bar()
    {
        Main->rtbText.Hide();
        Main->rtbText.SetFileName(
            folder_.Add(u"a.rtf"_s, "{\\rtf1\\fs2 " + QByteArray("i").repeated(2500) + "}"));
        Main->rtbText.Show();
        QVERIFY(!Pane().verticalScrollBar()->isVisible());
        QCOMPARE(Pane().document()->textWidth(), double(Pane().viewport()->width()));
    }

    void a_piece_of_a_text_in_a_hidden_pane_is_in_view_when_the_pane_is_shown()
    {
        Main->rtbText.Hide();
        Main->rtbText.SetFileName(folder_.Add(
            u"a.rtf"_s, "{\\rtf1 " + QByteArray("some words\\par ").repeated(300) + "needle\\par }"));
        const qsizetype at = Main->rtbText.Text().indexOf(u"needle"_s);
        Main->rtbText.BringIntoView({at, 6});
        Main->rtbText.Show();
        QVERIFY(Pane().verticalScrollBar()->value() > 100);
    }

    void leaders_and_double_underlines_are_seen_wherever_the_text_is_scrolled_data()
    {
        QTest::addColumn<QByteArray>("told");
        QTest::addColumn<QByteArray>("without");
        QTest::newRow("a leader") << QByteArray("\\tlul\\tx3000\\tab x") << QByteArray("\\tx3000\\tab x");
        QTest::newRow("a double underline")
            << QByteArray("\\fs40\\uldb\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~ x")
            << QByteArray("\\fs40\\ul\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~\\~ x");
    }
    void leaders_and_double_underlines_are_seen_wherever_the_text_is_scrolled()
    {
        QFETCH(QByteArray, told);
        QFETCH(QByteArray, without);
        constexpr int column = 50; // behind the tab, or the spaces that are underlined
        constexpr int scrolled = 37;
        const auto inked = [&](const QByteArray& line, int value) {
            const QByteArray filler = QByteArray("\\par ").repeated(40);
            Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1\\par\\par\\par\\par{\\pard" + line +
                                                                  "\\par}\\pard" + filler + "}"));
            Pane().verticalScrollBar()->setValue(value);
            return InkedRows(column);
        };
        const QList<int> unscrolled = inked(told, 0);
        QVERIFY(unscrolled.size() > inked(without, 0).size());
        QList<int> expected;
        for (const int row : unscrolled)
            expected.append(row - scrolled);
        QCOMPARE(inked(told, scrolled), expected);
        QCOMPARE(Pane().verticalScrollBar()->value(), scrolled);
    }

    void shadows_of_letters_are_seen_wherever_the_text_is_scrolled()
    {
        const auto greyRows = [&](const QByteArray& word, int value) {
            Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1\\par\\par\\par\\par{\\fs120" + word +
                                                                  " \\emdash\\emdash\\par}" +
                                                                  QByteArray("\\par ").repeated(40) + "}"));
            Pane().verticalScrollBar()->setValue(value);
            const QImage image = Pane().viewport()->grab().toImage();
            QList<int> rows;
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(60, y) == QColor(Qt::gray))
                    rows.append(y);
            }
            return rows;
        };
        const QList<int> shadow = greyRows("\\shad", 0);
        QVERIFY(!shadow.isEmpty());
        QVERIFY(greyRows({}, 0).isEmpty());
        QList<int> scrolled;
        for (const int row : shadow)
            scrolled.append(row - 37);
        QCOMPARE(greyRows("\\shad", 37), scrolled);
    }

    void marks_go_with_the_next_file()
    {
        Main->rtbText.SetFileName(folder_.Add(u"a.rtf"_s, "{\\rtf1 a red car}"));
        Main->rtbText.SetMarks({{2, 3}}, 0);
        Main->rtbText.SetFileName(folder_.Add(u"b.rtf"_s, "{\\rtf1 another red car}"));
        QVERIFY(Pane().extraSelections().isEmpty());
    }

    void a_piece_far_down_or_to_the_side_comes_into_view_and_the_selection_stays()
    {
        Main->rtbText.SetFileName(
            folder_.Add(u"a.rtf"_s, "{\\rtf1 " + QByteArray("some words\\par ").repeated(3000) +
                                        "needle\\par " + QByteArray("some words\\par ").repeated(50) + "}"));
        QTextCursor selection = Pane().textCursor();
        selection.setPosition(4, QTextCursor::KeepAnchor);
        Pane().setTextCursor(selection);
        const qsizetype at = Main->rtbText.Text().indexOf(u"needle"_s);
        Main->rtbText.BringIntoView({at, 6});
        QTextCursor needle(Pane().document());
        needle.setPosition(static_cast<int>(at));
        QVERIFY(Pane().viewport()->rect().contains(Pane().cursorRect(needle)));
        QCOMPARE(Pane().textCursor().selectedText(), u"some"_s);
        const int there = Pane().verticalScrollBar()->value();
        Main->rtbText.BringIntoView({at, 6});
        QCOMPARE(Pane().verticalScrollBar()->value(), there);
        Main->rtbText.BringIntoView({0, 4});
        QCOMPARE(Pane().verticalScrollBar()->value(), 0);
    }

private:
    PictureFolder folder_;
};

TORVIK_TEST(RichTextBoxTest)
#include "rich_text_box_test.moc"
