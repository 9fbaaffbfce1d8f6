#include "start/command_line.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// What the command line may say.
class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothing_asks_for_nothing()
    {
        const CommandLine line = ReadCommandLine({});
        QVERIFY(line.Drives.isEmpty());
        QVERIFY(line.ProgramFolder.isEmpty());
        QVERIFY(line.Problem.isEmpty());
        QVERIFY(!line.Help && !line.Version);
    }

    void drives_come_with_or_without_a_letter()
    {
        const CommandLine line = ReadCommandLine(
            {u"--drive"_s, u"G=/discs/one"_s, u"--drive=h:=/discs/two words"_s, u"/discs/three"_s});
        QVERIFY(line.Problem.isEmpty());
        QCOMPARE(line.Drives.size(), 3);
        QCOMPARE(line.Drives[0].Letter, QChar(u'G'));
        QCOMPARE(line.Drives[0].Folder, u"/discs/one"_s);
        QCOMPARE(line.Drives[1].Letter, QChar(u'H'));
        QCOMPARE(line.Drives[1].Folder, u"/discs/two words"_s);
        QVERIFY(line.Drives[2].Letter.isNull());
        QCOMPARE(line.Drives[2].Folder, u"/discs/three"_s);
    }

    void the_program_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({u"--program-folder"_s, u"/p"_s}).ProgramFolder, u"/p"_s);
        QCOMPARE(ReadCommandLine({u"--program-folder=/p"_s}).ProgramFolder, u"/p"_s);
    }

    void the_print_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({u"--print-to"_s, u"/p"_s}).PrintFolder, u"/p"_s);
        QCOMPARE(ReadCommandLine({u"--print-to=/p"_s}).PrintFolder, u"/p"_s);
        QVERIFY(ReadCommandLine({}).PrintFolder.isEmpty());
    }

    void help_and_version_have_short_forms()
    {
        QVERIFY(ReadCommandLine({u"--help"_s}).Help);
        QVERIFY(ReadCommandLine({u"-h"_s}).Help);
        QVERIFY(ReadCommandLine({u"--version"_s}).Version);
        QVERIFY(ReadCommandLine({u"-v"_s}).Version);
    }

    void what_is_wrong_is_said_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("letter C") << QStringList{u"--drive"_s, u"C=/x"_s};
        QTest::newRow("no letter") << QStringList{u"--drive"_s, u"/x"_s};
        QTest::newRow("no folder") << QStringList{u"--drive"_s, u"E="_s};
        QTest::newRow("no value") << QStringList{u"--drive"_s};
        QTest::newRow("no program folder") << QStringList{u"--program-folder"_s};
        QTest::newRow("no print folder") << QStringList{u"--print-to"_s};
        QTest::newRow("unknown option") << QStringList{u"--frobnicate"_s};
    }

    void what_is_wrong_is_said()
    {
        QFETCH(QStringList, arguments);
        QVERIFY(!ReadCommandLine(arguments).Problem.isEmpty());
    }

    void the_help_names_every_option()
    {
        for (const QString& option :
             {u"--drive"_s, u"--program-folder"_s, u"--print-to"_s, u"--help"_s, u"--version"_s, u"FOLDER"_s})
            QVERIFY(HelpText().contains(option));
    }
};

TORVIK_TEST(CommandLineTest)
#include "command_line_test.moc"
