#include "program/program_state.h"
#include "support/menu_choice.h"
#include "support/print_folder.h"
#include "support/program.h"
#include "support/test_class.h"
#include "windows/main_window.h"

#include <QListWidget>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Opening, clearing and closing the booklet panel.
class BookletPanelButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->disc.AddGroup(u"69"_s, 1);
        printed_ = std::make_unique<PrintFolder>();
        program_->StartBrowsing();
    }
    void cleanup()
    {
        printed_.reset();
        program_.reset();
    }

    void the_menu_shows_the_panel_over_the_photo_in_the_middle_of_the_year_bar()
    {
        Open();
        QVERIFY(Form1->pnlPrint.Visible());
        QCOMPARE(Form1->pnlPrint.Top(), Form1->Image4.Top() + 5);
        QCOMPARE(Form1->pnlPrint.Left(), ((2685.0 + 9000.0) / 15 - Form1->pnlPrint.Width()) / 2);
        QVERIFY(Form1->pnlPrint.Left() > 0);
    }

    void the_panel_follows_a_photo_and_a_year_bar_that_were_moved()
    {
        Form1->Image4.SetTop(60);
        Form1->cmdExit.SetLeft(9600);
        Open();
        QCOMPARE(Form1->pnlPrint.Top(), 65.0);
        QCOMPARE(Form1->pnlPrint.Left(), ((2685.0 + 9600.0) / 15 - Form1->pnlPrint.Width()) / 2);
    }

    void it_comes_in_front_of_the_other_panels()
    {
        for (Panel* other : {&Form1->pnlSound, &Form1->pnlSSaver, &Form1->pnlProgress}) {
            other->Show();
            other->ZOrder();
        }
        Open();
        const QWidget& panel = Form1->pnlPrint.Widget();
        const QWidget* front = Form1->Host().childAt(panel.geometry().center());
        QVERIFY(front == &panel || panel.isAncestorOf(front));
    }

    void the_closing_button_is_raised_above_its_siblings()
    {
        Form1->cmdPrint.ZOrder();
        Open();
        QCOMPARE(Form1->pnlPrint.Widget().children().last(), &Form1->cmdOK.Widget());
    }

    void opening_begins_with_nothing_chosen()
    {
        Open();
        ExpectReset();
    }

    void opening_again_takes_all_choices_back()
    {
        Open();
        ChooseEverything();
        program_->Click(Form1->cmdOK);
        Open();
        ExpectReset();
    }

    void clear_takes_all_choices_back_and_leaves_the_panel_open()
    {
        Open();
        ChooseEverything();
        Form1->cmdPrint.SetCaption(u"Print Again"_s);
        Form1->cmdOK.SetCaption(u"Exit"_s);
        program_->Click(Form1->SSCommand7);
        ExpectReset();
        QVERIFY(Form1->pnlPrint.Visible());
    }

    void clear_scrolls_the_lists_back_to_their_beginning()
    {
        Open();
        Form1->List1(1).SetListIndex(34);
        program_->Click(Form1->SSCommand7);
        auto& list = static_cast<QListWidget&>(Form1->List1(1).Widget());
        QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(0)).center()));
    }

    void print_is_there_while_a_box_is_ticked_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index <= 7; ++index)
            QTest::addRow("%d", index) << index;
    }
    void print_is_there_while_a_box_is_ticked()
    {
        QFETCH(int, index);
        Open();
        QVERIFY(!Form1->cmdPrint.Enabled());
        program_->Click(Form1->Check1(index));
        QVERIFY(Form1->Check1(index).Value());
        QVERIFY(Form1->cmdPrint.Enabled());
        program_->Press(Form1->Check1(index), Qt::Key_Space);
        QVERIFY(!Form1->Check1(index).Value());
        QVERIFY(!Form1->cmdPrint.Enabled());
    }

    void one_of_two_ticked_boxes_is_enough()
    {
        Open();
        program_->Click(Form1->Check1(0));
        program_->Click(Form1->Check1(7));
        program_->Click(Form1->Check1(0));
        QVERIFY(Form1->cmdPrint.Enabled());
        program_->Click(Form1->Check1(7));
        QVERIFY(!Form1->cmdPrint.Enabled());
    }

    void years_are_no_reason_to_print()
    {
        Open();
        Form1->List1(0).SetListIndex(3);
        Form1->List1(1).SetListIndex(3);
        QVERIFY(!Form1->cmdPrint.Enabled());
    }

    void the_closing_button_hides_the_panel_and_enables_the_window()
    {
        Open();
        Form1->cmdOK.Click.Call();
        QVERIFY(!Form1->pnlPrint.Visible());
        QVERIFY(Form1->Enabled());
        Open();
        Form1->SetEnabled(false);
        Form1->cmdOK.Click.Call();
        QVERIFY(!Form1->pnlPrint.Visible());
        QVERIFY(Form1->Enabled());
    }

    void escape_does_nothing_before_the_panel_was_opened()
    {
        Form1->pnlProgress.Show();
        Form1->cmdYR(2).SetFocus();
        program_->Press(Qt::Key_Escape);
        QVERIFY(Form1->pnlProgress.Visible());
    }

    void escape_does_nothing_while_the_copy_panels_button_is_disabled()
    {
        Form1->pnlProgress.Show();
        Form1->cmdCancel.SetEnabled(false);
        Open();
        program_->Press(Qt::Key_Escape);
        QVERIFY(Form1->pnlProgress.Visible());
        QVERIFY(Form1->pnlPrint.Visible());
    }

    void the_browsing_view_under_the_panel_stays_as_it_was()
    {
        program_->Click(Form1->cmdYR(3));
        Open();
        program_->Click(Form1->cmdOK);
        QCOMPARE(Form1->panYear.Caption(), u"1969"_s);
        QCOMPARE(Form1->Image4.Picture().FileName(), u"69A.JPG"_s);
        QCOMPARE(printed_->Files(), QStringList());
    }

private:
    void Open()
    {
        ChooseMenu(*Form1, u"mnuPrnt"_s);
        program_->Settle();
    }

    void ChooseEverything()
    {
        for (int index = 0; index <= 7; ++index)
            program_->Click(Form1->Check1(index));
        Form1->List1(0).SetListIndex(5);
        Form1->List1(1).SetListIndex(34);
        QVERIFY(Form1->cmdPrint.Enabled());
    }

    static void ExpectReset()
    {
        for (int index = 0; index <= 7; ++index)
            QVERIFY(!Form1->Check1(index).Value());
        QVERIFY(!Form1->cmdPrint.Enabled());
        QCOMPARE(Form1->cmdPrint.Caption(), u"Print"_s);
        QCOMPARE(Form1->cmdOK.Caption(), u"Cancel"_s);
        for (const int index : {0, 1}) {
            QCOMPARE(Form1->List1(index).ListIndex(), -1);
            QCOMPARE(Form1->List1(index).Text(), QString());
        }
    }

    std::unique_ptr<Program> program_;
    std::unique_ptr<PrintFolder> printed_;
};

TORVIK_TEST(BookletPanelButtonsTest)
#include "booklet_panel_buttons_test.moc"
