#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/scroll_bar.h"
#include "ui/controls/scroll_input.h"

#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    PictureBox Pane{*this, u"Pane"_s, {0, 0, 3000, 3000}};
    PictureBox Page{Pane, u"Page"_s, {0, 0, 3000, 3000}};
    ScrollBar Across{*this, u"Across"_s, {0, 3000, 3000, 240}};
    ScrollBar Down{*this, u"Down"_s, {3000, 0, 240, 3000}};
    Button Corner{*this, u"Corner"_s, {3000, 3000, 240, 240}};
    ScrollInput Scrolling{*this, Across, Down};
};

FormHandle<MainForm> Main;

QPoint Place()
{
    return {Main->Across.Value(), Main->Down.Value()};
}

/// Turns the wheel over the page: `angle` in eighths of a degree, 120 to the notch.
void TurnWheel(QWidget& under, const QPoint& angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWheelEvent event(QPointF(20, 20), under.mapToGlobal(QPointF(20, 20)), {}, angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&under, &event);
}

} // namespace

/// Keys and wheel that move the scroll bars of a form.
class ScrollInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QApplication::setWheelScrollLines(3);
        QVERIFY(UiRoom::Open(*Main));
        for (ScrollBar* bar : {&Main->Across, &Main->Down}) {
            bar->SetMax(1000);
            bar->SetSmallChange(40);
            bar->SetLargeChange(200);
            bar->SetValue(500);
        }
    }
    void cleanup() { room_.reset(); }

    void each_key_has_its_way_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("left") << Qt::Key_Left << QPoint(460, 500);
        QTest::newRow("right") << Qt::Key_Right << QPoint(540, 500);
        QTest::newRow("up") << Qt::Key_Up << QPoint(500, 460);
        QTest::newRow("down") << Qt::Key_Down << QPoint(500, 540);
        QTest::newRow("page up") << Qt::Key_PageUp << QPoint(500, 300);
        QTest::newRow("page down") << Qt::Key_PageDown << QPoint(500, 700);
        QTest::newRow("home") << Qt::Key_Home << QPoint(500, 0);
        QTest::newRow("end") << Qt::Key_End << QPoint(500, 1000);
        QTest::newRow("a letter") << Qt::Key_A << QPoint(500, 500);
    }
    void each_key_has_its_way()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QPoint, place);
        for (Control* focused : std::initializer_list<Control*>{&Main->Corner, &Main->Across, &Main->Down}) {
            Main->Across.SetValue(500);
            Main->Down.SetValue(500);
            focused->SetFocus();
            QTest::keyClick(&focused->Widget(), key);
            QCOMPARE(Place(), place);
            QVERIFY(focused->Widget().hasFocus());
        }
    }

    void no_key_goes_past_an_end()
    {
        Main->Corner.SetFocus();
        Main->Across.SetValue(10);
        Main->Down.SetValue(990);
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Left);
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_PageDown);
        QCOMPARE(Place(), QPoint(0, 1000));
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Left);
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_PageDown);
        QCOMPARE(Place(), QPoint(0, 1000));
    }

    void keys_with_a_modifier_are_left_alone()
    {
        for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier})
            QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Down, modifier);
        QCOMPARE(Place(), QPoint(500, 500));
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Down, Qt::KeypadModifier);
        QCOMPARE(Place(), QPoint(500, 540));
    }

    void a_notch_of_the_wheel_is_three_small_steps_wherever_the_pointer_is()
    {
        for (Control* under : std::initializer_list<Control*>{&Main->Page, &Main->Pane, &Main->Corner,
                                                              &Main->Across, &Main->Down}) {
            Main->Across.SetValue(500);
            Main->Down.SetValue(500);
            TurnWheel(under->Widget(), {0, -120});
            QCOMPARE(Place(), QPoint(500, 620));
            TurnWheel(under->Widget(), {0, 240});
            QCOMPARE(Place(), QPoint(500, 380));
        }
    }

    void with_shift_or_turned_sideways_the_wheel_scrolls_across()
    {
        TurnWheel(Main->Page.Widget(), {0, -120}, Qt::ShiftModifier);
        QCOMPARE(Place(), QPoint(620, 500));
        TurnWheel(Main->Page.Widget(), {120, 0});
        QCOMPARE(Place(), QPoint(500, 500));
    }

    void a_fine_wheel_scrolls_by_parts_of_a_notch()
    {
        TurnWheel(Main->Page.Widget(), {0, -15});
        QCOMPARE(Place(), QPoint(500, 515));
    }

    void the_wheel_does_not_go_past_an_end()
    {
        TurnWheel(Main->Page.Widget(), {0, -12000});
        QCOMPARE(Place(), QPoint(500, 1000));
    }

    void a_bar_that_is_disabled_or_hidden_does_not_move()
    {
        Main->Across.SetEnabled(false);
        Main->Down.Hide();
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End})
            QTest::keyClick(&Main->Corner.Widget(), key);
        TurnWheel(Main->Page.Widget(), {-120, -120});
        QCOMPARE(Place(), QPoint(500, 500));
    }

    void one_bar_alone_moves()
    {
        Main->Across.SetEnabled(false);
        Main->Corner.SetFocus();
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Right);
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Down);
        QCOMPARE(Place(), QPoint(500, 540));
    }

    void a_disabled_form_does_not_scroll()
    {
        Main->SetEnabled(false);
        QTest::keyClick(&Main->Corner.Widget(), Qt::Key_Down);
        TurnWheel(Main->Page.Widget(), {0, -120});
        QCOMPARE(Place(), QPoint(500, 500));
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(ScrollInputTest)
#include "scroll_input_test.moc"
