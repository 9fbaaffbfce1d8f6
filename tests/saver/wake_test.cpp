#include "saver/wake.h"
#include "support/test_class.h"

#include <QCloseEvent>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTouchEvent>
#include <QWheelEvent>

using namespace torvik;

namespace {

bool Moves(Wake& wake, const QPointF& place)
{
    return wake.IsCalledBy(
        QMouseEvent(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier));
}

} // namespace

/// What ends the show.
class WakeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void any_key_ends_it()
    {
        Wake wake;
        for (const int key : {Qt::Key_A, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Shift, Qt::Key_Tab})
            QVERIFY(wake.IsCalledBy(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)));
    }

    void the_release_of_the_key_that_started_it_does_not_end_it()
    {
        Wake wake;
        QVERIFY(!wake.IsCalledBy(QKeyEvent(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier)));
    }

    void any_button_and_the_wheel_end_it()
    {
        Wake wake;
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
            QVERIFY(wake.IsCalledBy(
                QMouseEvent(QEvent::MouseButtonPress, {5, 5}, {5, 5}, button, button, Qt::NoModifier)));
        QVERIFY(wake.IsCalledBy(QWheelEvent({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                                            Qt::NoScrollPhase, false)));
        QVERIFY(wake.IsCalledBy(QTouchEvent(QEvent::TouchBegin)));
    }

    void a_window_that_is_closed_ends_it()
    {
        Wake wake;
        QVERIFY(wake.IsCalledBy(QCloseEvent()));
    }

    void the_mouse_may_tremble_but_not_travel()
    {
        Wake wake;
        QVERIFY(!Moves(wake, {400, 300}));
        QVERIFY(!Moves(wake, {402, 301}));
        QVERIFY(!Moves(wake, {396, 303}));
        QVERIFY(!Moves(wake, {400, 305}));
        QVERIFY(Moves(wake, {400, 306}));
    }

    void many_small_steps_count_from_where_the_mouse_was_first_seen()
    {
        Wake wake;
        bool ended = false;
        int steps = 0;
        for (; steps < 20 && !ended; ++steps)
            ended = Moves(wake, {100.0 + steps, 100});
        QCOMPARE(steps, 7); // six pixels from the first place
    }

    void the_first_sight_of_the_mouse_counts_as_its_place()
    {
        Wake wake;
        QVERIFY(!wake.IsCalledBy(QEnterEvent({10, 10}, {10, 10}, {700, 500})));
        QVERIFY(Moves(wake, {300, 200}));
    }

    void a_jump_to_another_screen_ends_it()
    {
        Wake wake;
        QVERIFY(!wake.IsCalledBy(QEnterEvent({10, 10}, {10, 10}, {700, 500})));
        QVERIFY(wake.IsCalledBy(QEnterEvent({10, 10}, {10, 10}, {1700, 500})));
    }

    void what_happens_without_a_person_does_not_end_it()
    {
        Wake wake;
        for (const QEvent::Type type : {QEvent::Timer, QEvent::Expose, QEvent::FocusIn, QEvent::FocusOut,
                                        QEvent::UpdateRequest, QEvent::Leave, QEvent::Show})
            QVERIFY(!wake.IsCalledBy(QEvent(type)));
    }
};

TORVIK_TEST(WakeTest)
#include "wake_test.moc"
