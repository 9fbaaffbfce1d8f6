#include "support/test_class.h"

#include <cstdio>
#include <cstring>

namespace torvik {

namespace {

TestClass*& First()
{
    static TestClass* first = nullptr;
    return first;
}

} // namespace

TestClass::TestClass(const char* name, Run run) : name_(name), run_(run), next_(First())
{
    First() = this;
}

int TestClass::RunNamed(int argc, char** argv)
{
    for (const TestClass* each = First(); each != nullptr && argc > 1; each = each->next_) {
        if (std::strcmp(each->name_, argv[1]) == 0) {
            argv[1] = argv[0];
            return each->run_(argc - 1, argv + 1);
        }
    }
    std::fputs("Name one of these test classes:\n", stderr);
    for (const TestClass* each = First(); each != nullptr; each = each->next_)
        std::fprintf(stderr, "  %s\n", each->name_);
    return 2;
}

} // namespace torvik

int main(int argc, char** argv)
{
    return torvik::TestClass::RunNamed(argc, argv);
}
