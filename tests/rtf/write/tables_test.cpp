#include "rtf/documents.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextTable>

#include <cmath>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class TablesTest : public QObject {
    Q_OBJECT

    static QTextTable* TableOf(const Reading& read, int number = 0)
    {
        QList<QTextTable*> tables;
        for (QTextFrame* frame : read.document->rootFrame()->childFrames()) {
            if (auto* table = qobject_cast<QTextTable*>(frame))
                tables.append(table);
        }
        return tables.value(number);
    }
    static QString CellText(const QTextTable* table, int row, int column)
    {
        const QTextTableCell cell = table->cellAt(row, column);
        QTextCursor cursor = cell.firstCursorPosition();
        cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
        return cursor.selectedText().replace(QChar(QChar::ParagraphSeparator), u'/');
    }

private Q_SLOTS:
    void rows_and_cells_become_a_table()
    {
        const Reading read =
            ReadBody("before\\par\\trowd\\cellx1500\\cellx4500\\pard\\intbl a\\cell b\\par c\\cell\\row"
                     "\\trowd\\cellx1500\\cellx4500\\pard\\intbl d\\cell e\\cell\\row\\pard after\\par");
        const QTextTable* table = TableOf(read);
        QVERIFY(table != nullptr);
        QCOMPARE(table->rows(), 2);
        QCOMPARE(table->columns(), 2);
        QCOMPARE(CellText(table, 0, 0), u"a"_s);
        QCOMPARE(CellText(table, 0, 1), u"b/c"_s);
        QCOMPARE(CellText(table, 1, 1), u"e"_s);
        QCOMPARE(table->format().columnWidthConstraints().at(0).rawValue(), 100.0);
        QCOMPARE(table->format().columnWidthConstraints().at(1).rawValue(), 200.0);
        QCOMPARE(read.document->lastBlock().text(), u"after"_s);
        QCOMPARE(read.result.tables, 1);
    }

    void the_row_may_be_defined_after_its_cells()
    {
        const Reading read =
            ReadBody("\\pard\\intbl a\\cell b\\cell\\trowd\\cellx1500\\cellx3000\\row\\pard x\\par");
        QCOMPARE(TableOf(read)->columns(), 2);
        QCOMPARE(CellText(TableOf(read), 0, 1), u"b"_s);
    }

    void a_definition_holds_for_the_rows_that_follow()
    {
        const Reading read = ReadBody(
            "\\trowd\\cellx1500\\cellx3000\\intbl a\\cell b\\cell\\row c\\cell d\\cell\\row\\pard x\\par");
        QCOMPARE(TableOf(read)->rows(), 2);
        QCOMPARE(CellText(TableOf(read), 1, 0), u"c"_s);
    }

    void rows_with_other_edges_span_the_common_columns()
    {
        const Reading read =
            ReadBody("\\trowd\\cellx1000\\cellx2000\\cellx3000\\intbl a\\cell b\\cell c\\cell\\row"
                     "\\trowd\\cellx2000\\cellx3000\\intbl wide\\cell d\\cell\\row\\pard x\\par");
        const QTextTable* table = TableOf(read);
        QCOMPARE(table->columns(), 3);
        QCOMPARE(table->cellAt(1, 0).columnSpan(), 2);
        QCOMPARE(CellText(table, 1, 2), u"d"_s);
    }

    void cells_merged_across()
    {
        const Reading read = ReadBody(
            "\\trowd\\clmgf\\cellx1000\\clmrg\\cellx2000\\cellx3000\\intbl wide\\cell\\cell c\\cell\\row"
            "\\trowd\\cellx1000\\cellx2000\\cellx3000\\intbl d\\cell e\\cell f\\cell\\row\\pard x\\par");
        const QTextTable* table = TableOf(read);
        QCOMPARE(table->cellAt(0, 0).columnSpan(), 2);
        QCOMPARE(CellText(table, 0, 0), u"wide"_s);
        QCOMPARE(CellText(table, 0, 2), u"c"_s);
    }

    void cells_merged_down()
    {
        const Reading read =
            ReadBody("\\trowd\\clvmgf\\cellx1000\\cellx2000\\intbl tall\\cell b\\cell\\row"
                     "\\trowd\\clvmrg\\cellx1000\\cellx2000\\intbl\\cell d\\cell\\row"
                     "\\trowd\\clvmrg\\cellx1000\\cellx2000\\intbl\\cell f\\cell\\row\\pard x\\par");
        const QTextTable* table = TableOf(read);
        QCOMPARE(table->cellAt(0, 0).rowSpan(), 3);
        QCOMPARE(CellText(table, 2, 0), u"tall"_s);
        QCOMPARE(CellText(table, 2, 1), u"f"_s);
    }

    void borders_shading_and_alignment_of_cells()
    {
        const Reading read = ReadBody(
            "\\trowd\\trgaph150\\clvertalc\\clbrdrt\\brdrs\\brdrw30\\brdrcf1\\clbrdrb\\brdrdb\\brdrw15"
            "\\clcbpat4\\cellx2000\\clshdng5000\\cellx4000\\intbl a\\cell b\\cell\\row\\pard x\\par");
        const QTextTableCellFormat first = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(first.topBorder(), 2.0);
        QCOMPARE(first.topBorderBrush().color(), QColor(255, 0, 0));
        QCOMPARE(first.bottomBorderStyle(), QTextFrameFormat::BorderStyle_Double);
        QCOMPARE(first.leftBorder(), 0.0);
        QCOMPARE(first.background().color(), QColor(255, 255, 0));
        QCOMPARE(first.verticalAlignment(), QTextCharFormat::AlignMiddle);
        QCOMPARE(first.leftPadding(), 10.0);
        QCOMPARE(TableOf(read)->cellAt(0, 1).format().background().color(), QColor(127, 127, 127));
    }

    void borders_of_the_row_hold_where_cells_have_none()
    {
        const Reading read = ReadBody("\\trowd\\trbrdrt\\brdrs\\brdrw15\\trbrdrv\\brdrs\\brdrw45\\cellx2000\\"
                                      "cellx4000\\intbl a\\cell b\\cell\\row\\pard x\\par");
        const QTextTableCellFormat first = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(first.topBorder(), 1.0);
        QCOMPARE(first.rightBorder(), 3.0);
        QCOMPARE(first.leftBorder(), 0.0);
    }

    void neighbours_share_the_line_between_them()
    {
        const QByteArray all = "\\clbrdrt\\brdrs\\brdrw30\\clbrdrl\\brdrs\\brdrw30\\clbrdrb\\brdrs\\brdrw30"
                               "\\clbrdrr\\brdrs\\brdrw30";
        const Reading read = ReadBody("\\trowd" + all + "\\cellx2000" + all +
                                      "\\cellx4000\\intbl\\cell\\cell\\row\\pard x\\par");
        QVERIFY(TableOf(read)->format().borderCollapse());
        read.document->setTextWidth(400);
        const QRectF place = read.document->documentLayout()->frameBoundingRect(TableOf(read));
        QImage paper(400, 200, QImage::Format_Grayscale8);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        read.document->drawContents(&painter);
        painter.end();
        int dark = 0;
        for (int x = 0; x < paper.width(); ++x)
            dark += qGray(paper.pixel(x, qRound(place.center().y()))) < 128 ? 1 : 0;
        QCOMPARE(dark, 3 * 2);
    }

    void a_table_without_borders_is_laid_out_as_if_it_shared_them()
    {
        const Reading read =
            ReadBody("\\trowd\\trgaph100\\cellx2000\\cellx4000\\intbl one\\cell two\\cell\\row"
                     "\\trowd\\trgaph100\\cellx1000\\cellx4000\\intbl three\\cell four\\cell\\row"
                     "\\pard below\\par");
        read.document->setTextWidth(400);
        const auto places = [&read] {
            QList<QRectF> all;
            for (QTextBlock block = read.document->begin(); block.isValid(); block = block.next())
                all.append(read.document->documentLayout()->blockBoundingRect(block));
            return all;
        };
        const QList<QRectF> bare = places();
        QTextTableFormat format = TableOf(read)->format();
        QVERIFY(!format.borderCollapse());
        format.setBorderCollapse(true);
        TableOf(read)->setFormat(format);
        QCOMPARE(places(), bare);
    }

    void a_colour_table_that_begins_with_black_blackens_no_cell()
    {
        const Reading read =
            ReadBytes("{\\rtf1{\\colortbl\\red0\\green0\\blue0;}\\trowd\\cellx1000\\cellx2000"
                      "\\intbl a\\cell b\\cell\\row\\pard\\par}");
        const QTextTable* table = TableOf(read);
        QVERIFY(table != nullptr);
        QCOMPARE(table->cellAt(0, 0).format().background().style(), Qt::NoBrush);
    }

    void place_and_header_of_the_table()
    {
        const Reading read = ReadBody(
            "\\trowd\\trhdr\\trqc\\cellx2000\\intbl h\\cell\\row\\trowd\\trqc\\cellx2000\\intbl a\\cell\\row"
            "\\pard between\\par\\trowd\\trleft750\\cellx2000\\intbl b\\cell\\row\\pard x\\par");
        QCOMPARE(TableOf(read)->format().headerRowCount(), 1);
        QVERIFY((TableOf(read)->format().alignment() & Qt::AlignHCenter) != 0);
        QCOMPARE(TableOf(read, 1)->format().leftMargin(), 50.0);
    }

    void a_table_that_stands_out_has_its_text_in_line_with_the_text_around_data()
    {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("width");
        const QByteArray line = "\\clbrdrl\\brdrs\\brdrw15";
        QTest::newRow("without lines") << QByteArray("\\trgaph150\\trleft-150") << 0.0 << 100.0;
        QTest::newRow("far out") << QByteArray("\\trgaph150\\trleft-600") << 0.0 << 130.0;
        QTest::newRow("a little out") << QByteArray("\\trgaph150\\trleft-60") << 6.0 << 100.0;
        QTest::newRow("with a line") << QByteArray("\\trgaph150\\trleft-150" + line) << 2.0 << 102.0;
        QTest::newRow("with a ground") << QByteArray("\\trgaph150\\trleft-150\\clcbpat4") << 2.0 << 102.0;
        QTest::newRow("inside") << QByteArray("\\trgaph150\\trleft150") << 10.0 << 90.0;
        QTest::newRow("in the middle") << QByteArray("\\trqc\\trgaph150\\trleft-150") << 10.0 << 110.0;
        QTest::newRow("from right to left") << QByteArray("\\rtlrow\\trgaph150\\trleft-150") << 10.0 << 100.0;
    }
    void a_table_that_stands_out_has_its_text_in_line_with_the_text_around()
    {
        QFETCH(QByteArray, row);
        QFETCH(double, left);
        QFETCH(double, width);
        const Reading read =
            ReadBody("\\trowd" + row + "\\cellx1500\\cellx3000\\intbl a\\cell b\\cell\\row\\pard x\\par");
        const QTextTable* table = TableOf(read);
        QCOMPARE(table->cellAt(0, 0).format().toTableCellFormat().leftPadding(), left);
        QCOMPARE(table->format().columnWidthConstraints().at(0).rawValue(), width);
        QCOMPARE(table->cellAt(0, 1).format().toTableCellFormat().leftPadding(), 10.0);
    }

    void a_column_that_is_narrow_is_not_cut()
    {
        const Reading read = ReadBody("\\trowd\\trgaph150\\trleft-150\\cellx150\\cellx3000\\intbl "
                                      "a\\cell b\\cell\\row\\pard x\\par");
        QCOMPARE(TableOf(read)->cellAt(0, 0).format().toTableCellFormat().leftPadding(), 10.0);
        QCOMPARE(TableOf(read)->format().columnWidthConstraints().at(0).rawValue(), 20.0);
    }

    void tables_within_tables()
    {
        const Reading read = ReadBody(
            "\\trowd\\cellx6000\\pard\\intbl outer\\par\\pard\\intbl\\itap2 in1\\nestcell in2\\nestcell"
            "{\\*\\nesttableprops\\trowd\\cellx1500\\cellx3000\\nestrow}{\\nonesttables\\par}"
            "\\pard\\intbl\\itap1 below\\cell\\row\\pard x\\par");
        QTextTable* outer = TableOf(read);
        QCOMPARE(outer->columns(), 1);
        auto* inner = qobject_cast<QTextTable*>(outer->childFrames().value(0));
        QVERIFY(inner != nullptr);
        QCOMPARE(inner->columns(), 2);
        QCOMPARE(CellText(inner, 0, 1), u"in2"_s);
        QCOMPARE(inner->format().columnWidthConstraints().at(0).rawValue(), 100.0);
        QVERIFY(read.Text().contains(u"below"_s));
    }

    void lists_and_formats_inside_cells()
    {
        const Reading read = ReadBody("\\trowd\\cellx4000\\intbl{\\pntext\\f2\\'b7\\tab}one\\par{"
                                      "\\pntext\\f2\\'b7\\tab}\\b two\\b0\\cell\\row\\pard x\\par");
        QVERIFY(read.Block(u"two"_s).textList() != nullptr);
        QCOMPARE(read.Format("two").fontWeight(), int(QFont::Bold));
    }

    void more_cells_than_edges_and_fewer()
    {
        const Reading read =
            ReadBody("\\trowd\\cellx1000\\intbl a\\cell b\\cell c\\cell\\row\\pard between\\par"
                     "\\trowd\\cellx1000\\cellx2000\\cellx3000\\intbl d\\cell\\row\\pard x\\par");
        QCOMPARE(CellText(TableOf(read), 0, 2), u"c"_s);
        QCOMPARE(TableOf(read, 1)->columns(), 3);
    }

    void edges_that_run_backwards_lose_no_text()
    {
        const Reading read = ReadBody(
            "\\trowd\\cellx3000\\cellx-500\\cellx100\\intbl a\\cell b\\cell c\\cell\\row\\pard x\\par");
        for (const char* text : {"a", "b", "c", "x"})
            QVERIFY(read.Text().contains(QLatin1StringView(text)));
    }

    void a_row_without_an_end_is_shown()
    {
        const Reading read = ReadBody("\\trowd\\cellx1000\\cellx2000\\intbl a\\cell b");
        QCOMPARE(CellText(TableOf(read), 0, 1), u"b"_s);
    }

    void an_empty_paragraph_next_to_a_table_keeps_its_height_data()
    {
        QTest::addColumn<QByteArray>("between");
        QTest::addColumn<double>("least");
        QTest::newRow("between two tables") << QByteArray("\\pard\\fs24\\par") << 17.0;
        QTest::newRow("two of them") << QByteArray("\\pard\\fs24\\par\\par") << 35.0;
        QTest::newRow("three of them") << QByteArray("\\pard\\fs24\\par\\par\\par") << 50.0;
        QTest::newRow("with space of its own") << QByteArray("\\pard\\fs24\\sb300\\sa150\\par") << 47.0;
        QTest::newRow("of a height that is told") << QByteArray("\\pard\\sl-600\\slmult0\\par") << 39.0;
        QTest::newRow("before text") << QByteArray("\\pard\\fs24\\par text\\par") << 34.0;
        QTest::newRow("after text") << QByteArray("\\pard\\fs24 text\\par\\par") << 34.0;
        QTest::newRow("text with space above and below") << QByteArray("\\pard\\sb300\\sa450 x\\par") << 64.0;
    }
    void an_empty_paragraph_next_to_a_table_keeps_its_height()
    {
        QFETCH(QByteArray, between);
        QFETCH(double, least);
        const QByteArray row = "\\trowd\\cellx3000\\pard\\intbl ";
        const auto distance = [&](const QByteArray& middle) {
            const Reading read =
                ReadBody(row + "one\\cell\\row" + middle + row + "two\\cell\\row\\pard x\\par");
            read.document->setTextWidth(400);
            const auto& layout = *read.document->documentLayout();
            return layout.blockBoundingRect(read.Block(u"two"_s)).top() -
                   layout.blockBoundingRect(read.Block(u"one"_s)).bottom();
        };
        const double here = distance(between);
        QVERIFY2(here >= least && here < least + 12, qPrintable(QString::number(here)));
    }

    void space_above_and_below_paragraphs_of_cells()
    {
        const Reading read = ReadBody("\\trowd\\cellx3000\\pard\\intbl\\sb150 one\\par\\pard\\intbl\\sa300 "
                                      "two\\cell\\row\\pard x\\par");
        const QTextTableCellFormat format = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.topPadding(), 10.0);
        QCOMPARE(format.bottomPadding(), 20.0);
    }

    void margins_of_cells_come_before_those_of_the_row()
    {
        const Reading read =
            ReadBody("\\trowd\\trgaph150\\trpaddt30\\trpaddfl3\\clpadt300\\clpadr450\\cellx2000"
                     "\\cellx4000\\intbl a\\cell b\\cell\\row\\pard x\\par");
        const QTextTableCellFormat first = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(first.leftPadding(), 20.0);
        QCOMPARE(first.rightPadding(), 30.0);
        QCOMPARE(first.topPadding(), 2.0);
        QCOMPARE(TableOf(read)->cellAt(0, 1).format().toTableCellFormat().leftPadding(), 10.0);
    }

    void margins_are_told_side_by_side()
    {
        const Reading read = ReadBody(
            "\\trowd\\trpaddl30\\trpaddfl3\\trpaddb45\\trpaddfb3\\trpaddr60\\trpaddfr3"
            "\\clpadl300\\clpadfl3\\clpadb450\\clpadfb3\\cellx2000\\cellx4000\\intbl a\\cell b\\cell\\row"
            "\\pard x\\par");
        // The words for the left and the upper margin of a cell stand for each other.
        const QTextTableCellFormat first = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(first.topPadding(), 20.0);
        QCOMPARE(first.bottomPadding(), 30.0);
        QCOMPARE(first.rightPadding(), 4.0);
        const QTextTableCellFormat second = TableOf(read)->cellAt(0, 1).format().toTableCellFormat();
        QCOMPARE(second.leftPadding(), 2.0);
        QCOMPARE(second.bottomPadding(), 3.0);
        QCOMPARE(second.rightPadding(), 4.0);
    }

    void margins_hold_whatever_unit_is_named_for_them_data()
    {
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<QByteArray>("right");
        QTest::newRow("none") << QByteArray() << QByteArray();
        QTest::newRow("null") << QByteArray("\\trpaddfl0") << QByteArray("\\clpadfr0");
        QTest::newRow("twips") << QByteArray("\\trpaddfl3") << QByteArray("\\clpadfr3");
    }

    void margins_hold_whatever_unit_is_named_for_them()
    {
        QFETCH(QByteArray, left);
        QFETCH(QByteArray, right);
        const Reading read = ReadBody("\\trowd\\trgaph150\\trpaddl300" + left + "\\clpadr450" + right +
                                      "\\cellx2000\\intbl a\\cell\\row\\pard x\\par");
        const QTextTableCellFormat cell = TableOf(read)->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(cell.leftPadding(), 20.0);
        QCOMPARE(cell.rightPadding(), 30.0);
    }

    void rows_are_as_high_as_told_next_to_a_cell_that_is_merged_down()
    {
        const auto row = [](const QByteArray& merge, const QByteArray& cells) -> QByteArray {
            return "\\trowd\\trrh1500" + merge + "\\cellx2000\\cellx4000\\intbl " + cells + "\\row";
        };
        const Reading read =
            ReadBody(row("\\clvmgf", "tall\\cell one\\cell") + row("\\clvmrg", "\\cell two\\cell") +
                     row("", "a\\cell three\\cell") + "\\pard x\\par");
        QCOMPARE(TableOf(read)->cellAt(0, 0).rowSpan(), 2);
        read.document->setTextWidth(400);
        const auto topOf = [&](const QString& text) {
            return read.document->documentLayout()->blockBoundingRect(read.Block(text)).top();
        };
        QVERIFY2(std::abs(topOf(u"two"_s) - topOf(u"one"_s) - 100) < 1.5,
                 qPrintable(QString::number(topOf(u"two"_s) - topOf(u"one"_s))));
        QVERIFY2(std::abs(topOf(u"three"_s) - topOf(u"two"_s) - 100) < 1.5,
                 qPrintable(QString::number(topOf(u"three"_s) - topOf(u"two"_s))));
        QVERIFY(std::abs(topOf(u"tall"_s) - topOf(u"one"_s)) < 1.5);
    }

    void rows_are_as_high_as_told_data()
    {
        QTest::addColumn<QByteArray>("alignment");
        QTest::addColumn<double>("above");
        QTest::newRow("text at the top") << QByteArray("\\clvertalt") << 0.0;
        QTest::newRow("text in the middle") << QByteArray("\\clvertalc") << 0.5;
        QTest::newRow("text at the bottom") << QByteArray("\\clvertalb") << 1.0;
    }
    void rows_are_as_high_as_told()
    {
        QFETCH(QByteArray, alignment);
        QFETCH(double, above);
        const QByteArray row =
            "\\trowd\\trrh1500" + alignment + "\\cellx2000" + alignment + "\\cellx4000\\intbl ";
        const Reading read =
            ReadBody(row + "one\\cell a\\par b\\cell\\row" + row + "two\\cell\\cell\\row\\pard x\\par");
        read.document->setTextWidth(400);
        const auto rectOf = [&](const QString& text) {
            return read.document->documentLayout()->blockBoundingRect(read.Block(text));
        };
        QVERIFY(std::abs(rectOf(u"two"_s).top() - rectOf(u"one"_s).top() - 100) < 1.5);
        const double top = rectOf(u"a"_s).top();
        const double wanted = 4 + above * (100 - 2 * rectOf(u"a"_s).height());
        QVERIFY2(std::abs(top - wanted) < 1.5,
                 qPrintable(QString::number(top) + u' ' + QString::number(wanted)));
        QVERIFY(std::abs(rectOf(u"one"_s).top() - 4 - above * (100 - rectOf(u"one"_s).height())) < 1.5);
    }

    void a_row_of_more_text_than_its_height_shows_all_of_it()
    {
        const Reading read =
            ReadBody("\\trowd\\trrh-150\\cellx2000\\intbl one\\par two\\par three\\cell\\row\\pard x\\par");
        QCOMPARE(TableOf(read)->cellAt(0, 0).format().toTableCellFormat().bottomPadding(), 0.0);
    }

    void rows_from_right_to_left_begin_at_the_right()
    {
        const Reading read =
            ReadBody("\\trowd\\rtlrow\\cellx1500\\cellx4500\\intbl a\\cell b\\cell\\row\\pard x\\par");
        QCOMPARE(CellText(TableOf(read), 0, 1), u"a"_s);
        QCOMPARE(TableOf(read)->format().columnWidthConstraints().at(1).rawValue(), 100.0);
        QVERIFY((TableOf(read)->format().alignment() & Qt::AlignRight) != 0);
    }

    void a_long_table_is_continued_below()
    {
        QByteArray rows;
        for (int i = 0; i < 3000; ++i)
            rows += "\\trowd\\cellx1000\\cellx2000\\intbl r" + QByteArray::number(i) + "\\cell b\\cell\\row";
        const Reading read = ReadBody(rows + "\\pard x\\par");
        QCOMPARE(read.result.tables, 2);
        QVERIFY(read.Text().contains(u"r2999"_s));
    }

    void an_empty_paragraph_that_begins_a_page_below_a_table_has_its_height()
    {
        constexpr double page = 400;
        const auto placeOf = [](const QByteArray& first) {
            const Reading read = ReadBody("\\trowd\\cellx3000\\pard\\intbl cell\\cell\\row\\pard\\page" +
                                          first + "\\par text\\par");
            read.document->setDocumentMargin(0);
            read.document->setPageSize(QSizeF(500, page));
            return read.document->documentLayout()->blockBoundingRect(read.Block(u"text"_s)).top();
        };
        const double below = placeOf("\\fs48 word");
        QVERIFY2(below > page + 30, qPrintable(QString::number(below)));
        const double belowEmpty = placeOf("\\fs48 ");
        QVERIFY2(std::abs(belowEmpty - below) < 2, qPrintable(QString::number(belowEmpty)));
    }
};

TORVIK_TEST(TablesTest)
#include "tables_test.moc"
