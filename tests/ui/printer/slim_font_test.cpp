#include "support/test_class.h"
#include "ui/printer/slim_font.h"

#include <QFont>
#include <QPainterPath>
#include <QRawFont>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr double size = 200; // pixels: large enough to see any difference

QRawFont FontOf(const QString& family, QFont::Weight weight = QFont::Normal)
{
    QFont font(family);
    font.setPixelSize(static_cast<int>(size));
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

QRawFont SlimOf(const QRawFont& font)
{
    return {SlimFont(font, u"Slim Test"_s), size, QFont::PreferNoHinting};
}

/// A font's programs move points a little even at this size.
bool LooksAlike(const QPainterPath& first, const QPainterPath& second)
{
    constexpr double tolerance = size / 500;
    bool alike = first.elementCount() == second.elementCount();
    for (int index = 0; alike && index < first.elementCount(); ++index) {
        const QPointF way = QPointF(first.elementAt(index)) - QPointF(second.elementAt(index));
        alike =
            first.elementAt(index).type == second.elementAt(index).type && way.manhattanLength() < tolerance;
    }
    return alike;
}

} // namespace

/// Slim copies of fonts for paper, held against the fonts themselves.
class SlimFontTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void letters_look_and_measure_as_in_the_font_data() { AddFonts(); }
    void letters_look_and_measure_as_in_the_font()
    {
        QFETCH(QString, family);
        QFETCH(int, weight);
        const QRawFont font = FontOf(family, static_cast<QFont::Weight>(weight));
        const QRawFont slim = SlimOf(font);
        QVERIFY(slim.isValid());
        const QString text =
            u"Hamburgefonstiv 0123 \u00C4\u00E9\u00DF \u0416\u03A9 \u201C\u2026\u2022\u20AC"_s;
        const QList<quint32> glyphs = font.glyphIndexesForString(text);
        QCOMPARE(slim.glyphIndexesForString(text), glyphs);
        QCOMPARE(slim.advancesForGlyphIndexes(glyphs), font.advancesForGlyphIndexes(glyphs));
        for (const quint32 glyph : glyphs)
            QVERIFY(LooksAlike(slim.pathForGlyph(glyph), font.pathForGlyph(glyph)));
    }

    void lines_are_as_high_as_in_the_font_data() { AddFonts(); }
    void lines_are_as_high_as_in_the_font()
    {
        QFETCH(QString, family);
        QFETCH(int, weight);
        const QRawFont font = FontOf(family, static_cast<QFont::Weight>(weight));
        const QRawFont slim = SlimOf(font);
        QCOMPARE(slim.ascent(), font.ascent());
        QCOMPARE(slim.descent(), font.descent());
        QCOMPARE(slim.leading(), font.leading());
        QCOMPARE(slim.underlinePosition(), font.underlinePosition());
    }

    void kerning_and_ligatures_go_over()
    {
        const QRawFont font = FontOf(u"DejaVu Sans"_s);
        const QRawFont slim = SlimOf(font);
        for (const char* table : {"GPOS", "GSUB", "GDEF"}) {
            QVERIFY(!font.fontTable(table).isEmpty());
            QCOMPARE(slim.fontTable(table), font.fontTable(table));
        }
    }

    void programs_for_the_screen_stay_behind()
    {
        const QRawFont font = FontOf(u"Liberation Serif"_s);
        const QRawFont slim = SlimOf(font);
        for (const char* table : {"fpgm", "prep", "cvt "}) {
            QVERIFY(!font.fontTable(table).isEmpty());
            QVERIFY(slim.fontTable(table).isEmpty());
        }
        QVERIFY(slim.fontTable("glyf").size() < font.fontTable("glyf").size());
    }

    void whether_it_may_be_embedded_goes_over()
    {
        const QRawFont font = FontOf(u"Liberation Serif"_s);
        constexpr qsizetype place = 8;
        constexpr qsizetype size = 2;
        const QByteArray permission = font.fontTable("OS/2").mid(place, size);
        QCOMPARE(permission.size(), size);
        QCOMPARE(SlimOf(font).fontTable("OS/2").mid(place, size), permission);
    }

    void it_has_the_family_that_it_is_given_and_the_style_of_the_font()
    {
        const QRawFont slim = SlimOf(FontOf(u"Liberation Serif"_s, QFont::Bold));
        QCOMPARE(slim.familyName(), u"Slim Test"_s);
        QCOMPARE(slim.styleName(), u"Bold"_s);
    }

    void scripts_of_other_continents_stay_behind()
    {
        const QRawFont font = FontOf(u"DejaVu Sans"_s);
        const QChar alef(0x0627);
        QVERIFY(font.supportsCharacter(alef));
        QVERIFY(!IsInSlimFonts(alef));
        QVERIFY(!SlimOf(font).supportsCharacter(alef));
    }

    void letters_of_europe_signs_and_symbols_are_held()
    {
        for (const char16_t character : u" a~\u00A0\u00FF\u017F\u0416\u03A9\u1EC7\u2014\u20AC\u25CF\u26FF")
            QVERIFY(character == 0 || IsInSlimFonts(character));
        for (const char16_t character : {u'\t', u'\u0590', u'\u1DFF', u'\u2700', u'\uFFFC'})
            QVERIFY(!IsInSlimFonts(character));
    }

    void a_font_of_another_kind_gives_nothing()
    {
        QCOMPARE(SlimFont(QRawFont(), u"Slim Test"_s), QByteArray());
        const QRawFont postScript = FontOf(u"Nimbus Roman"_s);
        const bool isTrueType =
            !postScript.fontTable("glyf").isEmpty(); // where another font stands in for it
        QCOMPARE(SlimFont(postScript, u"Slim Test"_s).isEmpty(), !isTrueType);
    }

private:
    static void AddFonts()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<int>("weight");
        for (const auto& family : {u"Liberation Serif"_s, u"Liberation Sans"_s, u"Liberation Mono"_s,
                                   u"DejaVu Sans"_s, u"DejaVu Serif"_s}) {
            QTest::newRow(qPrintable(family)) << family << int{QFont::Normal};
            QTest::newRow(qPrintable(family + u" bold"_s)) << family << int{QFont::Bold};
        }
    }
};

TORVIK_TEST(SlimFontTest)
#include "slim_font_test.moc"
