#include "ui/win_help.h"

#include <QTest>
#include <QWidget>

using namespace torvik;

/// Commands to the help system.
class WinHelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quitting_without_a_help_window_does_nothing()
    {
        QVERIFY(!WinHelp(0, QStringLiteral("C:\\Torvik2001.HLP"), winHelp::quit, QString(4, u'\0')));
    }

    void quitting_closes_the_help_window()
    {
        QWidget help;
        help.setObjectName(QStringLiteral("HelpWindow"));
        QWidget other;
        help.show();
        other.show();
        QVERIFY(WinHelp(0, QStringLiteral("C:\\Torvik2001.HLP"), winHelp::quit, QString(4, u'\0')));
        QVERIFY(!help.isVisible());
        QVERIFY(other.isVisible());
    }

    void other_commands_are_not_carried_out()
    {
        QWidget help;
        help.setObjectName(QStringLiteral("HelpWindow"));
        help.show();
        QVERIFY(!WinHelp(0, {}, 1, {}));
        QVERIFY(help.isVisible());
    }
};

QTEST_MAIN(WinHelpTest)
#include "win_help_test.moc"
