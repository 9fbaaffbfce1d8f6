#include "printing/keep_together.h"
#include "rtf/rtf_reader.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <cmath>

using namespace torvik;

/// Paragraphs that are to stand on one page.
class KeepTogetherTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_page_never_ends_inside_a_kept_paragraph()
    {
        int moved = 0;
        for (int before = 1; before < 60; ++before) {
            const int kept = PagesOfParagraph(before, "\\keep", 6);
            QCOMPARE(kept, 1);
            moved += PagesOfParagraph(before, "", 6) - kept;
        }
        QVERIFY(moved > 0); // else no page ended there
    }

    void a_kept_paragraph_longer_than_a_page_stays_where_it_is()
    {
        QVERIFY(PagesOfParagraph(3, "\\keep", 90) > 1);
        QCOMPARE(StartOfParagraph(3, "\\keep", 90), StartOfParagraph(3, "", 90));
    }

    void a_kept_paragraph_in_a_table_stays_in_its_cell()
    {
        QTextDocument document;
        const QByteArray kept =
            "\\pard\\intbl\\keep " + QByteArray("line\\line ").repeated(10) + "\\cell\\row";
        Lay(document, "\\trowd\\cellx5000" + kept.repeated(12) + "\\pard end\\par");
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            QCOMPARE(block.blockFormat().pageBreakPolicy(), QTextFormat::PageBreak_Auto);
    }

    void a_paragraph_that_stays_with_the_next_never_ends_a_page()
    {
        int moved = 0;
        for (int before = 1; before < 60; ++before) {
            QTextDocument kept;
            QTextDocument free;
            const QByteArray lines = QByteArray("line\\par ").repeated(before);
            const QByteArray rest = "text\\line text\\par end\\par";
            Lay(kept, lines + "\\pard\\keepn head\\par below\\par\\pard\\keep " + rest);
            Lay(free, lines + "\\pard head\\par below\\par\\pard\\keep " + rest);
            QCOMPARE(PageOf(kept, "head"), PageOf(kept, "below"));
            QCOMPARE(PageOf(kept, "below"), PageOf(kept, "text"));
            moved += PageOf(free, "head") != PageOf(free, "text") ? 1 : 0;
        }
        QVERIFY(moved > 0); // else no page ended there
    }

    void a_heading_stays_with_what_follows_whatever_is_a_table_data()
    {
        QTest::addColumn<QByteArray>("heading");
        QTest::addColumn<QByteArray>("follower");
        const QByteArray row =
            "\\trowd\\trgaph100\\cellx3000\\cellx6000\\pard\\intbl below\\cell b\\cell\\row";
        const QByteArray bordered = "\\brdrb\\brdrs\\brdrw30 ";
        const QByteArray boxed = "\\box\\brdrs\\brdrw30 ";
        const QByteArray plain = "\\pard below\\par";
        QTest::newRow("a heading with a border before text") << bordered << plain;
        QTest::newRow("a heading in a box before text") << boxed << plain;
        QTest::newRow("a heading before a table") << QByteArray(" ") << row.repeated(3);
        QTest::newRow("a heading with a border before a table") << bordered << row.repeated(3);
        QTest::newRow("a heading before text in a box")
            << QByteArray(" ") << QByteArray("\\pard\\box\\brdrs\\brdrw15 below\\par");
    }
    void a_heading_stays_with_what_follows_whatever_is_a_table()
    {
        QFETCH(QByteArray, heading);
        QFETCH(QByteArray, follower);
        int moved = 0;
        for (int before = 1; before < 60; ++before) {
            const QByteArray lines = QByteArray("line\\par ").repeated(before);
            const QByteArray end = "head\\par" + follower + "\\pard end\\par";
            QTextDocument kept;
            QTextDocument free;
            Lay(kept, lines + "\\pard\\keepn" + heading + end);
            Lay(free, lines + "\\pard" + heading + end);
            QCOMPARE(PageOf(kept, "head"), PageOf(kept, "below"));
            moved += PageOf(free, "head") != PageOf(free, "below") ? 1 : 0;
        }
        QVERIFY(moved > 0); // else no page ended there
    }

    void a_paragraph_in_a_box_that_is_to_stand_on_one_page_does()
    {
        int moved = 0;
        for (int before = 1; before < 60; ++before) {
            const auto isCut = [&](const QByteArray& word) {
                QTextDocument document;
                Lay(document, QByteArray("line\\par ").repeated(before) + "\\pard\\box\\brdrs\\brdrw15" +
                                  word + " first\\par second\\par third\\par\\pard end\\par");
                return PageOf(document, "first") != PageOf(document, "third");
            };
            QVERIFY(!isCut("\\keep"));
            moved += isCut("") ? 1 : 0;
        }
        QVERIFY(moved > 0); // else no page ended there
    }

    void a_heading_before_a_box_that_begins_a_page_stays_where_it_is()
    {
        for (int before = 1; before < 60; ++before) {
            const QByteArray lines = QByteArray("line\\par ").repeated(before);
            const QByteArray end = "head\\par\\pard\\pagebb\\box\\brdrs\\brdrw30 below\\par";
            QTextDocument kept;
            QTextDocument free;
            Lay(kept, lines + "\\pard\\keepn " + end);
            Lay(free, lines + "\\pard " + end);
            QCOMPARE(PageOf(kept, "head"), PageOf(free, "head"));
            QCOMPARE(PageOf(kept, "below"), PageOf(kept, "head") + 1);
        }
    }

    void a_heading_below_a_table_stays_with_the_next_whichever_cell_is_longest()
    {
        int moved = 0;
        for (int lines = 40; lines < 80; ++lines) {
            const QByteArray table = "\\trowd\\cellx3000\\cellx6000\\pard\\intbl " +
                                     QByteArray("long\\line ").repeated(lines) + "\\cell short\\cell\\row";
            const QByteArray rest = "head\\par\\pard\\keep below\\line below\\par";
            QTextDocument kept;
            QTextDocument free;
            Lay(kept, table + "\\pard\\keepn " + rest);
            Lay(free, table + "\\pard " + rest);
            QCOMPARE(PageOf(kept, "head"), PageOf(kept, "below"));
            moved += PageOf(free, "head") != PageOf(free, "below") ? 1 : 0;
        }
        QVERIFY(moved > 0); // else no page ended there
    }

    void paragraphs_that_all_stay_with_the_next_and_fill_a_page_stay()
    {
        QTextDocument document;
        Lay(document, "\\pard\\keepn " + QByteArray("line\\par ").repeated(300) + "end\\par");
        QVERIFY(document.pageCount() < 14);
    }

