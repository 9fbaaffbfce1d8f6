#include "search/text_index.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QString Expression(const QString& typed)
{
    return MatchExpressionOf(SearchTermsOf(typed));
}

} // namespace

/// The table of words: what is in it is found, in the right order, whatever is typed.
class TextIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        index_ = std::make_unique<TextIndex>();
        QVERIFY(index_->IsUsable());
        index_->Add(1, u"1969 Description"_s, u"The hood scoop is painted. Scoops came in two colors."_s);
        index_->Add(2, u"Glossary"_s, u"A scoop: an opening of the hood."_s);
        index_->Add(3, u"The Super Scoop"_s, u""_s);
        index_->Add(4, u"Café"_s, u"Engine of 5.0 liters, four-speed."_s);
    }
    void cleanup() { index_.reset(); }

    void the_expression_holds_words_in_quotes_and_operators()
    {
        QCOMPARE(Expression(u"hood sco"_s), u"\"hood\" AND \"sco\"*"_s);
        QCOMPARE(Expression(u"\"hood scoop\" -red -\"old car\""_s),
                 u"(\"hood scoop\") NOT (\"red\" OR \"old car\")"_s);
        QCOMPARE(Expression(u"-red"_s), QString());
        QCOMPARE(Expression(u" * "_s), QString());
    }

    void words_are_found_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<int>>("found");
        QTest::newRow("whole") << u"painted "_s << QList<int>{1};
        QTest::newRow("by their beginning") << u"pain"_s << QList<int>{1};
        QTest::newRow("by one letter") << u"p"_s << QList<int>{1};
        QTest::newRow("not by their middle") << u"ainted"_s << QList<int>{};
        QTest::newRow("a closed word is whole") << u"pain "_s << QList<int>{};
        QTest::newRow("all of them") << u"hood opening "_s << QList<int>{2};
        QTest::newRow("in title and text together") << u"glossary hood "_s << QList<int>{2};
        QTest::newRow("in a row") << u"\"hood scoop\""_s << QList<int>{1};
        QTest::newRow("not what is excluded") << u"hood -painted"_s << QList<int>{2};
        QTest::newRow("without accents") << u"CAFE "_s << QList<int>{4};
        QTest::newRow("with accents that are not there") << u"ĝlossary "_s << QList<int>{2};
        QTest::newRow("a number with a point") << u"5.0 "_s << QList<int>{4};
        QTest::newRow("a word with a hyphen") << u"four-speed "_s << QList<int>{4};
        QTest::newRow("nothing") << u""_s << QList<int>{};
        QTest::newRow("what is not there") << u"submarine"_s << QList<int>{};
    }
    void words_are_found()
    {
        QFETCH(QString, typed);
        QTEST(index_->Find(SearchTermsOf(typed)), "found");
    }

    void a_title_stands_above_a_text_and_many_hits_above_few()
    {
        QCOMPARE(index_->Find(SearchTermsOf(u"scoop"_s)).first(), 3);
        TextIndex many;
        many.Add(1, u"One"_s, u"a gear and much else that is told of it here"_s);
        many.Add(2, u"Two"_s, u"gear gear gear gear gear gear gear gear gear"_s);
        many.Add(3, u"Gear"_s, u"something quite different at some length, and longer still"_s);
        QCOMPARE(many.Find(SearchTermsOf(u"gear "_s)), QList<int>({3, 2, 1}));
    }

    void equal_hits_stand_in_the_order_of_the_catalogue()
    {
        TextIndex equal;
        for (int number = 9; number >= 1; --number)
            equal.Add(number, u"Title"_s, u"word"_s);
        QCOMPARE(equal.Find(SearchTermsOf(u"word"_s)), QList<int>({1, 2, 3, 4, 5, 6, 7, 8, 9}));
    }

    void what_would_be_a_fault_of_syntax_is_searched_as_words_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed : {"\"",
                                  "hood AND",
                                  "OR hood",
                                  "hood NOT",
                                  "NEAR(hood scoop, 2)",
                                  "title:hood",
                                  "hood^",
                                  "^hood",
                                  "(hood",
                                  "hood)",
                                  "{title text} : hood",
                                  "hood'; drop table found",
                                  "-",
                                  "--hood",
                                  "*",
                                  "**",
                                  "hood ***",
                                  "\"\"",
                                  "\" \" hood",
                                  "+hood + scoop",
                                  "\\",
                                  "%_",
                                  "a:b:c",
                                  "hood\thood",
                                  "?",
                                  "?1",
                                  ":x",
                                  "@x"})
            QTest::newRow(typed) << QString::fromUtf8(typed);
    }
    void what_would_be_a_fault_of_syntax_is_searched_as_words()
    {
        QFETCH(QString, typed);
        const QList<SearchTerm> terms = SearchTermsOf(typed);
        const QList<int> found = index_->Find(terms);
        QVERIFY(found.size() <= 4);
        // The index is as it was, and answers the next question.
        QCOMPARE(index_->Find(SearchTermsOf(u"painted "_s)), QList<int>{1});
    }

    void plain_words_of_such_input_are_found()
    {
        index_->Add(5, u"Logic"_s, u"this and that, near or far, not here"_s);
        QCOMPARE(index_->Find(SearchTermsOf(u"this AND that "_s)), QList<int>{5});
        QCOMPARE(index_->Find(SearchTermsOf(u"NEAR OR far "_s)), QList<int>{5});
        QCOMPARE(index_->Find(SearchTermsOf(u"(not "_s)), QList<int>{5});
    }

    void a_very_long_input_is_no_error()
    {
        QCOMPARE(index_->Find(SearchTermsOf(u"hood "_s.repeated(20'000))), QList<int>({2, 1}));
        QCOMPARE(index_->Find(SearchTermsOf(u"x"_s.repeated(100'000))), QList<int>{});
        QCOMPARE(index_->Find(SearchTermsOf(u"\"-("_s.repeated(10'000) + u" painted "_s)), QList<int>{1});
    }

    void what_is_added_later_is_found_at_once_and_all_of_it_after_the_end()
    {
        QCOMPARE(index_->Find(SearchTermsOf(u"later"_s)), QList<int>{});
        index_->Add(5, u"Later"_s, u"text"_s);
        QCOMPARE(index_->Find(SearchTermsOf(u"later"_s)), QList<int>{5});
        index_->Commit();
        QCOMPARE(index_->Find(SearchTermsOf(u"later"_s)), QList<int>{5});
        QCOMPARE(index_->Find(SearchTermsOf(u"painted"_s)), QList<int>{1});
    }

    void two_indices_know_nothing_of_each_other()
    {
        TextIndex other;
        other.Add(7, u"Other"_s, u"painted"_s);
        QCOMPARE(other.Find(SearchTermsOf(u"painted"_s)), QList<int>{7});
        QCOMPARE(index_->Find(SearchTermsOf(u"painted"_s)), QList<int>{1});
    }

private:
    std::unique_ptr<TextIndex> index_;
};

TORVIK_GUILESS_TEST(TextIndexTest)
#include "text_index_test.moc"
