#include "rtf/documents.h"
#include "rtf/picture_bytes.h"
#include "support/test_class.h"

#include <QFile>
#include <QTextTable>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class HostileTest : public QObject {
    Q_OBJECT

    static QByteArray Repeated(const QByteArray& piece, int times) { return piece.repeated(times); }

    /// Bytes of memory that the process holds now; 0 where the system does not tell, and under the address
    /// sanitizer, which keeps freed memory back.
    static qint64 MemoryInUse()
    {
#ifdef __SANITIZE_ADDRESS__
        return 0;
#endif
        QFile file(u"/proc/self/statm"_s);
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        return file.readAll().split(' ').value(1).toLongLong() * 4096;
    }

    static const QTextTable* OnlyTable(const Reading& read)
    {
        const QList<QTextFrame*> frames = read.document->rootFrame()->childFrames();
        return frames.size() == 1 ? qobject_cast<QTextTable*>(frames.first()) : nullptr;
    }

    static QList<double> WidthsOf(const QTextTable& table)
    {
        QList<double> widths;
        for (const QTextLength& width : table.format().columnWidthConstraints())
            widths.append(width.rawValue());
        return widths;
    }

    static int ParagraphsIn(const QTextTable& table, int column)
    {
        const QTextTableCell cell = table.cellAt(0, column);
        return cell.lastCursorPosition().blockNumber() - cell.firstCursorPosition().blockNumber() + 1;
    }

