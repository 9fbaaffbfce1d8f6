#include "platform/system/process.h"
#include "platform/system/single_instance.h"
#include "support/test_class.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Another process that asks whether it is the first, says so, and stays until it is ended.
class Instance {
public:
    Instance()
    {
        int ends[2] = {-1, -1};
        if (pipe(ends) != 0)
            return;
        process_ = fork();
        if (process_ == 0) {
            // The claim of a parent is no claim of its child.
            const char answer = PreviousInstance() ? 'y' : 'n';
            if (write(ends[1], &answer, 1) == 1)
                pause(); // until it is killed
            _exit(1);
        }
        close(ends[1]);
        if (read(ends[0], &answer_, 1) != 1)
            answer_ = '?';
        close(ends[0]);
    }
    ~Instance() { Crash(); }
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    bool FoundAnother() const { return answer_ == 'y'; }
    bool IsFirst() const { return answer_ == 'n'; }
    void Crash()
    {
        if (process_ > 0) {
            kill(process_, SIGKILL);
            waitpid(process_, nullptr, 0);
        }
        process_ = -1;
    }

private:
    pid_t process_ = -1;
    char answer_ = '?';
};

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(home_->path()));
    }
    void cleanup() { ReleaseInstance(); }

    void the_first_instance_finds_no_other_however_often_it_asks()
    {
        QVERIFY(!PreviousInstance());
        QVERIFY(!PreviousInstance());
    }

    void an_instance_in_another_process_is_found()
    {
        Instance other;
        QVERIFY(other.IsFirst());
        QVERIFY(PreviousInstance());
        QVERIFY(PreviousInstance());
    }

    void a_third_instance_finds_the_first_too()
    {
        const Instance first;
        const Instance second;
        QVERIFY(first.IsFirst());
        QVERIFY(second.FoundAnother());
    }

    void an_instance_that_crashed_leaves_nothing_behind()
    {
        Instance other;
        QVERIFY(other.IsFirst());
        QVERIFY(PreviousInstance());
        other.Crash();
        QVERIFY(!PreviousInstance());
    }

    void an_instance_that_found_another_becomes_the_running_one_later()
    {
        Instance first;
        QVERIFY(PreviousInstance());
        first.Crash();
        QVERIFY(!PreviousInstance());
        ReleaseInstance();
        const Instance next;
        QVERIFY(next.IsFirst());
    }

    void the_claim_is_given_up()
    {
        QVERIFY(!PreviousInstance());
        ReleaseInstance();
        ReleaseInstance();
        const Instance other;
        QVERIFY(other.IsFirst());
    }

    void a_program_that_was_started_does_not_hold_the_claim()
    {
        const QByteArray pipe = QFile::encodeName(home_->filePath(u"pipe"_s));
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
        QVERIFY(!PreviousInstance());
        RunningProcess process(u"sh -c \"read line < '%1'\""_s.arg(QString::fromUtf8(pipe)));
        ReleaseInstance();
        const Instance other;
        const bool isRunning = process.ExitCode() == RunningProcess::stillActive;
        // Whatever came out, the program must not wait for ever.
        QFile end(QString::fromUtf8(pipe));
        QVERIFY(end.open(QIODevice::WriteOnly));
        end.write("\n");
        end.close();
        QTRY_VERIFY(process.ExitCode() != RunningProcess::stillActive);
        QVERIFY(isRunning);
        QVERIFY(other.IsFirst());
    }

    void another_user_has_instances_of_his_own()
    {
        Instance other;
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        QVERIFY(!PreviousInstance());
    }

    void without_a_place_for_the_claim_the_program_starts_all_the_same()
    {
        QFile file(home_->filePath(u"torvik2001"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(!PreviousInstance());
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

TORVIK_TEST(SingleInstanceTest)
#include "single_instance_test.moc"
