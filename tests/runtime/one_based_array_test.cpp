#include "runtime/one_based_array.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <QString>

using namespace Qt::StringLiterals;
using namespace torvik;

class OneBasedArrayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_first_element_is_number_one()
    {
        OneBasedArray<QString> names;
        names.Resize(2);
        names(1) = u"a"_s;
        names(2) = u"b"_s;
        QCOMPARE(*names.begin(), u"a"_s);
        QCOMPARE(names.Count(), 2);
    }

    void an_index_outside_the_bounds_is_a_failure()
    {
        OneBasedArray<int> numbers;
        QCOMPARE(FailureOf([&] { numbers(1) = 1; }), failure::subscript);
        numbers.Resize(3);
        QCOMPARE(FailureOf([&] { numbers(0) = 1; }), failure::subscript);
        QCOMPARE(FailureOf([&] { numbers(4) = 1; }), failure::subscript);
        QCOMPARE(FailureOf([&] { numbers(-1) = 1; }), failure::subscript);
        const auto& fixed = numbers;
        QCOMPARE(FailureOf([&] { static_cast<void>(fixed(4)); }), failure::subscript);
        QCOMPARE(FailureOf([&] { static_cast<void>(fixed(3)); }), 0);
    }

    void growing_keeps_the_contents_and_adds_empty_elements()
    {
        OneBasedArray<QString> names;
        names.Resize(1);
        names(1) = u"a"_s;
        names.Resize(2);
        QCOMPARE(names(1), u"a"_s);
        QCOMPARE(names(2), QString());
    }

    void shrinking_drops_what_does_not_fit()
    {
        OneBasedArray<int> numbers;
        numbers.Resize(3);
        numbers(1) = 1;
        numbers(3) = 3;
        numbers.Resize(1);
        numbers.Resize(3);
        QCOMPARE(numbers(1), 1);
        QCOMPARE(numbers(3), 0);
    }

    void a_negative_count_is_a_failure()
    {
        OneBasedArray<int> numbers;
        QCOMPARE(FailureOf([&] { numbers.Resize(-1); }), failure::subscript);
        QCOMPARE(numbers.Count(), 0);
    }
};

TORVIK_TEST(OneBasedArrayTest)
#include "one_based_array_test.moc"
