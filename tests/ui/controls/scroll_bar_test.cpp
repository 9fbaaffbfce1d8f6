#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/scroll_bar.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    ScrollBar Flat{*this, u"Flat"_s, {0, 0, 3000, 240}};
    ScrollBar Upright{*this, u"Upright"_s, {3300, 0, 240, 3000}};
};

FormHandle<MainForm> Main;

QScrollBar& Bar()
{
    return static_cast<QScrollBar&>(Main->Flat.Widget());
}

} // namespace

/// Scroll bars and their ranges.
class ScrollBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        QVERIFY(UiRoom::Open(*Main));
        changes_ = 0;
        Main->Flat.Change = [this] { ++changes_; };
    }
    void cleanup() { room_.reset(); }

    void it_lies_by_its_design()
    {
        QCOMPARE(Bar().orientation(), Qt::Horizontal);
        QCOMPARE(static_cast<QScrollBar&>(Main->Upright.Widget()).orientation(), Qt::Vertical);
        QCOMPARE(Main->Flat.Value(), 0);
        QCOMPARE(Main->Flat.Max(), 32767);
    }

    void a_value_outside_is_failure_380()
    {
        Main->Flat.SetMax(100);
        for (const int value : {-1, 101, 32767})
            QCOMPARE(ResumeNext([&] { Main->Flat.SetValue(value); }), 380);
        QCOMPARE(changes_, 0);
        QCOMPARE(ResumeNext([] { Main->Flat.SetValue(100); }), 0);
        QCOMPARE(ResumeNext([] { Main->Flat.SetValue(32768); }), 6);
        QCOMPARE(Main->Flat.Value(), 100);
    }

    void a_change_by_the_program_runs_change_once()
    {
        Main->Flat.SetValue(10);
        Main->Flat.SetValue(10);
        QCOMPARE(changes_, 1);
    }

    void a_change_by_the_user_runs_change()
    {
        QTest::keyClick(&Bar(), Qt::Key_Right);
        QCOMPARE(changes_, 1);
        QCOMPARE(Main->Flat.Value(), 1);
        Main->Flat.SetLargeChange(50);
        QTest::keyClick(&Bar(), Qt::Key_PageUp);
        QCOMPARE(Main->Flat.Value(), 0);
        QTest::keyClick(&Bar(), Qt::Key_PageDown);
        QCOMPARE(Main->Flat.Value(), 50);
        QTest::mouseClick(&Bar(), Qt::LeftButton, {}, {Bar().width() - 40, 8}); // beside the thumb
        QCOMPARE(Main->Flat.Value(), 100);
        QTest::mouseClick(&Bar(), Qt::LeftButton, {}, {Bar().width() - 5, 8}); // the arrow
        QCOMPARE(Main->Flat.Value(), 101);
    }

    void a_max_below_the_value_takes_the_value_along()
    {
        Main->Flat.SetValue(500);
        Main->Flat.SetMax(200);
        QCOMPARE(Main->Flat.Value(), 200);
        QCOMPARE(changes_, 2);
    }

    void a_max_of_zero_or_below_leaves_nothing_to_scroll()
    {
        for (const int max : {0, -1, -32768}) {
            Main->Flat.SetMax(max);
            QCOMPARE(Main->Flat.Max(), max);
            QCOMPARE(Main->Flat.Value(), 0);
            QCOMPARE(ResumeNext([] { Main->Flat.SetValue(1); }), 380);
            QCOMPARE(ResumeNext([] { Main->Flat.SetValue(0); }), 0);
            QTest::keyClick(&Bar(), Qt::Key_Right);
            QCOMPARE(Main->Flat.Value(), 0);
        }
        QCOMPARE(ResumeNext([] { Main->Flat.SetMax(40000); }), 6);
    }

    void a_large_change_outside_is_failure_380()
    {
        for (const int step : {0, -1, -32768})
            QCOMPARE(ResumeNext([&] { Main->Flat.SetLargeChange(step); }), 380);
        Main->Flat.SetLargeChange(32767);
        QCOMPARE(Main->Flat.LargeChange(), 32767);
    }

    void the_steps_are_one_until_they_are_set()
    {
        QCOMPARE(Main->Flat.LargeChange(), 1);
        QCOMPARE(Main->Flat.SmallChange(), 1);
    }

    void a_small_change_is_the_step_of_an_arrow()
    {
        for (const int step : {0, -1, -32768})
            QCOMPARE(ResumeNext([&] { Main->Flat.SetSmallChange(step); }), 380);
        Main->Flat.SetSmallChange(40);
        QCOMPARE(Main->Flat.SmallChange(), 40);
        QTest::mouseClick(&Bar(), Qt::LeftButton, {}, {Bar().width() - 5, 8});
        QCOMPARE(Main->Flat.Value(), 40);
    }

    void a_disabled_bar_does_not_move()
    {
        Main->Flat.SetEnabled(false);
        QTest::keyClick(&Bar(), Qt::Key_Right);
        QTest::mouseClick(&Bar(), Qt::LeftButton, {}, {Bar().width() - 5, 8});
        QCOMPARE(Main->Flat.Value(), 0);
        QCOMPARE(changes_, 0);
    }

private:
    std::unique_ptr<UiRoom> room_;
    int changes_ = 0;
};

TORVIK_TEST(ScrollBarTest)
#include "scroll_bar_test.moc"
