#include "rtf/documents.h"
#include "rtf/read/lost_braces.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class LostBracesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_table_that_is_not_closed_ends_where_the_text_begins_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("styles") << QByteArray("{\\stylesheet{\\s1 Title;}{\\s2 Text;}\\sectd\\pard ");
        QTest::newRow("styles, and no words of a section") << QByteArray("{\\stylesheet{\\s1 Title;}\\pard ");
        QTest::newRow("a style") << QByteArray("{\\stylesheet{\\s1 Title;{\\s2 Text;}}\\pard ");
        QTest::newRow("fonts") << QByteArray("{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}\\pard ");
        QTest::newRow("colours") << QByteArray("{\\colortbl;\\red255\\green0\\blue0;\\pard ");
        QTest::newRow("lists") << QByteArray(
            "{\\*\\listtable{\\list{\\listlevel{\\leveltext\\'02\\'00.;}}\\listid1}\\sectd ");
    }
    void a_table_that_is_not_closed_ends_where_the_text_begins()
    {
        QFETCH(QByteArray, head);
        const Reading read = ReadBytes("{\\rtf1" + head + "one {\\b two}\\par three\\par}");
        QCOMPARE(read.Text(), u"one two\nthree"_s);
        QVERIFY(read.result.wasDamaged);
        QCOMPARE(read.Format("two").fontWeight(), int(QFont::Bold));
    }

    void an_entry_that_is_not_closed_takes_no_more_than_its_paragraph()
    {
        const Reading read =
            ReadBytes("{\\rtf1{\\stylesheet{\\s1 Title;\\pard lost\\par kept\\par}} and this\\par}");
        QCOMPARE(read.Text(), u"\nkept\n and this"_s);
    }

    void a_style_may_name_what_resets_a_paragraph()
    {
        const Reading read =
            ReadBytes("{\\rtf1{\\stylesheet{\\s1\\pard\\plain\\b Title;}}\\pard\\s1 one\\par}");
        QCOMPARE(read.Text(), u"one"_s);
        QVERIFY(!read.result.wasDamaged);
        QCOMPARE(read.Format("one").fontWeight(), int(QFont::Bold));
    }

    void text_of_a_drawn_object_needs_no_word_for_it()
    {
        const Reading read =
            ReadBody("one{\\shp{\\*\\shpinst{\\sp{\\sn lineWidth}{\\sv 0}}{lost\\trowd\\cellx2000\\pard"
                     "\\intbl in a cell\\cell\\row\\pard and below\\par}}}\\par two\\par");
        QVERIFY(read.Text().contains(u"in a cell"_s));
        QVERIFY(read.Text().contains(u"and below"_s));
        QVERIFY(!read.Text().contains(u"lost"_s));
        QVERIFY(!read.Text().contains(u"lineWidth"_s));
    }

    void properties_of_a_drawn_object_are_never_text()
    {
        QCOMPARE(ReadBody("a{\\sp{\\sn fFilled}{\\sv 0}}b\\par").Text(), u"ab"_s);
    }
};

TORVIK_TEST(LostBracesTest)
#include "lost_braces_test.moc"
