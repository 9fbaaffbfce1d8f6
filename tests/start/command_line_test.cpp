#include "start/command_line.h"

#include <QTest>

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
        const CommandLine line =
            ReadCommandLine({QStringLiteral("--drive"), QStringLiteral("G=/discs/one"),
                             QStringLiteral("--drive=h:=/discs/two words"), QStringLiteral("/discs/three")});
        QVERIFY(line.Problem.isEmpty());
        QCOMPARE(line.Drives.size(), 3);
        QCOMPARE(line.Drives[0].Letter, QChar(u'G'));
        QCOMPARE(line.Drives[0].Folder, QStringLiteral("/discs/one"));
        QCOMPARE(line.Drives[1].Letter, QChar(u'H'));
        QCOMPARE(line.Drives[1].Folder, QStringLiteral("/discs/two words"));
        QVERIFY(line.Drives[2].Letter.isNull());
        QCOMPARE(line.Drives[2].Folder, QStringLiteral("/discs/three"));
    }

    void the_program_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({QStringLiteral("--program-folder"), QStringLiteral("/p")}).ProgramFolder,
                 QStringLiteral("/p"));
        QCOMPARE(ReadCommandLine({QStringLiteral("--program-folder=/p")}).ProgramFolder,
                 QStringLiteral("/p"));
    }

    void the_print_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({QStringLiteral("--print-to"), QStringLiteral("/p")}).PrintFolder,
                 QStringLiteral("/p"));
        QCOMPARE(ReadCommandLine({QStringLiteral("--print-to=/p")}).PrintFolder, QStringLiteral("/p"));
        QVERIFY(ReadCommandLine({}).PrintFolder.isEmpty());
    }

    void help_and_version_have_short_forms()
    {
        QVERIFY(ReadCommandLine({QStringLiteral("--help")}).Help);
        QVERIFY(ReadCommandLine({QStringLiteral("-h")}).Help);
        QVERIFY(ReadCommandLine({QStringLiteral("--version")}).Version);
        QVERIFY(ReadCommandLine({QStringLiteral("-v")}).Version);
    }

    void what_is_wrong_is_said_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("letter C") << QStringList{QStringLiteral("--drive"), QStringLiteral("C=/x")};
        QTest::newRow("no letter") << QStringList{QStringLiteral("--drive"), QStringLiteral("/x")};
        QTest::newRow("no folder") << QStringList{QStringLiteral("--drive"), QStringLiteral("E=")};
        QTest::newRow("no value") << QStringList{QStringLiteral("--drive")};
        QTest::newRow("no program folder") << QStringList{QStringLiteral("--program-folder")};
        QTest::newRow("no print folder") << QStringList{QStringLiteral("--print-to")};
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--frobnicate")};
    }

    void what_is_wrong_is_said()
    {
        QFETCH(QStringList, arguments);
        QVERIFY(!ReadCommandLine(arguments).Problem.isEmpty());
    }

    void the_help_names_every_option()
    {
        for (const QString& option :
             {QStringLiteral("--drive"), QStringLiteral("--program-folder"), QStringLiteral("--print-to"),
              QStringLiteral("--help"), QStringLiteral("--version"), QStringLiteral("FOLDER")})
            QVERIFY(HelpText().contains(option));
    }
};

QTEST_MAIN(CommandLineTest)
#include "command_line_test.moc"
