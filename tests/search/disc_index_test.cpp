#include "runtime/failure.h"
#include "search/disc_index.h"
#include "support/test_class.h"

#include <QScopeGuard>
#include <QSemaphore>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

IndexedText Text(const QString& title, const QByteArray& words)
{
    return {title, [words]() -> QByteArray { return "{\\rtf1\\ansi " + words + "}"; }};
}

IndexedText Failing(int number)
{
    return {u"Failing"_s, [number]() -> QByteArray { Fail(number); }};
}

QList<IndexedText> SomeTexts()
{
    return {Text(u"1969 Description"_s, "The hood scoop is painted."),
            Text(u"Glossary"_s, "A hood opens."),
            {u"The Super Glider"_s, {}}};
}

/// Holds up the reading of a text until it opens, at the latest at the end of the test.
class Gate {
public:
    Gate() = default;
    ~Gate() { Open(); }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    void Open() { semaphore_->release(); }
    std::function<QByteArray()> Behind(const QByteArray& bytes) const
    {
        return [semaphore = semaphore_, bytes] {
            semaphore->acquire();
            semaphore->release();
            return bytes;
        };
    }

private:
    std::shared_ptr<QSemaphore> semaphore_ = std::make_shared<QSemaphore>();
};

} // namespace

/// The texts of a disc, read and searched on a thread of their own.
class DiscIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void what_is_read_is_found_with_its_line()
    {
        DiscIndex index(SomeTexts(), [] {});
        QVERIFY(WaitForEnd(index));
        const IndexAnswer answer = AnswerTo(index, u"hood scoop"_s);
        QCOMPARE(answer.question, u"hood scoop"_s);
        QCOMPARE(answer.count, 1);
        QCOMPARE(answer.best.first().entry, 0);
        QCOMPARE(answer.best.first().line.text, u"The hood scoop is painted."_s);
        QCOMPARE(answer.best.first().line.found, QList<TextRange>({{4, 4}, {9, 5}}));
    }

    void what_has_a_title_only_is_found_by_it()
    {
        DiscIndex index(SomeTexts(), [] {});
        const IndexAnswer answer = AnswerTo(index, u"glider"_s, [&] { return index.Progress().isDone; });
        QCOMPARE(answer.count, 1);
        QCOMPARE(answer.best.first().entry, 2);
        QCOMPARE(answer.best.first().line.text, QString());
        QCOMPARE(index.Progress().leftOut, 0);
    }

    void the_progress_counts_what_was_read_and_what_was_left_out()
    {
        QList<IndexedText> texts = SomeTexts();
        texts.append(Failing(failure::fileNotFound));
        texts.append(Failing(failure::deviceIo));
        texts.append({u"Empty"_s, [] { return QByteArray(); }});
        texts.append({u"Without words"_s, [] { return QByteArray("{\\rtf1 \\par }"); }});
        DiscIndex index(texts, [] {});
        QVERIFY(WaitForEnd(index));
        const IndexProgress progress = index.Progress();
        QCOMPARE(progress.read, 7);
        QCOMPARE(progress.total, 7);
        QCOMPARE(progress.leftOut, 4);
        QVERIFY(progress.isUsable);
        // What could not be read is found by nothing, its title included.
        QCOMPARE(AnswerTo(index, u"failing"_s).count, 0);
        QCOMPARE(AnswerTo(index, u"hood"_s).count, 2);
    }

    void a_damaged_article_is_found_by_what_there_is_of_it()
    {
        DiscIndex index({{u"Cut"_s, [] { return QByteArray("{\\rtf1\\ansi {\\b The hood scoop is pain"); }}},
                        [] {});
        QVERIFY(WaitForEnd(index));
        QCOMPARE(AnswerTo(index, u"scoop"_s).count, 1);
    }

    void questions_are_answered_while_the_disc_keeps_the_next_text_back()
    {
        Gate gate;
        QList<IndexedText> texts = SomeTexts();
        texts.append({u"Late"_s, gate.Behind("{\\rtf1 a late hood}")});
        texts.append(Text(u"Last"_s, "words"));
        DiscIndex index(texts, [] {});
        QTRY_COMPARE(index.Progress().read, 3);
        QCOMPARE(AnswerTo(index, u"hood"_s).count, 2);
        QCOMPARE(AnswerTo(index, u"glossary"_s).count, 1);
        QVERIFY(!index.Progress().isDone);
        index.Ask(u"hood"_s);
        gate.Open();
        QVERIFY(WaitForEnd(index));
        QTRY_COMPARE(LastCount(index), 3); // answered again, without another question
    }

    void the_latest_question_is_the_one_that_counts()
    {
        DiscIndex index(SomeTexts(), [] {});
        QVERIFY(WaitForEnd(index));
        index.TakeAnswer();
        for (const QString& question : {u"h"_s, u"ho"_s, u"hoo"_s, u"glossary"_s})
            index.Ask(question);
        QCOMPARE(AnswerOf(index, u"glossary"_s).count, 1);
        QVERIFY(!index.TakeAnswer().has_value());
    }

    void no_more_than_the_best_hundred_are_given_and_all_are_counted()
    {
        QList<IndexedText> texts;
        for (int number = 0; number < 150; ++number)
            texts.append(Text(u"Text %1"_s.arg(number), "car"));
        DiscIndex index(texts, [] {});
        QVERIFY(WaitForEnd(index));
        const IndexAnswer answer = AnswerTo(index, u"car"_s);
        QCOMPARE(answer.count, 150);
        QCOMPARE(answer.best.size(), 100);
    }

    void news_is_told_until_the_end_and_never_after_it()
    {
        auto told = std::make_shared<std::atomic<int>>(0);
        auto left = std::make_shared<QSemaphore>();
        Gate gate;
        {
            const auto wait = gate.Behind("{\\rtf1 word}");
            const DiscIndex index({Text(u"One"_s, "word"),
                                   {u"Two"_s,
                                    [wait, left] {
                                        QByteArray bytes = wait();
                                        left->release();
                                        return bytes;
                                    }}},
                                  [told] { ++*told; });
            QTRY_COMPARE(told->load(), 1);
        } // returns at once, although the disc still holds the second text up
        gate.Open();
        QVERIFY(left->tryAcquire(1, 10'000));
        QCOMPARE(told->load(), 1);
    }

    void an_empty_disc_is_read_at_once()
    {
        DiscIndex index({}, [] {});
        QVERIFY(WaitForEnd(index));
        QCOMPARE(AnswerTo(index, u"hood"_s).count, 0);
    }

private:
    static bool WaitForEnd(const DiscIndex& index)
    {
        return QTest::qWaitFor([&] { return index.Progress().isDone; }, 20'000);
    }

    static IndexAnswer NextAnswer(DiscIndex& index)
    {
        std::optional<IndexAnswer> answer;
        const bool came = QTest::qWaitFor([&] { return (answer = index.TakeAnswer()).has_value(); }, 20'000);
        return came ? *answer : IndexAnswer{u"no answer"_s, -1, {}};
    }

    static IndexAnswer AnswerOf(DiscIndex& index, const QString& question)
    {
        IndexAnswer answer = NextAnswer(index);
        while (answer.question != question && answer.count >= 0)
            answer = NextAnswer(index);
        return answer;
    }

    template <typename Ready>
    static IndexAnswer AnswerTo(DiscIndex& index, const QString& question, Ready&& ready)
    {
        if (!QTest::qWaitFor(ready, 20'000))
            return {};
        index.TakeAnswer();
        index.Ask(question);
        return AnswerOf(index, question);
    }
    static IndexAnswer AnswerTo(DiscIndex& index, const QString& question)
    {
        return AnswerTo(index, question, [] { return true; });
    }

    static qsizetype LastCount(DiscIndex& index)
    {
        static qsizetype last = -1;
        if (const auto answer = index.TakeAnswer())
            last = answer->count;
        return last;
    }
};

TORVIK_TEST(DiscIndexTest)
#include "disc_index_test.moc"
