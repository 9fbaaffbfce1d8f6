#include "rtf/documents.h"
#include "rtf/paint/format_properties.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QGlyphRun>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class ParagraphsTest : public QObject {
    Q_OBJECT

    static QTextBlockFormat FormatOf(const QByteArray& words)
    {
        return ReadBody("\\pard" + words + " text\\par").Block(u"text"_s).blockFormat();
    }

    /// Where a character is painted, from the left, pixels.
    static double PlaceOf(const QTextBlock& block, int character)
    {
        return block.layout()->lineAt(0).glyphRuns(character, 1).first().positions().first().x();
    }

private Q_SLOTS:
    void alignment()
    {
        QVERIFY((FormatOf("\\qc").alignment() & Qt::AlignHCenter) != 0);
        QVERIFY((FormatOf("\\qr").alignment() & Qt::AlignRight) != 0);
        QVERIFY((FormatOf("\\qj").alignment() & Qt::AlignJustify) != 0);
        QVERIFY((FormatOf("").alignment() & Qt::AlignLeft) != 0);
    }

    void fifteen_twips_are_a_pixel()
    {
        const QTextBlockFormat format = FormatOf("\\li720\\ri360\\fi-300\\sb240\\sa120");
        QCOMPARE(format.leftMargin(), 48.0);
        QCOMPARE(format.rightMargin(), 24.0);
        QCOMPARE(format.textIndent(), -20.0);
        QCOMPARE(format.topMargin(), 16.0);
        QCOMPARE(format.bottomMargin(), 8.0);
    }

    void lengths_out_of_bounds_are_brought_in()
    {
        QCOMPARE(FormatOf("\\li999999999").leftMargin(), 2112.0);
        QCOMPARE(FormatOf("\\sb-500").topMargin(), 0.0);
    }

    void a_paragraph_keeps_its_format_until_pard()
    {
        const Reading read = ReadBody("\\qc one\\par two\\par\\pard three\\par");
        QVERIFY((read.Block(u"two"_s).blockFormat().alignment() & Qt::AlignHCenter) != 0);
        QVERIFY((read.Block(u"three"_s).blockFormat().alignment() & Qt::AlignHCenter) == 0);
    }

    void line_spacing()
    {
        QCOMPARE(FormatOf("\\sl360\\slmult1").lineHeight(), 150.0);
        QCOMPARE(FormatOf("\\sl360\\slmult1").lineHeightType(), int(QTextBlockFormat::ProportionalHeight));
        QCOMPARE(FormatOf("\\sl300").lineHeight(), 20.0);
        QCOMPARE(FormatOf("\\sl300").lineHeightType(), int(QTextBlockFormat::MinimumHeight));
        QCOMPARE(FormatOf("\\sl-300").lineHeightType(), int(QTextBlockFormat::FixedHeight));
        QCOMPARE(FormatOf("\\sl240\\slmult1").lineHeightType(), int(QTextBlockFormat::SingleHeight));
    }

    void tabs_of_all_kinds()
    {
        const QList<QTextOption::Tab> tabs =
            FormatOf("\\tx720\\tqr\\tldot\\tx1440\\tqc\\tx2160\\tqdec\\tx2880").tabPositions();
        QCOMPARE(tabs.size(), 4);
        QCOMPARE(tabs.at(0), QTextOption::Tab(48, QTextOption::LeftTab, u'.'));
        QCOMPARE(tabs.at(1), QTextOption::Tab(96, QTextOption::RightTab, u'.'));
        QCOMPARE(tabs.at(2), QTextOption::Tab(144, QTextOption::CenterTab, u'.'));
        QCOMPARE(tabs.at(3), QTextOption::Tab(192, QTextOption::DelimiterTab, u'.'));
    }

    void leaders_of_tabs_are_kept_in_their_order()
    {
        const QTextBlockFormat format =
            FormatOf("\\tx2880\\tldot\\tx1440\\tqr\\tlth\\tx4320\\tlhyph\\tqc\\tx720");
        QCOMPARE(format.tabPositions().size(), 4);
        QCOMPARE(format.stringProperty(TabLeadersProperty), u"-. #"_s);
        QCOMPARE(format.tabPositions().at(3), QTextOption::Tab(288, QTextOption::RightTab, u'.'));
        QVERIFY(!FormatOf("\\tx720").hasProperty(TabLeadersProperty));
    }

    void staying_with_the_next()
    {
        QVERIFY(FormatOf("\\keepn").property(KeepWithNextProperty).toBool());
        QVERIFY(!FormatOf("\\keepn\\keepn0").property(KeepWithNextProperty).toBool());
    }

    void tabs_count_from_the_margin_and_not_from_the_indent()
    {
        // The layout counts from the start of the line, which is 24 pixels in.
        QCOMPARE(FormatOf("\\li720\\fi-360\\tx1440").tabPositions().at(1).position, 72.0);
        // The hanging indent itself is a stop.
        QCOMPARE(FormatOf("\\li720\\fi-360\\tx1440").tabPositions().at(0).position, 24.0);
    }

    void default_tabs_are_those_of_the_document()
    {
        QCOMPARE(ReadBody("\\deftab1440 x\\par").document->defaultTextOption().tabStopDistance(), 96.0);
        QCOMPARE(ReadBody("x\\par").document->defaultTextOption().tabStopDistance(), 48.0);
    }

    void shading_and_background()
    {
        QCOMPARE(FormatOf("\\cbpat4").background().color(), QColor(255, 255, 0));
        QCOMPARE(FormatOf("\\shading2500").background().color(), QColor(191, 191, 191));
    }

    void keeping_together_and_page_breaks()
    {
        QVERIFY(FormatOf("\\keep").property(KeepTogetherProperty).toBool());
        QVERIFY(!FormatOf("\\keep\\keep0").property(KeepTogetherProperty).toBool());
        // The beginning of the document stands on a page of its own anyway.
        QCOMPARE(FormatOf("\\pagebb").pageBreakPolicy(), QTextFormat::PageBreak_Auto);
        const Reading told = ReadBody("one\\par\\pagebb two\\par");
        QCOMPARE(told.Block(u"two"_s).blockFormat().pageBreakPolicy(), QTextFormat::PageBreak_AlwaysBefore);
        const Reading read = ReadBody("one\\par\\page two\\par three\\par");
        QCOMPARE(read.Block(u"two"_s).blockFormat().pageBreakPolicy(), QTextFormat::PageBreak_AlwaysBefore);
        QCOMPARE(read.Block(u"three"_s).blockFormat().pageBreakPolicy(), QTextFormat::PageBreak_Auto);
    }

    void a_paragraph_that_is_kept_together_is_wrapped_all_the_same()
    {
        const Reading read = ReadBody("\\pard\\keep " + QByteArray("some words ").repeated(60) + "\\par");
        read.document->setTextWidth(400);
        QVERIFY(read.document->size().width() <= 400);
        QVERIFY(read.document->firstBlock().layout()->lineCount() > 5);
    }

    void a_page_break_inside_a_paragraph_ends_it()
    {
        const Reading read = ReadBody("one\\page two\\par");
        QCOMPARE(read.Text(), u"one\ntwo"_s);
        QCOMPARE(read.document->lastBlock().blockFormat().pageBreakPolicy(),
                 QTextFormat::PageBreak_AlwaysBefore);
    }

    void a_section_breaks_the_page_unless_it_goes_on()
    {
        QCOMPARE(ReadBody("a\\par\\sect\\sectd b\\par").document->lastBlock().blockFormat().pageBreakPolicy(),
                 QTextFormat::PageBreak_AlwaysBefore);
        QCOMPARE(ReadBody("a\\par\\sect\\sectd\\sbknone b\\par")
                     .document->lastBlock()
                     .blockFormat()
                     .pageBreakPolicy(),
                 QTextFormat::PageBreak_Auto);
    }

    void a_box_has_a_border_on_all_sides()
    {
        const Reading read =
            ReadBody("before\\par\\pard\\box\\brdrs\\brdrw30\\brdrcf1 one\\par two\\par\\pard after\\par");
        const auto frames = read.document->rootFrame()->childFrames();
        QCOMPARE(frames.size(), 1);
        auto* box = qobject_cast<QTextTable*>(frames.first());
        QVERIFY(box != nullptr);
        const QTextTableCellFormat format = box->cellAt(0, 0).format().toTableCellFormat();
        for (const double border :
             {format.topBorder(), format.leftBorder(), format.bottomBorder(), format.rightBorder()})
            QCOMPARE(border, 2.0);
        QCOMPARE(format.topBorderBrush().color(), QColor(255, 0, 0));
        QCOMPARE(format.topBorderStyle(), QTextFrameFormat::BorderStyle_Solid);
        QCOMPARE(format.leftPadding(), 4.0);
        QCOMPARE(box->firstCursorPosition().block().text(), u"one"_s);
        QCOMPARE(read.Text(), u"before\none\ntwo\nafter"_s);
    }

    void the_room_between_border_and_text_is_as_told()
    {
        const auto paddings = [](const QByteArray& looks) {
            const Reading read = ReadBody("\\pard" + looks + " boxed\\par");
            auto* box = qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().first());
            const QTextTableCellFormat format = box->cellAt(0, 0).format().toTableCellFormat();
            return QList<double>{format.topPadding(), format.leftPadding(), format.bottomPadding(),
                                 format.rightPadding()};
        };
        QCOMPARE(paddings("\\brdrt\\brdrs\\brsp120\\brdrb\\brdrs\\brsp60"), (QList<double>{8, 0, 4, 0}));
        QCOMPARE(paddings("\\brdrb\\brdrs"), (QList<double>{0, 0, 0, 0}));
        QCOMPARE(paddings("\\box\\brdrs\\brsp90"), (QList<double>{6, 6, 6, 6}));
        // A box leaves some room whatever is told.
        QCOMPARE(paddings("\\box\\brdrs\\brsp15"), (QList<double>{4, 4, 4, 4}));
        QCOMPARE(paddings("\\box\\brdrs\\brsp999999").first(), 620.0 / 15);
    }

    void four_single_borders_are_a_box_too()
    {
        const Reading read =
            ReadBody("\\brdrt\\brdrdb\\brdrl\\brdrdb\\brdrb\\brdrdb\\brdrr\\brdrdb boxed\\par");
        auto* box = qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().first());
        QCOMPARE(box->cellAt(0, 0).format().toTableCellFormat().rightBorderStyle(),
                 QTextFrameFormat::BorderStyle_Double);
    }

    void a_double_border_has_two_lines_of_the_width_that_is_told()
    {
        const auto widthOf = [](const QByteArray& border) {
            const Reading read = ReadBody("\\pard\\box" + border + " boxed\\par");
            auto* box = qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().first());
            return box->cellAt(0, 0).format().toTableCellFormat().leftBorder();
        };
        QCOMPARE(widthOf("\\brdrs\\brdrw30"), 2.0);
        QCOMPARE(widthOf("\\brdrdb\\brdrw30"), 6.0);
        QCOMPARE(widthOf("\\brdrdb\\brdrw5"), 3.0);
        QCOMPARE(widthOf("\\brdrdb\\brdrw75"), 15.0);
        QCOMPARE(widthOf("\\brdrtnthsg\\brdrw30"), 4.0);
    }

    void borders_of_several_lines_are_double_ones_data()
    {
        QTest::addColumn<QByteArray>("word");
        for (const char* word : {"tnthsg", "thtnsg", "tnthmg", "thtnmg", "tnthlg", "thtnlg", "tnthtnsg",
                                 "tnthtnmg", "tnthtnlg", "wavydb", "triple"})
            QTest::addRow("%s", word) << QByteArray("\\brdr") + word;
    }
    void borders_of_several_lines_are_double_ones()
    {
        QFETCH(QByteArray, word);
        const Reading read = ReadBody("\\pard\\brdrb" + word + "\\brdrw15 text\\par");
        auto* box = qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().value(0));
        QVERIFY(box != nullptr);
        const QTextTableCellFormat format = box->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.bottomBorderStyle(), QTextFrameFormat::BorderStyle_Double);
        QCOMPARE(format.bottomBorder(), 3.0);
    }

    void boxes_that_follow_each_other_have_no_line_between_them()
    {
        const Reading read = ReadBody("\\pard\\box\\brdrs one\\par\\pard\\box\\brdrdb two\\par\\pard x\\par");
        read.document->setTextWidth(400);
        const auto topOf = [&](const QString& text) {
            return read.document->documentLayout()->blockBoundingRect(read.Block(text)).top();
        };
        QVERIFY(topOf(u"two"_s) - topOf(u"one"_s) < 40);
    }

    void a_border_below_is_drawn_below_the_text()
    {
        const Reading read = ReadBody("\\pard\\brdrb\\brdrdash\\brdrw15 Heading\\par\\pard text\\par");
        auto* cell = qobject_cast<QTextTable*>(read.document->rootFrame()->childFrames().value(0));
        QVERIFY(cell != nullptr);
        const QTextTableCellFormat format = cell->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE(format.bottomBorder(), 1.0);
        QCOMPARE(format.bottomBorderStyle(), QTextFrameFormat::BorderStyle_Dashed);
        QCOMPARE(format.topBorder(), 0.0);
        QCOMPARE(read.result.tables, 0);
    }

    void a_border_of_an_empty_paragraph_is_a_rule()
    {
        const Reading read = ReadBody("a\\par\\pard\\brdrb\\brdrs\\brdrw10\\par\\pard b\\par");
        QVERIFY(read.document->firstBlock().next().blockFormat().hasProperty(
            QTextFormat::BlockTrailingHorizontalRulerWidth));
        QVERIFY(read.document->rootFrame()->childFrames().isEmpty());
    }

    void a_rule_below_a_box_is_seen()
    {
        const Reading read =
            ReadBody("\\pard\\box\\brdrdb a\\par\\pard\\brdrb\\brdrs\\brdrw15\\par\\pard b\\par");
        const auto frames = read.document->rootFrame()->childFrames();
        QCOMPARE(frames.size(), 2);
        auto* rule = qobject_cast<QTextTable*>(frames.at(1));
        QCOMPARE(rule->cellAt(0, 0).format().toTableCellFormat().bottomBorder(), 1.0);
    }

    void text_without_an_end_of_paragraph_is_one_all_the_same()
    {
        QCOMPARE(ReadBody("one\\par two").Text(), u"one\ntwo"_s);
        QCOMPARE(ReadBody("one\\par two\\par").document->blockCount(), 2);
    }

    void empty_paragraphs_have_the_height_of_their_font()
    {
        const Reading read = ReadBody("a\\par\\fs48\\par\\fs20 b\\par");
        QCOMPARE(read.document->blockCount(), 3);
        QCOMPARE(read.document->firstBlock().next().charFormat().fontPointSize(), 24.0);
    }

    void signs_at_the_end_of_a_run_from_right_to_left_stand_left_of_it()
    {
        const Reading read = ReadBody("\\ltrpar car {\\rtlch \\u1513 ?\\u1500 ?!} x\\par");
        (void)read.document->size(); // lays it out
        const QTextBlock block = read.document->firstBlock();
        const QString text = block.text();
        const auto placeOf = [&](QChar c) { return PlaceOf(block, int(text.indexOf(c))); };
        QVERIFY(placeOf(u'!') < placeOf(u'ל'));
        QVERIFY(placeOf(u'ל') < placeOf(u'ש'));
        QVERIFY(placeOf(u'c') < placeOf(u'!'));
        QVERIFY(placeOf(u'x') > placeOf(u'ש'));
    }

    void signs_at_the_start_of_a_run_from_right_to_left_stand_right_of_it()
    {
        const Reading read = ReadBody("\\ltrpar car {\\rtlch (\\u1513 ?\\u1500 ?} x\\par");
        (void)read.document->size(); // lays it out
        const QTextBlock block = read.document->firstBlock();
        const QString text = block.text();
        const auto placeOf = [&](QChar c) { return PlaceOf(block, int(text.indexOf(c))); };
        QVERIFY(placeOf(u'(') > placeOf(u'ש'));
        QVERIFY(placeOf(u'x') > placeOf(u'('));
    }

    void runs_from_right_to_left_have_no_marks_where_they_need_none_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("letters alone") << QByteArray("\\ltrpar a {\\rtlch \\u1513 ?} b");
        QTest::newRow("spaces at the ends") << QByteArray("\\ltrpar a{\\rtlch  \\u1513 ? }b");
        QTest::newRow("a paragraph from right to left") << QByteArray("\\rtlpar a {\\rtlch \\u1513 ?!} b");
        QTest::newRow("letters from left to right") << QByteArray("\\ltrpar a {\\rtlch word!} b");
        QTest::newRow("the run goes on in bold")
            << QByteArray("\\ltrpar a {\\rtlch \\u1513 ?!{\\b  \\u1500 ?}} b");
        QTest::newRow("signs alone") << QByteArray("\\ltrpar {\\rtlch !}");
    }
    void runs_from_right_to_left_have_no_marks_where_they_need_none()
    {
        QFETCH(QByteArray, body);
        QVERIFY(!ReadBody(body + "\\par").Text().contains(QChar(0x200f)));
    }

    void runs_of_nothing_but_signs_cost_no_more_than_their_length()
    {
        constexpr int runs = 20000; // looked over to the end for each of them: half a minute
        const QByteArray body = "\\ltrpar " + QByteArray("{\\rtlch !}?").repeated(runs) + "\\par";
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(ReadBody(body).Text().size(), 2 * runs);
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    }

    void indents_of_a_paragraph_from_the_right_count_from_there()
    {
        const QTextBlockFormat format = FormatOf("\\rtlpar\\li1500\\ri300\\fi150");
        QCOMPARE(format.rightMargin(), 100.0);
        QCOMPARE(format.leftMargin(), 20.0);
        QCOMPARE(format.textIndent(), 10.0);
    }

    void a_paragraph_runs_as_told_whatever_its_first_letter_is()
    {
        QCOMPARE(FormatOf("\\ltrpar\\u1513?").layoutDirection(), Qt::LeftToRight);
        QCOMPARE(FormatOf("\\u1513?").layoutDirection(), Qt::LeftToRight);
    }

    void text_from_right_to_left()
    {
        QCOMPARE(FormatOf("\\rtlpar").layoutDirection(), Qt::RightToLeft);
        QVERIFY((FormatOf("\\rtlpar").alignment() & Qt::AlignRight) != 0);
    }
};

TORVIK_TEST(ParagraphsTest)
#include "paragraphs_test.moc"
