#include "platform/paths/program_folder.h"
#include "program/help_position.h"
#include "program/program_state.h"
#include "support/test_class.h"

#include <QTemporaryDir>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What is noted for the help window, and its end.
class HelpPositionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { state = ProgramState(); }
    void cleanup() { SetProgramFolder({}); }

    void the_window_and_its_place_are_noted()
    {
        InitHelp(4711);
        QCOMPARE(state.HelpWindowHandle, 4711);
        QCOMPARE(state.HelpWindowInfo.wStructSize, 26);
        QCOMPARE(state.HelpWindowInfo.x, 256);
        QCOMPARE(state.HelpWindowInfo.y, 256);
        QCOMPARE(state.HelpWindowInfo.dx, 512);
        QCOMPARE(state.HelpWindowInfo.dy, 512);
        QCOMPARE(state.HelpWindowInfo.wMax, 0);
        QCOMPARE(int(state.HelpWindowInfo.rgchMember[0]), 0);
        QCOMPARE(int(state.HelpWindowInfo.rgchMember[1]), 0);
    }

    void the_help_file_lies_in_the_program_folder_and_is_known_from_the_start()
    {
        const QTemporaryDir folder;
        SetProgramFolder(folder.path());
        QCOMPARE(HelpFile(), ProgramFolder() + u"\\Torvik2001.HLP"_s);
    }

    void a_program_folder_that_is_a_root_gets_no_second_backslash()
    {
        SetProgramFolder(u"/"_s);
        QCOMPARE(HelpFile(), u"C:\\Torvik2001.HLP"_s);
    }

    void quitting_closes_the_help_that_is_open()
    {
        QWidget help;
        help.setObjectName(u"HelpViewer"_s);
        help.show();
        QuitHelp();
        QVERIFY(!help.isVisible());
    }

    void quitting_without_help_does_nothing()
    {
        QuitHelp();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
};

TORVIK_TEST(HelpPositionTest)
#include "help_position_test.moc"
