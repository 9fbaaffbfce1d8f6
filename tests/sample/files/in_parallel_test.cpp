#include "sample/files/in_parallel.h"
#include "support/test_class.h"

#include <QtTest>

#include <atomic>
#include <stdexcept>

using namespace torvik::sample;

class InParallelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_piece_of_work_is_done_once()
    {
        std::vector<std::atomic<int>> done(100);
        InParallel(done.size(), [&](std::size_t i) { ++done[i]; });
        for (const std::atomic<int>& count : done)
            QCOMPARE(count.load(), 1);
    }

    void each_piece_of_work_begins_on_a_thread_that_nothing_has_been_drawn_on()
    {
        std::atomic<int> used = 0;
        InParallel(40, [&](std::size_t) {
            thread_local bool fresh = true;
            used += fresh ? 0 : 1;
            fresh = false;
        });
        QCOMPARE(used.load(), 0);
    }

    void no_work_is_done_at_once()
    {
        bool called = false;
        InParallel(0, [&](std::size_t) { called = true; });
        QVERIFY(!called);
    }

    void a_failure_ends_the_work_and_reaches_the_caller()
    {
        std::atomic<int> begun = 0;
        const auto work = [&](std::size_t) {
            ++begun;
            throw std::runtime_error("no paper");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, InParallel(100000, work));
        QVERIFY(begun >= 1);
        QVERIFY(begun < 100000);
    }
};

TORVIK_APPLESS_TEST(InParallelTest)
#include "in_parallel_test.moc"
