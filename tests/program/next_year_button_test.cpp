#include "program/next_year_button.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The year button that the focus moves on to.
class NextYearButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
        Form1->cmdYR(1).SetEnabled(true);
        Form1->cmdYR(20).SetFocus();
    }
    void cleanup() { program_.reset(); }

    void it_is_the_next_one_and_goes_round()
    {
        QCOMPARE(NextYearButtonAfter(0), 1);
        QCOMPARE(NextYearButtonAfter(1), 2);
        QCOMPARE(NextYearButtonAfter(34), 35);
        QCOMPARE(NextYearButtonAfter(35), 1);
    }

    void the_focus_moves_and_the_current_year_stays()
    {
        state.CurrentYearButton = 7;
        FocusNextYearButton();
        QCOMPARE(Program::Focus(), u"cmdYR(8)"_s);
        QCOMPARE(int(state.CurrentYearButton), 7);
        state.CurrentYearButton = 35;
        FocusNextYearButton();
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
    }

    void a_disabled_button_is_failure_5()
    {
        state.CurrentYearButton = 7;
        Form1->cmdYR(8).SetEnabled(false);
        QCOMPARE(ResumeNext(FocusNextYearButton), 5);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(NextYearButtonTest)
#include "next_year_button_test.moc"
