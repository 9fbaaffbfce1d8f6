#pragma once

#include <QTest>

#if defined(QT_WIDGETS_LIB)
#include <QApplication>
using TestApplication = QApplication;
#elif defined(QT_GUI_LIB)
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

namespace torvik {

/// A test class of an executable that holds all those of a room. One is run at a time, each in a process of
/// its own.
class TestClass {
public:
    using Run = int (*)(int argc, char** argv);

    TestClass(const char* name, Run run);

    /// Runs the class that the first argument names, with the others. 2 when there is none of that name.
    static int RunNamed(int argc, char** argv);

private:
    const char* name_;
    Run run_;
    TestClass* next_;
};

/// What a class needs before the application object is made; most need nothing.
inline void PrepareNothing() {}

template <typename Application, typename Test, void (*prepare)()>
int RunTest(int argc, char** argv)
{
    prepare();
    Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <typename Test>
int RunBareTest(int argc, char** argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace torvik

/// Makes a class one of the executable's, with the application object of the room.
#define TORVIK_TEST(Test) TORVIK_TEST_AFTER(Test, torvik::PrepareNothing)
/// The same after a function that runs before there is an application object.
#define TORVIK_TEST_AFTER(Test, Prepare)                                                                     \
    static const torvik::TestClass registered##Test(#Test, torvik::RunTest<TestApplication, Test, Prepare>);
/// The same with an application object without windows.
#define TORVIK_GUILESS_TEST(Test)                                                                            \
    static const torvik::TestClass registered##Test(                                                         \
        #Test, torvik::RunTest<QCoreApplication, Test, torvik::PrepareNothing>);
/// The same without any application object.
#define TORVIK_APPLESS_TEST(Test)                                                                            \
    static const torvik::TestClass registered##Test(#Test, torvik::RunBareTest<Test>);
