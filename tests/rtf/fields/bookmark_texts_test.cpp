#include "rtf/documents.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

/// Fields that repeat the text of a bookmark.
class BookmarkTextsTest : public QObject {
    Q_OBJECT

    static QByteArray Marked(const QByteArray& name, const QByteArray& text)
    {
        return "{\\*\\bkmkstart " + name + "}" + text + "{\\*\\bkmkend " + name + "}";
    }
    static QByteArray Field(const QByteArray& instruction)
    {
        return "{\\field{\\*\\fldinst " + instruction + "}}";
    }

private Q_SLOTS:
    void a_reference_repeats_the_text_of_its_bookmark_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("text");
        const QByteArray here = Marked("Here", "the {\\b big} wheel");
        QTest::newRow("in its paragraph")
            << "a " + here + " [" + Field("REF Here") + "]\\par" << u"a the big wheel [the big wheel]"_s;
        QTest::newRow("by the name alone")
            << here + " [" + Field("here") + "]\\par" << u"the big wheel [the big wheel]"_s;
        QTest::newRow("as a link") << here + " [" + Field("REF here \\\\h") + "]\\par"
                                   << u"the big wheel [the big wheel]"_s;
        QTest::newRow("a later paragraph")
            << here + "\\par[" + Field("REF HERE") + "]\\par" << u"the big wheel\n[the big wheel]"_s;
        QTest::newRow("over two paragraphs")
            << Marked("x", "one\\par two") + "\\par[" + Field("REF x") + "]\\par" << u"one\ntwo\n[one two]"_s;
        QTest::newRow("with a footnote inside")
            << Marked("x", "one{\\footnote note\\par more} two") + " [" + Field("REF x") + "]\\par"
            << u"one1 two [one1 two]\n1 note\nmore"_s;
        QTest::newRow("one bookmark in another")
            << Marked("x", "a " + Marked("y", "b") + " c") + " [" + Field("REF x") + Field("REF y") + "]\\par"
            << u"a b c [a b cb]"_s;
        QTest::newRow("within another field")
            << here + " " + Field("QUOTE \"so: " + Field("REF here") + "\"") + "\\par"
            << u"the big wheel so: the big wheel"_s;
        QTest::newRow("a stored result holds")
            << here + " {\\field{\\*\\fldinst REF here}{\\fldrslt stored}}\\par" << u"the big wheel stored"_s;
        QTest::newRow("a bookmark that comes later")
            << "[" + Field("REF here") + "]" + here + "\\par" << u"[]the big wheel"_s;
        QTest::newRow("a bookmark that has not ended")
            << "{\\*\\bkmkstart x}a [" + Field("REF x") + "]{\\*\\bkmkend x}\\par" << u"a []"_s;
        QTest::newRow("the number of its paragraph")
            << here + " [" + Field("REF here \\\\r") + "]\\par" << u"the big wheel []"_s;
        QTest::newRow("its page") << here + " [" + Field("PAGEREF here") + "]\\par" << u"the big wheel []"_s;
        QTest::newRow("a name that nobody knows") << "[" + Field("REF none") + "]\\par" << u"[]"_s;
        QTest::newRow("hidden text") << Marked("x", "a{\\v b}c") + " [" + Field("REF x") + "]\\par"
                                     << u"ac [ac]"_s;
    }
    void a_reference_repeats_the_text_of_its_bookmark()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, text);
        QCOMPARE(ReadBody(body).Text(), text);
    }

    void calculations_of_fields()
    {
        QCOMPARE(ReadBody(Field("= 1 + 2 * 3") + "\\par").Text(), u"7"_s);
        QCOMPARE(ReadBody(Field("=2*(3+4) \\\\# \"0.00\"") + "\\par").Text(), u"14.00"_s);
        QCOMPARE(ReadBody(Field("= " + Field("SEQ a \\\\r 4") + " * 2") + "\\par").Text(), u"8"_s);
        QCOMPARE(ReadBody("[" + Field("=SUM(ABOVE)") + "]\\par").Text(), u"[]"_s);
    }

    void a_very_long_text_is_cut_short()
    {
        const QString text =
            ReadBody(Marked("x", QByteArray("word ").repeated(4000)) + "\\par[" + Field("REF x") + "]\\par")
                .Text();
        const QString repeated = text.section(u'[', 1);
        QVERIFY(repeated.startsWith(u"word word"_s));
        QVERIFY(repeated.endsWith(u"…]"_s));
        QCOMPARE(repeated.size(), 2002);
    }

    void a_text_that_fills_the_room_with_a_whole_paragraph_is_cut_short_after_it()
    {
        const QByteArray text = QByteArray("x").repeated(2000) + "\\par y\\par z";
        const QString repeated =
            ReadBody(Marked("x", text) + "\\par[" + Field("REF x") + "]\\par").Text().section(u'[', 1);
        QCOMPARE(repeated, QString(2000, u'x') + u" …]"_s);
    }

    void very_many_repetitions_come_to_an_end()
    {
        const QByteArray longText = Marked("x", QByteArray("word ").repeated(400));
        const Reading read =
            ReadBody(longText + "\\par " + Field("REF x").repeated(20'000) + "\\par end\\par");
        QVERIFY(read.Text().size() < 110'000);
        QVERIFY(read.Text().endsWith(u"end"_s));
    }

    void very_many_open_bookmarks_do_no_harm()
    {
        QByteArray body;
        for (int i = 0; i < 20'000; ++i)
            body += "{\\*\\bkmkstart b" + QByteArray::number(i) + "}word\\par ";
        for (int i = 0; i < 20'000; ++i)
            body += "{\\*\\bkmkend b" + QByteArray::number(i) + "}";
        const Reading read = ReadBody(body + "end " + Field("REF b19999") + "\\par");
        QVERIFY(read.Text().endsWith(u"end "_s));
    }
};

TORVIK_TEST(BookmarkTextsTest)
#include "bookmark_texts_test.moc"
