#include "platform/system/environment.h"
#include "support/test_class.h"

using namespace torvik;

/// Defaults for variables of the environment.
class EnvironmentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("TORVIK_TEST_VARIABLE"); }

    void an_unset_or_empty_variable_gets_the_value()
    {
        SetEnvironmentDefault("TORVIK_TEST_VARIABLE", "one");
        QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("one"));
        qputenv("TORVIK_TEST_VARIABLE", "");
        SetEnvironmentDefault("TORVIK_TEST_VARIABLE", "two");
        QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("two"));
    }

    void a_held_variable_is_as_before_after_the_scope()
    {
        {
            const HeldVariable held("TORVIK_TEST_VARIABLE", "held");
            QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("held"));
        }
        QVERIFY(!qEnvironmentVariableIsSet("TORVIK_TEST_VARIABLE"));
        qputenv("TORVIK_TEST_VARIABLE", "mine");
        {
            const HeldVariable held("TORVIK_TEST_VARIABLE", "held");
        }
        QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("mine"));
    }

    void a_factor_is_1_unless_it_is_a_number_above_0()
    {
        QCOMPARE(FactorInEnvironment("TORVIK_TEST_VARIABLE"), 1.0);
        for (const auto& [text, factor] : {std::pair{"1.5", 1.5}, {"", 1.0}, {"x", 1.0}, {"-2", 1.0}}) {
            qputenv("TORVIK_TEST_VARIABLE", text);
            QCOMPARE(FactorInEnvironment("TORVIK_TEST_VARIABLE"), factor);
        }
    }

    void a_choice_of_the_users_own_stays()
    {
        qputenv("TORVIK_TEST_VARIABLE", "mine");
        SetEnvironmentDefault("TORVIK_TEST_VARIABLE", "yours");
        QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("mine"));
    }
};

TORVIK_TEST(EnvironmentTest)
#include "environment_test.moc"
