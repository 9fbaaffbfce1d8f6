#include "rtf/charset/symbol_font.h"
#include "support/test_class.h"

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

class SymbolFontTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_symbol_font_shows_greek_and_mathematics()
    {
        const QString family = u"Symbol"_s;
        QCOMPARE(QChar(SymbolCharacter(family, u'a')), QChar(u'α'));
        QCOMPARE(QChar(SymbolCharacter(family, u'W')), QChar(u'Ω'));
        QCOMPARE(QChar(SymbolCharacter(family, 0xb7)), QChar(u'•'));
        QCOMPARE(QChar(SymbolCharacter(family, 0xa3)), QChar(u'≤'));
        QCOMPARE(QChar(SymbolCharacter(family, 0xe5)), QChar(u'∑'));
        QCOMPARE(QChar(SymbolCharacter(family, 0xfe)), QChar(u'⎭'));
    }

    void places_in_the_private_area_are_the_same()
    {
        QCOMPARE(QChar(SymbolCharacter(u"Symbol"_s, 0xf0b7)), QChar(u'•'));
    }

    void ornaments_have_a_table_of_their_own()
    {
        QCOMPARE(QChar(SymbolCharacter(u"Wingdings"_s, 0xfc)), QChar(u'✓'));
        QCOMPARE(QChar(SymbolCharacter(u"Wingdings"_s, 0xa7)), QChar(u'▪'));
    }

    void no_font_of_ornaments_is_taken_for_greek()
    {
        for (const char* family : {"Webdings", "Monotype Sorts", "ZapfDingbats"}) {
            const QString name = QLatin1String(family);
            QCOMPARE(QChar(SymbolCharacter(name, u'l')), QChar(u'●'));
            QCOMPARE(QChar(SymbolCharacter(name, u'n')), QChar(u'■'));
            QCOMPARE(QChar(SymbolCharacter(name, u'b')), QChar(u'b'));
        }
        QCOMPARE(QChar(SymbolCharacter(u"Euclid Symbol"_s, u'b')), QChar(u'β'));
        QCOMPARE(QChar(SymbolCharacter(QString(), u'b')), QChar(u'β'));
    }

    void ordinary_characters_stay()
    {
        QCOMPARE(QChar(SymbolCharacter(u"Symbol"_s, u'é' + 0x1000)), QChar(u'é' + 0x1000));
    }
};

TORVIK_GUILESS_TEST(SymbolFontTest)
#include "symbol_font_test.moc"
