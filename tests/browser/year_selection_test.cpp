#include "shell/form1.h"
#include "shell/program_state.h"
#include "support/program.h"

#include <QTest>

using namespace torvik;

/// The year bar by mouse and keyboard.
class YearSelectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {QStringLiteral("67"), QStringLiteral("68"), QStringLiteral("69"),
                                      QStringLiteral("70"), QStringLiteral("A0"), QStringLiteral("A1")})
            program_->Disc.AddGroup(prefix, 3);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void a_click_selects_the_year_and_moves_the_focus_on()
    {
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1969"));
        QCOMPARE(state.YearCode, QStringLiteral("69"));
        QCOMPARE(state.CurrentPhotoFile, QStringLiteral("G:\\Torviks\\69A.JPG"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(4)"));
        QCOMPARE(int(state.CurrentYearButton), 3);
        QCOMPARE(int(state.PhotoIndex), 0);
        QVERIFY(program_->Messages.Shown().isEmpty());
    }

    void the_last_button_goes_round_to_the_first()
    {
        program_->Click(Form1->cmdYR(35));
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("2001"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(1)"));
    }

    void the_button_of_2000_selects_the_code_A0()
    {
        program_->Click(Form1->cmdYR(34));
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("2000"));
        QCOMPARE(state.YearCode, QStringLiteral("A0"));
    }

    void the_first_space_bar_takes_the_year_from_the_path_position()
    {
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(2)"));
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1969"));
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(3)"));
        QCOMPARE(int(state.CurrentYearButton), 2);
        QVERIFY(state.YearChosen);
    }

    void the_second_space_bar_is_a_click_of_the_focused_button()
    {
        program_->Press(Qt::Key_Space);
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), QStringLiteral("1969"));
        QCOMPARE(int(state.CurrentYearButton), 3);
        QCOMPARE(Program::Focus(), QStringLiteral("cmdYR(4)"));
    }

    void comma_and_period_step_the_photos()
    {
        program_->Press(Qt::Key_Period);
        QCOMPARE(Form1->panPhoto.Caption(), QStringLiteral("2"));
        program_->Press(Qt::Key_Comma);
        QCOMPARE(Form1->panPhoto.Caption(), QStringLiteral("1"));
    }

private:
    std::unique_ptr<Program> program_;
};

QTEST_MAIN(YearSelectionTest)
#include "year_selection_test.moc"
