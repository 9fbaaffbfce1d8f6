#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The menu entry that checks the size of the display.
class DisplayCheckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void on_800_by_600_all_is_well()
    {
        Form1->mnuCheckResolution.Click.Fire();
        QCOMPARE(program_->messages.Count(), 1);
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text, u"Your current screen resolution is set at 800x600.\r\n\r\n"
                           "This is the optimum setting for the Torvik Vollandry!"_s);
        QCOMPARE(box.style, 0);
        QCOMPARE(box.title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(state.MessageText, box.text);
    }

    void on_any_other_size_the_message_tells_it_and_what_to_do()
    {
        program_->SetScreen({1024, 768});
        Form1->mnuCheckResolution.Click.Fire();
        const MessageRequest box = program_->messages.Last();
        QCOMPARE(box.text,
                 u"Your current screen resolution is set at  1024 by 768 pixles.\r\n"
                 "\r\n"
                 "The optimum setting for the Torvik Vollandry is 800 by 600 pixels.\r\n"
                 "\r\n"
                 "Also, The Torvik Vollandry requires that the Small Fonts display setting is selected.\r\n"
                 "\r\n"
                 "To change your resolution and font size settings perform the following steps:\r\n"
                 "    1)  Click the right mouse button while the cursor is on the Windows desktop.\r\n"
                 "    2)  Select the Properties option from the window that will be displayed.\r\n"
                 "    3)  Select the Settings tab.\r\n"
                 "    4)  Adjust the Screen area Slide control to 800x600.\r\n"
                 "    5)  You may also want to set the Colors to the highest level allowed by your\r\n"
                 "         graphics card.\r\n"
                 "    6)  To change the font size setting:\r\n"
                 "          Click the Advanced button on the bottom right of the above window.\r\n"
                 "          Select Small Fonts from the font size drop-down list box.\r\n"
                 "\r\n"
                 "You may now have to re-start your computer for the new settings to take affect.\r\n"_s);
        QCOMPARE(box.style, 48);
        QCOMPARE(box.title, u"The Torvik Vollandry 2001"_s);
        QCOMPARE(state.MessageText, box.text);
    }

    void the_right_width_alone_is_another_size()
    {
        program_->SetScreen({800, 601});
        Form1->mnuCheckResolution.Click.Fire();
        QVERIFY(program_->messages.Last().text.startsWith(
            u"Your current screen resolution is set at  800 by 601 pixles.\r\n"_s));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(DisplayCheckTest)
#include "display_check_test.moc"
