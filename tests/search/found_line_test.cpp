#include "search/found_line.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The line with its found words in brackets.
QString Marked(const QString& text, const QString& typed, qsizetype length = 60)
{
    const FoundLine line = LineAroundFirstHit(text, SearchTermsOf(typed), length);
    QString marked = line.text;
    qsizetype before = 0; // letters put in already
    for (const TextRange& place : line.found) {
        marked.insert(place.begin + before, u'[');
        marked.insert(place.End() + before + 1, u']');
        before += 2;
    }
    return marked;
}

} // namespace

/// The line of a text that is shown with a hit.
class FoundLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_short_text_is_shown_whole() { QCOMPARE(Marked(u"A red car."_s, u"red"_s), u"A [red] car."_s); }

    void every_found_word_of_the_line_is_marked()
    {
        QCOMPARE(Marked(u"Red cars, a red scoop and a Réd hood."_s, u"red scoop"_s),
                 u"[Red] cars, a [red] [scoop] and a [Réd] hood."_s);
    }

    void a_long_text_is_cut_between_words_on_both_sides()
    {
        const QString text =
            u"one two three four five six seven eight nine ten eleven needle twelve thirteen "
            "fourteen fifteen sixteen seventeen eighteen nineteen"_s;
        QCOMPARE(Marked(text, u"needle"_s, 40), u"…ten eleven [needle] twelve thirteen…"_s);
    }

    void line_ends_blanks_and_pictures_become_one_blank()
    {
        QCOMPARE(Marked(u"\n\n  a \t\n\uFFFC red\u2029\n car \n"_s, u"red"_s), u"a [red] car"_s);
    }

    void a_text_without_the_words_shows_its_beginning()
    {
        QCOMPARE(Marked(u"A red car."_s, u"blue"_s), u"A red car."_s);
        QCOMPARE(Marked(QString(), u"blue"_s), QString());
        QCOMPARE(Marked(u" \n"_s, u"blue"_s), QString());
    }

    void one_endless_word_is_cut()
    {
        const FoundLine line = LineAroundFirstHit(u"x"_s.repeated(5000), SearchTermsOf(u"y"_s), 40);
        QCOMPARE(line.text, u"x"_s.repeated(40) + u"…"_s);
    }

    void half_a_character_is_never_shown()
    {
        const QString text = u"\U0001F600"_s.repeated(500) + u" needle "_s + u"\U0001F600"_s.repeated(500);
        for (qsizetype length = 30; length < 60; ++length) {
            const FoundLine line = LineAroundFirstHit(text, SearchTermsOf(u"needle"_s), length);
            QCOMPARE(QString::fromUcs4(line.text.toStdU32String().c_str()), line.text);
            for (qsizetype at = 0; at < line.text.size(); ++at) {
                if (line.text[at].isHighSurrogate())
                    QVERIFY(at + 1 < line.text.size() && line.text[at + 1].isLowSurrogate());
                if (line.text[at].isLowSurrogate())
                    QVERIFY(at > 0 && line.text[at - 1].isHighSurrogate());
            }
        }
    }

    void a_phrase_is_marked_as_one()
    {
        QCOMPARE(Marked(u"the hood\nscoop"_s, u"\"hood scoop\""_s), u"the [hood scoop]"_s);
    }
};

TORVIK_APPLESS_TEST(FoundLineTest)
#include "found_line_test.moc"
