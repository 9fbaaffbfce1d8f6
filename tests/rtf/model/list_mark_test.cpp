#include "rtf/model/list_mark.h"
#include "rtf/model/list_table.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class ListMarkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void written_marks_are_understood_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("around");
        QTest::newRow("decimal") << "12." << -1 << 12 << int(QTextListFormat::ListDecimal) << "|.";
        QTest::newRow("letter") << "b)" << -1 << 2 << int(QTextListFormat::ListLowerAlpha) << "|)";
        QTest::newRow("roman") << "(iv)" << -1 << 4 << int(QTextListFormat::ListLowerRoman) << "(|)";
        QTest::newRow("first roman") << "i." << -1 << 1 << int(QTextListFormat::ListLowerRoman) << "|.";
        QTest::newRow("ninth letter") << "i." << 4 << 9 << int(QTextListFormat::ListLowerAlpha) << "|.";
        QTest::newRow("fifth roman") << "V." << 1 << 5 << int(QTextListFormat::ListUpperRoman) << "|.";
        QTest::newRow("letters past z") << "AB." << 3 << 28 << int(QTextListFormat::ListUpperAlpha) << "|.";
    }
    void written_marks_are_understood()
    {
        QFETCH(QString, written);
        QFETCH(int, format);
        QFETCH(int, value);
        QFETCH(int, style);
        QFETCH(QString, around);
        const ListMark mark = MarkFromText(written, format);
        QCOMPARE(mark.kind, ListMark::Kind::Number);
        QCOMPARE(mark.value, value);
        QCOMPARE(int(mark.style), style);
        QCOMPARE(mark.before + u'|' + mark.after, around);
    }

    void bullets_keep_their_shape()
    {
        QCOMPARE(MarkFromText(u"•"_s, -1).style, QTextListFormat::ListDisc);
        QCOMPARE(MarkFromText(u"o"_s, 23).style, QTextListFormat::ListCircle);
        QCOMPARE(MarkFromText(u"▪"_s, -1).style, QTextListFormat::ListSquare);
    }

    void marks_that_no_list_shows_stay_text()
    {
        for (const char* written : {"1.2.", "Part one", "3rd 4th"}) {
            const ListMark mark = MarkFromText(QString::fromLatin1(written), -1);
            QCOMPARE(mark.kind, ListMark::Kind::Literal);
            QCOMPARE(mark.literal, QString::fromLatin1(written));
        }
    }

    void nothing_written_is_no_mark() { QCOMPARE(MarkFromText(u" \t"_s, -1).kind, ListMark::Kind::None); }

    void numbers_are_written_in_every_style()
    {
        QCOMPARE(NumberInStyle(1994, QTextListFormat::ListLowerRoman), u"mcmxciv"_s);
        QCOMPARE(NumberInStyle(26, QTextListFormat::ListUpperAlpha), u"Z"_s);
        QCOMPARE(NumberInStyle(27, QTextListFormat::ListUpperAlpha), u"AA"_s);
        QCOMPARE(NumberInStyle(28, QTextListFormat::ListLowerAlpha), u"bb"_s);
        QCOMPARE(NumberInStyle(780, QTextListFormat::ListLowerAlpha), QString(30, u'z'));
        QCOMPARE(NumberInStyle(781, QTextListFormat::ListLowerAlpha), u"a"_s);
        QCOMPARE(NumberInStyle(7, QTextListFormat::ListDecimal), u"7"_s);
    }

    void a_level_of_a_list_makes_its_mark()
    {
        ListLevel level;
        level.format = 4;
        level.text = QString(QChar(2)) + QChar(1) + u')';
        const LevelNumber numbers[] = {{3, 0}, {2, 4}};
        const ListMark mark = MarkFromLevel(level, numbers, 2);
        QCOMPARE(mark.kind, ListMark::Kind::Number);
        QCOMPARE(mark.value, 2);
        QCOMPARE(mark.after, u")"_s);
    }

    void every_level_writes_its_number_in_its_own_format()
    {
        ListLevel level;
        level.format = 0;
        level.text = QString(QChar(5)) + u'(' + QChar(0) + u'.' + QChar(1) + u')';
        const LevelNumber numbers[] = {{4, 1}, {2, 0}};
        QCOMPARE(MarkFromLevel(level, numbers, 2).literal, u"(IV.2)"_s);
        level.isLegal = true;
        QCOMPARE(MarkFromLevel(level, numbers, 2).literal, u"(4.2)"_s);
    }

    void a_format_that_no_list_shows_is_text()
    {
        ListLevel level;
        level.format = 18;
        level.text = QString(QChar(3)) + u'<' + QChar(0) + u'>';
        const LevelNumber numbers[] = {{3, 18}};
        const ListMark mark = MarkFromLevel(level, numbers, 1);
        QCOMPARE(mark.kind, ListMark::Kind::Literal);
        QCOMPARE(mark.literal, u"<③>"_s);
    }
};

TORVIK_GUILESS_TEST(ListMarkTest)
#include "list_mark_test.moc"
