#include "program/program_state.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The buttons that open and close emblem, script and clip art, and the clicks on these pictures.
class EmblemAndScriptButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        for (const char* prefix : {"67", "69", "70", "A1"})
            program_->disc.AddGroup(QString::fromLatin1(prefix), 2);
        for (const char* file : {"emblems/emb69.jpg", "emblems/emb01.jpg", "scripts/scri69.jpg",
                                 "scripts/scri01.jpg", "ClipArt/69clip.jpg", "ClipArt/01clip.jpg"})
            program_->disc.AddFile(QString::fromLatin1(file), TestDisc::Jpeg(Qt::blue, {160, 90}));
        program_->StartBrowsing();
        Choose(3);
    }
    void cleanup() { program_.reset(); }

    void all_five_panes_are_hidden_at_first_and_say_how_to_copy()
    {
        for (const PictureBox* pane : {&Form1->picEmblem, &Form1->picScript, &Form1->picClipArt,
                                       &Form1->picEmbSide, &Form1->picEmbRear}) {
            QVERIFY(!pane->Visible());
            QCOMPARE(pane->ToolTip(), u"Click the Right mouse button to copy"_s);
        }
        const auto place = [](const PictureBox& pane) { return pane.Widget().geometry(); };
        QCOMPARE(place(Form1->picEmblem), QRect(680, 288, 97, 41));
        QCOMPARE(place(Form1->picScript), QRect(680, 192, 97, 41));
        QCOMPARE(place(Form1->picClipArt), QRect(152, 48, 481, 41));
        QCOMPARE(place(Form1->picEmbSide), QRect(680, 144, 97, 41));
        QCOMPARE(place(Form1->picEmbRear), QRect(680, 240, 97, 41));
    }

    void a_button_opens_its_picture_and_moves_the_focus_on_data() { Panes(); }
    void a_button_opens_its_picture_and_moves_the_focus_on()
    {
        QFETCH(int, pane);
        program_->Click(ButtonOf(pane));
        QVERIFY(PaneOf(pane).Visible());
        QCOMPARE(PaneOf(pane).Width(), 160.0);
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void a_second_click_closes_emblem_or_script_and_moves_the_focus_once_more_data()
    {
        QTest::addColumn<int>("pane");
        QTest::newRow("emblem") << 0;
        QTest::newRow("script") << 1;
    }
    void a_second_click_closes_emblem_or_script_and_moves_the_focus_once_more()
    {
        QFETCH(int, pane);
        program_->Click(ButtonOf(pane));
        Form1->cmdYR(20).SetFocus();
        program_->Click(ButtonOf(pane));
        QVERIFY(!PaneOf(pane).Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        program_->Click(ButtonOf(pane));
        QVERIFY(PaneOf(pane).Visible());
    }

    void a_second_click_closes_the_clip_art_and_leaves_the_focus()
    {
        program_->Click(Form1->cmdClipArt);
        program_->Click(Form1->cmdClipArt);
        QVERIFY(!Form1->picClipArt.Visible());
        QCOMPARE(Program::Focus(), u"cmdClipArt"_s);
    }

    void with_nothing_chosen_no_button_does_anything_data() { Panes(); }
    void with_nothing_chosen_no_button_does_anything()
    {
        QFETCH(int, pane);
        Form1->panYear.SetCaption(nothingChosen);
        state.ErrorCode = u"before"_s;
        state.YearCode = u"xx"_s;
        program_->Click(ButtonOf(pane));
        QVERIFY(!PaneOf(pane).Visible());
        QCOMPARE(Program::Focus(), ButtonOf(pane).Name());
        QCOMPARE(state.ErrorCode, u"before"_s);
        QCOMPARE(state.YearCode, u"xx"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void with_nothing_chosen_only_an_open_clip_art_closes()
    {
        for (const int pane : {0, 1, 2})
            program_->Click(ButtonOf(pane));
        Form1->panYear.SetCaption(nothingChosen);
        for (const int pane : {0, 1, 2})
            program_->Click(ButtonOf(pane));
        QVERIFY(Form1->picEmblem.Visible());
        QVERIFY(Form1->picScript.Visible());
        QVERIFY(!Form1->picClipArt.Visible());
    }

    void the_pictures_of_2001_go_by_its_last_digits_data() { Panes(); }
    void the_pictures_of_2001_go_by_its_last_digits()
    {
        QFETCH(int, pane);
        Choose(35);
        program_->Click(ButtonOf(pane));
        const QString names[] = {u"emb01.jpg"_s, u"scri01.jpg"_s, u"01clip.jpg"_s};
        QCOMPARE(PaneOf(pane).Picture().FileName(), names[pane]);
        QCOMPARE(Program::Focus(), u"cmdYR(1)"_s);
    }

    void clip_art_leaves_the_digits_of_the_title_as_the_year_code()
    {
        Choose(35);
        state.YearCode = u"A1"_s;
        program_->Click(Form1->cmdClipArt);
        QCOMPARE(state.YearCode, u"01"_s);
        program_->Press(Qt::Key_Period); // and stepping still finds the year's photos
        QCOMPARE(Form1->Image4.Picture().FileName(), u"A1B.JPG"_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void clip_art_comes_up_in_front_in_its_place()
    {
        program_->Click(Form1->cmdEmblem);
        program_->Click(Form1->cmdClipArt);
        QCOMPARE(Form1->Host().children().last()->objectName(), u"picClipArt"_s);
        QCOMPARE(Form1->picClipArt.Widget().pos(), QPoint(622, 24));
    }

    void a_missing_picture_is_reported_and_the_focus_moves_all_the_same_data()
    {
        QTest::addColumn<int>("pane");
        QTest::addColumn<QString>("code");
        QTest::newRow("emblem") << 0 << u"ER022"_s;
        QTest::newRow("script") << 1 << u"ER021"_s;
        QTest::newRow("clip art") << 2 << u"ER035"_s;
    }
    void a_missing_picture_is_reported_and_the_focus_moves_all_the_same()
    {
        QFETCH(int, pane);
        QFETCH(QString, code);
        Choose(4);
        state.YearCode = u"xx"_s;
        program_->Click(ButtonOf(pane));
        QCOMPARE(program_->messages.Count(), 1);
        QVERIFY(program_->messages.Last().text.startsWith(u"Error number: "_s + code));
        QCOMPARE(state.ErrorCode, code);
        QVERIFY(!PaneOf(pane).Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(5)"_s);
        QCOMPARE(state.YearCode, pane == 2 ? u"70"_s : u"xx"_s);
        QVERIFY(Form1->Enabled());
    }

    void a_click_on_a_picture_closes_it_and_moves_the_focus_on_data() { Panes(); }
    void a_click_on_a_picture_closes_it_and_moves_the_focus_on()
    {
        QFETCH(int, pane);
        program_->Click(ButtonOf(pane));
        Form1->cmdYR(20).SetFocus();
        program_->Click(PaneOf(pane));
        QVERIFY(!PaneOf(pane).Visible());
        QCOMPARE(Program::Focus(), u"cmdYR(4)"_s);
        QCOMPARE(state.ClipboardRequest, u" "_s);
        QCOMPARE(program_->messages.Count(), 0);
    }

    void open_pictures_follow_the_year_that_is_chosen()
    {
        for (const int pane : {0, 1, 2})
            program_->Click(ButtonOf(pane));
        Choose(35);
        QCOMPARE(Form1->picEmblem.Picture().FileName(), u"emb01.jpg"_s);
        QCOMPARE(Form1->picScript.Picture().FileName(), u"scri01.jpg"_s);
        QCOMPARE(Form1->picClipArt.Picture().FileName(), u"01clip.jpg"_s);
        QVERIFY(Form1->picEmblem.Visible() && Form1->picScript.Visible() && Form1->picClipArt.Visible());
    }

    void the_right_button_asks_and_the_others_do_not_data()
    {
        QTest::addColumn<int>("pane");
        for (const int pane : {0, 1, 2, 3})
            QTest::newRow(qPrintable(PaneNames()[pane])) << pane;
    }
    void the_right_button_asks_and_the_others_do_not()
    {
        QFETCH(int, pane);
        PictureBox& picture = PaneOf(pane);
        picture.Show();
        picture.ZOrder();
        program_->messages.Answer(msgbox::answerNo);
        program_->Click(picture, Qt::RightButton);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(state.ClipboardRequest, u"2"_s);
        QVERIFY(picture.Visible());
        program_->Click(picture, Qt::MiddleButton);
        QCOMPARE(program_->messages.Count(), 1);
        QCOMPARE(state.ClipboardRequest, u" "_s);
        QVERIFY(picture.Visible());
    }

    void the_side_emblem_stays_at_a_click()
    {
        Form1->picEmbSide.Show();
        program_->Click(Form1->picEmbSide);
        QVERIFY(Form1->picEmbSide.Visible());
        QCOMPARE(state.ClipboardRequest, u" "_s);
    }

    void the_rear_emblem_is_never_copied()
    {
        Form1->picEmbRear.Show();
        state.ClipboardRequest = u"2"_s;
        program_->Click(Form1->picEmbRear, Qt::RightButton);
        QCOMPARE(state.ClipboardRequest, u"2"_s);
        program_->Click(Form1->picEmbRear);
        QCOMPARE(state.ClipboardRequest, u" "_s);
        QVERIFY(Form1->picEmbRear.Visible());
        QCOMPARE(program_->messages.Count(), 0);
    }

private:
    static void Panes()
    {
        QTest::addColumn<int>("pane");
        QTest::newRow("emblem") << 0;
        QTest::newRow("script") << 1;
        QTest::newRow("clip art") << 2;
    }
    static QStringList PaneNames()
    {
        return {u"picEmblem"_s, u"picScript"_s, u"picClipArt"_s, u"picEmbSide"_s};
    }
    static PictureBox& PaneOf(int pane)
    {
        PictureBox* const panes[] = {&Form1->picEmblem, &Form1->picScript, &Form1->picClipArt,
                                     &Form1->picEmbSide};
        return *panes[pane];
    }
    static Button& ButtonOf(int pane)
    {
        Button* const buttons[] = {&Form1->cmdEmblem, &Form1->cmdScript, &Form1->cmdClipArt};
        return *buttons[pane];
    }
    void Choose(int year)
    {
        program_->Click(Form1->cmdYR(year));
        program_->messages.Clear();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(EmblemAndScriptButtonsTest)
#include "emblem_and_script_buttons_test.moc"
