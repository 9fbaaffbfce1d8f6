#include "support/slide_visit.h"
#include "support/test_class.h"
#include "ui/forms/program_end.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

Panel* PanelNamed(const QString& name)
{
    return static_cast<Panel*>(Control::OfWidget(frmSlide->Window().findChild<QWidget*>(name)));
}

void EachPanel()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"panYear", "PnlCoStar", "StatusDate", "StatusDay", "StatusTime"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

} // namespace

/// The focus of the slide show goes back to the button that has its keys.
class SlideKeyboardFocusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 4);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void the_keys_work_as_soon_as_the_form_comes_up()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            program_->Press(Qt::Key_Period);
            QCOMPARE(frmSlide->Image1.Picture().FileName(), u"67B.JPG"_s);
        }));
    }

    void they_do_so_in_a_later_show_after_a_press_of_play()
    {
        InSlideShow(*program_, [&] { ClickSlidePart(*program_, u"mmSlide(Play)"_s); });
        QVERIFY(state.SlidePlayPressed);
        QVERIFY(InSlideShow(*program_, [] { QCOMPARE(Program::Focus(), u"SSCommand1"_s); }));
    }

    void a_press_of_play_counts_in_every_later_show()
    {
        QVERIFY(InSlideShow(*program_, [&] { ClickSlidePart(*program_, u"mmSlide(Play)"_s); }));
        QVERIFY(InSlideShow(*program_, [&] {
            QVERIFY(state.SlidePlayPressed);
            frmSlide->cmdExit.SetFocus();
            program_->Click(frmSlide->Image1);
            QCOMPARE(Program::Focus(), u"cmdExit"_s);
            frmSlide->Activate.Fire();
            QCOMPARE(Program::Focus(), u"cmdExit"_s);
            program_->Click(frmSlide->panYear);
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
        }));
    }

    void a_click_on_a_panel_brings_the_focus_back_data() { EachPanel(); }

    void a_click_on_a_panel_brings_the_focus_back()
    {
        QFETCH(QString, name);
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->cmdExit.SetFocus();
            program_->Click(*PanelNamed(name));
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
        }));
    }

    void a_click_on_a_panel_ends_the_program_while_the_show_runs_data() { EachPanel(); }

    void a_click_on_a_panel_ends_the_program_while_the_show_runs()
    {
        QFETCH(QString, name);
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            program_->Click(*PanelNamed(name));
        }));
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(program_->messages.Last().text,
                 u"Run-time error '5':\r\n\r\nInvalid procedure call or argument"_s);
        QVERIFY(ProgramIsEnding());
    }

    void a_click_on_the_other_panels_does_nothing_while_the_show_runs()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            program_->Click(frmSlide->panInterval);
            program_->Click(frmSlide->pnlPhotoNumber);
            program_->Click(frmSlide->Image1);
        }));
        QCOMPARE(program_->messages.Count(), 0);
        QVERIFY(!ProgramIsEnding());
    }

    void a_click_on_the_photo_brings_the_focus_back_until_play_was_pressed_once()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->cmdExit.SetFocus();
            program_->Click(frmSlide->Image1);
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            ClickSlidePart(*program_, u"mmSlide(Pause)"_s);
            frmSlide->cmdExit.SetFocus();
            program_->Click(frmSlide->Image1);
            QCOMPARE(Program::Focus(), u"cmdExit"_s);
        }));
    }

    void coming_up_again_brings_the_focus_back_under_the_same_test()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            frmSlide->cmdExit.SetFocus();
            frmSlide->Activate.Fire();
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
            ClickSlidePart(*program_, u"mmSlide(Play)"_s);
            frmSlide->Activate.Fire();
            QVERIFY(!ProgramIsEnding());
        }));
    }

    void every_control_of_the_form_is_reached_by_the_tab_key()
    {
        QVERIFY(InSlideShow(*program_, [&] {
            QStringList walked;
            for (int press = 0; press < 11; ++press) {
                walked += Program::Focus();
                program_->Press(Qt::Key_Tab);
            }
            QCOMPARE(walked, (QStringList{"SSCommand1", "SSCommand2", "mmSlide(Prev)", "mmSlide(Next)",
                                          "mmSlide(Play)", "mmSlide(Back)", "mmSlide(Step)", "mmSlide(Stop)",
                                          "SpinInterval(Up)", "SpinInterval(Down)", "cmdExit"}));
            QCOMPARE(Program::Focus(), u"SSCommand1"_s);
        }));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideKeyboardFocusTest)
#include "slide_keyboard_focus_test.moc"
