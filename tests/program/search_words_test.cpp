#include "program/search_words.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A term as a short text: "-" excluded, "*" open, words joined by "+".
QString Told(const SearchTerm& term)
{
    return (term.isExcluded ? u"-"_s : QString()) + term.words.join(u'+') +
           (term.isBeginning ? u"*"_s : QString());
}

QString TermsOf(const QString& typed)
{
    QStringList told;
    for (const SearchTerm& term : SearchTermsOf(typed))
        told.append(Told(term));
    return told.join(u' ');
}

/// The pieces of a text that are found in it.
QStringList Found(const QString& typed, const QString& text, qsizetype most = 1000)
{
    QStringList pieces;
    for (const TextRange& place : PlacesOf(SearchTermsOf(typed), text, most))
        pieces.append(text.mid(place.begin, place.length));
    return pieces;
}

QString WordsOf(const QString& text)
{
    QStringList words;
    EachWord(text, [&](const QString& word, const TextRange& /*range*/) {
        words.append(word);
        return true;
    });
    return words.join(u' ');
}

} // namespace

/// What a person types to find something, and where a text holds it.
class SearchWordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void what_is_typed_becomes_terms_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("terms");
        const auto row = [](const char* name, const QString& typed, const QString& terms) {
            QTest::newRow(name) << typed << terms;
        };
        row("the last word is open while it is typed", u"hood scoop"_s, u"hood scoop*"_s);
        row("a blank after it closes it", u"hood scoop "_s, u"hood scoop"_s);
        row("an asterisk leaves a word open", u"scoop* hood "_s, u"scoop* hood"_s);
        row("quotes hold words together", u"\"hood scoop\" red "_s, u"hood+scoop red"_s);
        row("a quote that is not closed yet is open", u"\"hood sco"_s, u"hood+sco*"_s);
        row("a closed quote is closed", u"\"hood scoop\""_s, u"hood+scoop"_s);
        row("an asterisk after a quote opens it", u"\"hood sco\"* "_s, u"hood+sco*"_s);
        row("a minus sign excludes", u"hood -scoop"_s, u"hood -scoop"_s);
        row("also what is in quotes", u"car -\"hood scoop\" "_s, u"car -hood+scoop"_s);
        row("a minus sign inside a word parts it", u"four-speed "_s, u"four+speed"_s);
        row("a number with a point is two words in a row", u"5.0 "_s, u"5+0"_s);
        row("letter case does not count", u"HOOD "_s, u"hood"_s);
        row("accents do not count", u"Café Ångström "_s, u"cafe angstrom"_s);
        row("operators of the index are plain words", u"hood AND NOT NEAR(x) OR "_s,
            u"hood and not near+x or"_s);
        row("its signs part words", u"text:hood^2 + {a} "_s, u"text+hood+2 a"_s);
        row("nothing is nothing", u""_s, u""_s);
        row("signs alone are nothing", u"- \" * ( ) '' ;-- "_s, u""_s);
        row("a lone minus at the end", u"hood -"_s, u"hood"_s);
        row("a lone quote at the end", u"hood \""_s, u"hood"_s);
        row("a zero byte parts words", u"ho"_s + QChar(u'\0') + u"od "_s, u"ho+od"_s);
        row("half of a pair parts words", u"a"_s + QChar(0xD83D) + u"b "_s, u"a+b"_s);
    }
    void what_is_typed_becomes_terms()
    {
        QFETCH(QString, typed);
        QFETCH(QString, terms);
        QCOMPARE(TermsOf(typed), terms);
    }

    void words_beyond_the_64th_are_left_out()
    {
        QStringList typed;
        for (int word = 1; word <= 100; ++word)
            typed.append(u"w%1"_s.arg(word));
        QCOMPARE(SearchTermsOf(typed.join(u' ')).size(), 64);
        QCOMPARE(SearchTermsOf(typed.join(u'-')).size(), 1);
        QCOMPARE(SearchTermsOf(typed.join(u'-')).first().words.size(), 64);
    }

    void exclusions_alone_look_for_nothing()
    {
        QVERIFY(!LookForSomething(SearchTermsOf(u"-hood"_s)));
        QVERIFY(!LookForSomething(SearchTermsOf(QString())));
        QVERIFY(LookForSomething(SearchTermsOf(u"-hood car"_s)));
    }

    void words_of_a_text_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::newRow("signs part them") << u"The 427, V8-powered; (red)."_s << u"the 427 v8 powered red"_s;
        QTest::newRow("small and capital") << u"ÄÖÜ straße ΣΑΣ"_s << u"aou straße σασ"_s;
        QTest::newRow("accents of their own") << u"Cafe\u0301s"_s << u"cafes"_s;
        QTest::newRow("several accents") << u"\u1e69"_s << u"s"_s;
        QTest::newRow("a soft hyphen is inside a word") << u"Voll\u00adandry"_s << u"vollandry"_s;
        QTest::newRow("letters outside the first plane") << u"\U00010400\U0001F600x"_s << u"\U00010428 x"_s;
        QTest::newRow("a syllable stays whole") << u"각 a"_s << u"각 a"_s;
        QTest::newRow("a picture parts words") << u"a\uFFFCb"_s << u"a b"_s;
    }
    void words_of_a_text()
    {
        QFETCH(QString, text);
        QTEST(WordsOf(text), "words");
    }

    void places_are_found_in_the_text_as_it_stands_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("a word") << u"scoop "_s << QStringList{u"Scoop"_s, u"scoop"_s};
        QTest::newRow("its beginning") << u"sc"_s << QStringList{u"Scoop"_s, u"scoops"_s, u"scoop"_s};
        QTest::newRow("words in a row") << u"\"hood scoops\""_s << QStringList{u"hood\nscoops"_s};
        QTest::newRow("the longer of two") << u"hood \"hood scoops\""_s << QStringList{u"hood\nscoops"_s};
        QTest::newRow("any of several") << u"red two "_s << QStringList{u"two"_s, u"Réd"_s};
        QTest::newRow("not what is excluded") << u"red -scoop"_s << QStringList{u"Réd"_s};
        QTest::newRow("none") << u"blue "_s << QStringList{};
    }
    void places_are_found_in_the_text_as_it_stands()
    {
        QFETCH(QString, typed);
        QTEST(Found(typed, u"A Scoop, two hood\nscoops and a Réd scoop"_s), "found");
    }

    void as_many_places_as_are_asked_for()
    {
        QCOMPARE(Found(u"a "_s, u"a a a a"_s, 2).size(), 2);
        QCOMPARE(Found(u"a "_s, u"a a a a"_s, 0).size(), 0);
    }

    void words_in_a_row_do_not_overlap()
    {
        QCOMPARE(Found(u"\"a a\" "_s, u"a a a a a"_s), QStringList({u"a a"_s, u"a a"_s}));
    }

    void a_long_text_is_walked_through_at_once()
    {
        const QString text = u"word "_s.repeated(400'000) + u"needle"_s;
        QCOMPARE(Found(u"needle "_s, text), QStringList{u"needle"_s});
    }
};

TORVIK_APPLESS_TEST(SearchWordsTest)
#include "search_words_test.moc"
