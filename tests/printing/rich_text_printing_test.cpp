#include "printing/rich_text_printing.h"
#include "runtime/failure.h"
#include "support/discs/picture_bytes.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/printer/printer.h"
#include "windows/article_window.h"

#include <QBuffer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr double inch = 1440;
constexpr double pixel = PrintFolder::twipsPerPixel;

bool IsRed(const QColor& colour)
{
    return colour.red() > 180 && colour.green() < 80 && colour.blue() < 80;
}

/// A red picture of that size in twips, as rich text carries it.
QByteArray RtfPicture(int width, int height)
{
    QImage image(30, 30, QImage::Format_RGB32);
    image.fill(QColor(220, 20, 20));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QByteArray("{\\pict\\pngblip\\picw30\\pich30\\picwgoal") + QByteArray::number(width) +
           "\\pichgoal" + QByteArray::number(height) + " " + bytes.toHex() + "}";
}

QByteArray Lines(int from, int to)
{
    QByteArray lines;
    for (int number = from; number <= to; ++number)
        lines += "Line " + QByteArray::number(number) + "\\par\n";
    return lines;
}

QStringList Words(const QString& page)
{
    return page.simplified().split(u' ');
}

} // namespace

/// Printing of a rich-text pane, read back from the printed file.
class RichTextPrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        printed_ = std::make_unique<PrintFolder>();
    }
    void cleanup()
    {
        printed_.reset();
        program_.reset();
    }

    void a_short_text_is_one_page_and_one_job()
    {
        Print("Hello, road.");
        QCOMPARE(printed_->Files(), QStringList(u"job-1.pdf"_s));
        QCOMPARE(printed_->Pages(1).size(), 1);
        QCOMPARE(printed_->Pages(1).first().simplified(), u"Hello, road."_s);
        QVERIFY(!Printer.HasJob());
    }

    void the_margins_count_from_the_edges_of_the_paper()
    {
        Print(RtfPicture(1000, 1000), 2000, 3000, 1000, 1500);
        const QRectF picture = InkOf(printed_->Image(1, 1), IsRed);
        QVERIFY2(qAbs(picture.left() - 2000) <= pixel, qPrintable(QString::number(picture.left())));
        QVERIFY2(qAbs(picture.top() - 3000) <= pixel, qPrintable(QString::number(picture.top())));
        QVERIFY(qAbs(picture.width() - 1000) <= 2 * pixel);
        QVERIFY(qAbs(picture.height() - 1000) <= 2 * pixel);
    }

    void no_line_is_in_the_file_twice_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("a paragraph") << QByteArray() << QByteArray("\\par");
        QTest::newRow("a table's cell") << QByteArray("\\trowd\\cellx2000\\cellx6000\\intbl left\\cell ")
                                        << QByteArray("\\cell\\row\\pard");
    }
    void no_line_is_in_the_file_twice()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        constexpr int count = 2000;
        QByteArray text;
        for (int number = 1; number <= count; ++number)
            text += "word" + QByteArray::number(number) + ' ';
        Print(before + text + after, 2000, 3000, 1000, 1500);
        const QStringList pages = printed_->Pages(1);
        QVERIFY(pages.size() > 3);
        QStringList words = Words(pages.join(u' '));
        words.removeAll(u"left"_s);
        QCOMPARE(words.size(), count);
        QCOMPARE(words.last(), u"word2000"_s);
    }

    void no_ink_is_nearer_to_an_edge_than_its_margin()
    {
        QByteArray text;
        for (int number = 0; number < 400; ++number)
            text +=
                "A long paragraph that is broken into lines as wide as the margins allow, again and again. ";
        Print(text, 2000, 3000, 1000, 1500);
        const QSizeF paper = printed_->Paper(1);
        const int pages = static_cast<int>(printed_->Pages(1).size());
        QVERIFY(pages > 2);
        for (int page = 1; page <= pages; ++page) {
            const QRectF ink = InkOf(printed_->Image(1, page));
            QVERIFY(ink.left() >= 2000 - pixel);
            QVERIFY(ink.top() >= 3000 - pixel);
            QVERIFY(ink.right() <= paper.width() - 1000 + pixel);
            QVERIFY(ink.bottom() <= paper.height() - 1500 + pixel);
        }
        // The room is used up: the lines reach to the right margin, and a full page to the one below.
        const QRectF first = InkOf(printed_->Image(1, 1));
        QVERIFY(first.right() > paper.width() - 1000 - inch);
        QVERIFY(first.bottom() > paper.height() - 1500 - 400);
    }

    void pages_break_between_lines_and_lose_none()
    {
        Print(Lines(1, 200));
        const QStringList pages = printed_->Pages(1);
        QVERIFY(pages.size() >= 3);
        QStringList expected;
        for (int number = 1; number <= 200; ++number)
            expected << u"Line"_s << QString::number(number);
        QStringList all;
        for (const QString& page : pages)
            all += Words(page);
        QCOMPARE(all, expected);
        // Each page begins at the margin again, with a line as high as the first page's.
        const double top = InkOf(printed_->Image(1, 1)).top();
        for (int page = 2; page <= pages.size(); ++page)
            QVERIFY(qAbs(InkOf(printed_->Image(1, page)).top() - top) <= pixel);
    }

    void a_heading_that_stays_with_the_next_text_never_ends_a_page_data()
    {
        QTest::addColumn<QByteArray>("heading");
        QTest::addColumn<QByteArray>("below");
        const QByteArray paragraph = "\\pard Below\\par";
        QTest::newRow("plain") << QByteArray("\\b Heading\\b0\\par") << paragraph;
        QTest::newRow("with a border") << QByteArray("\\brdrb\\brdrs\\brdrw30 Heading\\par") << paragraph;
        QTest::newRow("before a table")
            << QByteArray("\\b Heading\\b0\\par")
            << QByteArray("\\trowd\\cellx3000\\cellx6000\\pard\\intbl Below\\cell b\\cell\\row");
    }
    void a_heading_that_stays_with_the_next_text_never_ends_a_page()
    {
        QFETCH(QByteArray, heading);
        QFETCH(QByteArray, below);
        int moved = 0;
        for (int before = 44; before <= 54; ++before) {
            const QByteArray text = heading + below + "\\pard End\\par";
            Print(Lines(1, before) + "\\pard " + text);
            const QStringList free = printed_->Pages(printed_->Jobs());
            Print(Lines(1, before) + "\\pard\\keepn " + text);
            const QStringList kept = printed_->Pages(printed_->Jobs());
            for (const QString& page : kept)
                QCOMPARE(page.contains(u"Heading"_s), page.contains(u"Below"_s));
            moved += free.first().contains(u"Heading"_s) && !free.first().contains(u"Below"_s) ? 1 : 0;
        }
        QCOMPARE(moved, 1); // one of them would have ended its page
    }

    void a_leader_of_dots_fills_the_room_up_to_its_stop()
    {
        Print("\\pard\\tldot\\tx6000\\fs24\\tab\\par", 2000, 3000, 1000, 1500);
        const QRectF ink = InkOf(printed_->Image(1, 1));
        constexpr double twoDots = 200; // twips
        QVERIFY2(ink.left() >= 2000 - pixel && ink.left() < 2000 + twoDots,
                 qPrintable(QString::number(ink.left())));
        QVERIFY2(ink.right() <= 8000 + pixel && ink.right() > 8000 - twoDots,
                 qPrintable(QString::number(ink.right())));
        const qsizetype dots = printed_->Pages(1).first().count(u'.');
        QVERIFY2(dots > 50 && dots < 80, qPrintable(QString::number(dots)));
    }

    void a_line_between_paragraphs_of_a_box_is_printed_over_its_width()
    {
        Print("\\pard\\box\\brdrs\\brdrw60\\brdrbtw\\brdrs\\brdrw60 One\\par Two\\par");
        const QImage page = printed_->Image(1, 1);
        const QRectF ink = InkOf(page);
        int lines = 0;
        bool wasLine = false;
        for (int y = 0; y < page.height(); ++y) {
            bool isLine = true;
            for (double x = ink.left() + pixel; x < ink.right() - pixel; x += pixel)
                isLine = isLine && qGray(page.pixel(int(x / pixel), y)) < 128;
            lines += isLine && !wasLine ? 1 : 0;
            wasLine = isLine;
        }
        QCOMPARE(lines, 3); // above, between and below
    }

    void the_line_around_outlined_letters_is_as_wide_in_proportion_as_on_the_screen()
    {
        Print("\\pard\\outl\\fs288 I\\par");
        const QImage page = printed_->Image(1, 1);
        const QRectF ink = InkOf(page);
        const int middle = static_cast<int>(ink.center().y() / pixel);
        int x = static_cast<int>(ink.left() / pixel);
        int line = 0;
        for (; qGray(page.pixel(x, middle)) < 200; ++x)
            ++line;
        // A thirtieth of 144 points, half of it outside and half inside of the letter's stem.
        QVERIFY2(line >= 4 && line <= 6, qPrintable(QString::number(line)));
        QCOMPARE(qGray(page.pixel(x + 2, middle)), 255);
    }

    void a_text_without_a_character_is_one_empty_page()
    {
        Print("");
        QCOMPARE(printed_->Pages(1).size(), 1);
        QVERIFY(InkOf(printed_->Image(1, 1)).isNull());
    }

    void a_page_break_of_the_text_begins_a_page()
    {
        Print("First\\par\\page Second\\par");
        const QStringList pages = printed_->Pages(1);
        QCOMPARE(pages.size(), 2);
        QCOMPARE(pages.at(0).simplified(), u"First"_s);
        QCOMPARE(pages.at(1).simplified(), u"Second"_s);
    }

    void a_page_break_begins_a_page_with_whatever_comes_next_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("pages");
        const QStringList two{u"First"_s, u"Second"_s};
        const QByteArray begun = "First\\par\\page\\pard";
        const QByteArray first = "First\\par\\pard";
        const QByteArray bottom = "\\brdrb\\brdrs\\brdrw30 ";
        const QByteArray box = "\\box\\brdrs\\brdrw30 ";
        const QByteArray place = "{\\shp{\\*\\shpinst\\shpleft0\\shptop0\\shpright3000\\shpbottom1500";
        const QByteArray textBox = place + "{\\shptxt\\pard Second\\par}}}";
        const QByteArray drawing =
            place + "{\\sp{\\sn shapeType}{\\sv 1}}{\\sp{\\sn fillColor}{\\sv 1316060}}}}";
        const QByteArray row = "\\trowd\\cellx3000\\cellx6000\\pard\\intbl";
        QTest::newRow("a border") << begun + bottom + "Second\\par" << two;
        QTest::newRow("a paragraph with a border") << first + "\\pagebb" + bottom + "Second\\par" << two;
        QTest::newRow("a box") << begun + box + "Second\\par" << two;
        QTest::newRow("a paragraph in a box") << first + "\\pagebb" + box + "Second\\par" << two;
        QTest::newRow("a frame") << begun + "\\absw3000\\posx600 Second\\par" << two;
        QTest::newRow("a paragraph in a frame") << first + "\\pagebb\\absw3000\\posx600 Second\\par" << two;
        QTest::newRow("a text box") << begun + textBox + "\\par" << two;
        QTest::newRow("a text box of a paragraph") << first + "\\pagebb " + textBox + "\\par" << two;
        QTest::newRow("a text box that ends the document") << begun + textBox << two;
        QTest::newRow("a break behind a text box")
            << first + textBox + "\\page Third\\par" << QStringList{u"First Second"_s, u"Third"_s};
        QTest::newRow("a drawing") << begun + drawing + " Second\\par" << two;
        QTest::newRow("a drawing of a paragraph") << first + "\\pagebb " + drawing + "Second\\par" << two;
        QTest::newRow("a break within a text box")
            << first + place + "{\\shptxt\\pard\\pagebb Sec\\page ond\\par}}}\\pagebb Third\\par"
            << QStringList{u"First"_s, u"Sec ond Third"_s};
        QTest::newRow("text with a note") << begun + " Second{\\footnote\\pard\\pagebb Third}\\par"
                                          << QStringList{u"First"_s, u"Second1 1 Third"_s};
        QTest::newRow("a table") << begun + row + " Second\\cell b\\cell\\row"
                                 << QStringList{u"First"_s, u"Second b"_s};
        QTest::newRow("a table below a table")
            << row + " First\\cell\\cell\\row\\pard\\page" + row + " Second\\cell\\cell\\row" << two;
        QTest::newRow("a section that begins with a table")
            << row + " First\\cell\\cell\\row\\pard\\sect\\sectd" + row + " Second\\cell\\cell\\row" << two;
        QTest::newRow("within a row")
            << row + " a\\cell\\pard\\page\\intbl b\\cell\\row" << QStringList{u"a b"_s};
        QTest::newRow("a table in a table")
            << begun + row +
                   "\\itap2 Second\\nestcell{\\*\\nesttableprops\\trowd\\cellx1500\\nestrow}"
                   "{\\nonesttables\\par}\\pard\\intbl\\itap1\\cell b\\cell\\row"
            << QStringList{u"First"_s, u"Second b"_s};
        QTest::newRow("a first cell") << first + row + "\\pagebb Second\\cell\\pard\\intbl b\\cell\\row"
                                      << QStringList{u"First"_s, u"Second b"_s};
        QTest::newRow("all cells") << first + row + "\\pagebb Second\\cell b\\cell\\row c\\cell d\\cell\\row"
                                   << QStringList{u"First"_s, u"Second b c d"_s};
        QTest::newRow("another cell") << first + row + " a\\cell\\pagebb b\\cell\\row c\\cell d\\cell\\row"
                                      << QStringList{u"First a b c d"_s};
        QTest::newRow("a box in a cell")
            << first + row + "\\pagebb" + box + "Second\\cell\\pard\\intbl b\\cell\\row"
            << QStringList{u"First"_s, u"Second b"_s};
        QTest::newRow("the beginning") << QByteArray("\\pard\\pagebb First\\par") << QStringList{u"First"_s};
        QTest::newRow("the beginning in a box")
            << "\\pard\\pagebb" + box + "First\\par" << QStringList{u"First"_s};
        QTest::newRow("a table at the beginning")
            << row + "\\pagebb First\\cell b\\cell\\row" << QStringList{u"First b"_s};
        QTest::newRow("headings with the same border")
            << first + "\\pagebb" + bottom + "Second\\par Third\\par" << two + QStringList{u"Third"_s};
        QTest::newRow("a large initial letter")
            << first + "\\pagebb\\dropcapli2 S\\par\\pard econd\\par" << two;
        QTest::newRow("text below a table") << row + " First\\cell\\cell\\row\\pard\\page Second\\par" << two;
    }
    void a_page_break_begins_a_page_with_whatever_comes_next()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, pages);
        Print(text);
        QStringList printed;
        for (const QString& page : printed_->Pages(1))
            printed << page.simplified();
        QCOMPARE(printed, pages);
        QVERIFY(InkOf(printed_->Image(1, 1), IsRed).isNull()); // drawings stand with their text
    }

    void what_stands_at_the_end_of_a_page_leaves_no_page_empty_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::newRow("a table") << QByteArray("\\trowd\\cellx3000\\pard\\intbl Table\\cell\\row");
        QTest::newRow("a box") << QByteArray("\\pard\\box\\brdrs\\brdrw30\\sa1200 Table\\par");
    }
    void what_stands_at_the_end_of_a_page_leaves_no_page_empty()
    {
        QFETCH(QByteArray, table);
        for (int before = 38; before <= 50; ++before) {
            Print(Lines(1, before) + table + "\\pard\\pagebb\\sb1200 End\\par");
            const QStringList pages = printed_->Pages(printed_->Jobs());
            QCOMPARE(pages.last().simplified(), u"End"_s);
            QVERIFY(pages.at(pages.size() - 2).contains(u"Table"_s));
        }
    }

    void a_page_that_begins_with_a_box_begins_at_the_margin()
    {
        Print("\\pard\\sa600 First\\par\\page\\pard\\box\\brdrs\\brdrw30 Second\\par");
        const QRectF ink = InkOf(printed_->Image(1, 2));
        QVERIFY2(qAbs(ink.top() - inch) <= 2 * pixel, qPrintable(QString::number(ink.top())));
    }

    void a_picture_that_fits_a_page_moves_to_the_next_as_a_whole()
    {
        Print(Lines(1, 40) + RtfPicture(4000, 6000) + "\\par\n" + Lines(41, 42));
        QCOMPARE(printed_->Pages(1).size(), 2);
        QVERIFY(InkOf(printed_->Image(1, 1), IsRed).isNull());
        const QRectF picture = InkOf(printed_->Image(1, 2), IsRed);
        QVERIFY(qAbs(picture.top() - inch) <= pixel);
        QVERIFY(qAbs(picture.width() - 4000) <= 2 * pixel);
        QVERIFY(qAbs(picture.height() - 6000) <= 2 * pixel);
    }

    void a_picture_too_large_for_a_page_is_shrunk_onto_one_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("too high") << 4000 << 20000 << QByteArray();
        QTest::newRow("too wide") << 20000 << 4000 << QByteArray();
        QTest::newRow("both") << 20000 << 30000 << QByteArray();
        QTest::newRow("many pages high") << 3000 << 31000 << QByteArray();
        QTest::newRow("after text") << 4000 << 20000 << Lines(1, 10);
        QTest::newRow("in a line with text") << 4000 << 20000 << QByteArray("beside ");
        QTest::newRow("indented") << 9000 << 9000 << QByteArray("\\li3000 ");
        QTest::newRow("as high as the page") << 4000 << 16838 - 2880 << QByteArray();
    }
    void a_picture_too_large_for_a_page_is_shrunk_onto_one()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QByteArray, before);
        Print(before + RtfPicture(width, height) + "\\par after");
        const QSizeF paper = printed_->Paper(1);
        QRectF picture;
        int pagesWithPicture = 0;
        const int pages = static_cast<int>(printed_->Pages(1).size());
        for (int page = 1; page <= pages; ++page) {
            const QRectF ink = InkOf(printed_->Image(1, page), IsRed);
            if (ink.isNull())
                continue;
            ++pagesWithPicture;
            picture = ink;
        }
        QCOMPARE(pagesWithPicture, 1);
        QVERIFY(picture.left() >= inch - pixel);
        QVERIFY(picture.top() >= inch - pixel);
        QVERIFY(picture.right() <= paper.width() - inch + pixel);
        QVERIFY(picture.bottom() <= paper.height() - inch + pixel);
        const double ratio = picture.width() / picture.height();
        QVERIFY2(qAbs(ratio * height / width - 1) < 0.03, qPrintable(QString::number(ratio)));
        // It is no smaller than it must be.
        const double room = paper.height() - 2 * inch;
        const bool fillsOneWay =
            picture.width() > (paper.width() - 2 * inch - 3000) * 0.9 || picture.height() > room * 0.9;
        QVERIFY(fillsOneWay);
        QVERIFY(printed_->Pages(1).join(QString()).contains(u"after"_s));
    }

    void a_picture_in_a_table_is_not_cut_either_data()
    {
        QTest::addColumn<int>("height");
        QTest::newRow("fits the page") << 9000;
        QTest::newRow("nearly a page") << 13800;
        QTest::newRow("more than a page") << 16000;
    }
    void a_picture_in_a_table_is_not_cut_either()
    {
        QFETCH(int, height);
        Print(Lines(1, 30) +
              "\\trowd\\trgaph100\\clbrdrb\\brdrs\\cellx4500\\cellx9000\\pard\\intbl left\\cell " +
              RtfPicture(3000, height) + "\\cell\\row\\pard after");
        int pagesWithPicture = 0;
        for (int page = 1; page <= printed_->Pages(1).size(); ++page)
            pagesWithPicture += InkOf(printed_->Image(1, page), IsRed).isNull() ? 0 : 1;
        QCOMPARE(pagesWithPicture, 1);
    }

    void indents_keep_their_measure_on_paper()
    {
        Print("\\li1440\\fi720\\ri2880 " + RtfPicture(300, 300) +
              " first line that is long enough to be broken before "
              "the right indent, and its second line\\par");
        const QRectF picture = InkOf(printed_->Image(1, 1), IsRed);
        QVERIFY2(qAbs(picture.left() - (inch + 1440 + 720)) <= pixel,
                 qPrintable(QString::number(picture.left())));
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY2(qAbs(ink.left() - (inch + 1440)) <= 2 * pixel, qPrintable(QString::number(ink.left())));
        QVERIFY(ink.right() <= printed_->Paper(1).width() - inch - 2880 + pixel);
    }

    void tabs_keep_their_measure_on_paper()
    {
        Print("\\tx4320\\tab " + RtfPicture(300, 300) + "\\par");
        const QRectF picture = InkOf(printed_->Image(1, 1), IsRed);
        QVERIFY2(qAbs(picture.left() - (inch + 4320)) <= pixel, qPrintable(QString::number(picture.left())));
    }

    void letters_keep_their_size_on_paper()
    {
        Print("\\fs144 HHH\\par"); // 72 points: a capital is about 0.7 of that high
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY2(ink.height() > 900 && ink.height() < 1150, qPrintable(QString::number(ink.height())));
    }

    void a_file_that_is_no_rich_text_prints_in_readable_letters()
    {
        program_->disc.AddFile(u"RichText/plain.rtf"_s, "HHH without any format");
        PrintFile(u"plain.rtf"_s, 1440, 1440, 1440, 1440);
        const QRectF ink = InkOf(printed_->Image(1, 1));
        QVERIFY2(ink.height() >= 5 * pixel, qPrintable(QString::number(ink.height())));
        QVERIFY(ink.width() > 1000);
    }

    void the_paper_that_was_set_up_holds_and_its_margins_count_from_its_edges()
    {
        Printer.SetUp(PrinterSetup{{}, QPageSize(QPageSize::A5), QPageLayout::Landscape});
        Print(RtfPicture(1000, 1000), 2000, 1500, 1000, 1500);
        const QSizeF paper = printed_->Paper(1);
        QVERIFY(qAbs(paper.width() - 210 / 25.4 * inch) <= 2 * pixel);
        QVERIFY(qAbs(paper.height() - 148 / 25.4 * inch) <= 2 * pixel);
        const QRectF picture = InkOf(printed_->Image(1, 1), IsRed);
        QVERIFY(qAbs(picture.left() - 2000) <= pixel);
        QVERIFY(qAbs(picture.top() - 1500) <= pixel);
    }

    void an_open_job_is_continued_and_ended()
    {
        Printer.Print(u"The cover"_s);
        Printer.NewPage();
        Print("The text");
        QVERIFY(!Printer.HasJob());
        QCOMPARE(printed_->Files().size(), 1);
        const QStringList pages = printed_->Pages(1);
        QCOMPARE(pages.size(), 2);
        QCOMPARE(pages.at(0).simplified(), u"The cover"_s);
        QCOMPARE(pages.at(1).simplified(), u"The text"_s);
    }

    void an_open_page_is_shared()
    {
        Printer.Print(u"The cover"_s);
        Print("The text");
        const QStringList pages = printed_->Pages(1);
        QCOMPARE(pages.size(), 1);
        QCOMPARE(pages.first().simplified(), u"The cover The text"_s);
    }

    void each_call_without_an_open_job_is_a_job()
    {
        Print("One");
        Print("Two");
        QCOMPARE(printed_->Files(), QStringList({u"job-1.pdf"_s, u"job-2.pdf"_s}));
        QCOMPARE(printed_->Pages(1).first().simplified(), u"One"_s);
        QCOMPARE(printed_->Pages(2).first().simplified(), u"Two"_s);
    }

    void a_jpeg_goes_to_paper_as_a_jpeg()
    {
        QImage image(120, 80, QImage::Format_RGB32);
        image.fill(QColor(220, 20, 20));
        const QByteArray picture = "{\\pict\\jpegblip\\picw120\\pich80\\picwgoal2400\\pichgoal1600 " +
                                   Encoded(image, "jpg").toHex() + "}";
        Print(picture + "\\par between\\par");
        QCOMPARE(printed_->PictureEncodings(1), QStringList(u"jpeg"_s));
        QCOMPARE(printed_->PictureSizes(1), QList<QSize>{image.size()});
    }

    void a_picture_that_an_article_repeats_goes_into_the_job_once()
    {
        QImage image(120, 80, QImage::Format_RGB32);
        image.fill(QColor(220, 20, 20));
        const QByteArray picture = "{\\pict\\jpegblip\\picw120\\pich80\\picwgoal2400\\pichgoal1600 " +
                                   Encoded(image, "jpg").toHex() + "}";
        image.fill(QColor(20, 20, 220));
        const QByteArray other = "{\\pict\\jpegblip\\picw120\\pich80\\picwgoal2400\\pichgoal1600 " +
                                 Encoded(image, "jpg").toHex() + "}";
        Print(picture + "\\par between " + other + "\\page " + picture + "\\par");
        const QStringList objects = printed_->PictureObjects(1);
        QCOMPARE(objects.size(), 3);
        QVERIFY(objects.at(1) != objects.at(0));
        QCOMPARE(objects.at(2), objects.at(0));
    }

    void the_pane_stays_as_it_was()
    {
        Print(Lines(1, 5) + RtfPicture(4000, 20000));
        const QString text = txtForm->rtbText.Text();
        const QImage before = txtForm->rtbText.Widget().grab().toImage();
        PrintRichText(txtForm->rtbText, 1440, 1440, 1440, 1440);
        QCOMPARE(txtForm->rtbText.Text(), text);
        QCOMPARE(txtForm->rtbText.Widget().grab().toImage(), before);
        QCOMPARE(printed_->Pages(2).join(QString()), printed_->Pages(1).join(QString()));
    }

    void a_printer_that_fails_is_the_callers_failure()
    {
        Printer.PrintTo(u"/proc/nothing/here"_s);
        QCOMPARE(ResumeNext([&] { Print("Lost"); }), failure::printerError);
        QVERIFY(!Printer.HasJob());
        Printer.PrintTo(printed_->Path());
        Print("Found");
        QCOMPARE(printed_->Pages(1).first().simplified(), u"Found"_s);
    }

    void margins_that_leave_no_room_are_refused()
    {
        QCOMPARE(ResumeNext([&] { Print("Text", 9000, 1440, 9000, 1440); }), failure::invalidCall);
        QCOMPARE(ResumeNext([&] { Print("Text", 1440, 12000, 1440, 12000); }), failure::invalidCall);
    }

private:
    void Print(const QByteArray& rtf, int left = 1440, int top = 1440, int right = 1440, int bottom = 1440)
    {
        program_->disc.AddFile(u"RichText/text.rtf"_s,
                               "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 " + rtf + "}");
        PrintFile(u"text.rtf"_s, left, top, right, bottom);
    }

    void PrintFile(const QString& name, int left, int top, int right, int bottom)
    {
        txtForm->rtbText.SetFileName(u"G:\\RichText\\"_s + name);
        PrintRichText(txtForm->rtbText, left, top, right, bottom);
    }

    std::unique_ptr<Program> program_;
    std::unique_ptr<PrintFolder> printed_;
};

TORVIK_TEST(RichTextPrintingTest)
#include "rich_text_printing_test.moc"
