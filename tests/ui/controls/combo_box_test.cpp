#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/combo_box.h"
#include "ui/form_fixture.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    ComboBox Combo{*this, u"Combo"_s, {0, 0, 1500, 375}, {u"one "_s, u"two"_s}};
    ComboBox Empty{*this, u"Empty"_s, {0, 600, 1500, 375}, {}};
};

FormHandle<MainForm> Main;

} // namespace

/// A drop-down list.
class ComboBoxTest : public FormFixture {
    Q_OBJECT

public:
    ComboBoxTest() : FormFixture(Main) {}

private Q_SLOTS:
    void it_shows_its_first_text() { QCOMPARE(Main->Combo.Text(), u"one "_s); }

    void the_user_chooses_another()
    {
        Main->Combo.SetFocus();
        QTest::keyClick(&Main->Combo.Widget(), Qt::Key_Down);
        QCOMPARE(Main->Combo.Text(), u"two"_s);
    }

    void without_entries_its_text_is_empty() { QCOMPARE(Main->Empty.Text(), QString()); }
};

TORVIK_TEST(ComboBoxTest)
#include "combo_box_test.moc"
