#include "runtime/integer16.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <limits>

using namespace torvik;

class Integer16Test : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_begins_as_zero() { QCOMPARE(int{Integer()}, 0); }

    void it_holds_the_whole_range()
    {
        QCOMPARE(int{Integer(32767)}, 32767);
        QCOMPARE(int{Integer(-32768)}, -32768);
    }

    void a_value_outside_the_range_is_an_overflow()
    {
        QCOMPARE(FailureOf([] { Integer(32768); }), failure::overflow);
        QCOMPARE(FailureOf([] { Integer(-32769); }), failure::overflow);
    }

    void an_assignment_is_checked_and_leaves_the_old_value()
    {
        Integer number = 7;
        QCOMPARE(FailureOf([&] { number = 40000; }), failure::overflow);
        QCOMPARE(int{number}, 7);
    }

    void counting_up_and_down_is_checked()
    {
        Integer number = 32766;
        number += 1;
        QCOMPARE(int{number}, 32767);
        QCOMPARE(FailureOf([&] { number += 1; }), failure::overflow);
        number = -32767;
        number -= 1;
        QCOMPARE(int{number}, -32768);
        QCOMPARE(FailureOf([&] { number -= 1; }), failure::overflow);
        QCOMPARE(int{number}, -32768);
    }

    void a_step_of_any_size_is_an_overflow_and_no_surprise()
    {
        Integer number = 1;
        QCOMPARE(FailureOf([&] { number += std::numeric_limits<int>::max(); }), failure::overflow);
        QCOMPARE(FailureOf([&] { number -= std::numeric_limits<int>::min(); }), failure::overflow);
        QCOMPARE(int{number}, 1);
    }

    void arithmetic_is_wide_until_it_is_stored()
    {
        const Integer number = 30000;
        QCOMPARE(number * 15, 450000);
    }
};

TORVIK_TEST(Integer16Test)
#include "integer16_test.moc"
