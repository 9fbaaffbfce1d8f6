#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/forms/control_array.h"
#include "ui/forms/menu.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm()
        : Form(DesignOf(u"Main"_s, Scale::Twips, FormBorder::Sizable, true)),
          mnuSpecial(u"mnuSpecial"_s, 5, *this, u"Specialty"_s)
    {}
    ControlArray<Button> cmdYR{u"cmdYR"_s};
    ControlArray<Menu> mnuSpecial;
};

FormHandle<MainForm> Main;

} // namespace

/// Controls of one name, told apart by an index.
class ControlArrayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void a_member_is_named_with_its_index()
    {
        Button& added = Main->cmdYR.Add(3, *Main, Twips{0, 0, 510, 375}, u"69"_s);
        QCOMPARE(added.Name(), u"cmdYR(3)"_s);
        QCOMPARE(&Main->cmdYR(3), &added);
        QCOMPARE(Main->cmdYR(3).Caption(), u"69"_s);
    }

    void an_index_without_a_member_is_failure_340()
    {
        Main->cmdYR.Add(1, *Main, Twips{0, 0, 510, 375});
        for (const int index : {0, 2, -1, 36})
            QCOMPARE(ResumeNext([&] { Main->cmdYR(index); }), 340);
    }

    void indices_may_be_missing_and_each_goes_through_them_in_order()
    {
        for (const int index : {7, 1, 5, 3})
            Main->cmdYR.Add(index, *Main, Twips{0, 0, 510, 375});
        QList<int> seen;
        Main->cmdYR.Each([&](int index, Button& button) {
            seen.append(index);
            QCOMPARE(button.Name(), u"cmdYR(%1)"_s.arg(index));
        });
        QCOMPARE(seen, (QList<int>{1, 3, 5, 7}));
        QCOMPARE(Main->cmdYR.Count(), 4);
    }

    void menus_make_arrays_too()
    {
        QCOMPARE(Main->mnuSpecial(5).Name(), u"mnuSpecial(5)"_s);
        QCOMPARE(Main->mnuSpecial(5).Caption(), u"Specialty"_s);
        QCOMPARE(Main->mnuSpecial.Count(), 1);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(ControlArrayTest)
#include "control_array_test.moc"
