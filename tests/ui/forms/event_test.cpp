#include "support/message_script.h"
#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/forms/event.h"

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace torvik;

/// Handlers, and what becomes of their failures.
class EventTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void the_bound_handler_gets_the_arguments()
    {
        Event<int, QString> event;
        QString got;
        QVERIFY(!event.IsBound());
        event = [&](int number, const QString& text) { got = text + QString::number(number); };
        QVERIFY(event.IsBound());
        event.Fire(7, u"a"_s);
        QCOMPARE(got, u"a7"_s);
        event.Call(8, u"b"_s);
        QCOMPARE(got, u"b8"_s);
    }

    void an_unbound_event_does_nothing()
    {
        const Event<> event;
        event.Fire();
        event.Call();
        QVERIFY(!ProgramIsEnding());
    }

    void a_second_binding_takes_the_place_of_the_first()
    {
        Event<> event;
        QString who;
        event = [&] { who += u"first"_s; };
        event = [&] { who += u"second"_s; };
        event.Fire();
        QCOMPARE(who, u"second"_s);
    }

    void a_call_gives_its_failure_to_the_caller()
    {
        MessageScript messages;
        Event<> event;
        event = [] { Fail(failure::pathNotFound); };
        QCOMPARE(ResumeNext([&] { event.Call(); }), 76);
        QVERIFY(messages.Shown().isEmpty());
        QVERIFY(!ProgramIsEnding());
    }

    void an_untrapped_failure_is_shown_and_ends_the_program()
    {
        MessageScript messages;
        bool ran = false;
        Event<> event;
        event = [&] {
            Fail(failure::fileNotFound);
            ran = true;
        };
        event.Fire();
        QVERIFY(!ran);
        QCOMPARE(messages.Count(), 1);
        QCOMPARE(messages.Last().text, u"Run-time error '53':\r\n\r\nFile not found"_s);
        QCOMPARE(messages.Last().style, msgbox::critical);
        QCOMPARE(messages.Last().title, u"The Torvik Vollandry 2001"_s);
        QVERIFY(ProgramIsEnding());
    }

    void a_lack_of_memory_is_failure_7()
    {
        MessageScript messages;
        RunHandler([] { throw std::bad_alloc(); });
        QCOMPARE(messages.Last().text, u"Run-time error '7':\r\n\r\nOut of memory"_s);
        QVERIFY(ProgramIsEnding());
    }

    void a_failure_of_the_program_itself_is_failure_51()
    {
        MessageScript messages;
        RunHandler([] { throw std::out_of_range("index"); });
        QCOMPARE(messages.Last().text, u"Run-time error '51':\r\n\r\nInternal error"_s);
        QVERIFY(ProgramIsEnding());
    }

    void no_handler_runs_while_the_program_is_ending()
    {
        bool ran = false;
        RunHandler([] { EndProgram(); });
        RunHandler([&] { ran = true; });
        QVERIFY(!ran);
        ForgetProgramEnd();
        RunHandler([&] { ran = true; });
        QVERIFY(ran);
    }

    void work_waits_until_the_last_of_the_running_handlers_is_done()
    {
        QStringList order;
        RunHandler([&] {
            RunHandler([&] {
                HandlerScope::WhenAllAreDone([&] { order.append(u"work"_s); });
                order.append(u"inner"_s);
            });
            order.append(u"outer"_s);
        });
        QCOMPARE(order, (QStringList{u"inner"_s, u"outer"_s, u"work"_s}));
        HandlerScope::WhenAllAreDone([&] { order.append(u"at once"_s); });
        QCOMPARE(order.last(), u"at once"_s);
    }

    void a_failure_leaves_no_handler_counted_as_running()
    {
        MessageScript messages;
        Event<> event;
        event = [] { Fail(failure::overflow); };
        QCOMPARE(ResumeNext([&] { event.Call(); }), 6);
        event.Fire();
        bool done = false;
        HandlerScope::WhenAllAreDone([&] { done = true; });
        QVERIFY(done);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(EventTest)
#include "event_test.moc"