private Q_SLOTS:
    void a_million_open_braces()
    {
        const Reading read = ReadBytes("{\\rtf1 a" + Repeated("{", 1000000) + "b");
        QVERIFY(read.result.wasDamaged);
        QCOMPARE(read.Text(), u"ab"_s);
    }

    void deep_groups_that_are_closed_again_lose_nothing()
    {
        QCOMPARE(ReadBody("a" + Repeated("{", 5000) + "b" + Repeated("}", 5000) + "c\\par").Text(), u"abc"_s);
    }

    void destinations_nested_without_end_data()
    {
        QTest::addColumn<QByteArray>("opened");
        QTest::addColumn<QByteArray>("closed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("instructions of fields")
            << QByteArray("{\\field{\\*\\fldinst ") << QByteArray("}}") << QString();
        QTest::newRow("notes") << QByteArray("{\\footnote ") << QByteArray("}") << QString();
        QTest::newRow("numberings") << QByteArray("{\\*\\pn{\\pntxtb ") << QByteArray("}}") << QString();
        QTest::newRow("two forms of a text") << QByteArray("{\\upr") << QByteArray("}") << QString();
        QTest::newRow("results of objects")
            << QByteArray("{\\object{\\result ") << QByteArray("}}") << u"b"_s;
    }
    void destinations_nested_without_end()
    {
        QFETCH(QByteArray, opened);
        QFETCH(QByteArray, closed);
        QFETCH(QString, shown);
        const QByteArray start = "{\\rtf1 a" + Repeated(opened, 20000) + "b";
        const Reading broken = ReadBytes(start);
        QVERIFY(broken.result.wasDamaged);
        QCOMPARE(broken.Text(), u"a"_s + shown);
        const Reading whole = ReadBytes(start + Repeated(closed, 20000) + "c}");
        QVERIFY(!whole.result.wasDamaged);
        QCOMPARE(whole.Text(), u"a"_s + shown + u"c"_s);
    }

    void groups_without_an_end_are_not_searched_again_and_again()
    {
        // Searched to the end of the file each time, this takes most of an hour.
        const Reading read = ReadBytes("{\\rtf1 a" + Repeated("{\\upr", 200000) + "b");
        QVERIFY(read.result.wasDamaged);
        QCOMPARE(read.Text(), u"a"_s);
    }

    void braces_that_close_nothing_end_the_document()
    {
        QCOMPARE(ReadBytes("{\\rtf1 a}}}}}b").Text(), u"a"_s);
    }

    void a_huge_count_of_raw_bytes()
    {
        const Reading read = ReadBody("a\\par{\\pict\\pngblip\\bin2147483647 xx");
        QCOMPARE(read.Text(), u"a"_s);
        QVERIFY(read.result.wasDamaged);
    }

    void cells_with_impossible_edges()
    {
        const Reading read = ReadBody("\\trowd\\trleft-99999999\\cellx-99999999\\cellx2147483647\\cellx-"
                                      "5\\intbl a\\cell b\\cell c\\cell\\row\\pard x\\par");
        QCOMPARE(read.Text(), u"\na\nb\nc\nx"_s);
        const QTextTable* table = OnlyTable(read);
        QVERIFY(table != nullptr);
        QCOMPARE(table->rows(), 1);
        // The least width, all that is between the bounds, and the least width again; in pixels.
        QCOMPARE(WidthsOf(*table), QList<double>({4, 4220, 4}));
    }

    void a_million_cells_in_one_row()
    {
        const Reading read = ReadBody("\\trowd" + Repeated("\\cellx9", 1000) + "\\intbl " +
                                      Repeated("\\cell", 1000000) + "\\row\\pard x\\par");
        QVERIFY(read.result.wasCut);
        const QTextTable* table = OnlyTable(read);
        QVERIFY(table != nullptr);
        QCOMPARE(table->rows(), 1);
        QCOMPARE(table->columns(), 64);
        for (int column = 0; column < 63; ++column)
            QCOMPARE(ParagraphsIn(*table, column), 1);
        // The last cell takes what there is no column for, as far as the document may grow.
        QVERIFY(ParagraphsIn(*table, 63) > 1);
        // What waits for its table costs more than what is written, so there is room for the end again.
        QCOMPARE(read.document->lastBlock().text(), u"x"_s);
        QCOMPARE(read.result.paragraphs, 63 + ParagraphsIn(*table, 63) + 1);
    }

    void rows_that_inherit_a_wide_definition()
    {
        QByteArray definition = "\\trowd";
        for (int i = 1; i <= 256; ++i)
            definition += "\\cellx" + QByteArray::number(i * 100);
        const qint64 before = MemoryInUse();
        const QByteArray rows = Repeated("\\cell\\row", 100000);
        const Reading read = ReadBody(definition + rows + "\\pard x\\par");
        QVERIFY(read.result.wasCut);
        const qint64 grown = MemoryInUse() - before;
        QVERIFY2(grown < 64LL * 1024 * 1024 + 20 * rows.size(), QByteArray::number(grown).constData());
    }

    void memory_stays_in_proportion_to_the_file_data()
    {
        QTest::addColumn<QByteArray>("piece");
        QTest::newRow("paragraphs") << QByteArray("\\par");
        QTest::newRow("runs") << QByteArray("\\b a\\b0 b");
        QTest::newRow("formats") << QByteArray();
        QTest::newRow("cells") << QByteArray("\\cell");
        QTest::newRow("paragraphs of one cell") << QByteArray("\\intbl\\par");
        QTest::newRow("boxes") << QByteArray("\\box\\brdrs x\\par\\pard");
        QTest::newRow("tables") << QByteArray("\\cell\\row\\pard\\par");
        QTest::newRow("bullets") << QByteArray("{\\pntext 1.}a\\par");
        QTest::newRow("notes") << QByteArray("{\\footnote a}");
        QTest::newRow("groups") << QByteArray("{");
        QTest::newRow("bookmarks") << QByteArray("{\\*\\bkmkstart a}b");
    }
    void memory_stays_in_proportion_to_the_file()
    {
        QFETCH(QByteArray, piece);
        QByteArray body;
        if (piece.isEmpty()) {
            for (int i = 0; i < 100000; ++i)
                body += "\\fs" + QByteArray::number(i % 3000) + "\\cf" + QByteArray::number(i) + " a";
        } else {
            body = Repeated(piece, int(1600000 / piece.size()));
        }
        const qint64 before = MemoryInUse();
        const Reading read = ReadBytes("{\\rtf1 " + body + "}");
        const qint64 after = MemoryInUse();
        QVERIFY(!read.Text().isEmpty() || read.result.wasCut || read.result.wasDamaged);
        if (before == 0)
            QSKIP("nothing tells how much memory the process holds");
        const qint64 grown = after - before;
        QVERIFY2(grown < 64LL * 1024 * 1024 + 20 * body.size(), QByteArray::number(grown).constData());
    }

    void pictures_that_claim_to_be_huge()
    {
        QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452") +
                         QByteArray::fromHex("0000ea600000ea60") + QByteArray::fromHex("0802000000") +
                         QByteArray(4, '\0') + "IEND";
        const Reading read = ReadBody("{\\pict\\pngblip " + png.toHex() + "}{\\pict\\dibitmap0 " +
                                      Dib(60000, 60000, 24, {}, {}).toHex() + "}{\\pict\\dibitmap0 " +
                                      Dib(32000, 32000, 8, {}, {}, 1).toHex() + "}x\\par");
        QCOMPARE(read.result.pictures, 0);
        QCOMPARE(read.result.lostPictures, 3);
        QCOMPARE(read.Text(), u"x"_s);
    }

    void many_pictures_together_do_not_break_the_bounds()
    {
        // Each is a few bytes of file and four megabytes of pixels, and no two are equal.
        const QByteArray drawing =
            Wmf(100, 100, WmfRecord(0x041b, Bytes().Words({90, 90, 10, 10}).Data())).toHex();
        QByteArray body;
        for (int i = 0; i < 100; ++i)
            body += "{\\pict\\wmetafile8\\picwgoal" + QByteArray::number(30000 - i) + "\\pichgoal30000 " +
                    drawing + "}";
        const qint64 before = MemoryInUse();
        const Reading read = ReadBody(body);
        QVERIFY(read.result.pictures > 0);
        QVERIFY(read.result.lostPictures > 0);
        const qint64 grown = MemoryInUse() - before;
        QVERIFY2(grown < 64LL * 1024 * 1024 + 20LL * body.size(), QByteArray::number(grown).constData());
    }

    void hexadecimal_digits_that_break_off()
    {
        QCOMPARE(ReadBytes("{\\rtf1 a\\'").Text(), u"a"_s);
        QCOMPARE(ReadBytes("{\\rtf1 a\\'e").Text(), u"a"_s);
        QCOMPARE(ReadBody("a\\'zzb\\par").Text(), u"azzb"_s);
    }

    void numbers_at_their_limits_in_every_word_data()
    {
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<int>("shown"); // of the letters after the 39 words
        // A large number of substitutes for a character (uc) lets the character (u) swallow all that follows.
        QTest::newRow("largest") << QByteArray("2147483647") << 23;
        QTest::newRow("smallest") << QByteArray("-2147483648") << 39;
        QTest::newRow("beyond") << QByteArray("99999999999") << 23;
        QTest::newRow("minus one") << QByteArray("-1") << 39;
    }
    void numbers_at_their_limits_in_every_word()
    {
        QFETCH(QByteArray, number);
        QFETCH(int, shown);
        QByteArray body;
        for (const char* word : {"li",
                                 "ri",
                                 "fi",
                                 "sb",
                                 "sa",
                                 "sl",
                                 "tx",
                                 "fs",
                                 "f",
                                 "cf",
                                 "cb",
                                 "highlight",
                                 "up",
                                 "dn",
                                 "expnd",
                                 "expndtw",
                                 "charscalex",
                                 "chshdng",
                                 "shading",
                                 "cbpat",
                                 "ls",
                                 "ilvl",
                                 "uc",
                                 "u",
                                 "deftab",
                                 "deff",
                                 "ansicpg",
                                 "brdrt\\brdrs\\brdrw",
                                 "trgaph",
                                 "trleft",
                                 "clshdng",
                                 "clcbpat",
                                 "cellx",
                                 "itap",
                                 "pnstart",
                                 "levelnfc",
                                 "levelstartat",
                                 "s",
                                 "cs"})
            body += QByteArray("\\") + word + number + " x";
        const Reading read =
            ReadBody(body + "\\par{\\pict\\picw" + number + "\\pich" + number + "\\picwgoal" + number +
                     "\\picscalex" + number + "\\piccropl" + number + "\\wbmwidthbytes" + number +
                     "\\dibitmap " + FourColors().toHex() + "}\\par");
        QCOMPARE(read.Text().count(u'x'), shown);
        read.document->setTextWidth(400);
    }
};

TORVIK_TEST(HostileTest)
#include "hostile_test.moc"
