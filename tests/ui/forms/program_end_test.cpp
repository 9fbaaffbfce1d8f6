#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/application.h"
#include "ui/controls/button.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct FirstForm : Form {
    FirstForm() : Form(DesignOf(u"First"_s)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}};
};

struct SecondForm : Form {
    SecondForm() : Form(DesignOf(u"Second"_s)) {}
};

struct ThirdForm : Form {
    ThirdForm() : Form(DesignOf(u"Third"_s)) {}
};

FormHandle<FirstForm> first;
FormHandle<SecondForm> second;
FormHandle<ThirdForm> third;

bool Ends(const std::function<void()>& statement)
{
    try {
        statement();
        return false;
    } catch (const ProgramEnd&) {
        return true;
    }
}

} // namespace

/// The end of the program at once, from wherever it is called.
class ProgramEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void no_statement_after_the_end_runs()
    {
        bool after = false;
        QVERIFY(!ProgramIsEnding());
        QVERIFY(Ends([&] {
            EndProgram();
            after = true;
        }));
        QVERIFY(!after);
        QVERIFY(ProgramIsEnding());
    }

    void calls_that_let_others_run_leave_while_the_program_is_ending()
    {
        QVERIFY(!Ends(LeaveIfEnding));
        QVERIFY(!Ends(DoEvents));
        RunHandler([] { EndProgram(); });
        QVERIFY(Ends(LeaveIfEnding));
        QVERIFY(Ends(DoEvents));
        QVERIFY(Ends(WaitForEvents));
        ForgetProgramEnd();
        QVERIFY(!Ends(LeaveIfEnding));
    }

    void a_form_is_not_asked_and_not_unloaded()
    {
        bool asked = false;
        first->QueryUnload = [&](bool&) { asked = true; };
        first->Unload = [&] { asked = true; };
        RunHandler([] { EndProgram(); });
        FormHandleBase::DiscardAll();
        QVERIFY(!asked);
        QVERIFY(!first.IsLoaded());
    }

    void the_end_inside_nested_modal_forms_leaves_all_of_them()
    {
        QStringList after;
        QVERIFY(UiRoom::Open(*first));
        first->Go.Click = [&] {
            UiRoom::Soon([&] {
                RunHandler([&] {
                    UiRoom::Soon([&] {
                        RunHandler([&] {
                            EndProgram();
                            after.append(u"end"_s);
                        });
                    });
                    third->ShowModal();
                    after.append(u"third"_s);
                });
            });
            second->ShowModal();
            after.append(u"second"_s);
        };
        QTest::mouseClick(&first->Go.Widget(), Qt::LeftButton);
        QVERIFY(ProgramIsEnding());
        QCOMPARE(after, QStringList());
        QVERIFY(first.IsLoaded() && second.IsLoaded() && third.IsLoaded());
    }

    void the_event_loop_of_the_program_ends()
    {
        UiRoom::Soon([] { RunHandler([] { EndProgram(); }); });
        QCOMPARE(QApplication::exec(), 0);
    }

    void a_forgotten_end_lets_modal_forms_wait_again()
    {
        RunHandler([] { EndProgram(); });
        ForgetProgramEnd();
        bool waited = false;
        UiRoom::Soon([&] {
            waited = true;
            second->Hide();
        });
        second->ShowModal();
        QVERIFY(waited);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(ProgramEndTest)
#include "program_end_test.moc"
