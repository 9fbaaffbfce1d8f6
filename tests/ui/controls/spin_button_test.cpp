#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/spin_button.h"
#include "ui/look/button_widget.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    SpinButton SpinButton1{*this, u"SpinButton1"_s, {120, 360, 615, 300}};
};

FormHandle<MainForm> Main;

ButtonWidget& Arrow(const QString& part)
{
    const QString name = u"SpinButton1(%1)"_s.arg(part);
    for (QObject* child : Main->SpinButton1.Widget().children())
        if (child->objectName() == name)
            return *static_cast<ButtonWidget*>(child);
    qFatal("there is no such arrow");
}

ButtonWidget& Up()
{
    return Arrow(u"Up"_s);
}

ButtonWidget& Down()
{
    return Arrow(u"Down"_s);
}

} // namespace

/// Two arrows that step something.
class SpinButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        ups_ = downs_ = 0;
        Main->SpinButton1.SpinUp = [this] { ++ups_; };
        Main->SpinButton1.SpinDown = [this] { ++downs_; };
    }
    void cleanup() { room_.reset(); }

    void each_arrow_has_its_event()
    {
        QTest::mouseClick(&Up(), Qt::LeftButton);
        QCOMPARE(ups_, 1);
        QCOMPARE(downs_, 0);
        QTest::mouseClick(&Down(), Qt::LeftButton);
        QTest::mouseClick(&Down(), Qt::RightButton);
        QCOMPARE(ups_, 1);
        QCOMPARE(downs_, 1);
    }

    void wider_than_tall_it_lies_flat()
    {
        QCOMPARE(Down().geometry(), QRect(0, 0, 20, 20));
        QCOMPARE(Up().geometry(), QRect(20, 0, 21, 20));
    }

    void taller_than_wide_it_stands_upright()
    {
        Main->SpinButton1.SetWidth(300);
        Main->SpinButton1.SetHeight(615);
        QCOMPARE(Up().geometry(), QRect(0, 0, 20, 20));
        QCOMPARE(Down().geometry(), QRect(0, 20, 20, 21));
        QVERIFY(Up().grab().toImage() != Down().grab().toImage());
    }

    void a_square_lies_flat()
    {
        Main->SpinButton1.SetWidth(600);
        Main->SpinButton1.SetHeight(600);
        QCOMPARE(Up().x(), 20);
        QCOMPARE(Up().y(), 0);
    }

    void held_down_it_repeats_until_it_is_let_go()
    {
        QVERIFY(Up().autoRepeat() && Down().autoRepeat());
        Up().setAutoRepeatDelay(1);
        Up().setAutoRepeatInterval(1);
        QTest::mousePress(&Up(), Qt::LeftButton);
        QTRY_VERIFY(ups_ >= 3);
        QTest::mouseRelease(&Up(), Qt::LeftButton);
        const int steps = ups_;
        UiRoom::Settle();
        QCOMPARE(ups_, steps);
        QCOMPARE(downs_, 0);
    }

    void clicking_does_not_take_the_focus()
    {
        const Control* before = Screen.ActiveControl();
        QTest::mouseClick(&Up(), Qt::LeftButton);
        QCOMPARE(Screen.ActiveControl(), before);
    }

    void keys_work_the_arrow_that_the_tab_key_reached()
    {
        Up().setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Up(), Qt::Key_Space);
        QTest::keyClick(&Up(), Qt::Key_Return);
        QCOMPARE(ups_, 2);
    }

    void a_disabled_one_does_nothing()
    {
        Main->SpinButton1.SetEnabled(false);
        QTest::mouseClick(&Up(), Qt::LeftButton);
        QTest::mouseClick(&Down(), Qt::LeftButton);
        QCOMPARE(ups_ + downs_, 0);
    }

    void the_arrows_say_what_they_do()
    {
        QCOMPARE(Up().accessibleName(), u"SpinButton1(Up)"_s);
        Main->SpinButton1.SetSpokenAs(u"Next photo"_s, u"Previous photo"_s);
        QCOMPARE(Up().accessibleName(), u"Next photo"_s);
        QCOMPARE(Down().accessibleName(), u"Previous photo"_s);
        QCOMPARE(Up().objectName(), u"SpinButton1(Up)"_s);
    }

    void a_handler_may_unload_the_form()
    {
        Main->SpinButton1.SpinUp = [] { Main.Unload(); };
        QTest::mouseClick(&Up(), Qt::LeftButton);
        QVERIFY(!Main.IsLoaded());
        UiRoom::Settle();
    }

private:
    std::unique_ptr<UiRoom> room_;
    int ups_ = 0;
    int downs_ = 0;
};

TORVIK_TEST(SpinButtonTest)
#include "spin_button_test.moc"