private:
    /// The page of the first line of the paragraph that begins with a text.
    static double PageOf(const QTextDocument& document, const char* text)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const double top = document.documentLayout()->blockBoundingRect(block).top();
            if (block.text().startsWith(QLatin1StringView(text)))
                return std::floor((top + block.layout()->lineAt(0).y() + 0.5) / document.pageSize().height());
        }
        return -1;
    }
    static void Lay(QTextDocument& document, const QByteArray& body)
    {
        rtf::ReadRichText("{\\rtf1 " + body + "}", document);
        document.setDocumentMargin(0);
        document.setPageSize({500, 600});
        KeepParagraphsTogether(document);
    }
    static void LayParagraph(QTextDocument& document, int before, const QByteArray& word, int lines)
    {
        Lay(document, QByteArray("line\\par ").repeated(before) + "\\pard" + word + " " +
                          QByteArray("kept\\line ").repeated(lines - 1) + "kept\\par");
    }
    static double TopOf(const QTextDocument& document, int line)
    {
        const QTextBlock block = document.lastBlock();
        const double top = document.documentLayout()->blockBoundingRect(block).top();
        return top + block.layout()->lineAt(line).y();
    }
    /// On how many pages the last paragraph stands.
    static int PagesOfParagraph(int before, const QByteArray& word, int lines)
    {
        QTextDocument document;
        LayParagraph(document, before, word, lines);
        const auto pageOf = [&](int line) { return static_cast<int>(TopOf(document, line) / 600); };
        return pageOf(lines - 1) - pageOf(0) + 1;
    }
    static double StartOfParagraph(int before, const QByteArray& word, int lines)
    {
        QTextDocument document;
        LayParagraph(document, before, word, lines);
        return TopOf(document, 0);
    }
};

TORVIK_TEST(KeepTogetherTest)
#include "keep_together_test.moc"
