#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/form_fixture.h"
#include "ui/forms/form_window.h"
#include "ui/forms/input_hold.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s))
    {
        Go.Click = [this] { ++clicks; };
    }
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
    int clicks = 0;
};

FormHandle<MainForm> Main;

void ClickGo()
{
    QTest::mouseClick(&Main->Go.Widget(), Qt::LeftButton);
}

} // namespace

/// A form that is held takes no input, whoever enables it.
class InputHoldTest : public FormFixture {
    Q_OBJECT

public:
    InputHoldTest() : FormFixture(Main) {}

private Q_SLOTS:
    void a_form_that_is_enabled_meanwhile_takes_input_only_when_the_hold_is_over()
    {
        {
            const InputHold hold(*Main);
            Main->SetEnabled(true);
            QVERIFY(!Main->Enabled());
            ClickGo();
            QCOMPARE(Main->clicks, 0);
        }
        QVERIFY(Main->Enabled());
        ClickGo();
        QCOMPARE(Main->clicks, 1);
    }

    void a_form_that_was_disabled_stays_so_after_the_hold()
    {
        Main->SetEnabled(false);
        {
            const InputHold hold(*Main);
        }
        QVERIFY(!Main->Enabled());
        ClickGo();
        QCOMPARE(Main->clicks, 0);
    }

    void the_last_of_several_holds_counts()
    {
        const auto outer = std::make_unique<InputHold>(*Main);
        {
            const InputHold inner(*Main);
        }
        QVERIFY(!Main->Enabled());
    }

    void a_held_form_cannot_be_closed()
    {
        const InputHold hold(*Main);
        Main->Window().close();
        QVERIFY(Main.IsLoaded());
    }

    void a_button_that_is_down_is_let_go()
    {
        auto* button = static_cast<QAbstractButton*>(&Main->Go.Widget());
        QTest::mousePress(button, Qt::LeftButton);
        QVERIFY(button->isDown());
        const InputHold hold(*Main);
        QVERIFY(!button->isDown());
    }

    void a_form_may_go_while_it_is_held()
    {
        const InputHold hold(*Main);
        FormHandleBase::DiscardAll();
        QVERIFY(!Main.IsLoaded());
    }
};

TORVIK_TEST(InputHoldTest)
#include "input_hold_test.moc"
