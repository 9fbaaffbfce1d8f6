#include "runtime/failure.h"
#include "support/test_class.h"

#include <vector>

using namespace Qt::StringLiterals;
using namespace torvik;

class FailureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_number_has_the_text_of_the_run_time_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        const std::vector<std::pair<int, const char*>> rows{
            {5, "Invalid procedure call or argument"},
            {6, "Overflow"},
            {7, "Out of memory"},
            {9, "Subscript out of range"},
            {13, "Type mismatch"},
            {51, "Internal error"},
            {52, "Bad file name or number"},
            {53, "File not found"},
            {57, "Device I/O error"},
            {58, "File already exists"},
            {61, "Disk full"},
            {62, "Input past end of file"},
            {67, "Too many files"},
            {68, "Device unavailable"},
            {70, "Permission denied"},
            {75, "Path/File access error"},
            {76, "Path not found"},
            {321, "Invalid file format"},
            {340, "Control array element doesn't exist"},
            {364, "Object was unloaded"},
            {380, "Invalid property value"},
            {381, "Invalid property array index"},
            {400, "Form already displayed; can't show modally"},
            {481, "Invalid picture"},
            {482, "Printer error"},
        };
        for (const auto& [number, text] : rows)
            QTest::addRow("%d", number) << number << QString::fromLatin1(text);
    }
    void a_number_has_the_text_of_the_run_time()
    {
        QFETCH(int, number);
        QFETCH(QString, text);
        QCOMPARE(RunTimeErrorText(number), text);
        QCOMPARE(RunTimeError(number).Text(), text);
    }

    void a_number_that_is_not_known_has_the_general_text()
    {
        for (const int number : {0, 1, 4, 8, 71, 77, 1000, 32767, 65536, -1})
            QCOMPARE(RunTimeErrorText(number), u"Application-defined or object-defined error"_s);
    }

    void fail_throws_its_number()
    {
        int number = 0;
        try {
            Fail(failure::diskFull);
        } catch (const RunTimeError& error) {
            number = error.Number();
        }
        QCOMPARE(number, 61);
    }

    void a_failure_may_carry_a_hint()
    {
        try {
            Fail(failure::typeMismatch, u"Mend the file."_s);
        } catch (const RunTimeError& error) {
            QCOMPARE(error.Number(), 13);
            QCOMPARE(error.Text(), u"Type mismatch"_s);
            QCOMPARE(error.Hint(), u"Mend the file."_s);
            return;
        }
        QFAIL("nothing was thrown");
    }

    void a_failure_is_an_exception_of_the_language() { QVERIFY_THROWS_EXCEPTION(std::exception, Fail(5)); }

    void no_number_is_pending_outside_of_a_handler() { QCOMPARE(PendingErrorNumber(), 0); }

    void the_number_is_pending_while_the_handler_runs()
    {
        int seen = 0;
        const bool wentThrough = OnError([] { Fail(53); }, [&] { seen = PendingErrorNumber(); });
        QVERIFY(!wentThrough);
        QCOMPARE(seen, 53);
        QCOMPARE(PendingErrorNumber(), 0);
    }

    void the_handler_does_not_run_without_a_failure()
    {
        bool handled = false;
        QVERIFY(OnError([] {}, [&] { handled = true; }));
        QVERIFY(!handled);
    }

    void nested_handlers_give_the_outer_number_back()
    {
        std::vector<int> seen;
        OnError([] { Fail(53); },
                [&] {
                    OnError([] { Fail(76); }, [&] { seen.push_back(PendingErrorNumber()); });
                    seen.push_back(PendingErrorNumber());
                });
        QCOMPARE(seen, (std::vector<int>{76, 53}));
    }

    void a_failure_in_the_handler_goes_on_to_the_caller()
    {
        int number = 0;
        try {
            OnError([] { Fail(53); }, [] { Fail(6); });
        } catch (const RunTimeError& error) {
            number = error.Number();
        }
        QCOMPARE(number, 6);
        QCOMPARE(PendingErrorNumber(), 0);
    }

    void other_exceptions_pass_the_trap()
    {
        QVERIFY_THROWS_EXCEPTION(int, OnError([] { throw 1; }, [] {}));
        QVERIFY_THROWS_EXCEPTION(int, ResumeNext([] { throw 1; }));
    }

    void resume_next_tells_the_number_and_goes_on()
    {
        QCOMPARE(ResumeNext([] { Fail(75); }), 75);
        QCOMPARE(ResumeNext([] {}), 0);
        QCOMPARE(PendingErrorNumber(), 0);
    }

    void retry_runs_the_statement_until_it_goes_through()
    {
        int runs = 0;
        std::vector<int> seen;
        RetryOnError(
            [&] {
                if (++runs < 4)
                    Fail(70 + runs);
            },
            [&] { seen.push_back(PendingErrorNumber()); });
        QCOMPARE(runs, 4);
        QCOMPARE(seen, (std::vector<int>{71, 72, 73}));
    }

    void the_handler_of_a_retry_leaves_by_throwing()
    {
        int runs = 0;
        QVERIFY_THROWS_EXCEPTION(int, RetryOnError(
                                          [&] {
                                              ++runs;
                                              Fail(5);
                                          },
                                          [] { throw 1; }));
        QCOMPARE(runs, 1);
        QCOMPARE(PendingErrorNumber(), 0);
    }
};

TORVIK_TEST(FailureTest)
#include "failure_test.moc"
