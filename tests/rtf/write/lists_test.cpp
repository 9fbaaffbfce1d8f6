#include "rtf/documents.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextList>

#include <cmath>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class ListsTest : public QObject {
    Q_OBJECT

    static QByteArray ListTable(const QByteArray& level)
    {
        return "{\\*\\listtable{\\list\\listtemplateid5{\\listlevel" + level +
               "}{\\listname "
               ";}\\listid77}}{\\*\\listoverridetable{\\listoverride\\listid77\\listoverridecount0\\ls1}}";
    }

    /// The mark of an item, whether the list draws it or it stands in the text; without the room behind it.
    static QString MarkOf(const Reading& read, const QString& item)
    {
        const QTextBlock block = read.Block(item);
        if (block.textList() != nullptr)
            return block.textList()->itemText(block).trimmed();
        return block.text().contains(u'\t') ? block.text().section(u'\t', 0, 0) : QString();
    }

private Q_SLOTS:
    void a_bullet_written_as_pntext_becomes_a_list_item()
    {
        const Reading read = ReadBody(
            "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2{\\pntxtb\\'B7}}\\fi-200\\li720 one\\par"
            "{\\pntext\\f2\\'B7\\tab}two\\par\\pard three\\par");
        const QTextBlock one = read.Block(u"one"_s);
        QVERIFY(one.textList() != nullptr);
        QCOMPARE(one.textList()->format().style(), QTextListFormat::ListDisc);
        QCOMPARE(one.textList(), read.Block(u"two"_s).textList());
        QCOMPARE(one.textList()->count(), 2);
        QCOMPARE(one.text(), u"one"_s);
        QCOMPARE(one.blockFormat().leftMargin(), 48.0);
        QCOMPARE(one.blockFormat().textIndent(), 0.0);
        QVERIFY(read.Block(u"three"_s).textList() == nullptr);
    }

    void numbers_written_as_pntext_become_a_numbered_list()
    {
        const Reading read =
            ReadBody("{\\pntext\\f0 (i)\\tab}{\\*\\pn\\pnlvlbody\\pnlcrm{\\pntxtb (}{\\pntxta )}}one\\par"
                     "{\\pntext\\f0 (ii)\\tab}two\\par");
        const QTextList* list = read.Block(u"two"_s).textList();
        QVERIFY(list != nullptr);
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->format().style(), QTextListFormat::ListLowerRoman);
        QCOMPARE(list->itemText(read.Block(u"two"_s)), u"(ii)"_s);
    }

    void numbering_without_written_marks_counts_itself()
    {
        const Reading read =
            ReadBody("{\\*\\pn\\pnlvlbody\\pnucltr\\pnstart1{\\pntxta )}}one\\par two\\par\\pard none\\par");
        const QTextList* list = read.Block(u"two"_s).textList();
        QVERIFY(list != nullptr);
        QCOMPARE(list->itemText(read.Block(u"two"_s)), u"B)"_s);
        QVERIFY(read.Block(u"none"_s).textList() == nullptr);
    }

    void numbers_that_no_list_can_show_stay_text()
    {
        const Reading read = ReadBody("{\\pntext 5.\\tab}five\\par{\\pntext 1.2\\tab}nested\\par");
        QCOMPARE(read.Text(), u"5.\tfive\n1.2\tnested"_s);
        QVERIFY(read.Block(u"five"_s).textList() == nullptr);
    }

    void list_tables_say_what_listtext_means()
    {
        const Reading read =
            ReadBody(ListTable("\\levelnfc4\\levelstartat1{\\leveltext\\'02\\'00);}{\\levelnumbers\\'01;}") +
                     "{\\listtext\\pard\\plain\\f0 a)\\tab}\\pard\\fi-360\\li720\\ls1\\ilvl0 one\\par"
                     "{\\listtext\\pard\\plain\\f0 b)\\tab}two\\par");
        const QTextList* list = read.Block(u"one"_s).textList();
        QVERIFY(list != nullptr);
        QCOMPARE(list->format().style(), QTextListFormat::ListLowerAlpha);
        QCOMPARE(list->count(), 2);
    }

    void lists_without_listtext_are_counted_from_the_table()
    {
        const Reading read =
            ReadBody(ListTable("\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}") +
                     "\\pard\\ls1 one\\par\\pard plain\\par\\pard\\ls1 two\\par");
        const QTextBlock two = read.Block(u"two"_s);
        QVERIFY(two.textList() != nullptr);
        QCOMPARE(two.textList()->itemText(two), u"2."_s);
    }

    void the_newer_word_for_the_format_of_a_level_counts_too()
    {
        const Reading read =
            ReadBody(ListTable("\\levelnfcn4\\levelstartat1{\\leveltext\\'02\\'00);}{\\levelnumbers\\'01;}") +
                     "\\pard\\ls1 one\\par two\\par");
        QCOMPARE(MarkOf(read, u"two"_s), u"b)"_s);
    }

    void letters_past_z_are_doubled()
    {
        QByteArray items;
        for (int number = 1; number <= 28; ++number)
            items += "item" + QByteArray::number(number) + "\\par ";
        const Reading read =
            ReadBody(ListTable("\\levelnfc4\\levelstartat1{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}") +
                     "\\pard\\ls1 " + items);
        QCOMPARE(MarkOf(read, u"item26"_s), u"z."_s);
        QCOMPARE(MarkOf(read, u"item27"_s), u"aa."_s);
        QCOMPARE(read.Text().section(u'\n', -1), u"bb.\titem28"_s); // a list of Qt's would say ab
    }

    void an_inner_level_starts_again_below_the_next_outer_item()
    {
        const QByteArray levels =
            "\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}}"
            "{\\listlevel\\levelnfc4\\levelstartat1{\\leveltext\\'02\\'01);}{\\levelnumbers\\'01;}";
        const Reading read = ReadBody(ListTable(levels) +
                                      "\\pard\\ls1 a\\par\\ilvl1 b\\par c\\par\\ilvl0 d\\par\\ilvl1 e\\par");
        QCOMPARE(MarkOf(read, u"a"_s), u"1."_s);
        QCOMPARE(MarkOf(read, u"c"_s), u"b)"_s);
        QCOMPARE(MarkOf(read, u"d"_s), u"2."_s);
        QCOMPARE(MarkOf(read, u"e"_s), u"a)"_s);
    }

    void bullets_of_list_tables_in_symbol_fonts()
    {
        const Reading read = ReadBody(
            ListTable("\\levelnfc23{\\leveltext\\'01\\u-3913 ?;}{\\levelnumbers;}\\f2\\fi-360\\li720") +
            "\\pard\\ls1 one\\par");
        QVERIFY(read.Block(u"one"_s).textList() != nullptr);
        QCOMPARE(read.Block(u"one"_s).textList()->format().style(), QTextListFormat::ListDisc);
        QCOMPARE(read.Format("one").fontFamilies().toStringList(), QStringList{"Times New Roman"});
    }

    void levels_are_lists_of_their_own()
    {
        const Reading read = ReadBody(
            "\\pard\\ls3\\ilvl0{\\listtext 1.\\tab}a\\par\\pard\\ls3\\ilvl1{\\listtext 1.\\tab}b\\par"
            "\\pard\\ls3\\ilvl0{\\listtext 2.\\tab}c\\par");
        QCOMPARE(read.Block(u"a"_s).textList(), read.Block(u"c"_s).textList());
        QVERIFY(read.Block(u"b"_s).textList() != read.Block(u"a"_s).textList());
    }

    void numbers_of_east_asia_are_text()
    {
        const Reading read = ReadBody(ListTable("\\levelnfc11\\levelstartat10{\\leveltext\\'03\\u31532 "
                                                "?\\'00\\u31456 ?;}{\\levelnumbers\\'02;}") +
                                      "\\pard\\ls1 one\\par two\\par");
        QCOMPARE(read.Text(), u"第十章\tone\n第十一章\ttwo"_s);
    }

    void signs_of_a_list_hold_against_numbers_that_are_written_out()
    {
        const Reading read =
            ReadBody(ListTable("\\levelnfc20{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}") +
                     "{\\listtext 1.\\tab}\\pard\\ls1 one\\par{\\listtext 2.\\tab}\\pard\\ls1 two\\par");
        QCOMPARE(read.Text(), u"ア.\tone\nイ.\ttwo"_s);
    }

    void the_pattern_of_a_level_is_in_the_letters_of_the_document()
    {
        // The font of the list's own text is western, the document's letters are those of Taiwan.
        const QByteArray level =
            "\\levelnfc30{\\leveltext\\'03\\'ab\\'65\\'00\\'a1\\'42;}{\\levelnumbers\\'02;}";
        QCOMPARE(ReadBytes("{\\rtf1\\ansi\\ansicpg950\\deff0{\\fonttbl{\\f0\\fcharset0 Arial;}}" +
                           ListTable(level) + "\\pard\\ls1 one\\par}")
                     .Text(),
                 u"前甲、\tone"_s);
    }

    void what_follows_a_number_is_as_told()
    {
        const QByteArray level = "\\levelnfc18\\levelfollow1{\\leveltext\\'01\\'00;}{\\levelnumbers\\'01;}";
        QCOMPARE(ReadBody(ListTable(level) + "\\pard\\ls1 one\\par").Text(), u"① one"_s);
    }

    void a_reference_that_begins_anew_counts_for_itself()
    {
        const Reading read = ReadBody(
            "{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}{"
            "\\levelnumbers"
            "\\'01;}}\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}"
            "{\\listoverride\\listid7\\listoverridecount1{\\lfolevel\\listoverridestartat\\levelstartat1}"
            "\\ls2}"
            "{\\listoverride\\listid7\\listoverridecount0\\ls3}}"
            "\\pard\\ls1 a\\par b\\par\\pard\\ls2 c\\par\\pard plain\\par\\pard\\ls2 d\\par\\pard\\ls3 "
            "e\\par");
        const auto markOf = [&](const QString& text) {
            const QTextBlock block = read.Block(text);
            return block.textList() != nullptr ? block.textList()->itemText(block) : QString();
        };
        QCOMPARE(markOf(u"b"_s), u"2."_s);
        QCOMPARE(markOf(u"c"_s), u"1."_s);
        QCOMPARE(markOf(u"d"_s), u"2."_s);
        QCOMPARE(markOf(u"e"_s), u"3."_s);
    }

    void numbering_goes_on_after_a_paragraph_that_is_skipped()
    {
        const QByteArray item = "\\pard{\\*\\pn\\pnlvlbody\\pndec\\pnstart1{\\pntxta .}}";
        const Reading read = ReadBody(item + "one\\par\\pard{\\*\\pn\\pnlvlcont\\pndec}skipped\\par" + item +
                                      "two\\par\\pard plain\\par" + item + "first\\par");
        QCOMPARE(read.Block(u"two"_s).textList()->itemText(read.Block(u"two"_s)), u"2."_s);
        QVERIFY(read.Block(u"skipped"_s).textList() == nullptr);
        QCOMPARE(read.Block(u"first"_s).textList()->itemText(read.Block(u"first"_s)), u"1."_s);
    }

    /// How far left of its text the mark of an item is painted, pixels.
    static double GapOf(const Reading& read, const QString& item)
    {
        constexpr QSize size(600, 200);
        QImage page(size, QImage::Format_RGB32);
        page.fill(Qt::white);
        QFont font(u"Times New Roman"_s);
        font.setPointSize(12);
        read.document->setDefaultFont(font);
        read.document->setDocumentMargin(0);
        read.document->setTextWidth(size.width());
        const QTextBlock block = read.Block(item);
        const QRectF line = read.document->documentLayout()->blockBoundingRect(block);
        QPainter painter(&page);
        read.document->drawContents(&painter);
        painter.end();
        const int text = int(std::lround(block.blockFormat().leftMargin()));
        for (int x = 0; x < text; ++x) {
            for (int y = int(line.top()); y < int(line.bottom()); ++y) {
                if (qGray(page.pixel(x, y)) < 128)
                    return text - x;
            }
        }
        return 0;
    }

    void a_mark_stands_where_the_document_hangs_it_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<double>("least");
        QTest::addColumn<double>("most");
        const QByteArray bullet = "{\\pntext\\f2\\'B7\\tab}";
        QTest::newRow("a bullet") << QByteArray(bullet + "\\fi-360\\li720 ") << 20.0 << 24.0;
        QTest::newRow("a bullet far left") << QByteArray(bullet + "\\fi-720\\li1440 ") << 40.0 << 48.0;
        QTest::newRow("a bullet without room") << QByteArray(bullet) << 16.0 << 20.0;
        QTest::newRow("a number") << QByteArray("{\\pntext 1.\\tab}\\fi-720\\li720 ") << 38.0 << 48.0;
        QTest::newRow("a narrow number") << QByteArray("{\\pntext I.\\tab}\\fi-480\\li480 ") << 27.0 << 32.0;
        QTest::newRow("a number in little room")
            << QByteArray("{\\pntext 1.\\tab}\\fi-200\\li720 ") << 12.0 << 18.0;
    }
    void a_mark_stands_where_the_document_hangs_it()
    {
        QFETCH(QByteArray, item);
        QFETCH(double, least);
        QFETCH(double, most);
        const double gap = GapOf(ReadBody(item + "text of the item\\par"), u"text"_s);
        QVERIFY2(gap >= least && gap <= most, QByteArray::number(gap).constData());
    }

    void numbers_leave_no_more_room_than_the_longest_of_them_does()
    {
        QByteArray items;
        for (int i = 1; i <= 10; ++i)
            items += "{\\pntext " + QByteArray::number(i) + ".\\tab}\\fi-480\\li480 item" +
                     QByteArray::number(i) + "\\par";
        const QByteArray tenth = "{\\pntext 10.";
        const Reading nine = ReadBody(items.left(items.indexOf(tenth)));
        const Reading ten = ReadBody(items);
        const QString few = nine.Block(u"item1"_s).textList()->format().numberSuffix();
        const QString many = ten.Block(u"item1"_s).textList()->format().numberSuffix();
        QVERIFY2(many.size() < few.size(), qPrintable(few + u'|' + many));
        QVERIFY(GapOf(ten, u"item10"_s) <= 32);
        QCOMPARE(ten.Block(u"item10"_s).textList(), ten.Block(u"item1"_s).textList());
    }

    void a_mark_that_no_tab_follows_stands_right_before_its_text()
    {
        const Reading read =
            ReadBody(ListTable("\\levelnfc0\\levelfollow1\\levelstartat1{\\leveltext\\'02\\'00.;}") +
                     "\\pard\\ls1\\fi-720\\li720 a\\par");
        QCOMPARE(read.Block(u"a"_s).textList()->format().numberSuffix(), u"."_s);
    }

    void a_list_may_begin_with_nought()
    {
        const QByteArray levels = "\\levelnfc0\\levelstartat0{\\leveltext\\'02\\'00.;}}"
                                  "{\\listlevel\\levelnfc0\\levelstartat0{\\leveltext\\'03\\'00.\\'01;}";
        const Reading read =
            ReadBody(ListTable(levels) + "\\pard\\ls1 a\\par b\\par\\ilvl1 c\\par d\\par\\ilvl0 e\\par");
        QCOMPARE(read.Text(), u"0.\ta\nb\n1.0\tc\n1.1\td\ne"_s);
        QCOMPARE(read.Block(u"b"_s).textList()->itemText(read.Block(u"b"_s)), u"1."_s);
        QCOMPARE(read.Block(u"e"_s).textList()->itemText(read.Block(u"e"_s)), u"2."_s);
    }

    void a_list_of_the_older_kind_may_begin_with_nought()
    {
        const QByteArray item = "\\pard{\\*\\pn\\pnlvlbody\\pndec\\pnstart0{\\pntxta .}}";
        const Reading read = ReadBody(item + "a\\par" + item + "b\\par" + item + "c\\par");
        QCOMPARE(read.Text(), u"0.\ta\nb\nc"_s);
        QCOMPARE(read.Block(u"c"_s).textList()->itemText(read.Block(u"c"_s)), u"2."_s);
    }

    void nought_stays_a_figure_where_letters_count()
    {
        const QByteArray item = "\\pard{\\*\\pn\\pnlvlbody\\pnlcltr\\pnstart0{\\pntxta .}}";
        QCOMPARE(ReadBody(item + "a\\par" + item + "b\\par").Text(), u"0.\ta\nb"_s);
    }

    void a_list_of_the_older_kind_without_a_start_begins_with_one()
    {
        const QByteArray item = "\\pard{\\*\\pn\\pnlvlbody{\\pntxtb x}}";
        QCOMPARE(ReadBody(item + "a\\par" + item + "b\\par").Text(), u"x1\ta\nx2\tb"_s);
    }

    void formats_of_the_older_kind_data()
    {
        QTest::addColumn<QString>("mark");
        const auto row = [](const char* word, const QString& mark) { QTest::newRow(word) << mark; };
        row("pndec", u"1"_s);
        row("pnucrm", u"I"_s);
        row("pnlcrm", u"i"_s);
        row("pnucltr", u"A"_s);
        row("pnlcltr", u"a"_s);
        row("pnord", u"1st"_s);
        row("pncard", u"One"_s);
        row("pnordt", u"First"_s);
        row("pndbnum", u"一"_s);
        row("pndbnumd", u"一"_s);
        row("pndbnumt", u"壱"_s);
        row("pndbnuml", u"壱"_s);
        row("pndbnumk", u"一"_s);
        row("pndecd", u"１"_s);
        row("pncnum", u"①"_s);
        row("pnaiu", u"ｱ"_s);
        row("pnaiud", u"ア"_s);
        row("pnaiueo", u"ｱ"_s);
        row("pnaiueod", u"ア"_s);
        row("pniroha", u"ｲ"_s);
        row("pnirohad", u"イ"_s);
        row("pnganada", u"가"_s);
        row("pnchosung", u"ㄱ"_s);
        row("pngbnum", u"⒈"_s);
        row("pngbnumd", u"⑴"_s);
        row("pngbnuml", u"①"_s);
        row("pngbnumk", u"㈠"_s);
        row("pnzodiac", u"甲"_s);
        row("pnzodiacd", u"子"_s);
        row("pnzodiacl", u"甲子"_s);
    }
    void formats_of_the_older_kind()
    {
        QFETCH(QString, mark);
        const QByteArray word = QTest::currentDataTag();
        const Reading read = ReadBody("\\pard{\\*\\pn\\pnlvlbody\\" + word + "{\\pntxta )}}item\\par");
        QCOMPARE(MarkOf(read, u"item"_s), QString(mark + u')'));
    }

    void levels_of_the_older_kind_count_each_for_itself()
    {
        const QByteArray outer = "\\pard{\\*\\pn\\pnlvl1\\pnucrm{\\pntxta .}}";
        const QByteArray inner = "\\pard{\\*\\pn\\pnlvl2\\pndecd{\\pntxta )}}";
        const Reading read =
            ReadBody(outer + "a\\par" + inner + "b\\par c\\par" + outer + "d\\par" + inner + "e\\par");
        QCOMPARE(read.Text(), u"a\n１)\tb\n２)\tc\nd\n１)\te"_s);
        QCOMPARE(read.Block(u"d"_s).textList()->itemText(read.Block(u"d"_s)), u"II."_s);
    }

    void a_bullet_between_numbers_does_not_count()
    {
        const QByteArray item = "\\pard{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}";
        const Reading read =
            ReadBody(item + "one\\par\\pard{\\*\\pn\\pnlvlblt{\\pntxtb *}}point\\par" + item + "two\\par");
        QCOMPARE(read.Block(u"two"_s).textList()->itemText(read.Block(u"two"_s)), u"2."_s);
    }

    void numbers_of_a_list_from_the_right_are_written_in_their_order()
    {
        const auto markOf = [](const QByteArray& direction) {
            const Reading read =
                ReadBody(ListTable("\\levelnfc0\\levelstartat1{\\leveltext\\'03(\\'00.;}") + "\\pard" +
                         direction + "\\li720\\fi-360\\ls1 \\u1513?\\u1500?\\par");
            const QTextBlock block = read.document->begin();
            return block.textList()->itemText(block).replace(QChar(QChar::Nbsp), u' ');
        };
        // The item's text is laid out from the right, so it has to begin with what is read first.
        QCOMPARE(markOf("\\rtlpar"), markOf("\\ltrpar"));
        QVERIFY(markOf("\\rtlpar").startsWith(u"(1."_s));
    }

    void a_list_that_changes_its_direction_keeps_its_numbers()
    {
        const QByteArray item = "{\\pntext 1.}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}";
        const Reading read = ReadBody("\\pard\\rtlpar" + item +
                                      "one\\par\\pard\\ltrpar{\\pntext 2.}{\\*\\pn"
                                      "\\pnlvlbody\\pndec{\\pntxta .}}two\\par");
        QCOMPARE(MarkOf(read, u"one"_s), u"1."_s);
        QCOMPARE(MarkOf(read, u"two"_s), u"2."_s);
    }

    void a_list_that_starts_again_is_another_one()
    {
        const Reading read =
            ReadBody("{\\pntext 1.\\tab}a\\par{\\pntext 2.\\tab}b\\par{\\pntext 1.\\tab}c\\par");
        QVERIFY(read.Block(u"a"_s).textList() != read.Block(u"c"_s).textList());
        QCOMPARE(read.Block(u"c"_s).textList()->count(), 1);
    }
};

TORVIK_TEST(ListsTest)
#include "lists_test.moc"
