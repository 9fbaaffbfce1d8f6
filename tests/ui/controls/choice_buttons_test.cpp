#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/choice_buttons.h"
#include "ui/controls/frame.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    OptionButton All{*this, u"All"_s, {0, 0, 1500, 300}, u"All Photos"_s};
    OptionButton Chosen{*this, u"Chosen"_s, {0, 300, 1500, 300}, u"Selected Photos"_s};
    Frame Frame1{*this, u"Frame1"_s, {0, 900, 3000, 1500}};
    OptionButton Other{Frame1, u"Other"_s, {0, 0, 1500, 300}, u"Other"_s};
    CheckBox Cover{*this, u"Cover"_s, {3000, 0, 1500, 300}, u" Cover"_s};
    CheckBox ClipArt{*this, u"ClipArt"_s, {3000, 300, 1500, 300}, u" Clip art"_s};
};

FormHandle<MainForm> Main;

} // namespace

/// Option buttons and check boxes.
class ChoiceButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        clicks_.clear();
        for (ChoiceButton* button : std::initializer_list<ChoiceButton*>{
                 &Main->All, &Main->Chosen, &Main->Other, &Main->Cover, &Main->ClipArt})
            button->Click = [this, button] { clicks_.append(button->Name()); };
    }
    void cleanup() { room_.reset(); }

    void choosing_takes_the_choice_from_the_siblings()
    {
        QTest::mouseClick(&Main->All.Widget(), Qt::LeftButton, {}, {6, 10});
        QVERIFY(Main->All.Value() && !Main->Chosen.Value());
        QTest::mouseClick(&Main->Chosen.Widget(), Qt::LeftButton, {}, {6, 10});
        QVERIFY(!Main->All.Value() && Main->Chosen.Value());
        QCOMPARE(clicks_, (QStringList{u"All"_s, u"Chosen"_s}));
    }

    void the_whole_area_takes_the_press()
    {
        for (const ChoiceButton* button : std::initializer_list<ChoiceButton*>{&Main->All, &Main->Cover}) {
            const QRect area = button->Widget().rect();
            QTest::mouseClick(&button->Widget(), Qt::LeftButton, {}, area.center());
            QVERIFY(button->Value());
        }
        QTest::mouseClick(&Main->Cover.Widget(), Qt::LeftButton, {},
                          Main->Cover.Widget().rect().bottomRight());
        QVERIFY(!Main->Cover.Value());
    }

    void another_container_has_a_choice_of_its_own()
    {
        Main->All.SetValue(true);
        Main->Other.SetValue(true);
        QVERIFY(Main->All.Value() && Main->Other.Value());
        Main->Chosen.SetValue(true);
        QVERIFY(Main->Other.Value() && !Main->All.Value());
    }

    void a_disabled_option_keeps_its_choice()
    {
        Main->Chosen.SetValue(true);
        Main->Chosen.SetEnabled(false);
        QVERIFY(Main->Chosen.Value());
        QTest::mouseClick(&Main->Chosen.Widget(), Qt::LeftButton, {}, {6, 10});
        QCOMPARE(clicks_.size(), 1);
    }

    void the_program_can_take_the_last_choice_back_without_a_click()
    {
        Main->All.SetValue(true);
        Main->All.SetValue(false);
        QVERIFY(!Main->All.Value() && !Main->Chosen.Value());
        QCOMPARE(clicks_, QStringList{u"All"_s});
        Main->Chosen.SetValue(true);
        Main->All.SetValue(true);
        QVERIFY(!Main->Chosen.Value()); // they exclude each other again
    }

    void a_change_by_the_program_runs_click_and_no_change_does_not()
    {
        Main->Cover.SetValue(true);
        Main->Cover.SetValue(true);
        QCOMPARE(clicks_, QStringList{u"Cover"_s});
        Main->Cover.SetValue(false);
        QCOMPARE(clicks_.size(), 2);
    }

    void a_failure_of_that_click_is_the_callers()
    {
        Main->Cover.Click = [] { Fail(failure::overflow); };
        QCOMPARE(ResumeNext([] { Main->Cover.SetValue(true); }), 6);
        QVERIFY(Main->Cover.Value());
    }

    void check_boxes_stand_alone()
    {
        QTest::mouseClick(&Main->Cover.Widget(), Qt::LeftButton, {}, {6, 10});
        QTest::mouseClick(&Main->ClipArt.Widget(), Qt::LeftButton, {}, {6, 10});
        QVERIFY(Main->Cover.Value() && Main->ClipArt.Value());
        QTest::mouseClick(&Main->Cover.Widget(), Qt::LeftButton, {}, {6, 10});
        QVERIFY(!Main->Cover.Value() && Main->ClipArt.Value());
        QCOMPARE(clicks_.size(), 3);
    }

    void the_space_bar_changes_the_focused_one()
    {
        Main->Cover.SetFocus();
        QTest::keyClick(&Main->Cover.Widget(), Qt::Key_Space);
        QVERIFY(Main->Cover.Value());
        QCOMPARE(clicks_, QStringList{u"Cover"_s});
    }

    void captions_keep_their_blanks_and_are_spoken()
    {
        QCOMPARE(Main->Cover.Caption(), u" Cover"_s);
        QCOMPARE(Main->Cover.Widget().accessibleName(), u" Cover"_s);
        Main->Cover.SetCaption({});
        QCOMPARE(Main->Cover.Widget().accessibleName(), u"Cover"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
    QStringList clicks_;
};

TORVIK_TEST(ChoiceButtonsTest)
#include "choice_buttons_test.moc"
