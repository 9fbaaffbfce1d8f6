#include "support/message_script.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/forms/message_box.h"
#include "ui/forms/timer.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s)) {}
    Timer Timer1{*this, u"Timer1"_s};
    Timer Timer3{*this, u"Timer3"_s, 10};
};

FormHandle<MainForm> Main;

struct OtherForm : Form {
    OtherForm() : Form(DesignOf(u"Other"_s)) {}
    Timer Timer1{*this, u"Timer1"_s};
};

FormHandle<OtherForm> other;

const QDateTime start(QDate(2001, 6, 17), QTime(14, 5, 9));

} // namespace

/// Timers on the hand-turned clock and on the machine's, and the clock itself.
class TimerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        Clock::StopAt(start);
        ticks_ = 0;
    }
    void cleanup() { room_.reset(); }

    void a_stopped_clock_stands_until_it_is_turned()
    {
        QVERIFY(Clock::IsStopped());
        QCOMPARE(Clock::Now(), start);
        QCOMPARE(Clock::Second(), start.toSecsSinceEpoch());
        Clock::Turn(1500);
        QCOMPARE(Clock::Now(), start.addMSecs(1500));
        Clock::Run();
        QVERIFY(!Clock::IsStopped());
        QVERIFY(Clock::Now() > start.addYears(1));
        QVERIFY(qAbs(Clock::Second() - Clock::Now().toSecsSinceEpoch()) <= 1);
    }

    void a_timer_ticks_every_interval()
    {
        Main->Timer3.SetInterval(0);
        Main->Timer1.SetInterval(1000);
        Main->Timer1.Tick = [this] { ++ticks_; };
        QCOMPARE(Main->Timer1.Interval(), 1000);
        Clock::Turn(999);
        QCOMPARE(ticks_, 0);
        Clock::Turn(1);
        QCOMPARE(ticks_, 1);
        Clock::Turn(10'000);
        QCOMPARE(ticks_, 11);
    }

    void an_interval_of_design_runs_from_the_load()
    {
        Main->Timer3.Tick = [this] { ++ticks_; };
        Clock::Turn(100);
        QCOMPARE(ticks_, 10);
    }

    void no_interval_no_tick()
    {
        Main->Timer1.Tick = [this] { ++ticks_; };
        Clock::Turn(100'000);
        QCOMPARE(ticks_, 0);
        QCOMPARE(Main->Timer1.Interval(), 0);
    }

    void setting_the_interval_starts_the_wait_anew()
    {
        Main->Timer1.Tick = [this] { ++ticks_; };
        Main->Timer1.SetInterval(1000);
        Clock::Turn(900);
        Main->Timer1.SetInterval(1000);
        Clock::Turn(900);
        QCOMPARE(ticks_, 0);
        Clock::Turn(100);
        QCOMPARE(ticks_, 1);
    }

    void an_interval_outside_is_failure_380()
    {
        for (const int interval : {-1, 65536, 1'000'000})
            QCOMPARE(ResumeNext([&] { Main->Timer1.SetInterval(interval); }), 380);
        QCOMPARE(ResumeNext([] { Main->Timer1.SetInterval(65535); }), 0);
        QCOMPARE(Main->Timer1.Interval(), 65535);
    }

    void a_tick_may_stop_its_timer()
    {
        Main->Timer1.SetInterval(100);
        Main->Timer1.Tick = [this] {
            ++ticks_;
            Main->Timer1.SetInterval(0);
        };
        Clock::Turn(1000);
        QCOMPARE(ticks_, 1);
    }

    void timers_tick_in_the_order_in_which_they_are_due()
    {
        QStringList order;
        Main->Timer3.SetInterval(300);
        Main->Timer1.SetInterval(200);
        Main->Timer1.Tick = [&] { order.append(u"1 at %1"_s.arg(start.msecsTo(Clock::Now()))); };
        Main->Timer3.Tick = [&] { order.append(u"3 at %1"_s.arg(start.msecsTo(Clock::Now()))); };
        Clock::Turn(500);
        QCOMPARE(order, (QStringList{u"1 at 200"_s, u"3 at 300"_s, u"1 at 400"_s}));
    }

    void a_timer_of_an_unloaded_form_never_ticks()
    {
        RunHandler([this] {
            Main->Timer1.SetInterval(100);
            Main->Timer1.Tick = [this] { ++ticks_; };
            Main.Unload();
            Clock::Turn(1000); // the form still lives, as this handler runs
        });
        QCOMPARE(ticks_, 0);
        UiRoom::Settle();
        Clock::Turn(1000);
        QCOMPARE(ticks_, 0);
    }

    void a_tick_may_unload_its_form()
    {
        Main->Timer1.SetInterval(100);
        Main->Timer1.Tick = [this] {
            ++ticks_;
            Main.Unload();
        };
        Clock::Turn(1000);
        QCOMPARE(ticks_, 1);
        QVERIFY(!Main.IsLoaded());
    }

    void no_tick_interrupts_a_handler_of_its_form_that_asks()
    {
        QVERIFY(UiRoom::Open(*Main));
        other->Timer1.SetInterval(100);
        int others = 0;
        other->Timer1.Tick = [&] { ++others; };
        MessageScript messages;
        messages.WhenAsked([] { Clock::Turn(1000); });
        Main->Timer1.SetInterval(100);
        Main->Timer1.Tick = [this] {
            ++ticks_;
            MsgBox(u"no photo"_s);
        };
        Clock::Turn(100);
        QCOMPARE(ticks_, 1);
        QCOMPARE(messages.Count(), 1);
        QVERIFY(others >= 10);
        Clock::Turn(100);
        QCOMPARE(ticks_, 2);
    }

    void a_failing_tick_ends_the_program()
    {
        MessageScript messages;
        Main->Timer1.SetInterval(100);
        Main->Timer1.Tick = [this] {
            ++ticks_;
            Fail(failure::invalidCall);
        };
        Clock::Turn(1000);
        QCOMPARE(ticks_, 1);
        QCOMPARE(messages.Count(), 1);
        QVERIFY(ProgramIsEnding());
    }

    void on_the_machines_clock_a_timer_ticks_by_itself()
    {
        Clock::Run();
        Main->Timer1.Tick = [this] { ++ticks_; };
        Main->Timer1.SetInterval(1);
        QTRY_VERIFY(ticks_ >= 3);
        Main->Timer1.SetInterval(0);
        const int seen = ticks_;
        Main->Timer3.Tick = [] { Main->Timer3.SetInterval(0); };
        QTRY_COMPARE(Main->Timer3.Interval(), 0);
        QCOMPARE(ticks_, seen);
    }

    void on_the_machines_clock_an_unloaded_form_is_silent_while_it_waits_for_its_end()
    {
        Clock::Run();
        RunHandler([this] {
            Main->Timer3.Tick = [this] { ++ticks_; };
            Main->Timer3.SetInterval(1);
            Main.Unload();
            int turns = 0;
            QTimer other;
            connect(&other, &QTimer::timeout, this, [&] { ++turns; });
            other.start(5);
            QTRY_VERIFY(turns >= 3);
        });
        QCOMPARE(ticks_, 0);
    }

    void stopping_the_clock_stops_the_timers()
    {
        Clock::Run();
        Main->Timer1.SetInterval(1);
        Clock::StopAt(start);
        Main->Timer1.Tick = [this] { ++ticks_; };
        bool passed = false;
        QTimer::singleShot(10, this, [&] { passed = true; });
        QTRY_VERIFY(passed);
        QCOMPARE(ticks_, 0);
        Clock::Turn(1);
        QCOMPARE(ticks_, 1);
    }

private:
    std::unique_ptr<UiRoom> room_;
    int ticks_ = 0;
};

TORVIK_TEST(TimerTest)
#include "timer_test.moc"
