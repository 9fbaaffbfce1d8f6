#include "program/screen_size.h"
#include "runtime/failure.h"
#include "support/test_class.h"
#include "ui/forms/screen.h"

using namespace torvik;

/// The test for an exact screen size.
class ScreenSizeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Screen.Pretend(std::nullopt); }

    void both_sides_must_match()
    {
        Screen.Pretend(QSize(800, 600));
        QVERIFY(IsScreenSize(800, 600));
        QVERIFY(!IsScreenSize(800, 599));
        QVERIFY(!IsScreenSize(801, 600));
        QVERIFY(!IsScreenSize(600, 800));
    }

    void no_size_matches_where_the_desktop_itself_enlarges()
    {
        Screen.Pretend(QSize(800, 600));
        Screen.SetScaledByDesktop(true);
        const bool matches = IsScreenSize(800, 600);
        Screen.SetScaledByDesktop(false);
        QVERIFY(!matches);
    }

    void a_size_whose_twips_overflow_is_failure_6()
    {
        Screen.Pretend(QSize(800, 600));
        QCOMPARE(ResumeNext([] { IsScreenSize(143165577, 600); }), 6);
        QCOMPARE(ResumeNext([] { IsScreenSize(143165576, 600); }), 0);
        QCOMPARE(ResumeNext([] { IsScreenSize(800, 143165577); }), 6);
    }

    void the_height_is_only_read_when_the_width_matched()
    {
        Screen.Pretend(QSize(800, 600));
        QCOMPARE(ResumeNext([] { IsScreenSize(801, 143165577); }), 0);
    }
};

TORVIK_TEST(ScreenSizeTest)
#include "screen_size_test.moc"
