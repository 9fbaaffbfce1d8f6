#include "printing/table_ends.h"
#include "rtf/rtf_reader.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <cmath>

using namespace torvik;

/// What follows a table that ends where its page does.
class TableEndsTest : public QObject {
    Q_OBJECT

    const QByteArray plainTable_ = "\\trowd\\cellx3000\\pard\\intbl table\\cell\\row";

private Q_SLOTS:
    void a_page_is_neither_cut_nor_left_empty_below_a_table_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QByteArray>("below");
        QTest::addColumn<bool>("breaks");
        const QByteArray box = "\\box\\brdrs\\brdrw15 ";
        const QByteArray row = "\\trowd\\cellx3000\\pard\\intbl ";
        QTest::newRow("text") << plainTable_ << QByteArray("\\pard end\\par") << false;
        const QByteArray text = "\\pard\\pagebb end\\par";
        QTest::newRow("text that begins a page") << plainTable_ << text << true;
        QTest::newRow("a box that begins a page")
            << plainTable_ << "\\pard\\pagebb" + box + "end\\par" << true;
        QTest::newRow("a table that begins a page")
            << plainTable_ << "\\pard\\page" + row + "end\\cell\\row" << true;
        for (const int width : {15, 45, 90}) {
            const QByteArray line = "\\brdrs\\brdrw" + QByteArray::number(width);
            const QByteArray boxed = "\\pard\\box" + line + " table\\par";
            QTest::addRow("text below a box with lines of %d twips", width)
                << boxed << QByteArray("\\pard end\\par") << false;
            QTest::addRow("text that begins a page below such a box") << boxed << text << true;
            QTest::addRow("a box that begins a page below such a box")
                << boxed << "\\pard\\pagebb" + box + "end\\par" << true;
            const QByteArray ruled =
                "\\trowd\\clbrdrt" + line + "\\clbrdrb" + line + "\\cellx3000\\pard\\intbl table\\cell\\row";
            QTest::addRow("text that begins a page below a table with such lines") << ruled << text << true;
        }
        QTest::newRow("below a high row with its text at the foot")
            << QByteArray("\\trowd\\trrh900\\clvertalb\\cellx3000\\pard\\intbl table\\cell\\row") << text
            << true;
    }
    void a_page_is_neither_cut_nor_left_empty_below_a_table()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, below);
        QFETCH(bool, breaks);
        int mended = 0; // of the pages that would have been cut or empty
        for (int height = 400; height < 500; ++height) {
            const auto isWell = [&](bool isFilled) {
                QTextDocument document;
                Lay(document, table, below, height, isFilled);
                const double place = LineOf(document, "table").top() / height;
                const QRectF end = LineOf(document, "end");
                const double page = std::floor(end.top() / height);
                const bool isCut = std::floor(end.bottom() / height) > page;
                const bool isNear = page - std::floor(place) == 1 || (!breaks && page == std::floor(place));
                return !isCut && isNear;
            };
            QVERIFY2(isWell(true), qPrintable(QString::number(height)));
            mended += isWell(false) ? 0 : 1;
        }
        QVERIFY(mended > 0);
    }

    void a_page_is_filled_up_on_paper_of_any_resolution()
    {
        QImage paper(10, 10, QImage::Format_RGB32);
        paper.setDotsPerMeterX(12000);
        paper.setDotsPerMeterY(12000);
        const double scale = paper.logicalDpiY() / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
        int filled = 0;
        for (int height = 1200; height < 1400; ++height) {
            QTextDocument document;
            document.documentLayout()->setPaintDevice(&paper);
            Lay(document, plainTable_, "\\pard\\pagebb end\\par", height, false);
            const QTextFrame* table = document.rootFrame()->childFrames().first();
            const double before = table->frameFormat().bottomMargin();
            FillPagesBelowTables(document, scale);
            if (table->frameFormat().bottomMargin() == before)
                continue;
            ++filled;
            const double bottom = document.documentLayout()
                                      ->frameBoundingRect(document.rootFrame()->childFrames().first())
                                      .bottom();
            const double rest = std::remainder(bottom, height);
            QVERIFY2(std::abs(rest) < 0.1, qPrintable(QString::number(rest)));
        }
        QVERIFY(filled > 0);
    }

    void a_table_at_the_end_of_the_document_adds_no_page()
    {
        for (double height = 400; height < 500; height += 0.3) {
            QTextDocument filled;
            QTextDocument plain;
            Lay(filled, plainTable_, {}, height, true);
            Lay(plain, plainTable_, {}, height, false);
            QCOMPARE(filled.pageCount(), plain.pageCount());
        }
    }

private:
    static void Lay(QTextDocument& document, const QByteArray& table, const QByteArray& below, double height,
                    bool isFilled)
    {
        rtf::ReadRichText("{\\rtf1 " + QByteArray("line\\par ").repeated(20) + table + below + "}", document);
        document.setDocumentMargin(0);
        document.setPageSize(QSizeF(500, height));
        if (isFilled)
            FillPagesBelowTables(document, 1);
    }
    /// The first line of the paragraph with a text, from the top of the document, a little less high.
    static QRectF LineOf(const QTextDocument& document, const char* text)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (block.text() == QLatin1StringView(text)) {
                const double top = document.documentLayout()->blockBoundingRect(block).top();
                return block.layout()->lineAt(0).rect().translated(0, top).adjusted(0, 0.5, 0, -0.5);
            }
        }
        return {};
    }
};

TORVIK_TEST(TableEndsTest)
#include "table_ends_test.moc"
