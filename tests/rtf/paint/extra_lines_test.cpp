#include "rtf/documents.h"
#include "support/test_class.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

/// What is painted over the text that the layout paints.
class ExtraLinesTest : public QObject {
    Q_OBJECT

    static constexpr QSize page{480, 120};

    static QImage Painted(const Reading& read)
    {
        QImage image(page, QImage::Format_RGB32);
        image.fill(Qt::white);
        read.document->setDocumentMargin(0);
        read.document->setTextWidth(page.width());
        // The layout is made before anything is painted, as in a window.
        (void)read.document->size();
        QPainter painter(&image);
        constexpr double ownSize = 1;
        ExtraLines(*read.document).Paint(painter, QRectF(QPointF(), QSizeF(page)), Qt::black, ownSize);
        return image;
    }
    /// With the text itself.
    static QImage PaintedWhole(const Reading& read)
    {
        QImage image = Painted(read);
        QPainter painter(&image);
        read.document->drawContents(&painter);
        return image;
    }
    /// The inked rows of a column, or of the whole picture, as the first and the last of each band.
    static QList<QPair<int, int>> Bands(const QImage& image, int from, int to)
    {
        QList<QPair<int, int>> bands;
        for (int y = 0; y < image.height(); ++y) {
            bool isInked = false;
            for (int x = from; x < to; ++x)
                isInked = isInked || IsInked(image, x, y);
            if (isInked && !bands.isEmpty() && bands.last().second == y - 1)
                bands.last().second = y;
            else if (isInked)
                bands.append({y, y});
        }
        return bands;
    }
    static bool IsInked(const QImage& image, int x, int y) { return qGray(image.pixel(x, y)) < 200; }
    /// How many columns of a stretch hold ink.
    static int InkedColumns(const QImage& image, int from, int to)
    {
        int columns = 0;
        for (int x = from; x < to; ++x) {
            bool isInked = false;
            for (int y = 0; y < image.height(); ++y)
                isInked = isInked || IsInked(image, x, y);
            columns += isInked ? 1 : 0;
        }
        return columns;
    }
    static int InkedRows(const QImage& image, int x)
    {
        int rows = 0;
        for (int y = 0; y < image.height(); ++y)
            rows += IsInked(image, x, y) ? 1 : 0;
        return rows;
    }

private Q_SLOTS:
    void leaders_fill_the_room_before_their_stop_data()
    {
        QTest::addColumn<QByteArray>("leader");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::newRow("dots") << QByteArray("\\tldot") << 20 << 190;
        QTest::newRow("dots in the middle") << QByteArray("\\tlmdot") << 20 << 190;
        QTest::newRow("hyphens") << QByteArray("\\tlhyph") << 60 << 290;
        QTest::newRow("a line") << QByteArray("\\tlul") << 290 << 300;
        QTest::newRow("a thick line") << QByteArray("\\tlth") << 290 << 300;
        QTest::newRow("a double line") << QByteArray("\\tleq") << 290 << 300;
        QTest::newRow("none") << QByteArray() << 0 << 0;
    }
    void leaders_fill_the_room_before_their_stop()
    {
        QFETCH(QByteArray, leader);
        QFETCH(int, least);
        QFETCH(int, most);
        const QImage image = Painted(ReadBody("\\pard" + leader + "\\tx6000\\fs24\\tab x\\par"));
        const int columns = InkedColumns(image, 50, 350);
        QVERIFY2(columns >= least && columns <= most, qPrintable(QString::number(columns)));
        QCOMPARE(InkedColumns(image, 402, page.width()), 0);
    }

    void signs_of_all_lines_stand_below_each_other_data()
    {
        QTest::addColumn<QByteArray>("leader");
        QTest::newRow("dots") << QByteArray("\\tldot");
        QTest::newRow("dots in the middle") << QByteArray("\\tlmdot");
        QTest::newRow("hyphens") << QByteArray("\\tlhyph");
    }
    void signs_of_all_lines_stand_below_each_other()
    {
        QFETCH(QByteArray, leader);
        const auto columns = [&](const QByteArray& before) {
            const QImage image =
                Painted(ReadBody("\\pard" + leader + "\\tx6000\\fs24 " + before + "\\tab x\\par"));
            QList<int> inked;
            for (int x = 200; x < 380; ++x) {
                if (InkedColumns(image, x, x + 1) > 0)
                    inked.append(x);
            }
            return inked;
        };
        const QList<int> expected = columns("");
        QVERIFY(expected.size() > 10);
        QCOMPARE(columns("word"), expected);
        QCOMPARE(columns("some more words"), expected);
    }

