#include "platform/paths/program_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

#include <QApplication>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace torvik;

/// The menu entry that opens the help.
class HelpMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup()
    {
        if (QWidget* help = HelpViewer())
            help->close();
        program_.reset();
    }

    void it_shows_the_help_file_of_the_program_folder()
    {
        program_->AddToProgramFolder(u"Torvik2001.HLP"_s,
                                     "{\\rtf1 {\\*\\bkmkstart start}Welcome{\\*\\bkmkend start}\\par}");
        Form1->mnuContents.Click.Fire();
        QVERIFY(HelpViewer() != nullptr);
        QVERIFY(HelpViewer()->isVisible());
        auto* text = HelpViewer()->findChild<QTextBrowser*>(u"HelpText"_s);
        QVERIFY(text != nullptr);
        QVERIFY(text->toPlainText().contains(u"Welcome"_s));
        QCOMPARE(Form1->dlgCommon1.HelpFile(), ProgramFolder() + u"\\Torvik2001.HLP"_s);
        QCOMPARE(Form1->dlgCommon1.HelpCommand(), 3);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_missing_file_brings_the_help_systems_own_message()
    {
        Form1->mnuContents.Click.Fire();
        QVERIFY(HelpViewer() == nullptr);
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.contains(ProgramFolder() + u"\\Torvik2001.HLP"_s));
    }

private:
    static QWidget* HelpViewer()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->objectName() == u"HelpViewer"_s)
                return window;
        }
        return nullptr;
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(HelpMenuTest)
#include "help_menu_test.moc"
