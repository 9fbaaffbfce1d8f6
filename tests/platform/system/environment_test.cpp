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

    void a_choice_of_the_users_own_stays()
    {
        qputenv("TORVIK_TEST_VARIABLE", "mine");
        SetEnvironmentDefault("TORVIK_TEST_VARIABLE", "yours");
        QCOMPARE(qgetenv("TORVIK_TEST_VARIABLE"), QByteArray("mine"));
    }
};

TORVIK_TEST(EnvironmentTest)
#include "environment_test.moc"