    void dots_in_the_middle_stand_higher_than_dots_at_the_foot()
    {
        const auto rows = [](const QByteArray& leader) {
            const QImage image = Painted(ReadBody("\\pard" + leader + "\\tx6000\\fs48\\tab x\\par"));
            QList<int> inked;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 100; x < 300 && (inked.isEmpty() || inked.last() != y); ++x) {
                    if (IsInked(image, x, y))
                        inked.append(y);
                }
            }
            return inked;
        };
        const QList<int> middle = rows("\\tlmdot");
        const QList<int> foot = rows("\\tldot");
        QVERIFY(!middle.isEmpty() && !foot.isEmpty());
        QVERIFY2(middle.last() + 5 < foot.first(),
                 qPrintable(QString::number(middle.last()) + u' ' + QString::number(foot.first())));
        QVERIFY(foot.last() - middle.first() < 20); // of letters 32 pixels high
    }

    void a_leader_ends_where_text_at_the_right_begins()
    {
        const QImage image = Painted(ReadBody("\\pard\\tqr\\tlul\\tx6000\\fs24\\tab wide words\\par"));
        QVERIFY(InkedColumns(image, 0, 200) > 190);
        QCOMPARE(InkedColumns(image, 380, page.width()), 0);
    }

    void a_leader_of_an_indented_paragraph_begins_behind_its_text_data()
    {
        QTest::addColumn<QByteArray>("indent");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("at the left") << QByteArray("\\li1500");
        QTest::newRow("of the first line") << QByteArray("\\fi1500");
        QTest::newRow("hanging") << QByteArray("\\li1500\\fi-600");
    }
    void a_leader_of_an_indented_paragraph_begins_behind_its_text()
    {
        QFETCH(QByteArray, indent);
        const Reading read = ReadBody("\\pard" + indent + "\\tlul\\tx6000\\fs24 wide words\\tab x\\par");
        const QImage image = Painted(read);
        const QTextBlock block = read.document->begin();
        const double corner = read.document->documentLayout()->blockBoundingRect(block).left();
        const double end = corner + block.layout()->lineAt(0).cursorToX(10);
        QCOMPARE(InkedColumns(image, 0, int(end) - 1), 0);
        QVERIFY(InkedColumns(image, int(end) + 1, 399) > 395 - end);
        QCOMPARE(InkedColumns(image, 402, page.width()), 0);
    }

    void thick_and_double_leaders_are_thicker_than_a_line()
    {
        const auto rows = [](const QByteArray& leader) {
            return InkedRows(Painted(ReadBody("\\pard" + leader + "\\tx6000\\fs24\\tab x\\par")), 100);
        };
        QVERIFY(rows("\\tlth") > rows("\\tlul"));
        QVERIFY(rows("\\tleq") > rows("\\tlul"));
    }

    void only_the_tab_to_the_stop_has_its_leader()
    {
        const QImage image = Painted(ReadBody("\\pard\\tx3000\\tlul\\tx6000\\fs24\\tab\\tab x\\par"));
        QCOMPARE(InkedColumns(image, 0, 195), 0);
        QVERIFY(InkedColumns(image, 205, 395) > 180);
    }

    void leaders_of_a_paragraph_from_the_right_or_in_the_middle_data()
    {
        QTest::addColumn<QByteArray>("paragraph");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray hebrew = "\\u1513?\\u1500?\\u1493?\\u1501?";
        for (const char* side : {"", "\\ql", "\\qr", "\\qc"}) {
            const QByteArray told(side);
            QTest::addRow("Hebrew %s", side) << "\\rtlpar" + told << hebrew << hebrew;
            QTest::addRow("Latin %s", side) << "\\rtlpar" + told << QByteArray("abc") << QByteArray("def");
            QTest::addRow("mixed %s", side) << "\\rtlpar" + told << hebrew << QByteArray("def");
            QTest::addRow("from left to right %s", side)
                << "\\ltrpar" + told << hebrew + " abc" << QByteArray("def");
        }
    }
    void leaders_of_a_paragraph_from_the_right_or_in_the_middle()
    {
        QFETCH(QByteArray, paragraph);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const Reading read = ReadBody("\\pard" + paragraph + "\\tx1500\\tlul\\tx6000\\fs24 " + before +
                                      "\\tab\\tab " + after + "\\par");
        const QImage image = Painted(read);
        const QTextBlock block = read.document->begin();
        const QTextLine line = block.layout()->lineAt(0);
        // The second tab goes from 100 to 400 pixels, from the side where the text begins.
        const QRectF text = line.naturalTextRect();
        const bool fromRight = paragraph.startsWith("\\rtlpar");
        const double begin = fromRight ? text.right() - 400 : text.left() + 100;
        QCOMPARE(InkedColumns(image, 0, int(begin) - 1), 0);
        QVERIFY(InkedColumns(image, int(begin), int(begin) + 300) > 297);
        QCOMPARE(InkedColumns(image, int(begin) + 302, page.width()), 0);
        // What follows the tab stands beyond it.
        QVERIFY(fromRight ? text.left() < begin - 10 : text.right() > begin + 310);
    }

    void a_stop_in_a_paragraph_from_the_right_is_where_text_begins_or_ends()
    {
        const auto textAt = [](const QByteArray& stop) {
            const Reading read = ReadBody("\\pard\\rtlpar" + stop + "\\fs24\\tab \\u1513?\\u1500?\\par");
            (void)Painted(read);
            const QTextLine line = read.document->begin().layout()->lineAt(0);
            return std::pair(page.width() - line.cursorToX(1), page.width() - line.cursorToX(3));
        };
        QCOMPARE(textAt("\\tx3000").first, 200.0);
        QCOMPARE(textAt("\\tqr\\tx3000").second, 200.0);
    }

    void double_and_thick_underlines_are_painted_in_their_colour()
    {
        for (const QByteArray& word : {QByteArray("\\uldb"), QByteArray("\\ulth")}) {
            const Reading read = ReadBody("\\pard\\fs24\\cf1 " + word + " underlined text\\ulnone  not\\par");
            QVERIFY(read.Format("underlined").fontUnderline());
            const QImage image = Painted(read);
            bool isRed = false;
            for (int y = 0; y < image.height(); ++y)
                isRed = isRed || image.pixelColor(20, y) == QColor(255, 0, 0);
            QVERIFY(isRed);
        }
    }

    void the_two_lines_of_a_double_underline_or_strike_are_apart_data()
    {
        QTest::addColumn<QByteArray>("words");
        for (const char* size : {"\\fs16", "\\fs20", "\\fs24", "\\fs28", "\\fs36", "\\fs48"}) {
            QTest::addRow("underline %s", size) << QByteArray(size) + "\\uldb";
            QTest::addRow("strike %s", size) << QByteArray(size) + "\\striked1";
        }
    }
    void the_two_lines_of_a_double_underline_or_strike_are_apart()
    {
        QFETCH(QByteArray, words);
        const Reading read = ReadBody("\\pard" + words + "\\~\\~\\~\\~\\~\\~\\~\\~\\plain x\\par");
        const QImage image = PaintedWhole(read);
        QList<bool> rows;
        for (int y = 0; y < image.height(); ++y)
            rows.append(IsInked(image, 20, y));
        const qsizetype first = rows.indexOf(true);
        const qsizetype gap = rows.indexOf(false, first);
        const qsizetype second = rows.indexOf(true, gap);
        QVERIFY(first >= 0 && gap > first && second > gap);
        QVERIFY(second - gap <= gap - first); // they are one sign all the same
        QVERIFY(!rows.mid(rows.indexOf(false, second)).contains(true));
    }

    void a_thick_pattern_has_the_dots_and_dashes_of_the_thin_one_data()
    {
        QTest::addColumn<QByteArray>("thin");
        QTest::addColumn<QByteArray>("thick");
        QTest::addColumn<QByteArray>("size");
        const QList<QPair<QByteArray, QByteArray>> kinds{{"\\uld", "\\ulthd"},
                                                         {"\\uldash", "\\ulthdash"},
                                                         {"\\ulldash", "\\ulthldash"},
                                                         {"\\uldashd", "\\ulthdashd"},
                                                         {"\\uldashdd", "\\ulthdashdd"}};
        for (const auto& [thin, thick] : kinds) {
            for (const char* size : {"\\fs16", "\\fs24", "\\fs36", "\\fs48", "\\fs96"})
                QTest::addRow("%s %s", thick.constData(), size) << thin << thick << QByteArray(size);
        }
    }
    void a_thick_pattern_has_the_dots_and_dashes_of_the_thin_one()
    {
        QFETCH(QByteArray, thin);
        QFETCH(QByteArray, thick);
        QFETCH(QByteArray, size);
        // Spaces, and something before them, so that the line begins within a pixel.
        const auto painted = [&](const QByteArray& word) {
            return PaintedWhole(ReadBody("\\pard" + size + "\\expndtw5 i\\expndtw0" + word +
                                         QByteArray("\\~").repeated(16) + "\\par"));
        };
        const QImage one = painted(thin);
        const QImage two = painted(thick);
        constexpr int begin = 30;
        constexpr int end = 60; // within the line at every size
        int inked = 0;
        for (int x = begin; x < end; ++x) {
            const auto thinBands = Bands(one, x, x + 1);
            const auto thickBands = Bands(two, x, x + 1);
            QCOMPARE(thickBands.size(), thinBands.size());
            if (thinBands.isEmpty())
                continue;
            ++inked;
            QCOMPARE(thinBands.size(), 1);
            const int thinHeight = thinBands.first().second - thinBands.first().first + 1;
            const int thickHeight = thickBands.first().second - thickBands.first().first + 1;
            QCOMPARE(thickBands.first().first, thinBands.first().first);
            QVERIFY2(thickHeight > thinHeight && thickHeight <= 2 * thinHeight,
                     qPrintable(QString::number(thinHeight) + u' ' + QString::number(thickHeight)));
        }
        QVERIFY(inked > 5 && inked < end - begin);
    }

    void a_heavy_wave_is_one_and_a_double_wave_is_two_data()
    {
        QTest::addColumn<QByteArray>("size");
        for (const char* size : {"\\fs20", "\\fs24", "\\fs28", "\\fs36", "\\fs48", "\\fs72", "\\fs96"})
            QTest::newRow(size) << QByteArray(size);
    }
    void a_heavy_wave_is_one_and_a_double_wave_is_two()
    {
        QFETCH(QByteArray, size);
        const auto painted = [&](const QByteArray& word) {
            return PaintedWhole(ReadBody("\\pard" + size + word + QByteArray("\\~").repeated(20) + "\\par"));
        };
        const QImage wave = painted("\\ulwave");
        const auto one = Bands(wave, 0, 60);
        QCOMPARE(one.size(), 1);
        const auto heavy = Bands(painted("\\ulhwave"), 0, 60);
        QCOMPARE(heavy.size(), 1);
        QCOMPARE(heavy.first().first, one.first().first);
        QVERIFY(heavy.first().second > one.first().second);
        const QImage twoWaves = painted("\\ululdbwave");
        const auto two = Bands(twoWaves, 0, 60);
        QCOMPARE(two.size(), 2);
        QCOMPARE(two.first(), one.first());
        QCOMPARE(two.last().second - two.last().first, one.first().second - one.first().first);
        const int height = one.first().second - one.first().first + 1;
        QCOMPARE(twoWaves.copy(0, two.last().first, page.width(), height),
                 wave.copy(0, one.first().first, page.width(), height));
    }

    void the_colour_of_an_underline_comes_first()
    {
        const QImage image = Painted(ReadBody("\\pard\\fs24\\cf1\\uldb\\ulc3 underlined\\par"));
        bool isBlue = false;
        for (int y = 0; y < image.height(); ++y)
            isBlue = isBlue || image.pixelColor(20, y) == QColor(0, 0, 255);
        QVERIFY(isBlue);
    }

    void a_short_rule_stands_above_the_footnotes()
    {
        const Reading read = ReadBody("one{\\super\\chftn{\\footnote a note\\par in two paragraphs}}\\par");
        const QImage image = Painted(read);
        const double text =
            read.document->documentLayout()->blockBoundingRect(read.Block(u"one1"_s)).bottom();
        const double notes =
            read.document->documentLayout()->blockBoundingRect(read.Block(u"a note"_s)).top();
        QCOMPARE(notes - text, 16.0);
        int rules = 0;
        for (int y = 0; y < image.height(); ++y) {
            if (!IsInked(image, 10, y))
                continue;
            ++rules;
            QVERIFY(y > text && y < notes);
        }
        QCOMPARE(rules, 1);
        QCOMPARE(InkedColumns(image, 0, page.width()), page.width() / 3);
    }

    void a_document_without_them_costs_nothing()
    {
        QVERIFY(ExtraLines(*ReadBody("\\tx720 a\\tab{\\ul b}\\par").document).IsEmpty());
        QVERIFY(!ExtraLines(*ReadBody("a{\\chftn{\\footnote b}}\\par").document).IsEmpty());
        QVERIFY(!ExtraLines(*ReadBody("a{\\uldb b}\\par").document).IsEmpty());
        QVERIFY(ExtraLines().IsEmpty());
    }
};

TORVIK_TEST(ExtraLinesTest)
#include "extra_lines_test.moc"
