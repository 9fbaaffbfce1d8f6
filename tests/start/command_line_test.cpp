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
        QVERIFY(line.drives.isEmpty());
        QVERIFY(line.programFolder.isEmpty());
        QVERIFY(line.problem.isEmpty());
        QVERIFY(!line.help && !line.version);
    }

    void drives_come_with_or_without_a_letter()
    {
        const CommandLine line = ReadCommandLine(
            {u"--drive"_s, u"G=/discs/one"_s, u"--drive=h:=/discs/two words"_s, u"/discs/three"_s});
        QVERIFY(line.problem.isEmpty());
        QCOMPARE(line.drives.size(), 3);
        QCOMPARE(line.drives[0].letter, QChar(u'G'));
        QCOMPARE(line.drives[0].folder, u"/discs/one"_s);
        QCOMPARE(line.drives[1].letter, QChar(u'H'));
        QCOMPARE(line.drives[1].folder, u"/discs/two words"_s);
        QVERIFY(line.drives[2].letter.isNull());
        QCOMPARE(line.drives[2].folder, u"/discs/three"_s);
    }

    void the_program_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({u"--program-folder"_s, u"/p"_s}).programFolder, u"/p"_s);
        QCOMPARE(ReadCommandLine({u"--program-folder=/p"_s}).programFolder, u"/p"_s);
    }

    void the_print_folder_is_taken_in_both_spellings()
    {
        QCOMPARE(ReadCommandLine({u"--print-to"_s, u"/p"_s}).printFolder, u"/p"_s);
        QCOMPARE(ReadCommandLine({u"--print-to=/p"_s}).printFolder, u"/p"_s);
        QVERIFY(ReadCommandLine({}).printFolder.isEmpty());
    }

    void help_and_version_have_short_forms()
    {
        QVERIFY(ReadCommandLine({u"--help"_s}).help);
        QVERIFY(ReadCommandLine({u"-h"_s}).help);
        QVERIFY(ReadCommandLine({u"--version"_s}).version);
        QVERIFY(ReadCommandLine({u"-v"_s}).version);
    }

    void the_program_is_silent_unless_it_is_asked_to_talk()
    {
        QVERIFY(!ReadCommandLine({u"/discs/one"_s}).verbose);
        const CommandLine line = ReadCommandLine({u"--verbose"_s, u"/discs/one"_s});
        QVERIFY(line.verbose);
        QCOMPARE(line.drives.first().folder, u"/discs/one"_s);
        QVERIFY(line.problem.isEmpty());
    }

    void the_scale_is_a_factor_or_a_word()
    {
        QCOMPARE(ReadCommandLine({}).scale, QString());
        for (const QString& scale : {u"2"_s, u"1.25"_s, u"fit"_s, u"auto"_s}) {
            QCOMPARE(ReadCommandLine({u"--scale"_s, scale}).scale, scale);
            QCOMPARE(ReadCommandLine({u"--scale="_s + scale}).problem, QString());
        }
    }

    void a_check_is_of_one_disc_which_is_no_drive()
    {
        QVERIFY(!ReadCommandLine({u"/discs/one"_s}).check);
        const CommandLine line = ReadCommandLine({u"--check"_s, u"/discs/one"_s, u"--json"_s});
        QVERIFY(line.problem.isEmpty());
        QVERIFY(line.check && line.json);
        QCOMPARE(line.checkedDisc, u"/discs/one"_s);
        QVERIFY(line.drives.isEmpty());
        const CommandLine ofDrive = ReadCommandLine({u"--check"_s, u"--drive=E=/discs/two"_s});
        QVERIFY(ofDrive.problem.isEmpty());
        QCOMPARE(ofDrive.checkedDisc, QString());
        QCOMPARE(ofDrive.drives.size(), 1);
    }

    void what_is_wrong_is_said_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("problem");
        const auto drive = [](const QString& text) {
            return u"--drive takes a letter from D to Z and a folder or a disc image, such as E=/media/disc; not \"%1\"."_s
                .arg(text);
        };
        QTest::newRow("letter C") << QStringList{u"--drive"_s, u"C=/x"_s} << drive(u"C=/x"_s);
        QTest::newRow("no letter") << QStringList{u"--drive"_s, u"/x"_s} << drive(u"/x"_s);
        QTest::newRow("no folder") << QStringList{u"--drive"_s, u"E="_s} << drive(u"E="_s);
        QTest::newRow("the first of two") << QStringList{u"--drive=1"_s, u"--drive=2"_s} << drive(u"1"_s);
        QTest::newRow("no value") << QStringList{u"--drive"_s} << u"Missing value after '--drive'."_s;
        QTest::newRow("no program folder")
            << QStringList{u"--program-folder"_s} << u"Missing value after '--program-folder'."_s;
        QTest::newRow("no print folder")
            << QStringList{u"--print-to"_s} << u"Missing value after '--print-to'."_s;
        QTest::newRow("a scale too large")
            << QStringList{u"--scale"_s, u"9"_s}
            << u"--scale takes a number from 1 to 8, or fit, or auto; not \"9\"."_s;
        QTest::newRow("an empty scale")
            << QStringList{u"--scale="_s}
            << u"--scale takes a number from 1 to 8, or fit, or auto; not \"\"."_s;
        QTest::newRow("a value too many")
            << QStringList{u"--verbose=1"_s} << u"Unexpected value after '--verbose'."_s;
        QTest::newRow("two discs to check")
            << QStringList{u"--check"_s, u"/one"_s, u"/two"_s} << u"--check checks one disc at a time."_s;
        QTest::newRow("JSON of nothing")
            << QStringList{u"--json"_s, u"/one"_s} << u"--json belongs to --check."_s;
        QTest::newRow("unknown option")
            << QStringList{u"--frobnicate"_s} << u"Unknown option 'frobnicate'."_s;
        QTest::newRow("unknown letters") << QStringList{u"-x"_s} << u"Unknown option 'x'."_s;
    }

    void what_is_wrong_is_said()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, problem);
        QCOMPARE(ReadCommandLine(arguments).problem, problem);
    }

    void options_of_qt_are_not_taken_for_letters_of_our_own()
    {
        const CommandLine line =
            ReadCommandLine({u"-reverse"_s, u"-stylesheet"_s, u"x.qss"_s, u"-platform"_s, u"offscreen"_s});
        QVERIFY(!line.help && !line.version);
    }

    void help_is_given_whatever_else_is_wrong()
    {
        QVERIFY(ReadCommandLine({u"--frobnicate"_s, u"--help"_s}).help);
        QVERIFY(ReadCommandLine({u"--drive"_s, u"C=/x"_s, u"--version"_s}).version);
    }

    void what_follows_two_dashes_is_a_folder()
    {
        const CommandLine line = ReadCommandLine({u"--"_s, u"--drive"_s});
        QVERIFY(line.problem.isEmpty());
        QCOMPARE(line.drives.size(), 1);
        QCOMPARE(line.drives.first().folder, u"--drive"_s);
    }

    void the_help_names_every_option()
    {
        for (const QString& option :
             {u"[options] [FOLDER]"_s, u"--drive <LETTER=FOLDER>"_s, u"--program-folder <FOLDER>"_s,
              u"--print-to <FOLDER>"_s, u"--scale <FACTOR>"_s, u"--verbose"_s, u"-h, --help"_s,
              u"-v, --version"_s, u"FOLDER  "_s})
            QVERIFY2(HelpText().contains(option), qPrintable(option));
    }
};

TORVIK_TEST(CommandLineTest)
#include "command_line_test.moc"
