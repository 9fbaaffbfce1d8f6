#include "rtf/documents.h"
#include "rtf/read/style_sheet.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class StyleSheetTest : public QObject {
    Q_OBJECT

    static Reading ReadStyled(const QByteArray& body)
    {
        return ReadBody(
            "{\\stylesheet{\\f0\\fs20 Normal;}"
            "{\\s1\\qc\\sb240\\b\\fs40{\\*\\keycode \\shift f}\\cf1\\sbasedon0\\snext0 heading 1;}"
            "{\\s2\\li720\\i quotation;}{\\*\\cs5\\additive\\i\\cf3 Emphasis;}{\\*\\ds1\\strike "
            "section;}}\\pard " +
            body);
    }

private Q_SLOTS:
    void a_paragraph_that_only_names_its_style_looks_like_it()
    {
        const Reading read = ReadStyled("\\s1 title {\\i slanted}\\par");
        QCOMPARE(read.Text(), u"title slanted"_s);
        QCOMPARE(read.Format("title").fontWeight(), int(QFont::Bold));
        QCOMPARE(read.Format("title").fontPointSize(), 20.0);
        QCOMPARE(read.Format("title").foreground().color(), QColor(255, 0, 0));
        QVERIFY(!read.Format("title").fontStrikeOut());
        QCOMPARE(read.Block("title").blockFormat().alignment(), Qt::AlignHCenter);
        QCOMPARE(read.Block("title").blockFormat().topMargin(), 16.0);
        QCOMPARE(read.Format("slanted").fontWeight(), int(QFont::Bold));
        QVERIFY(read.Format("slanted").fontItalic());
    }

    void a_writer_that_spells_the_looks_out_means_what_it_says()
    {
        const Reading left =
            ReadStyled("\\plain\\s1\\outlinelevel0\\sa60\\f1 title\\par{\\cs5\\b strong}\\par");
        QVERIFY(left.Format("title").fontWeight() != int(QFont::Bold));
        QCOMPARE(left.Block("title").blockFormat().topMargin(), 0.0);
        QVERIFY(!left.Format("strong").fontItalic());
        const Reading read = ReadStyled("\\plain\\s1\\qr\\b0\\fs30 title\\par");
        QVERIFY(read.Format("title").fontWeight() != int(QFont::Bold));
        QCOMPARE(read.Format("title").fontPointSize(), 15.0);
        QCOMPARE(read.Block("title").blockFormat().alignment(), Qt::AlignRight | Qt::AlignAbsolute);
    }

    void the_looks_of_a_style_end_with_its_paragraphs()
    {
        const Reading read =
            ReadStyled("\\fs30\\s1 one\\par two\\par\\pard body\\par\\s2 three\\par\\s1 four\\par"
                       "\\pard\\plain end\\par");
        QCOMPARE(read.Format("two").fontPointSize(), 20.0);
        QCOMPARE(read.Format("body").fontPointSize(), 15.0);
        QVERIFY(read.Format("body").fontWeight() != int(QFont::Bold));
        QCOMPARE(read.Block("body").blockFormat().alignment(), Qt::AlignLeft);
        QVERIFY(read.Format("three").fontItalic());
        QCOMPARE(read.Block("three").blockFormat().leftMargin(), 48.0);
        QVERIFY(!read.Format("four").fontItalic());
        QCOMPARE(read.Format("four").fontWeight(), int(QFont::Bold));
        QCOMPARE(read.Format("end").fontPointSize(), 12.0);
    }

    void a_style_of_characters_holds_within_its_group()
    {
        const Reading read = ReadStyled("\\b before {\\cs5 stressed} after\\par");
        QVERIFY(read.Format("stressed").fontItalic());
        QCOMPARE(read.Format("stressed").fontWeight(), int(QFont::Bold));
        QCOMPARE(read.Format("stressed").foreground().color(), QColor(0, 0, 255));
        QVERIFY(!read.Format("after").fontItalic());
    }

    void kinds_of_styles_are_not_mixed_up_and_unknown_ones_say_nothing()
    {
        const Reading read = ReadStyled("\\s5 first\\par\\s77 second\\par{\\cs1 third}\\par");
        for (const char* text : {"first", "second", "third"}) {
            QVERIFY(!read.Format(QLatin1String(text)).fontItalic());
            QCOMPARE(read.Format(QLatin1String(text)).fontPointSize(), 12.0);
        }
    }

    void a_style_that_names_itself_or_takes_all_back_does_no_harm()
    {
        const Reading read = ReadBody("{\\stylesheet{\\s1\\s2\\b\\plain\\pard\\cs2 "
                                      "odd;}{\\s2\\s2\\cs2\\s2\\i odd;}}\\pard\\fs30\\s2 text\\par");
        QCOMPARE(read.Text(), u"text"_s);
        QCOMPARE(read.Format("text").fontPointSize(), 15.0);
    }

    void an_entry_takes_looks_alone()
    {
        StyleSheet sheet;
        sheet.BeginEntry();
        QVERIFY(sheet.Take("s", {true, 3}));
        QVERIFY(sheet.Take("b", {}));
        for (const char* word : {"par", "cell", "trowd", "plain", "pard", "ls", "pict", "snext"})
            QVERIFY2(!sheet.Take(word, {}), word);
        sheet.EndEntry();
        QCOMPARE(sheet.OfParagraph(3)->size(), std::size_t(1));
        QVERIFY(sheet.OfCharacter(3) == nullptr);
    }

    void a_style_has_the_looks_of_the_one_it_is_based_on()
    {
        const Reading read =
            ReadBody("{\\stylesheet{\\fs30\\snext0 Normal;}{\\s1\\b\\qc\\sbasedon0\\snext0 head;}"
                     "{\\s2\\i\\b0\\sbasedon1 sub;}{\\s3\\ul\\sbasedon222 alone;}{\\s4\\sbasedon5\\i a;}"
                     "{\\s5\\sbasedon4\\ul b;}}\\pard\\plain\\s2 two\\par\\pard\\plain\\s3 three\\par"
                     "\\pard\\plain\\s5 ring\\par\\pard\\plain text\\par");
        QCOMPARE(read.Format("two").fontPointSize(), 15.0);
        QVERIFY(read.Format("two").fontItalic());
        QCOMPARE(read.Format("two").fontWeight(), int(QFont::Normal));
        QCOMPARE(read.Block(u"two"_s).blockFormat().alignment(), Qt::AlignHCenter);
        QCOMPARE(read.Format("three").fontPointSize(), 12.0);
        QVERIFY(read.Format("ring").fontItalic() && read.Format("ring").fontUnderline());
        QCOMPARE(read.Format("text").fontPointSize(), 12.0);
    }
};

TORVIK_TEST(StyleSheetTest)
#include "style_sheet_test.moc"
