#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/list_box.h"
#include "ui/form_fixture.h"

#include <QListWidget>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s))
    {
        for (const char* year : {"1967", "1968", "1969", "1970"})
            List1.AddItem(QString::fromLatin1(year));
    }
    ListBox List1{*this, u"List1"_s, {0, 0, 1200, 3000}};
};

FormHandle<MainForm> Main;

void ClickEntry(int index, Qt::MouseButton button = Qt::LeftButton)
{
    auto& list = static_cast<QListWidget&>(Main->List1.Widget());
    QTest::mouseClick(list.viewport(), button, {}, list.visualItemRect(list.item(index)).center());
}

} // namespace

/// A list of which one entry can be selected.
class ListBoxTest : public FormFixture {
    Q_OBJECT

public:
    ListBoxTest() : FormFixture(Main) {}

private Q_SLOTS:
    void entries_count_from_0()
    {
        QCOMPARE(Main->List1.ListCount(), 4);
        QCOMPARE(Main->List1.List(0), u"1967"_s);
        QCOMPARE(Main->List1.List(3), u"1970"_s);
    }

    void an_entry_outside_is_failure_381()
    {
        for (const int index : {-1, 4, 1000})
            QCOMPARE(ResumeNext([&] { Main->List1.List(index); }), 381);
        QCOMPARE(ResumeNext([] { Main->List1.SetSelected(4, true); }), 381);
        QCOMPARE(ResumeNext([] { Main->List1.SetSelected(-1, false); }), 381);
    }

    void it_is_spoken_of_as_told_or_by_its_name()
    {
        QCOMPARE(Main->List1.Widget().accessibleName(), u"List1"_s);
        Main->List1.SetSpokenAs(u"From:"_s);
        QCOMPARE(Main->List1.Widget().accessibleName(), u"From:"_s);
        Main->List1.SetToolTip(u"The first year"_s);
        QCOMPARE(Main->List1.Widget().accessibleName(), u"The first year"_s);
    }

    void nothing_is_selected_at_first()
    {
        QCOMPARE(Main->List1.ListIndex(), -1);
        QCOMPARE(Main->List1.Text(), QString());
        Main->List1.SetFocus();
        QCOMPARE(Main->List1.ListIndex(), -1);
    }

    void a_list_index_selects_one_entry()
    {
        Main->List1.SetListIndex(2);
        QCOMPARE(Main->List1.ListIndex(), 2);
        QCOMPARE(Main->List1.Text(), u"1969"_s);
        Main->List1.SetListIndex(0);
        QCOMPARE(static_cast<QListWidget&>(Main->List1.Widget()).selectedItems().size(), 1);
        Main->List1.SetListIndex(-1);
        QCOMPARE(Main->List1.ListIndex(), -1);
        QCOMPARE(Main->List1.Text(), QString());
    }

    void a_list_index_outside_is_failure_380()
    {
        Main->List1.SetListIndex(1);
        for (const int index : {-2, 4})
            QCOMPARE(ResumeNext([&] { Main->List1.SetListIndex(index); }), 380);
        QCOMPARE(Main->List1.ListIndex(), 1);
    }

    void set_selected_selects_and_clears()
    {
        Main->List1.SetSelected(1, true);
        QCOMPARE(Main->List1.ListIndex(), 1);
        Main->List1.SetSelected(3, false); // was not selected
        QCOMPARE(Main->List1.ListIndex(), 1);
        Main->List1.SetSelected(1, false);
        QCOMPARE(Main->List1.ListIndex(), -1);
    }

    void a_click_selects_and_runs_click_once()
    {
        int clicks = 0;
        Main->List1.Click = [&] {
            ++clicks;
            QCOMPARE(Main->List1.ListIndex(), 2);
        };
        ClickEntry(2);
        QCOMPARE(clicks, 1);
        QCOMPARE(Main->List1.Text(), u"1969"_s);
    }

    void a_right_click_is_a_mouse_down_alone()
    {
        int clicks = 0;
        QList<int> downs;
        Main->List1.Click = [&] { ++clicks; };
        Main->List1.MouseDown = [&](int button) { downs.append(button); };
        ClickEntry(1, Qt::RightButton);
        QCOMPARE(downs, QList<int>{mouse::right});
        ClickEntry(1);
        QCOMPARE(downs, (QList<int>{mouse::right, mouse::left}));
        QCOMPARE(clicks, 1);
    }

    void the_arrow_keys_select()
    {
        Main->List1.SetListIndex(0);
        Main->List1.SetFocus();
        QTest::keyClick(&Main->List1.Widget(), Qt::Key_Down);
        QCOMPARE(Main->List1.ListIndex(), 1);
        QTest::keyClick(&Main->List1.Widget(), Qt::Key_End);
        QCOMPARE(Main->List1.Text(), u"1970"_s);
    }

    void the_name_is_spoken()
    {
        QCOMPARE(Main->List1.Widget().accessibleName(), u"List1"_s);
        Main->List1.SetToolTip(u"First year"_s);
        QCOMPARE(Main->List1.Widget().accessibleName(), u"First year"_s);
    }
};

TORVIK_TEST(ListBoxTest)
#include "list_box_test.moc"
