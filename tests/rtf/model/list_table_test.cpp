#include "rtf/documents.h"
#include "support/test_class.h"

#include <QTextList>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

/// Definitions of lists and what their overrides change.
class ListTableTest : public QObject {
    Q_OBJECT

    /// A list of three decimal levels, written "1.", "a)" and "i)", and two references to it: the second one
    /// with `override`.
    static QByteArray Tables(const QByteArray& middleLevel, const QByteArray& override)
    {
        return "{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}"
               "{\\levelnumbers\\'01;}}{\\listlevel\\levelnfc4\\levelstartat1" +
               middleLevel +
               "{\\leveltext\\'02\\'01);}{\\levelnumbers\\'01;}}\\listid7}}{\\*\\listoverridetable"
               "{\\listoverride\\listid7\\listoverridecount0\\ls1}"
               "{\\listoverride\\listid7\\listoverridecount1{\\lfolevel" +
               override + "}\\ls2}{\\listoverride\\listid7\\listoverridecount0\\ls3}}";
    }

    /// The mark of each item, whether the list draws it or it stands in the text.
    static QStringList MarksOf(const Reading& read)
    {
        QStringList marks;
        for (QTextBlock block = read.document->begin(); block.isValid(); block = block.next()) {
            if (block.textList() != nullptr)
                marks.append(block.textList()->itemText(block).trimmed());
            else
                marks.append(block.text().section(u'\t', 0, 0));
        }
        return marks;
    }

    static QByteArray Item(int reference, int level, const QByteArray& text)
    {
        return "\\pard\\ls" + QByteArray::number(reference) + "\\ilvl" + QByteArray::number(level) + " " +
               text + "\\par";
    }

private Q_SLOTS:
    void an_inner_level_goes_on_counting_where_that_is_told_data()
    {
        QTest::addColumn<QByteArray>("words");
        QTest::addColumn<QString>("marks");
        QTest::newRow("begins again") << QByteArray() << u"1.|a)|b)|2.|a)"_s;
        QTest::newRow("goes on") << QByteArray("\\levelnorestart1") << u"1.|a)|b)|2.|c)"_s;
        QTest::newRow("told off") << QByteArray("\\levelnorestart0") << u"1.|a)|b)|2.|a)"_s;
    }

    void an_inner_level_goes_on_counting_where_that_is_told()
    {
        QFETCH(QByteArray, words);
        QFETCH(QString, marks);
        const Reading read = ReadBody(Tables(words, {}) + Item(1, 0, "one") + Item(1, 1, "two") +
                                      Item(1, 1, "three") + Item(1, 0, "four") + Item(1, 1, "five"));
        QCOMPARE(MarksOf(read).join(u'|'), marks);
    }

    void lists_count_apart_whatever_their_numbers_and_references_are()
    {
        const QByteArray level = "{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}"
                                 "{\\levelnumbers\\'01;}}";
        const QByteArray tables =
            "{\\*\\listtable{\\list" + level + "\\listid7}{\\list" + level +
            "\\listid-4}}{\\*\\listoverridetable{\\listoverride\\listid-4\\ls1}"
            "{\\listoverride\\listid7{\\lfolevel\\listoverridestartat\\levelstartat5}\\ls2}"
            "{\\listoverride\\listid7{\\lfolevel\\listoverridestartat\\levelstartat8}\\ls2147483647}}";
        const Reading read =
            ReadBody(tables + Item(1, 0, "a") + Item(2, 0, "b") + Item(2'147'483'647, 0, "c") +
                     Item(1, 0, "d") + Item(2, 0, "e") + Item(2'147'483'647, 0, "f"));
        QCOMPARE(MarksOf(read).join(u'|'), u"1.|5.|8.|2.|6.|9."_s);
    }

    void an_override_has_levels_of_its_own_data()
    {
        QTest::addColumn<QByteArray>("override");
        QTest::addColumn<QString>("marks");
        const QByteArray roman = "{\\listlevel\\levelnfc1\\levelstartat4{\\leveltext\\'03(\\'00);}"
                                 "{\\levelnumbers\\'02;}}";
        QTest::newRow("nothing") << QByteArray() << u"1.|2.|3.|4."_s;
        QTest::newRow("a start") << QByteArray("\\listoverridestartat\\levelstartat5") << u"1.|5.|6.|2."_s;
        QTest::newRow("a format, which goes on with the list's numbers")
            << "\\listoverrideformat" + roman << u"1.|(II)|(III)|4."_s;
        QTest::newRow("another sign behind the number")
            << QByteArray("\\listoverrideformat{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00);}}")
            << u"1.|2)|3)|4."_s;
        QTest::newRow("both") << "\\listoverridestartat1\\listoverrideformat1" + roman << u"1.|(IV)|(V)|2."_s;
    }

    void an_override_has_levels_of_its_own()
    {
        QFETCH(QByteArray, override);
        QFETCH(QString, marks);
        const Reading read = ReadBody(Tables({}, override) + Item(1, 0, "one") + Item(2, 0, "two") +
                                      Item(2, 0, "three") + Item(3, 0, "four"));
        QCOMPARE(MarksOf(read).join(u'|'), marks);
    }

    void a_level_that_an_override_leaves_alone_is_the_list_s()
    {
        const Reading read =
            ReadBody(Tables({}, "\\listoverrideformat1{\\listlevel\\levelnfc3{\\leveltext\\'02\\'00.;}}") +
                     Item(2, 0, "one") + Item(2, 1, "two"));
        QCOMPARE(MarksOf(read).join(u'|'), u"A.|a)"_s);
    }

    void more_levels_than_there_are_do_no_harm()
    {
        const QByteArray level =
            "}{\\lfolevel\\listoverrideformat1{\\listlevel\\levelnfc3{\\leveltext\\'02\\'08.;}}";
        QByteArray levels = level.repeated(8);
        for (int i = 0; i < 40; ++i)
            levels += "}{\\lfolevel\\listoverrideformat1{\\listlevel\\levelnfc1{\\leveltext\\'02\\'00:;}}";
        const Reading read = ReadBody(Tables({}, levels) + Item(2, 0, "one") + Item(2, 8, "two"));
        QCOMPARE(MarksOf(read).join(u'|'), u"1.|A."_s);
    }
};

TORVIK_TEST(ListTableTest)
#include "list_table_test.moc"
