#include "platform/system/process.h"
#include "support/discs/disc_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// The exit code of a command line, once it has ended.
int ExitCodeOf(const QString& commandLine)
{
    const RunningProcess process(commandLine);
    const auto hasEnded = [&process] { return process.ExitCode() != RunningProcess::stillActive; };
    return QTest::qWaitFor(hasEnded, 20000) ? process.ExitCode() : RunningProcess::stillActive;
}

/// Lets a program go on that reads from the pipe; false when none has come to read.
bool LetGoOn(const DiscFolder& disc)
{
    int pipe = -1;
    const auto hasReader = [&] {
        pipe = open(disc.Host("pipe").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return pipe >= 0;
    };
    return QTest::qWaitFor(hasReader, 20000) && write(pipe, "\n", 1) == 1 && close(pipe) == 0;
}

} // namespace

class ProcessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_exit_code_comes_when_the_program_has_ended()
    {
        QCOMPARE(ExitCodeOf(u"sh -c \"exit 7\""_s), 7);
        QCOMPARE(ExitCodeOf(u"true"_s), 0);
    }

    void a_program_that_runs_is_still_active()
    {
        const DiscFolder disc;
        QCOMPARE(mkfifo(disc.Host("pipe").c_str(), 0600), 0);
        const RunningProcess process(u"sh -c \"read x < '%1/pipe'; exit 3\""_s.arg(disc.Path()));
        const int first = process.ExitCode();
        const int second = process.ExitCode();
        QVERIFY(LetGoOn(disc)); // whatever came out, the program must not wait for ever
        QCOMPARE(first, 259);
        QCOMPARE(second, 259);
        QTRY_COMPARE(process.ExitCode(), 3);
        QCOMPARE(process.ExitCode(), 3);
    }

    void the_end_is_noticed_without_an_event_loop()
    {
        const RunningProcess process(u"sh -c \"exit 4\""_s);
        while (process.ExitCode() == RunningProcess::stillActive) {
        }
        QCOMPARE(process.ExitCode(), 4);
    }

    void a_program_that_crashed_has_ended()
    {
        QVERIFY(ExitCodeOf(u"sh -c \"kill -9 $$\""_s) != RunningProcess::stillActive);
    }

    void a_program_is_named_by_its_drive_path_in_any_letter_case()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("IndeoVideo") && disc.File("IndeoVideo/Setup.exe", "#!/bin/sh\nexit 5\n"));
        QCOMPARE(chmod(disc.Host("IndeoVideo/Setup.exe").c_str(), 0755), 0);
        QCOMPARE(ExitCodeOf(u"E:\\INDEOVIDEO\\SETUP.EXE"_s), 5);
    }

    void quotes_hold_a_name_with_blanks_together()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("my setup", "#!/bin/sh\nexit $#\n"));
        QCOMPARE(chmod(disc.Host("my setup").c_str(), 0755), 0);
        QCOMPARE(ExitCodeOf(u"\"E:\\my setup\""_s), 0);
        QCOMPARE(ExitCodeOf(u"  \"E:\\my setup\"  a \"b c\"\t\"\" d\"e f\"g "_s), 4);
    }

    void no_shell_reads_the_command_line()
    {
        const DiscFolder disc;
        QVERIFY(disc.File(
            "count", "#!/bin/sh\n[ \"$1\" = '$(exit)' ] && [ \"$2\" = ';*&|>x' ] && exit $#\nexit 99\n"));
        QCOMPARE(chmod(disc.Host("count").c_str(), 0755), 0);
        QCOMPARE(ExitCodeOf(u"E:\\count $(exit) ;*&|>x 'a' \\b"_s), 4);
    }

    void a_program_that_is_missing_is_not_found()
    {
        const DiscFolder disc;
        QVERIFY(disc.Folder("folder"));
        QCOMPARE(FailureOf([] { RunningProcess(u"E:\\none.exe"_s); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { RunningProcess(u"E:\\folder"_s); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { RunningProcess(u"no-such-program-anywhere"_s); }), failure::fileNotFound);
    }

    void a_file_that_is_no_program_cannot_be_started()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("plain.exe", "MZ"));
        QCOMPARE(FailureOf([] { RunningProcess(u"E:\\plain.exe"_s); }), failure::invalidCall);
        QCOMPARE(chmod(disc.Host("plain.exe").c_str(), 0755), 0);
        QCOMPARE(FailureOf([] { RunningProcess(u"E:\\plain.exe"_s); }), failure::invalidCall);
    }

    void an_empty_command_line_cannot_be_started()
    {
        for (const char* line : {"", "   ", "\"\"", "\"\" a"})
            QCOMPARE(FailureOf([&] { RunningProcess(QString::fromLatin1(line)); }), failure::invalidCall);
    }

    void a_program_on_a_drive_that_stands_for_nothing_is_unavailable()
    {
        QCOMPARE(FailureOf([] { RunningProcess(u"F:\\a.exe"_s); }), failure::deviceUnavailable);
    }

    void a_host_path_is_no_name_of_a_program()
    {
        QCOMPARE(FailureOf([] { RunningProcess(u"/bin/true"_s); }), failure::badFileName);
    }

    void the_program_goes_on_when_nobody_asks_any_more()
    {
        const DiscFolder disc;
        QCOMPARE(mkfifo(disc.Host("pipe").c_str(), 0600), 0);
        {
            const RunningProcess process(u"sh -c \"read x < '%1/pipe'; : > '%1/done'\""_s.arg(disc.Path()));
        }
        QVERIFY(LetGoOn(disc));
        QTRY_VERIFY(QFile::exists(disc.Path() + u"/done"_s));
    }
};

TORVIK_TEST(ProcessTest)
#include "process_test.moc"
