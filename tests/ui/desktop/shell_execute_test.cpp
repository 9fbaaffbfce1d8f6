#include "support/desktop.h"
#include "support/test_class.h"
#include "ui/desktop/shell_execute.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// Addresses that are given to the desktop.
class ShellExecuteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void web_and_mail_addresses_are_opened()
    {
        const Desktop desktop;
        for (const char* address : {"http://example.com/a", "https://example.com/b", "mailto:a@example.com"})
            QVERIFY(ShellExecute(QString::fromLatin1(address)) > 32);
        QCOMPARE(desktop.opened, (QStringList{u"http://example.com/a"_s, u"https://example.com/b"_s,
                                              u"mailto:a@example.com"_s}));
    }

    void nothing_else_is()
    {
        const Desktop desktop;
        for (const char* address : {"file:///etc/passwd", "/bin/true", "calc.exe", ""})
            QVERIFY(ShellExecute(QString::fromLatin1(address)) <= 32);
        QVERIFY(desktop.opened.isEmpty());
    }
};

TORVIK_TEST(ShellExecuteTest)
#include "shell_execute_test.moc"
