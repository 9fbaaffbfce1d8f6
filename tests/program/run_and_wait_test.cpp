#include "program/run_and_wait.h"
#include "runtime/failure.h"
#include "support/test_class.h"

#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Waiting for another program while the user interface lives on.
class RunAndWaitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void it_returns_when_the_program_has_ended()
    {
        const QTemporaryDir folder;
        const QString made = folder.filePath(u"made"_s);
        RunAndWait(u"C:\\bin\\touch \"%1\""_s.arg(made));
        QVERIFY(QFile::exists(made));
    }

    void events_run_while_it_waits()
    {
        const QTemporaryDir folder;
        const QString gate = folder.filePath(u"gate"_s);
        QTimer::singleShot(0, this, [gate] {
            QFile file(gate);
            QVERIFY(file.open(QIODevice::WriteOnly));
        });
        // The program ends only once the event has run.
        RunAndWait(u"C:\\bin\\sh -c \"until test -e '%1'; do :; done\""_s.arg(gate));
        QVERIFY(QFile::exists(gate));
    }

    void a_program_that_is_not_there_is_failure_53()
    {
        QCOMPARE(ResumeNext([] { RunAndWait(u"C:\\no\\such\\iv5play.exe"_s); }), 53);
    }
};

TORVIK_TEST(RunAndWaitTest)
#include "run_and_wait_test.moc"
