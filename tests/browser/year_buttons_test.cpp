#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The year bar by mouse and keyboard.
class YearButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const QString& prefix : {u"67"_s, u"68"_s, u"69"_s, u"70"_s, u"A0"_s, u"A1"_s})
            program_->disc.AddGroup(prefix, 3);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void a_click_selects_the_year_and_moves_the_focus_on()
    {
        program_->Click(Form1->cmdYR(3));
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(state.YearCode, u"69"_s);
        QCOMPARE(state.CurrentPhotoFile, u"G:\\Torviks\\69A.JPG"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        QCOMPARE(int(state.CurrentYearButton), 3);
        QCOMPARE(int(state.PhotoIndex), 0);
        QVERIFY(program_->messages.Shown().isEmpty());
    }

    void the_last_button_goes_round_to_the_first()
    {
        program_->Click(Form1->cmdYR(35));
        QCOMPARE(Form1->panYear.Caption(), u"2001"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
    }

    void the_button_of_2000_selects_the_code_A0()
    {
        program_->Click(Form1->cmdYR(34));
        QCOMPARE(Form1->panYear.Caption(), u"2000"_s);
        QCOMPARE(state.YearCode, u"A0"_s);
    }

    void the_first_space_bar_takes_the_year_from_the_path_position()
    {
        QCOMPARE(Program::Focus(), u"cmdYR(2)"_s);
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(Program::Focus(), u"cmdYR(3)"_s);
        QCOMPARE(int(state.CurrentYearButton), 2);
        QVERIFY(state.YearChosen);
    }

    void the_second_space_bar_is_a_click_of_the_focused_button()
    {
        program_->Press(Qt::Key_Space);
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(int(state.CurrentYearButton), 3);
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
    }

    void a_click_from_a_topic_returns_to_a_year()
    {
        Form1->mnuSpecialty(1).Click.Fire();
        Form1->cmdStats.SetCaption(u"Details"_s);
        program_->Click(Form1->cmdYR(2));
        QCOMPARE(Form1->panYear.Caption(), u"1968"_s);
        QCOMPARE(Form1->cmdStats.Caption(), u"Details"_s);
        for (const Button* button :
             {&Form1->cmdDesc, &Form1->cmdOptions, &Form1->cmdStats, &Form1->cmdColors, &Form1->cmdScript,
              &Form1->cmdEmblem, &Form1->cmdClipArt, &Form1->cmdAd, &Form1->cmdNostalgia})
            QVERIFY(button->Enabled());
    }

    void every_button_selects_its_year_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 1; index <= 35; ++index)
            QTest::addRow("%d", 1966 + index) << index;
    }

    void every_button_selects_its_year()
    {
        QFETCH(int, index);
        Form1->cmdYR(index).SetEnabled(true);
        program_->Click(Form1->cmdYR(index));
        QCOMPARE(Form1->panYear.Caption(), QString::number(1966 + index));
        QCOMPARE(Program::Focus(), u"cmdYR(%1)"_s.arg(index == 35 ? 1 : index + 1));
        QCOMPARE(int(state.CurrentYearButton), index);
    }

    void a_year_without_photos_leaves_the_focus_on_the_year_after_the_clicked_one()
    {
        program_->Click(Form1->cmdYR(10));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(Program::Focus(), u"cmdYR(11)"_s);
        QVERIFY(!Form1->Image4.Visible());
    }

    void the_space_bar_with_no_position_yet_takes_the_first_year()
    {
        state.TorviksPathPos = 0;
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
    }

    void after_a_click_the_space_bar_only_clicks()
    {
        program_->Click(Form1->cmdYR(2));
        program_->Press(Qt::Key_Space);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(int(state.CurrentYearButton), 3);
    }

    void other_keys_do_nothing()
    {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_5, Qt::Key_Slash, Qt::Key_Semicolon})
            program_->Press(key);
        QCOMPARE(Form1->panYear.Caption(), u"1967"_s);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
        QVERIFY(!state.YearChosen);
    }

    void comma_and_period_step_the_photos()
    {
        program_->Press(Qt::Key_Period);
        QCOMPARE(Form1->panPhoto.Caption(), u"2"_s);
        program_->Press(Qt::Key_Comma);
        QCOMPARE(Form1->panPhoto.Caption(), u"1"_s);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(YearButtonsTest)
#include "year_buttons_test.moc"
