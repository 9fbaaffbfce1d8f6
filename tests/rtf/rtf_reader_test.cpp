#include "documents.h"
#include "support/test_class.h"

#include <QSemaphore>
#include <QUrl>

#include <thread>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class RtfReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rich_text_is_known_by_its_start()
    {
        QVERIFY(LooksLikeRtf("{\\rtf1 x}"));
        QVERIFY(LooksLikeRtf("\xef\xbb\xbf \r\n{\\rtf}"));
        QVERIFY(!LooksLikeRtf("{\\rt"));
        QVERIFY(!LooksLikeRtf("x {\\rtf}, the first word of such a file"));
        QVERIFY(!LooksLikeRtf("{\\rtfm1 x}"));
        QVERIFY(!LooksLikeRtf({}));
    }

    void other_text_is_shown_as_it_is()
    {
        const Reading read = ReadBytes("Caf\xc3\xa9\r\nsecond\tline <b>&amp;");
        QVERIFY(!read.result.wasRtf);
        QCOMPARE(read.Text(), u"Café\nsecond\tline <b>&amp;"_s);
        QCOMPARE(read.result.paragraphs, 2);
    }

    void every_kind_of_line_end_is_one()
    {
        const QByteArray bytes = QByteArray("a\rb\r\nc\nd\n\re\r\r\nf\x01g\x00h", 19) + "\xe2\x80\xa9i";
        QCOMPARE(ReadBytes(bytes).Text(), u"a\nb\nc\nd\n\ne\n\nfgh\ni"_s);
    }

    void text_that_is_not_unicode_is_western() { QCOMPARE(ReadBytes("Caf\xe9 \x80").Text(), u"Café €"_s); }

    void text_with_a_byte_order_mark()
    {
        QCOMPARE(ReadBytes(QByteArray("\xff\xfe"
                                      "a\0b\0",
                                      6))
                     .Text(),
                 u"ab"_s);
    }

    void an_empty_file_is_told()
    {
        const Reading read = ReadBytes({});
        QVERIFY(read.result.wasEmpty);
        QVERIFY(!read.result.wasRtf);
        QVERIFY(!ReadBytes("x").result.wasEmpty);
    }

    void former_contents_go()
    {
        QTextDocument document;
        ReadRichText(Wrapped("{\\pict\\dibitmap0 00}old\\par"), document);
        ReadRichText(Wrapped("new\\par"), document);
        QCOMPARE(document.toPlainText(), u"new"_s);
    }

    void plain_text_of_a_document()
    {
        QCOMPARE(PlainText(Wrapped("one \\b two\\par three\\par")), u"one two\nthree"_s);
    }

    void text_that_is_asked_to_stop_ends_where_it_was()
    {
        constexpr qsizetype longerThanAnybodyWaits = 20'000'000;
        for (const QByteArray& filling : {QByteArray("{\\b }"), QByteArray("\r\n")}) {
            const bool isRichText = filling.startsWith('{');
            QByteArray bytes =
                (isRichText ? "{\\rtf1 first" : "first") + filling.repeated(longerThanAnybodyWaits);
            bytes += isRichText ? " last}" : "last";
            std::stop_source stop;
            QSemaphore begun;
            QString text;
            std::thread reader([&] {
                begun.release();
                text = PlainText(bytes, stop.get_token());
            });
            begun.acquire();
            stop.request_stop();
            reader.join();
            QVERIFY(!text.contains(u"last"));
        }
        std::stop_source stop;
        QCOMPARE(PlainText(Wrapped("all"), stop.get_token()), u"all"_s);
        stop.request_stop();
        QCOMPARE(PlainText(Wrapped("all"), stop.get_token()), QString());
    }

    void the_result_tells_what_was_read()
    {
        const ReadResult result =
            ReadBody("a\\par\\trowd\\cellx1000\\intbl c\\cell\\row\\pard b\\par").result;
        QVERIFY(result.wasRtf);
        QVERIFY(!result.wasDamaged);
        QVERIFY(!result.wasCut);
        QCOMPARE(result.tables, 1);
        QCOMPARE(result.paragraphs, 3);
    }

    void rubbish_before_the_document_is_passed_over_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("lines of a letter")
            << QByteArray("From: me\r\n\r\n{\\rtf1\\ansi one\\par}") << u"one"_s;
        QTest::newRow("the header of another system")
            << QByteArray(128, '\0') + "{\\rtf1\\ansi one\\par}" << u"one"_s;
        QTest::newRow("no brace") << QByteArray("\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}one\\par two\\par}")
                                  << u"one\ntwo"_s;
        QTest::newRow("no brace, and none at the end") << QByteArray("\r\n\\rtf1\\ansi one\\par") << u"one"_s;
        QTest::newRow("more braces closed than open")
            << QByteArray("{\\rtf1\\ansi\\b one}} two\\par three\\par}") << u"one two\nthree"_s;
        QTest::newRow("another document behind it")
            << QByteArray("{\\rtf1 one\\par}{\\rtf1 two\\par}") << u"one"_s;
        QTest::newRow("stored as Unicode") << QByteArray("\xff\xfe{\0\\\0r\0t\0"
                                                         "f\0"
                                                         "1\0 \0\x16\x04\xe9\0}\0",
                                                         22)
                                           << u"Жé"_s;
    }
    void rubbish_before_the_document_is_passed_over()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QVERIFY(LooksLikeRtf(bytes));
        QCOMPARE(ReadBytes(bytes).Text(), text);
    }

    void braces_that_close_nothing_do_not_take_long()
    {
        QCOMPARE(ReadBytes("{\\rtf1 a" + QByteArray("}").repeated(500000) + "\\par").Text(), u"a"_s);
        const QByteArray often = QByteArray("}\\par ").repeated(100000);
        QVERIFY(ReadBytes("{\\rtf1 a" + often).result.wasDamaged);
    }

    void the_code_page_may_change_in_the_text()
    {
        QCOMPARE(
            ReadBytes(
                "{\\rtf1\\ansi\\ansicpg1252 \\'e9\\ansicpg1251 \\'e9\\mac \\'8e\\pc \\'82\\ansi \\'e9\\par}")
                .Text(),
            u"éйééé"_s);
    }

    void a_document_that_ends_early_shows_what_is_there()
    {
        const Reading read = ReadBytes("{\\rtf1{\\fonttbl{\\f0 Arial;}}one\\par {\\b two");
        QVERIFY(read.result.wasDamaged);
        QCOMPARE(read.Text(), u"one\ntwo"_s);
        QCOMPARE(read.Format("two").fontWeight(), int(QFont::Bold));
    }

    void what_follows_the_document_is_not_of_it()
    {
        QCOMPARE(ReadBytes(QByteArray("{\\rtf1 a\\par}\r\n\0 rubbish", 24)).Text(), u"a"_s);
    }

    void a_document_never_asks_for_other_files()
    {
        const Reading read =
            ReadBody("{\\field{\\*\\fldinst INCLUDEPICTURE \"/etc/hostname\"}{\\fldrslt x}}\\par");
        QCOMPARE(read.Text(), u"x"_s);
        QVERIFY(read.document->baseUrl().isEmpty());
    }
};

TORVIK_TEST(RtfReaderTest)
#include "rtf_reader_test.moc"
