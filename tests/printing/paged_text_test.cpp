#include "printing/paged_text.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr int dotsPerInch = 600;
constexpr QSizeF page(4000, 6000);

/// Paper that counts how often a layout asks for its resolution: for every piece of a text that is measured.
class CountingPaper : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return nullptr; }
    int Asked() const { return asked_; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric != PdmDpiX && metric != PdmDpiY)
            return QPaintDevice::metric(metric);
        ++asked_;
        return dotsPerInch;
    }

private:
    mutable int asked_ = 0;
};

/// Indented paragraphs of some lines, each with a bold word: formats that are not the same on paper.
void FillWithParagraphs(QTextDocument& text)
{
    constexpr int count = 200;
    QTextBlockFormat indented;
    indented.setLeftMargin(20);
    QTextCharFormat bold;
    bold.setFontFamilies({u"Liberation Serif"_s});
    bold.setFontWeight(QFont::Bold);
    QTextCursor cursor(&text);
    for (int number = 1; number <= count; ++number) {
        cursor.insertBlock(indented);
        cursor.insertText(u"A paragraph "_s, QTextCharFormat());
        cursor.insertText(u"boldly"_s, bold);
        cursor.insertText(u" long enough to be broken into lines, which fill the whole width of a page."_s,
                          QTextCharFormat());
    }
}

/// What a bare layout of a text on pages asks.
int AskedByLayout(const QTextDocument& text)
{
    CountingPaper paper;
    const std::unique_ptr<QTextDocument> once(text.clone());
    once->setLayoutEnabled(false);
    once->documentLayout()->setPaintDevice(&paper);
    once->setPageSize(page);
    once->setLayoutEnabled(true);
    return once->pageCount() > 1 ? paper.Asked() : 0;
}

} // namespace

/// A text on its way to pages.
class PagedTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_text_is_laid_out_for_paper_once()
    {
        QTextDocument text;
        FillWithParagraphs(text);
        const int once = AskedByLayout(text);
        QVERIFY2(once > 1000, qPrintable(QString::number(once)));

        CountingPaper paper;
        const PagedText paged(text, paper, page);
        QVERIFY(paged.PageCount() > 1);
        const int asked = paper.Asked();
        QVERIFY2(asked < once * 3 / 2, qPrintable(u"%1, and %2 for one layout"_s.arg(asked).arg(once)));
    }

    void a_break_below_a_table_begins_the_next_page()
    {
        constexpr int lines = 10;
        QTextDocument table;
        QTextCursor cursor(&table);
        for (int number = 1; number <= lines; ++number)
            cursor.insertText(u"A line\n"_s);
        QTextTableFormat bare; // a border could reach over the end of a page
        bare.setBorder(0);
        bare.setCellPadding(0);
        bare.setCellSpacing(0);
        cursor.insertTable(1, 1, bare)->cellAt(0, 0).firstCursorPosition().insertText(u"A table"_s);
        const std::unique_ptr<QTextDocument> text(table.clone());
        QTextCursor end(text.get());
        end.movePosition(QTextCursor::End);
        QTextBlockFormat broken;
        broken.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        end.setBlockFormat(broken);
        end.insertText(u"The end"_s);
        for (int height = 800; height < 2400; height += 4) {
            CountingPaper paper;
            const QSizeF room(page.width(), height);
            QCOMPARE(PagedText(*text, paper, room).PageCount(),
                     PagedText(table, paper, room).PageCount() + 1);
        }
    }
};

TORVIK_TEST(PagedTextTest)
#include "paged_text_test.moc"
