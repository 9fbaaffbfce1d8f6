#include "saver/arguments.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

SaverArguments Read(const QString& line, const QString& screenSaverWindow = {})
{
    return ReadSaverArguments(line.split(u' ', Qt::SkipEmptyParts), screenSaverWindow);
}

} // namespace

/// The saver's command line.
class ArgumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_task_has_its_words_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("task");
        QTest::addColumn<quint64>("window");
        const auto row = [](const char* line, SaverTask task, quint64 window = 0) {
            QTest::newRow(line) << QString::fromLatin1(line) << static_cast<int>(task) << window;
        };
        row("", SaverTask::Inform);
        row("/s", SaverTask::Show);
        row("/S", SaverTask::Show);
        row("-s", SaverTask::Show);
        row("--S", SaverTask::Show);
        row("/c", SaverTask::Inform);
        row("/C:1234", SaverTask::Inform);
        row("/c 1234", SaverTask::Inform);
        row("-c", SaverTask::Inform);
        row("/p 1234", SaverTask::Embed, 1234);
        row("/P:1234", SaverTask::Embed, 1234);
        row("-p 0x1A", SaverTask::Embed, 26);
        row("-window-id 4194305", SaverTask::Embed, 4194305);
        row("--window-id 0x400001", SaverTask::Embed, 4194305);
        row("--window-id=0X400001", SaverTask::Embed, 4194305);
        row("-WINDOW-ID 7", SaverTask::Embed, 7);
        row("-root", SaverTask::Desktop);
        row("--root", SaverTask::Desktop);
        row("-root -window-id 7", SaverTask::Embed, 7);
        row("-window-id 7 -root", SaverTask::Embed, 7);
        row("/c /s", SaverTask::Show);
    }

    void each_task_has_its_words()
    {
        QFETCH(QString, line);
        const SaverArguments read = Read(line);
        QCOMPARE(read.problem, QString());
        QTEST(static_cast<int>(read.task), "task");
        QTEST(read.window, "window");
        QVERIFY(!read.help && !read.version);
    }

    void the_window_of_the_environment_is_drawn_into_unless_another_task_is_named_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("given");
        QTest::addColumn<int>("task");
        QTest::addColumn<quint64>("window");
        const auto row = [](const char* line, const char* given, SaverTask task, quint64 window) {
            QTest::addRow("%s with %s", line, given)
                << QString::fromLatin1(line) << QString::fromLatin1(given) << static_cast<int>(task)
                << window;
        };
        row("-root", "0x10", SaverTask::Embed, 16);
        row("", "0x10", SaverTask::Embed, 16);
        row("--drive E=/x", "16", SaverTask::Embed, 16);
        row("-window-id 7", "0x10", SaverTask::Embed, 7);
        row("/s", "0x10", SaverTask::Show, 0);
        row("/c", "0x10", SaverTask::Inform, 0);
        row("-root", "nonsense", SaverTask::Desktop, 0);
        row("-root", "0", SaverTask::Desktop, 0);
        row("", "", SaverTask::Inform, 0);
    }

    void the_window_of_the_environment_is_drawn_into_unless_another_task_is_named()
    {
        QFETCH(QString, line);
        QFETCH(QString, given);
        const SaverArguments read = Read(line, given);
        QTEST(static_cast<int>(read.task), "task");
        QTEST(read.window, "window");
    }

    void drives_and_the_program_folder_are_taken()
    {
        const SaverArguments read =
            Read(u"/s --drive E=/media/a --drive=g:=/b --program-folder /opt/torvik"_s);
        QCOMPARE(read.problem, QString());
        QCOMPARE(read.drives.size(), 2);
        QCOMPARE(read.drives[0].letter, QChar(u'E'));
        QCOMPARE(read.drives[0].folder, u"/media/a"_s);
        QCOMPARE(read.drives[1].letter, QChar(u'G'));
        QCOMPARE(read.drives[1].folder, u"/b"_s);
        QCOMPARE(read.programFolder, u"/opt/torvik"_s);
    }

    void help_and_version()
    {
        for (const char* word : {"--help", "-h", "/?", "-HELP"})
            QVERIFY2(Read(QString::fromLatin1(word)).help, word);
        for (const char* word : {"--version", "-v"})
            QVERIFY2(Read(QString::fromLatin1(word)).version, word);
        for (const char* named : {"/s", "/p WINDOW", "/c", "-root", "-window-id WINDOW",
                                  "--drive LETTER=FOLDER", "--program-folder FOLDER", "--help", "--version"})
            QVERIFY2(SaverHelpText().contains(QString::fromLatin1(named)), named);
    }

    void what_is_wrong_is_told_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char* line, const char* problem) {
            QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(problem);
        };
        row("--bogus", "There is no option --bogus.");
        row("photo.jpg", "There is no option photo.jpg.");
        row("/home/me", "There is no option /home/me.");
        row("-", "There is no option -.");
        row("/p", "/p needs a value.");
        row("-window-id", "-window-id needs a value.");
        row("-window-id me", "-window-id takes the number of a window; not \"me\".");
        row("/p:0", "/p:0 takes the number of a window; not \"0\".");
        row("/p -5", "/p takes the number of a window; not \"-5\".");
        row("-window-id 99999999999999999999",
            "-window-id takes the number of a window; not \"99999999999999999999\".");
        row("--scale", "--scale needs a value.");
        row("--scale 0.5", "--scale takes a number from 1 to 8, or fit, or auto; not \"0.5\".");
        row("--drive", "--drive needs a value.");
        row("--drive C=/x", "--drive takes a letter from D to Z and a folder or a disc image, such as "
                            "E=/media/disc; not \"C=/x\".");
    }

    void what_is_wrong_is_told()
    {
        QFETCH(QString, line);
        QTEST(Read(line).problem, "problem");
    }
};

TORVIK_APPLESS_TEST(ArgumentsTest)
#include "arguments_test.moc"
