#include "rtf/documents.h"
#include "support/test_class.h"

#include <QDateTime>
#include <QLocale>

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

    void fields_without_a_result_show_what_can_be_told_data()
    {
        QTest::addColumn<QByteArray>("instruction");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a choice") << QByteArray("IF 3 > 10 \"more\" \"less\"") << u"less"_s;
        QTest::newRow("a choice between texts")
            << QByteArray("IF Red = \"red\" \"the same\" other") << u"the same"_s;
        const auto choice = [](const char* condition, const char* shown) {
            QTest::addRow("the choice %s", condition)
                << "IF " + QByteArray(condition) + " yes no" << QString::fromLatin1(shown);
        };
        choice("3 <> 4", "yes");
        choice("3 <> 3.0", "no");
        choice("9 < 10", "yes");
        choice("10 < 10", "no");
        choice("10 <= 10", "yes");
        choice("11 <= 10", "no");
        choice("10 >= 10", "yes");
        choice("9 >= 10", "no");
        choice("apple < Banana", "yes");
        choice("\"9 cars\" < 10", "no"); // no number, so letters are compared
        QTest::newRow("a choice without its texts") << QByteArray("IF 3 = 3") << QString();
        QTest::newRow("a quoted text") << QByteArray("QUOTE \"as it stands\"") << u"as it stands"_s;
        QTest::newRow("a quoted text of two paragraphs")
            << QByteArray("QUOTE \"first\\par second\"") << u"first\nsecond"_s;
        QTest::newRow("a field of two paragraphs in a quoted text")
            << QByteArray("QUOTE \"a {\\field{\\*\\fldinst QUOTE \"b\\par c\"}{\\fldrslt b\\par c}} d\"")
            << u"a b\nc d"_s;
        QTest::newRow("a field of two paragraphs as a piece of its own")
            << QByteArray("IF {\\field{\\*\\fldinst X}{\\fldrslt b\\par c}} = \"b\\par c\" \"yes\" \"no\"")
            << u"yes"_s;
        const QByteArray shape = "{\\shp{\\*\\shpinst\\shpleft300\\shpright900{\\sp{\\sn fLine}{\\sv "
                                 "0}}{\\shptxt\\pard\\plain in a box}}{\\shprslt older\\par}}";
        QTest::newRow("a shape in a quoted text")
            << QByteArray("QUOTE \"a" + shape + "\"") << u"a\nin a box"_s;
        QTest::newRow("a shape at the start of a quoted text")
            << QByteArray("QUOTE \"" + shape + "\"") << u"in a box"_s;
        QTest::newRow("an older shape in a quoted text")
            << QByteArray("QUOTE \"a{\\*\\do\\dobxpage{\\dptxbx{\\dptxbxtext words\\par b}\\dpx0\\dpy0}}\"")
            << u"a\nwords\nb"_s;
        QTest::newRow("a shape in a field in a quoted text")
            << QByteArray("QUOTE \"{\\field{\\*\\fldinst X}{\\fldrslt a" + shape + "}} c\"")
            << u"a\nin a box c"_s;
        QTest::newRow("a quoted text in a choice")
            << QByteArray("IF 1 = 1 \"{\\field{\\*\\fldinst QUOTE inner words}}\" \"no\"")
            << u"inner words"_s;
        QTest::newRow("a nested field without quotes around it")
            << QByteArray("IF {\\field{\\*\\fldinst QUOTE \"two words\"}{\\fldrslt two words}} = \"two "
                          "words\" yes no")
            << u"yes"_s;
        QTest::newRow("a formula") << QByteArray("EQ \\\\f(1,2)") << u"1/2"_s;
        QTest::newRow("a word with its reading")
            << QByteArray(
                   "EQ \\\\* jc2 \\\\* \"Font:MS Mincho\" \\\\* hps10 \\\\o\\\\ad(\\\\s\\\\up 9(\\u12363 "
                   "?\\u12435 ?),\\u28450 ?)")
            << u"漢(かん)"_s;
        QTest::newRow("a field of a mail merge") << QByteArray("MERGEFIELD Name") << u"«Name»"_s;
        QTest::newRow("a button whose text is a field")
            << QByteArray("GOTOBUTTON _Toc1{\\field{\\*\\fldinst PAGEREF _Toc1}{\\fldrslt 3}}") << u"3"_s;
        QTest::newRow("a link that is empty")
            << QByteArray("HYPERLINK \"http://www.torvik.example/\"") << QString();
        QTest::newRow("the title") << QByteArray("TITLE") << u"The Car"_s;
        QTest::newRow("a property") << QByteArray("DOCPROPERTY title") << u"The Car"_s;
        QTest::newRow("a property in other letters") << QByteArray("DOCPROPERTY \"AUTHOR\"") << u"A"_s;
        QTest::newRow("words as a property") << QByteArray("DOCPROPERTY Words") << u"310"_s;
        QTest::newRow("a property that is not told") << QByteArray("DOCPROPERTY Subject") << QString();
        QTest::newRow("a property that nobody knows") << QByteArray("DOCPROPERTY Title2") << QString();
        QTest::newRow("a property without a name") << QByteArray("DOCPROPERTY") << QString();
        QTest::newRow("words") << QByteArray("NUMWORDS") << u"310"_s;
        QTest::newRow("characters") << QByteArray("NUMCHARS \\\\* roman") << u"mdcclxxvi"_s;
        QTest::newRow("characters by thousands") << QByteArray("NUMCHARS \\\\# #,##0") << u"1,776"_s;
        QTest::newRow("the day of making")
            << QByteArray("CREATEDATE \\\\@ \"d MMMM yyyy, H:mm\"") << u"9 March 1999, 14:05"_s;
        QTest::newRow("the time of making") << QByteArray("CREATEDATE") << u"3/9/1999 2:05 pm"_s;
        QTest::newRow("the time of making as a property")
            << QByteArray("DOCPROPERTY CreateTime \\\\@ \"yyyy\"") << u"1999"_s;
        QTest::newRow("the day of the last change")
            << QByteArray("SAVEDATE \\\\@ \"yyyy-MM-dd HH:mm:ss\"") << u"2000-02-29 00:00:07"_s;
        QTest::newRow("the day of printing where it is not told")
            << QByteArray("PRINTDATE \\\\@ \"yyyy\"") << QString();
        QTest::newRow("pages") << QByteArray("NUMPAGES") << u"12"_s;
        QTest::newRow("a page in roman numbers") << QByteArray("PAGE \\\\* roman") << u"i"_s;
        QTest::newRow("a number in small letters")
            << QByteArray("SEQ a \\\\r 28 \\\\* alphabetic") << u"bb"_s;
        QTest::newRow("a number in capitals") << QByteArray("SEQ a \\\\r 3 \\\\* ALPHABETIC") << u"C"_s;
        QTest::newRow("an ordinal number") << QByteArray("SEQ a \\\\r 22 \\\\* ordinal") << u"22nd"_s;
        QTest::newRow("a number in words") << QByteArray("SEQ a \\\\r 22 \\\\* CardText") << u"twenty-two"_s;
        QTest::newRow("an ordinal number in words")
            << QByteArray("SEQ a \\\\r 22 \\\\* ordtext") << u"twenty-second"_s;
        QTest::newRow("a button") << QByteArray("MACROBUTTON Open Click here") << u"Click here"_s;
        QTest::newRow("a text to fill in")
            << QByteArray("FORMTEXT {\\*\\formfield{\\fftype0{\\*\\ffname T}{\\*\\ffdeftext told}}}")
            << u"told"_s;
        QTest::newRow("a box that is ticked")
            << QByteArray("FORMCHECKBOX {\\*\\formfield{\\fftype1\\ffres1\\ffdefres0}}") << u"☒"_s;
        QTest::newRow("a box as proposed")
            << QByteArray("FORMCHECKBOX {\\*\\formfield{\\fftype1\\ffres25\\ffdefres0}}") << u"☐"_s;
        QTest::newRow("a choice of a form")
            << QByteArray("FORMDROPDOWN {\\*\\formfield{\\fftype2\\ffres1{\\*\\ffl red}{\\*\\ffl blue}}}")
            << u"blue"_s;
        QTest::newRow("nothing that is known") << QByteArray("RD other.doc") << QString();
    }
    void fields_without_a_result_show_what_can_be_told()
    {
        QFETCH(QByteArray, instruction);
        QFETCH(QString, shown);
        const QString text =
            ReadBody("{\\info{\\title The Car}{\\author A}{\\creatim\\yr1999\\mo3\\dy9\\hr14\\min5}"
                     "{\\revtim\\yr2000\\mo2\\dy29\\sec7}{\\buptim\\yr1998\\mo1\\dy1}"
                     "\\nofpages12\\nofwords310\\nofchars1776}a{\\field{\\*\\fldinst " +
                     instruction + "}{\\fldrslt }}b\\par")
                .Text();
        QCOMPARE(text, u'a' + shown + u'b');
    }

    void a_time_that_cannot_be_is_not_shown_data()
    {
        QTest::addColumn<QByteArray>("time");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a time") << QByteArray("\\yr2001\\mo12\\dy31\\hr23\\min59") << u"2001"_s;
        QTest::newRow("a day alone") << QByteArray("\\yr2001\\mo12\\dy31") << u"2001"_s;
        QTest::newRow("the first year") << QByteArray("\\yr1\\mo1\\dy1") << u"1"_s;
        QTest::newRow("nothing told") << QByteArray() << QString();
        QTest::newRow("noughts") << QByteArray("\\yr0\\mo0\\dy0\\hr0\\min0") << QString();
        QTest::newRow("a year 0") << QByteArray("\\yr0\\mo1\\dy1") << QString();
        QTest::newRow("a year before the first") << QByteArray("\\yr-5\\mo1\\dy1") << QString();
        QTest::newRow("a year too large") << QByteArray("\\yr10000\\mo1\\dy1") << QString();
        QTest::newRow("the largest numbers")
            << QByteArray("\\yr2147483647\\mo2147483647\\dy2147483647\\hr2147483647") << QString();
        QTest::newRow("a month 13") << QByteArray("\\yr2001\\mo13\\dy1") << QString();
        QTest::newRow("a day that the month has not") << QByteArray("\\yr2001\\mo2\\dy29") << QString();
        QTest::newRow("an hour 24") << QByteArray("\\yr2001\\mo1\\dy1\\hr24") << QString();
        QTest::newRow("a minute 60") << QByteArray("\\yr2001\\mo1\\dy1\\min60") << QString();
        QTest::newRow("words without numbers") << QByteArray("\\yr\\mo\\dy") << QString();
    }
    void a_time_that_cannot_be_is_not_shown()
    {
        QFETCH(QByteArray, time);
        QFETCH(QString, shown);
        const QByteArray field = "a{\\field{\\*\\fldinst SAVEDATE \\\\@ \"yyyy\"}}b\\par";
        QCOMPARE(ReadBody("{\\info{\\revtim" + time + "}}" + field).Text(), u'a' + shown + u'b');
    }

    void counts_that_are_not_told_are_not_shown()
    {
        const QByteArray field = "a{\\field{\\*\\fldinst NUMWORDS}}{\\field{\\*\\fldinst NUMCHARS}}b\\par";
        QCOMPARE(ReadBody(field).Text(), u"ab"_s);
        QCOMPARE(ReadBody("{\\info\\nofwords0\\nofchars-3}" + field).Text(), u"a0b"_s);
    }

    void a_link_without_a_text_shows_its_address()
    {
        const QByteArray link = "a{\\field{\\*\\fldinst HYPERLINK \"http://www.torvik.example/\"}}b\\par";
        QCOMPARE(ReadBody(link).Text(), u"ahttp://www.torvik.example/b"_s);
    }

    void a_stored_result_comes_first()
    {
        QCOMPARE(ReadBody("{\\field{\\*\\fldinst QUOTE new}{\\fldrslt old\\par}}\\par").Text(), u"old\n"_s);
        QCOMPARE(ReadBody("{\\field{\\*\\fldinst QUOTE new}{\\fldrslt old}}\\par").Text(), u"old"_s);
        const QByteArray shape = "{\\shp{\\*\\shpinst{\\shptxt box\\par}}}";
        QCOMPARE(ReadBody("{\\field{\\*\\fldinst QUOTE \"a" + shape + "\"}{\\fldrslt a" + shape + "}}\\par")
                     .Text()
                     .count(u"box"_s),
                 1);
    }

    void sequences_count_each_for_itself()
    {
        const QByteArray figure = "{\\field{\\*\\fldinst SEQ Figure}}";
        const QByteArray table = "{\\field{\\*\\fldinst SEQ Table \\\\* ROMAN}}";
        QCOMPARE(ReadBody(figure + table + figure +
                          "{\\field{\\*\\fldinst SEQ Figure \\\\c}}{\\field{\\*\\fldinst SEQ "
                          "Figure \\\\r 7}}" +
                          figure + table + "\\par")
                     .Text(),
                 u"1I2278II"_s);
    }

    void a_page_is_counted_from_the_breaks_that_are_told()
    {
        QCOMPARE(ReadBody("a\\par\\page b\\par\\page{\\field{\\*\\fldinst PAGE}} \\chpgn\\par").Text(),
                 u"a\nb\n3 3"_s);
    }

    void a_date_without_a_result_is_todays()
    {
        const QByteArray field = "{\\field{\\*\\fldinst DATE \\\\@ \"yyyy-MM-dd\"}}\\par";
        const QString before = QDate::currentDate().toString(u"yyyy-MM-dd"_s);
        const QString shown = ReadBody(field).Text();
        const QString after = QDate::currentDate().toString(u"yyyy-MM-dd"_s);
        QVERIFY(shown == before || shown == after);
    }

    void dates_and_times_without_a_result_are_those_of_now_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("format");
        QTest::newRow("a date without a picture")
            << QByteArray("{\\field{\\*\\fldinst DATE}}") << u"M/d/yyyy"_s;
        QTest::newRow("a time without a picture")
            << QByteArray("{\\field{\\*\\fldinst TIME}}") << u"h:mm ap"_s;
        QTest::newRow("the sign of the date") << QByteArray("{\\chdate}") << u"M/d/yyyy"_s;
        QTest::newRow("the sign of the long date") << QByteArray("{\\chdpl}") << u"dddd, MMMM d, yyyy"_s;
        QTest::newRow("the sign of the short date") << QByteArray("{\\chdpa}") << u"ddd, MMM d, yyyy"_s;
        QTest::newRow("the sign of the time") << QByteArray("{\\chtime}") << u"h:mm ap"_s;
    }
    void dates_and_times_without_a_result_are_those_of_now()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, format);
        const QString before = QLocale::c().toString(QDateTime::currentDateTime(), format);
        const QString shown = ReadBody(body + "\\par").Text();
        const QString after = QLocale::c().toString(QDateTime::currentDateTime(), format);
        QVERIFY2(shown == before || shown == after, qPrintable(shown));
    }

    void footnotes_stand_below_everything()
    {
        const Reading read = ReadBody("one{\\super\\chftn{\\footnote\\pard{\\super\\chftn} first note}} "
                                      "two{\\chftn{\\footnote second {\\b\\chftn}\\par}}\\par three\\par");
        QCOMPARE(read.Text(), u"one1 two2\nthree\n1 first note\nsecond 2"_s);
        QCOMPARE(read.Format("one").fontWeight(), int(QFont::Normal));
    }

    void footnotes_without_a_mark_are_numbered()
    {
        const Reading read = ReadBody("one{\\footnote first\\par and more} two{\\footnote second} "
                                      "three{\\super\\chftn{\\footnote{\\super\\chftn} third}}\\par");
        QCOMPARE(read.Text(), u"one1 two2 three3\n1 first\nand more\n2 second\n3 third"_s);
        QCOMPARE(read.Format("1").verticalAlignment(), QTextCharFormat::AlignSuperScript);
        QCOMPARE(read.Format(" two").verticalAlignment(), QTextCharFormat::AlignNormal);
    }

    void raised_numbers_of_footnotes_are_small()
    {
        const Reading read = ReadBody("one{\\up6\\chftn{\\footnote note}}{\\up6 raised}\\par");
        QCOMPARE(read.Format("1").verticalAlignment(), QTextCharFormat::AlignSuperScript);
        QCOMPARE(read.Format("1").baselineOffset(), 0.0);
        QCOMPARE(read.Format("raised").verticalAlignment(), QTextCharFormat::AlignNormal);
        QCOMPARE(read.Format("raised").baselineOffset(), 25.0);
    }

    void footnotes_keep_a_mark_of_their_own()
    {
        QCOMPARE(ReadBody("one*{\\footnote * first} two{\\super a}{\\footnote a second}\\par").Text(),
                 u"one* twoa\n* first\na second"_s);
    }

    void footnotes_without_words_are_no_notes()
    {
        QCOMPARE(ReadBody("one{\\footnote } two{\\footnote second}\\par").Text(), u"one two1\n1 second"_s);
        QCOMPARE(ReadBody("one{\\v{\\footnote hidden}}\\par").Text(), u"one"_s);
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
