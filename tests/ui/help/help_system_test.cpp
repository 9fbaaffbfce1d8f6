#include "platform/paths/drives.h"
#include "support/message_script.h"
#include "support/test_class.h"
#include "ui/help/help_system.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Commands to the help system.
class HelpSystemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quitting_without_a_help_window_does_nothing()
    {
        QVERIFY(!WinHelp(0, u"C:\\Torvik2001.HLP"_s, winHelp::quit, QString(4, u'\0')));
    }

    void quitting_closes_the_help_window()
    {
        QWidget help;
        help.setObjectName(u"HelpViewer"_s);
        QWidget other;
        help.show();
        other.show();
        QVERIFY(WinHelp(0, u"C:\\Torvik2001.HLP"_s, winHelp::quit, QString(4, u'\0')));
        QVERIFY(!help.isVisible());
        QVERIFY(other.isVisible());
    }

    void contents_opens_a_help_file_once()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"Torvik2001.HLP"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{\\rtf1 Words}") > 0);
        file.close();
        SetDriveOptions({{u'E', folder.path()}});
        const QString path = u"E:\\Torvik2001.hlp"_s;
        QVERIFY(WinHelp(0, path, winHelp::contents, {}));
        QVERIFY(WinHelp(0, path, winHelp::contents, {}));
        QCOMPARE(QApplication::topLevelWidgets().size(), 1);
        QVERIFY(WinHelp(0, path, winHelp::quit, QString(4, u'\0')));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        SetDriveOptions({});
    }

    void a_file_that_is_missing_or_empty_is_reported()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"empty.hlp"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        SetDriveOptions({{u'E', folder.path()}});
        const MessageScript messages;
        for (const char* name : {"E:\\none.hlp", "E:\\empty.hlp", "F:\\none.hlp"}) {
            QVERIFY(!WinHelp(0, QLatin1String(name), winHelp::contents, {}));
            QVERIFY(messages.Last().text.endsWith(QLatin1String(name)));
        }
        QCOMPARE(messages.Count(), 3);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        SetDriveOptions({});
    }

    void other_commands_are_not_carried_out()
    {
        QWidget help;
        help.setObjectName(u"HelpViewer"_s);
        help.show();
        QVERIFY(!WinHelp(0, {}, 1, {}));
        QVERIFY(help.isVisible());
    }
};

TORVIK_TEST(HelpSystemTest)
#include "help_system_test.moc"
