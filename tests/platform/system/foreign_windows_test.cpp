#include "platform/system/foreign_windows.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the system's own screen savers say.
class ForeignWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qunsetenv("XSCREENSAVER_WINDOW");
        qunsetenv("QT_QPA_PLATFORM");
    }

    void the_window_comes_from_the_environment()
    {
        QCOMPARE(WindowOfScreenSaver(), QString());
        qputenv("XSCREENSAVER_WINDOW", "0x1a00007");
        QCOMPARE(WindowOfScreenSaver(), u"0x1a00007"_s);
    }

    void windows_of_others_are_looked_for_under_x_unless_the_user_chose()
    {
        qunsetenv("QT_QPA_PLATFORM");
        PreferForeignWindows();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("xcb"));
        qputenv("QT_QPA_PLATFORM", "wayland");
        PreferForeignWindows();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("wayland"));
    }
};

TORVIK_APPLESS_TEST(ForeignWindowsTest)
#include "foreign_windows_test.moc"
