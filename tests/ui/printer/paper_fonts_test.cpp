#include "support/test_class.h"
#include "ui/printer/paper_fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QFont FontOf(const QString& family, QFont::Weight weight = QFont::Normal, bool isItalic = false)
{
    QFont font(QStringList{family});
    font.setPointSizeF(40);
    font.setWeight(weight);
    font.setItalic(isItalic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont Stretched(QFont font, int percent)
{
    font.setStretch(percent);
    return font;
}

QFont InSmallCapitals(QFont font)
{
    font.setCapitalization(QFont::SmallCaps);
    return font;
}

QFont OnPaper(QFont font)
{
    font.setFamilies(PaperFamilies(font));
    return font;
}

} // namespace

/// Fonts for paper, as the program's texts get them.
class PaperFontsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_copy_comes_first_and_the_fonts_own_families_follow()
    {
        const QFont font(QStringList{u"Liberation Serif"_s, u"DejaVu Sans"_s});
        const QStringList families = PaperFamilies(font);
        QCOMPARE(families.size(), 3);
        QCOMPARE(families.mid(1), font.families());
        QVERIFY(QFontDatabase::hasFamily(families.first()));
    }

    void the_copy_is_what_is_printed_with_and_measures_the_same_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::newRow("serif") << FontOf(u"Liberation Serif"_s);
        QTest::newRow("bold") << FontOf(u"Liberation Serif"_s, QFont::Bold);
        QTest::newRow("italic") << FontOf(u"Liberation Serif"_s, QFont::Normal, true);
        QTest::newRow("bold italic") << FontOf(u"Liberation Sans"_s, QFont::Bold, true);
        QTest::newRow("a font that another one stands in for") << FontOf(u"Times New Roman"_s);
        QTest::newRow("the same, bold") << FontOf(u"Arial"_s, QFont::Bold);
        QTest::newRow("stretched letters") << Stretched(FontOf(u"Liberation Serif"_s), 150);
        QTest::newRow("narrowed letters") << Stretched(FontOf(u"Arial"_s), 75);
        QTest::newRow("small capitals") << InSmallCapitals(FontOf(u"Liberation Sans"_s));
    }
    void the_copy_is_what_is_printed_with_and_measures_the_same()
    {
        QFETCH(QFont, font);
        const QFont paper = OnPaper(font);
        QCOMPARE(QFontInfo(paper).family(), paper.families().first());
        QCOMPARE(QFontInfo(paper).bold(), QFontInfo(font).bold());
        QCOMPARE(QFontInfo(paper).italic(), QFontInfo(font).italic());
        const QFontMetricsF own(font);
        const QFontMetricsF copy(paper);
        const QString text = u"AVATAR, To Te: the office\u2019s 1967"_s;
        QCOMPARE(copy.horizontalAdvance(text), own.horizontalAdvance(text));
        QCOMPARE(copy.ascent(), own.ascent());
        QCOMPARE(copy.lineSpacing(), own.lineSpacing());
    }

    void a_face_is_copied_once_whatever_its_size()
    {
        QFont font = FontOf(u"Liberation Mono"_s);
        const QStringList families = PaperFamilies(font);
        font.setPointSizeF(8);
        font.setUnderline(true);
        QCOMPARE(PaperFamilies(font), families);
        QVERIFY(PaperFamilies(FontOf(u"Liberation Mono"_s, QFont::Bold)) != families);
    }

    void a_text_without_end_of_fonts_keeps_those_that_come_late()
    {
        int copied = 0;
        for (int weight = 1; weight <= 60; ++weight) {
            const QFont font = FontOf(u"Liberation Sans"_s, static_cast<QFont::Weight>(weight * 10));
            const QStringList families = PaperFamilies(font);
            QVERIFY(families.endsWith(u"Liberation Sans"_s));
            copied += families.size() > 1 ? 1 : 0;
        }
        QVERIFY(copied > 0);
        QVERIFY2(copied <= 32, qPrintable(QString::number(copied)));
    }

    void other_scripts_and_marks_are_left_to_the_fonts_themselves()
    {
        QVERIFY(AreInPaperFonts(u"The caf\u00E9\tof 1967 \u2014 \u201Cgood\u201D"_s));
        QVERIFY(AreInPaperFonts(QString(QChar(QChar::ObjectReplacementCharacter))));
        QVERIFY(AreInPaperFonts(u""_s));
        QVERIFY(!AreInPaperFonts(u"abc \u05E9\u05DC\u05D5\u05DD"_s));
        QVERIFY(!AreInPaperFonts(u"\u65E5\u672C"_s));
        QVERIFY(!AreInPaperFonts(u"e\u0301"_s));
    }
};

TORVIK_TEST(PaperFontsTest)
#include "paper_fonts_test.moc"
