#include "platform/system/arguments_of.h"
#include "support/test_class.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The arguments of a program.
class ArgumentsOfTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_programs_own_name_is_none_of_them()
    {
        std::array<char, 8> name{"program"};
        std::array<char, 5> first{"/s a"};
        std::array<char, 1> empty{""};
        std::array<char*, 3> arguments{name.data(), first.data(), empty.data()};
        QCOMPARE(ArgumentsOf(3, arguments.data()), (QStringList{u"/s a"_s, QString()}));
        QCOMPARE(ArgumentsOf(1, arguments.data()), QStringList());
        QCOMPARE(ArgumentsOf(0, nullptr), QStringList());
    }
};

TORVIK_APPLESS_TEST(ArgumentsOfTest)
#include "arguments_of_test.moc"
