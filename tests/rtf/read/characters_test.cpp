#include "rtf/documents.h"
#include "support/test_class.h"

#include <QTextLayout>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class CharactersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fonts_come_from_the_table_without_their_character_set()
    {
        const Reading read = ReadBody("\\f1 sans \\f3 east\\par");
        QCOMPARE(read.Format("sans").fontFamilies().toStringList(), QStringList{"Arial"});
        QCOMPARE(read.Format("east").fontFamilies().toStringList(), QStringList{"Arial"});
        QCOMPARE(read.Format("sans").fontStyleHint(), QFont::SansSerif);
    }

    void a_font_table_without_groups_and_with_alternatives_is_read()
    {
        const Reading read =
            ReadBytes("{\\rtf1{\\fonttbl\\f0\\fmodern\\fprq1 Courier New;\\f1\\fswiss Helvetica;"
                      "{\\f2{\\*\\panose 020b}Wide{\\*\\falt Broad};}}\\f1 a\\f0 b\\f2 c\\par}");
        QCOMPARE(read.Text(), u"abc"_s);
        QCOMPARE(read.Format("a").fontFamilies().toStringList(), QStringList{"Helvetica"});
        QVERIFY(read.Format("b").fontFixedPitch());
        QCOMPARE(read.Format("c").fontFamilies().toStringList(), (QStringList{"Wide", "Broad"}));
    }

    void sizes_are_half_points_and_twelve_points_unless_said()
    {
        const Reading read = ReadBody("usual \\fs17 small\\par");
        QCOMPARE(read.Format("usual").fontPointSize(), 12.0);
        QCOMPARE(read.Format("small").fontPointSize(), 8.5);
    }

    void bold_italic_and_strike_go_on_and_off()
    {
        const Reading read =
            ReadBody("\\b bold\\b0\\i italic\\i0\\strike struck\\strike0 plain{\\b1 group}after\\par");
        QCOMPARE(read.Format("bold").fontWeight(), int(QFont::Bold));
        QVERIFY(read.Format("italic").fontItalic());
        QVERIFY(read.Format("struck").fontStrikeOut());
        QVERIFY(!read.Format("plain").fontItalic());
        QCOMPARE(read.Format("group").fontWeight(), int(QFont::Bold));
        QVERIFY(read.Format("after").fontWeight() != int(QFont::Bold));
    }

    void underlines_keep_their_kind_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("style");
        QTest::newRow("single") << QByteArray("ul") << int(QTextCharFormat::SingleUnderline);
        QTest::newRow("words") << QByteArray("ulw") << int(QTextCharFormat::SingleUnderline);
        QTest::newRow("double") << QByteArray("uldb") << int(QTextCharFormat::SingleUnderline);
        QTest::newRow("dotted") << QByteArray("uld") << int(QTextCharFormat::DotLine);
        QTest::newRow("dashed") << QByteArray("uldash") << int(QTextCharFormat::DashUnderline);
        QTest::newRow("dash dot") << QByteArray("uldashd") << int(QTextCharFormat::DashDotLine);
        QTest::newRow("dash dot dot") << QByteArray("uldashdd") << int(QTextCharFormat::DashDotDotLine);
        QTest::newRow("thick") << QByteArray("ulth") << int(QTextCharFormat::SingleUnderline);
        QTest::newRow("thick dotted") << QByteArray("ulthd") << int(QTextCharFormat::DotLine);
        QTest::newRow("thick dashed") << QByteArray("ulthdash") << int(QTextCharFormat::DashUnderline);
        QTest::newRow("thick dash dot") << QByteArray("ulthdashd") << int(QTextCharFormat::DashDotLine);
        QTest::newRow("thick dash dot dot")
            << QByteArray("ulthdashdd") << int(QTextCharFormat::DashDotDotLine);
        QTest::newRow("long dashes") << QByteArray("ulldash") << int(QTextCharFormat::DashUnderline);
        QTest::newRow("thick long dashes") << QByteArray("ulthldash") << int(QTextCharFormat::DashUnderline);
        QTest::newRow("wave") << QByteArray("ulwave") << int(QTextCharFormat::WaveUnderline);
        QTest::newRow("heavy wave") << QByteArray("ulhwave") << int(QTextCharFormat::WaveUnderline);
        QTest::newRow("double wave") << QByteArray("ululdbwave") << int(QTextCharFormat::WaveUnderline);
    }
    void underlines_keep_their_kind()
    {
        QFETCH(QByteArray, word);
        QFETCH(int, style);
        const Reading read = ReadBody("\\" + word + " under\\ulnone plain\\par");
        QCOMPARE(int(read.Format("under").underlineStyle()), style);
        QCOMPARE(read.Format("plain").underlineStyle(), QTextCharFormat::NoUnderline);
    }

    void an_underline_of_words_leaves_out_the_spaces()
    {
        const Reading read = ReadBody("\\ulw two words,\\tab three\\ulnone  four five\\par");
        QCOMPARE(read.Text(), u"two words,\tthree four five"_s);
        for (const char* underlined : {"two", "words", "words,", "three"})
            QVERIFY2(read.Format(underlined).fontUnderline(), underlined);
        for (const char* plain : {"two ", "words,\t", "three ", "four"})
            QVERIFY2(!read.Format(plain).fontUnderline(), plain);
    }

    void outlined_letters_have_their_colour_around_them_alone()
    {
        const Reading read = ReadBody("\\outl black \\cf1 red\\outl0  plain\\par");
        QCOMPARE(read.Format("black").textOutline().color(), QColor(Qt::black));
        QCOMPARE(read.Format("red").textOutline().color(), QColor(255, 0, 0));
        QCOMPARE(read.Format("red").foreground().color().alpha(), 0);
        QVERIFY(!read.Format("plain").hasProperty(QTextFormat::TextOutline));
        QCOMPARE(read.Format("plain").foreground().color(), QColor(255, 0, 0));
    }

    void the_line_around_outlined_letters_is_in_proportion_to_them()
    {
        const Reading read = ReadBody("{\\outl\\fs24 small}{\\outl\\fs96 large}\\par");
        const double small = read.Format("small").textOutline().widthF();
        QVERIFY(small > 0.3 && small < 0.8); // pixels, of letters of 16
        QCOMPARE(read.Format("large").textOutline().widthF(), small * 4);
    }

    void embossed_and_engraved_letters_have_nearly_the_colour_of_paper()
    {
        for (const QByteArray word : {"\\embo", "\\impr"}) {
            const Reading read = ReadBody(word + " relief {\\cf1 red}" + word + "0  plain\\par");
            QCOMPARE(read.Format("relief").foreground().color(), QColor(Qt::lightGray));
            QCOMPARE(read.Format("relief").textOutline().color(), QColor(Qt::darkGray));
            // A colour of their own stays.
            QCOMPARE(read.Format("red").foreground().color(), QColor(255, 0, 0));
            QVERIFY(!read.Format("red").hasProperty(QTextFormat::TextOutline));
            QCOMPARE(read.Format("plain").foreground().style(), Qt::NoBrush);
            QVERIFY(!read.Format("plain").hasProperty(ShadowProperty));
        }
    }

    void shadowed_letters_keep_their_colour()
    {
        const Reading read = ReadBody("\\shad shadowed\\shad0  plain\\par");
        QCOMPARE(read.Format("shadowed").foreground().style(), Qt::NoBrush);
        QVERIFY(read.Format("shadowed").hasProperty(ShadowProperty));
        QVERIFY(!read.Format("plain").hasProperty(ShadowProperty));
    }

    void letters_struck_out_twice_are_told_as_struck_out()
    {
        QVERIFY(ReadBody("\\striked1 twice\\striked0  plain\\par").Format("twice").fontStrikeOut());
        QVERIFY(!ReadBody("\\striked1 twice\\striked0  plain\\par").Format("plain").fontStrikeOut());
    }

    void letters_of_complex_scripts_have_looks_of_their_own()
    {
        const QByteArray hebrew = "\\u1513 ?\\u1500 ? \\u1493 ?";
        const Reading read =
            ReadBody("\\rtlch\\fcs1\\af1\\afs40\\ai\\ltrch\\fcs0\\f0\\fs20\\b car " + hebrew + " wheel\\par");
        const QTextCharFormat theirs = read.Format("של ו");
        QCOMPARE(theirs.fontFamilies().toStringList(), QStringList{"Arial"});
        QCOMPARE(theirs.fontPointSize(), 20.0);
        QVERIFY(theirs.fontItalic());
        QVERIFY(theirs.fontWeight() != int(QFont::Bold));
        for (const char* usual : {"car", "wheel"}) {
            QCOMPARE(read.Format(usual).fontPointSize(), 10.0);
            QCOMPARE(read.Format(usual).fontWeight(), int(QFont::Bold));
            QVERIFY(!read.Format(usual).fontItalic());
        }
    }

    void letters_of_complex_scripts_look_like_the_others_unless_told_data()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("nothing told") << QByteArray("\\rtlch");
        QTest::newRow("told of the signs of East Asia") << QByteArray("\\dbch\\af4\\afs40");
        QTest::newRow("told of the other direction") << QByteArray("\\ltrch\\af4\\afs40\\rtlch");
        QTest::newRow("taken back") << QByteArray("\\rtlch\\af4\\afs40\\plain");
    }
    void letters_of_complex_scripts_look_like_the_others_unless_told()
    {
        QFETCH(QByteArray, words);
        const Reading read = ReadBody(words + "\\f1\\fs30 \\u1513 ?\\par");
        QCOMPARE(read.Format("ש").fontFamilies().toStringList(), QStringList{"Arial"});
        QCOMPARE(read.Format("ש").fontPointSize(), 15.0);
    }

    void what_is_not_told_of_complex_scripts_is_as_for_the_others()
    {
        const Reading read = ReadBody("\\f1\\fs30\\rtlch\\ab \\u1513 ?\\par");
        QCOMPARE(read.Format("ש").fontFamilies().toStringList(), QStringList{"Arial"});
        QCOMPARE(read.Format("ש").fontPointSize(), 15.0);
        QCOMPARE(read.Format("ש").fontWeight(), int(QFont::Bold));
    }

    void an_underline_may_have_a_colour()
    {
        QCOMPARE(ReadBody("\\ul\\ulc3 x\\par").Format("x").underlineColor(), QColor(0, 0, 255));
    }

    void colours_come_from_the_table()
    {
        const Reading read =
            ReadBody("\\cf1 red \\cf0 none \\highlight4 marked \\highlight0\\chcbpat2 backed "
                     "\\chcbpat0\\chshdng5000 grey\\par");
        QCOMPARE(read.Format("red").foreground().color(), QColor(255, 0, 0));
        QCOMPARE(read.Format("none").foreground().style(), Qt::NoBrush);
        QCOMPARE(read.Format("marked").background().color(), QColor(255, 255, 0));
        QCOMPARE(read.Format("backed").background().color(), QColor(0, 128, 0));
        QCOMPARE(read.Format("grey").background().color(), QColor(127, 127, 127));
    }

    void a_table_that_begins_with_black_blackens_nothing()
    {
        const Reading read = ReadBytes(
            "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\froman Times New Roman;}}"
            "{\\colortbl\\red0\\green0\\blue0;\\red255\\green255\\blue0;}"
            "\\pard\\plain\\f0\\fs20 usual \\cf0 black {\\highlight1\\cb1 marked}{\\highlight0\\cb0 "
            "unmarked}\\ul lined\\ulnone\\par}");
        QCOMPARE(read.Format("usual").background().style(), Qt::NoBrush);
        QCOMPARE(read.Format("usual").foreground().style(), Qt::NoBrush);
        QCOMPARE(read.Format("black").foreground().color(), QColor(0, 0, 0));
        QCOMPARE(read.Format("marked").background().color(), QColor(255, 255, 0));
        QCOMPARE(read.Format("unmarked").background().style(), Qt::NoBrush);
        QVERIFY(!read.Format("lined").underlineColor().isValid());
        QCOMPARE(read.Block("usual").blockFormat().background().style(), Qt::NoBrush);
    }

    void text_without_a_chosen_colour_is_not_the_first_of_the_table()
    {
        const Reading read =
            ReadBytes("{\\rtf1{\\colortbl\\red255\\green0\\blue0;}usual \\cf0 red\\plain  again\\par}");
        QCOMPARE(read.Format("usual").foreground().style(), Qt::NoBrush);
        QCOMPARE(read.Format("red").foreground().color(), QColor(255, 0, 0));
        QCOMPARE(read.Format("again").foreground().style(), Qt::NoBrush);
    }

    void superscript_subscript_and_raised_text()
    {
        const Reading read = ReadBody("{\\super up}{\\sub down}{\\up6 high}{\\dn6 low}\\par");
        QCOMPARE(read.Format("up").verticalAlignment(), QTextCharFormat::AlignSuperScript);
        QCOMPARE(read.Format("down").verticalAlignment(), QTextCharFormat::AlignSubScript);
        QVERIFY(read.Format("high").baselineOffset() > 0);
        QVERIFY(read.Format("low").baselineOffset() < 0);
    }

    void capitals_spacing_and_width()
    {
        const Reading read =
            ReadBody("{\\caps all}{\\scaps small}{\\expndtw30 wide}{\\charscalex150 broad}\\par");
        QCOMPARE(read.Format("all").fontCapitalization(), QFont::AllUppercase);
        QCOMPARE(read.Format("small").fontCapitalization(), QFont::SmallCaps);
        QCOMPARE(read.Format("wide").fontLetterSpacing(), 2.0);
        QCOMPARE(read.Format("broad").fontStretch(), 150);
    }

    void spacing_may_be_told_in_quarters_of_a_point()
    {
        const Reading read = ReadBody("{\\expnd6 wide}{\\expnd-3 narrow}\\par");
        QCOMPARE(read.Format("wide").fontLetterSpacing(), 2.0);
        QCOMPARE(read.Format("narrow").fontLetterSpacing(), -1.0);
    }

    void small_capitals_are_narrower_than_capitals_and_no_small_letters()
    {
        const auto widthOf = [](const QByteArray& text) {
            const Reading read = ReadBody("{\\fs48" + text + "}\\par");
            (void)read.document->size(); // lays it out
            return read.document->firstBlock().layout()->lineAt(0).naturalTextWidth();
        };
        const double small = widthOf("\\scaps aerial");
        QVERIFY(small < widthOf("\\caps aerial") - 5);
        QVERIFY(small > widthOf(" aerial") + 5);
    }

    void hidden_text_is_not_shown()
    {
        QCOMPARE(ReadBody("seen{\\v hidden \\u8364? \\emdash}too\\par").Text(), u"seentoo"_s);
    }

    void plain_takes_everything_back()
    {
        const Reading read = ReadBody("\\b\\i\\fs40\\cf1\\f1 loud\\plain calm\\par");
        const QTextCharFormat calm = read.Format("calm");
        QVERIFY(calm.fontWeight() != int(QFont::Bold));
        QCOMPARE(calm.fontPointSize(), 12.0);
        QCOMPARE(calm.fontFamilies().toStringList(), QStringList{"Times New Roman"});
    }

    void bytes_follow_the_page_of_document_and_font()
    {
        QCOMPARE(ReadBody("caf\\'e9 {\\f3\\'cf\\'f0\\'e8} {\\f4\\'93\\'fa\\'96{}\\'7b}\\par").Text().left(9),
                 u"café При "_s);
        QCOMPARE(ReadBody("{\\f4\\'93\\'fa\\'96\\'7b}\\par").Text(), u"日本"_s);
        QCOMPARE(ReadBytes("{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0\\'e8\\par}").Text(), u"При"_s);
        QCOMPARE(ReadBytes("{\\rtf1\\mac \\'8e\\par}").Text(), u"é"_s);
        QCOMPARE(ReadBytes("{\\rtf1\\pc \\'82\\par}").Text(), u"é"_s);
        QCOMPARE(ReadBytes("{\\rtf1\\pca \\'9b\\par}").Text(), u"ø"_s);
    }

    void the_second_half_of_a_character_may_be_an_escape()
    {
        // The second byte of this character is the backslash itself.
        QCOMPARE(ReadBody("{\\f4\\'83\\\\}\\par").Text(), u"ソ"_s);
        QCOMPARE(ReadBody("{\\f4\\'82\\'a0A}\\par").Text(), u"あA"_s);
    }

    void the_letters_of_a_font_follow_from_its_name_data()
    {
        QTest::addColumn<QByteArray>("font");
        QTest::addColumn<QString>("shown");
        QTest::newRow("Baltic") << QByteArray("\\f1 Arial Baltic;") << u"ĄĮ"_s;
        QTest::newRow("Central European") << QByteArray("\\f1\\fcharset0 Arial CE;") << u"ŔÁ"_s;
        QTest::newRow("Cyrillic") << QByteArray("\\f1 Arial CYR;") << u"АБ"_s;
        QTest::newRow("Greek") << QByteArray("\\f1\\cpg1252 Arial Greek;") << u"ΐΑ"_s;
        QTest::newRow("any other name") << QByteArray("\\f1 Arial Gothic;") << u"ÀÁ"_s;
        QTest::newRow("a character set") << QByteArray("\\f1\\fcharset161 Arial;") << u"ΐΑ"_s;
    }
    void the_letters_of_a_font_follow_from_its_name()
    {
        QFETCH(QByteArray, font);
        QFETCH(QString, shown);
        QCOMPARE(ReadBytes("{\\rtf1\\ansi{\\fonttbl{" + font + "}}\\f1\\'c0\\'c1\\par}").Text(), shown);
    }

    void the_second_half_of_a_character_may_look_like_a_brace()
    {
        // Both halves as they are; of the third and fifth character the second half is 7B, 7D.
        QCOMPARE(ReadBody("{\\f4 \x83\x57\x83\x41\x83\x7b\x83\x41\x83\x7d}\\par").Text(), u"ジアボアマ"_s);
        QCOMPARE(ReadBody("{\\f4 \x83\x41\x95\x5c\x83\x41}x\\par").Text(), u"ア表アx"_s);
    }

    void a_brace_behind_a_letter_of_another_kind_is_a_brace()
    {
        const Reading read = ReadBody("{\\f4\\b caf\xe9} and\\par");
        QVERIFY(read.Text().endsWith(u" and"_s));
        QCOMPARE(read.Format(" and").fontWeight(), int(QFont::Normal));
        QCOMPARE(ReadBody("{\\f4 \x83\x41\x95\\\\\x83\x41}x\\par").Text(), u"ア表アx"_s);
    }

    void a_damaged_stand_in_is_passed_over() { QCOMPARE(ReadBody("x\\u345\\'3?x\\par").Text(), u"xřx"_s); }

    void unicode_takes_the_place_of_its_stand_in()
    {
        QCOMPARE(ReadBody("a\\u8364?b\\par").Text(), u"a€b"_s);
        QCOMPARE(ReadBody("a\\u8364\\'80b\\par").Text(), u"a€b"_s);
        QCOMPARE(ReadBody("\\uc2 a\\u8364\\'a1\\'a2b\\par").Text(), u"a€b"_s);
        QCOMPARE(ReadBody("\\uc0 a\\u8364 b\\par").Text(), u"a€b"_s);
        QCOMPARE(ReadBody("{\\uc0 a\\u8364}b\\u8364?c\\par").Text(), u"a€b€c"_s);
        QCOMPARE(ReadBody("a\\u-4064?\\par").Text(), u"a\uf020"_s);
    }

    void a_missing_stand_in_costs_no_paragraph()
    {
        QCOMPARE(ReadBody("a\\u8364\\par b\\par").Text(), u"a€\nb"_s);
    }

    void pairs_of_surrogates_are_one_character()
    {
        QCOMPARE(ReadBody("\\u-10179?\\u-8704?\\par").Text(), u"😀"_s);
        QCOMPARE(ReadBody("\\uc0\\u55357\\u56832 x\\par").Text(), u"😀x"_s);
        QCOMPARE(ReadBody("\\uc1\\u-10179?\\uc1\\u-8704?\\par").Text(), u"😀"_s);
        QCOMPARE(ReadBody("a\\u-10179?b\\u-8704?c\\par").Text(), u"a\ufffdb\ufffdc"_s);
    }

    void symbol_fonts_become_unicode()
    {
        const Reading read = ReadBody("{\\f2 abg}{\\f5\\'fc}\\par");
        QCOMPARE(read.Text(), u"αβγ✓"_s);
        QVERIFY(read.Format("α").fontFamilies().toStringList().isEmpty());
    }

    void named_characters_are_shown()
    {
        QCOMPARE(ReadBody("\\lquote a\\rquote\\ldblquote b\\rdblquote\\endash\\emdash\\bullet\\par").Text(),
                 u"‘a’“b”–—•"_s);
        const Reading read = ReadBody("a\\~b\\-c\\_d\\{e\\}\\\\\\tab f\\line g\\par");
        QCOMPARE(read.document->firstBlock().text(), u"a\u00a0b\u00adc\u2011d{e}\\\tf\u2028g"_s);
    }

    void characters_of_the_documents_own_structure_do_no_harm()
    {
        const Reading read = ReadBody("a\\u-560?b\\u-559?c\\u-4?d\\u8233?e\\u0?f\\par");
        QCOMPARE(read.document->blockCount(), 1);
        QCOMPARE(read.document->firstBlock().text(),
                 u"a\ufdd0b"_s.left(1) + u"\ufffdb\ufffdc\ufffdd\u2028e\ufffdf"_s);
    }

    void escaped_line_ends_stay_in_their_paragraph()
    {
        const Reading read = ReadBody("a\\'0db\\'0ac\\'00d\\par");
        QCOMPARE(read.document->blockCount(), 1);
        QCOMPARE(read.document->firstBlock().text(), u"a\u2028b\u2028c\ufffdd"_s);
    }

    void runs_that_look_the_same_are_one()
    {
        const Reading read = ReadBody("one \\b0 two {\\i0 three}\\lang1033  four\\par");
        int fragments = 0;
        for (auto it = read.document->firstBlock().begin(); !it.atEnd(); ++it)
            ++fragments;
        QCOMPARE(fragments, 1);
    }
};

TORVIK_TEST(CharactersTest)
#include "characters_test.moc"
