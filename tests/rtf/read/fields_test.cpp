#include "rtf/documents.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class FieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_link_has_its_text_and_its_target()
    {
        const Reading read = ReadBody("see {\\field{\\*\\fldinst{HYPERLINK \"http://www.torvik.example/\" "
                                      "}}{\\fldrslt{\\ul\\cf3 the club}}} now\\par");
        QCOMPARE(read.Text(), u"see the club now"_s);
        QCOMPARE(read.Format("club").anchorHref(), u"http://www.torvik.example/"_s);
        QVERIFY(!read.Format("now").isAnchor());
        QVERIFY(!read.Format("see").isAnchor());
    }

    void a_link_without_looks_of_its_own_is_underlined()
    {
        const Reading read =
            ReadBody("{\\field{\\*\\fldinst HYPERLINK \"mailto:a@b.example\"}{\\fldrslt write}}\\par");
        QVERIFY(read.Format("write").fontUnderline());
    }

    void links_elsewhere_are_plain_text()
    {
        const Reading read =
            ReadBody("{\\field{\\*\\fldinst HYPERLINK \"file:///c:/windows\"}{\\fldrslt files}}\\par");
        QCOMPARE(read.Text(), u"files"_s);
        QVERIFY(!read.Format("files").isAnchor());
    }

    void bookmarks_are_where_links_inside_lead()
    {
        const Reading read = ReadBody("{\\field{\\*\\fldinst HYPERLINK \\\\l \"w\"}{\\fldrslt "
                                      "go}}\\par{\\*\\bkmkstart w}wheels{\\*\\bkmkend w} more\\par");
        QCOMPARE(read.Format("go").anchorHref(), u"#w"_s);
        QCOMPARE(read.Format("wheels").anchorNames(), QStringList{"w"});
    }

    void results_of_other_fields_are_text()
    {
        QCOMPARE(ReadBody("page {\\field{\\*\\fldinst PAGE }{\\fldrslt 7}} of {\\field\\fldedit{\\*\\fldinst "
                          "{DATE \\\\@ \"d\"}}{\\fldrslt {1 May}}}\\par")
                     .Text(),
                 u"page 7 of 1 May"_s);
    }

    void a_symbol_field_without_a_result_is_its_character()
    {
        QCOMPARE(
            ReadBody(
                "a{\\field{\\*\\fldinst SYMBOL 183 \\\\f \"Symbol\" \\\\s 10}{\\fldrslt{\\f2\\fs20}}}b\\par")
                .Text(),
            u"a•b"_s);
    }

    void a_field_inside_an_instruction_stays_there()
    {
        QCOMPARE(ReadBody("a{\\field{\\*\\fldinst IF {\\field{\\*\\fldinst PAGE}{\\fldrslt 3}} = "
                          "3}{\\fldrslt yes}}b\\par")
                     .Text(),
                 u"ayesb"_s);
    }

    void footnotes_stand_below_everything()
    {
        const Reading read = ReadBody("one{\\super\\chftn{\\footnote\\pard{\\super\\chftn} first note}} "
                                      "two{\\chftn{\\footnote second {\\b\\chftn}\\par}}\\par three\\par");
        QCOMPARE(read.Text(), u"one1 two2\nthree\n1 first note\nsecond 2"_s);
        QCOMPARE(read.Format("one").fontWeight(), int(QFont::Normal));
    }

    void headers_footers_and_information_are_left_out()
    {
        QCOMPARE(ReadBody("{\\info{\\title T}{\\author A}}{\\header\\pard H\\par}{\\footerl "
                          "F\\par}{\\stylesheet{\\s1\\b heading 1;}}{\\*\\generator G;}text\\par")
                     .Text(),
                 u"text"_s);
    }

    void unknown_groups_are_skipped_only_when_marked_so()
    {
        QCOMPARE(ReadBody("{\\*\\unheardof{\\b deep} of}{\\unheardof shown}\\par").Text(), u"shown"_s);
    }

    void raw_bytes_in_skipped_groups_hide_braces()
    {
        QCOMPARE(ReadBody("{\\*\\unheardof\\bin3 }}}}shown\\par").Text(), u"shown"_s);
    }

    void of_two_forms_of_a_text_the_second_is_taken()
    {
        QCOMPARE(ReadBody("a{\\upr{old}{\\*\\ud{\\uc0 new\\u8364 }}}b\\par").Text(), u"anew€b"_s);
    }

    void text_in_drawn_shapes_is_shown()
    {
        QVERIFY(
            ReadBody("{\\shp{\\*\\shpinst{\\sp{\\sn fLine}{\\sv 0}}{\\shptxt in the box\\par}}}after\\par")
                .Text()
                .contains(u"in the box"_s));
    }
};

TORVIK_TEST(FieldsTest)
#include "fields_test.moc"
