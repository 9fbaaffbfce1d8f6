#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/forms/timer.h"

#include <QPointer>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

int made = 0;

struct SideForm : Form {
    SideForm() : Form(DesignOf(u"Side"_s)) { ++made; }
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
    Timer Timer1{*this, u"Timer1"_s};
};

struct OtherForm : Form {
    OtherForm() : Form(DesignOf(u"Other"_s)) {}
};

} // namespace

/// One instance per form, made when it is first touched.
class FormHandleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        room_ = std::make_unique<UiRoom>();
        side_ = std::make_unique<FormHandle<SideForm>>();
        made = 0;
        calls_.clear();
    }
    void cleanup()
    {
        FormHandleBase::DiscardAll();
        side_.reset();
        room_.reset();
    }

    void the_first_touch_makes_the_form_and_runs_its_load()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([this](SideForm& form) { form.Load = [this] { calls_.append(u"load"_s); }; });
        QVERIFY(!side.IsLoaded());
        QCOMPARE(made, 0);
        QCOMPARE(side->Go.Caption(), u"Go"_s);
        QCOMPARE(calls_, QStringList{u"load"_s});
        QVERIFY(side.IsLoaded());
        QVERIFY(!side->Visible());
        side.LoadForm();
        (*side).Go.SetCaption({});
        QCOMPARE(calls_.size(), 1);
        QCOMPARE(made, 1);
    }

    void handlers_are_bound_to_each_new_instance_before_its_load()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([](SideForm& form) { form.Load = [&form] { form.Go.Click.Call(); }; });
        side.Bind([this](SideForm& form) { form.Go.Click = [this] { calls_.append(u"click"_s); }; });
        side.LoadForm();
        QVERIFY(side.Unload());
        side.LoadForm();
        QCOMPARE(calls_.size(), 2);
        QCOMPARE(made, 2);
    }

    void a_touch_inside_the_load_gives_the_form_as_it_is()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([&](SideForm& form) { form.Load = [&] { side->Go.SetCaption(u"%1"_s.arg(made)); }; });
        QCOMPARE(side->Go.Caption(), u"1"_s);
    }

    void an_unload_inside_the_load_and_a_touch_after_it_make_the_form_anew_without_a_second_load()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([&](SideForm& form) {
            form.Load = [&] {
                calls_.append(u"load"_s);
                QVERIFY(side.Unload());
                QVERIFY(!side.IsLoaded());
                side->Go.SetCaption(u"anew"_s);
            };
        });
        QCOMPARE(side->Go.Caption(), u"anew"_s);
        QCOMPARE(calls_.size(), 1);
        QCOMPARE(made, 2);
    }

    void a_form_that_its_load_unloaded_is_failure_364()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([&](SideForm& form) { form.Load = [&] { side.Unload(); }; });
        QCOMPARE(ResumeNext([&] { side->Go.SetCaption({}); }), 364);
        QVERIFY(!side.IsLoaded());
        side.LoadForm(); // no failure: nothing of the form is asked for
        QVERIFY(!side.IsLoaded());
    }

    void a_load_that_fails_gives_its_failure_to_the_touch()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([](SideForm& form) { form.Load = [] { Fail(failure::typeMismatch); }; });
        QCOMPARE(ResumeNext([&] { side.LoadForm(); }), 13);
        QVERIFY(side.Unload());
        QCOMPARE(ResumeNext([&] { side.LoadForm(); }), 13);
    }

    void unloading_asks_first_and_tells_next()
    {
        FormHandle<SideForm>& side = *side_;
        side->QueryUnload = [this](bool&) { calls_.append(u"query"_s); };
        side->Unload = [this] { calls_.append(u"unload"_s); };
        QVERIFY(side.Unload());
        QCOMPARE(calls_, (QStringList{u"query"_s, u"unload"_s}));
        QVERIFY(!side.IsLoaded());
    }

    void a_form_that_is_not_loaded_is_not_made_to_be_unloaded()
    {
        QVERIFY(side_->Unload());
        QCOMPARE(made, 0);
    }

    void query_unload_can_keep_the_form()
    {
        FormHandle<SideForm>& side = *side_;
        QVERIFY(UiRoom::Open(*side));
        bool keep = true;
        side->QueryUnload = [&](bool& cancel) { cancel = keep; };
        side->Unload = [this] { calls_.append(u"unload"_s); };
        QVERIFY(!side.Unload());
        QVERIFY(side.IsLoaded() && side->Visible());
        QVERIFY(calls_.isEmpty());
        keep = false;
        QVERIFY(side.Unload());
        QVERIFY(!side.IsLoaded());
    }

    void an_unload_inside_query_unload_or_unload_does_not_run_twice()
    {
        FormHandle<SideForm>& side = *side_;
        side->QueryUnload = [&](bool&) {
            calls_.append(u"query"_s);
            side.Unload();
        };
        side->Unload = [&] {
            calls_.append(u"unload"_s);
            side.Unload();
        };
        QVERIFY(side.Unload());
        QCOMPARE(calls_, (QStringList{u"query"_s, u"unload"_s}));
    }

    void the_close_box_asks_like_an_unload()
    {
        FormHandle<SideForm>& side = *side_;
        QVERIFY(UiRoom::Open(*side));
        bool keep = true;
        side->QueryUnload = [&](bool& cancel) { cancel = keep; };
        QVERIFY(!side->Window().close());
        QVERIFY(side.IsLoaded() && side->Visible());
        keep = false;
        side->Window().close();
        QVERIFY(!side.IsLoaded());
    }

    void closing_the_last_form_ends_the_program_and_closing_another_one_does_not()
    {
        FormHandle<OtherForm> other;
        other.LoadForm(); // not on the screen
        FormHandle<SideForm>& side = *side_;
        QVERIFY(UiRoom::Open(*side));
        side->Window().close();
        QVERIFY(!side.IsLoaded());
        QVERIFY(!ProgramIsEnding());
        QVERIFY(other.Unload());
        QVERIFY2(!ProgramIsEnding(), "between two forms the program may have none");
        QVERIFY(UiRoom::Open(*side));
        side->Window().close();
        QVERIFY(ProgramIsEnding());
    }

    void a_handler_may_unload_its_own_form_and_go_on()
    {
        FormHandle<SideForm>& side = *side_;
        QVERIFY(UiRoom::Open(*side));
        const QPointer<Form> old(&*side);
        side->Go.Click = [this, &side, big = std::vector<int>(1000, 7)] {
            side.Unload();
            UiRoom::Settle();
            calls_.append(QString::number(big[999])); // what the handler holds is still there
        };
        QTest::mouseClick(&side->Go.Widget(), Qt::LeftButton);
        QCOMPARE(calls_, QStringList{u"7"_s});
        QVERIFY(!side.IsLoaded());
        UiRoom::Settle();
        QVERIFY(old.isNull());
    }

    void a_mouse_down_or_key_handler_may_unload_its_own_form()
    {
        FormHandle<SideForm>& side = *side_;
        for (const bool byKey : {false, true}) {
            QVERIFY(UiRoom::Open(*side));
            side->Go.MouseDown = [&](int) { side.Unload(); };
            side->Go.KeyDown = [&](int, int) { side.Unload(); };
            side->Go.Click = [this] { calls_.append(u"click"_s); };
            side->Go.SetFocus();
            if (byKey)
                QTest::keyClick(&side->Go.Widget(), Qt::Key_Space);
            else
                QTest::mousePress(&side->Go.Widget(), Qt::RightButton);
            QVERIFY(!side.IsLoaded());
            UiRoom::Settle();
        }
        QVERIFY(calls_.isEmpty());
    }

    void a_form_unloaded_under_a_running_handler_of_its_own_lives_until_that_is_done()
    {
        FormHandle<SideForm>& side = *side_;
        FormHandle<OtherForm> other;
        QVERIFY(UiRoom::Open(*side));
        const QPointer<Form> old(&*side);
        side->Go.Click = [&, big = std::vector<int>(1000, 7)] {
            UiRoom::Soon([&] {
                RunHandler([&] { side.Unload(); });
                UiRoom::Soon([&] { RunHandler([&] { other.Unload(); }); });
            });
            other->ShowModal(); // its loop must not delete what runs below it
            QVERIFY(!old.isNull());
            QVERIFY(old->Retired());
            calls_.append(QString::number(big[0]));
        };
        QTest::mouseClick(&side->Go.Widget(), Qt::LeftButton);
        QCOMPARE(calls_, QStringList{u"7"_s});
        UiRoom::Settle();
        QVERIFY(old.isNull());
    }

    void a_load_that_unloads_its_form_and_shows_another_goes_on_safely()
    {
        FormHandle<SideForm>& side = *side_;
        FormHandle<OtherForm> other;
        side.Bind([&](SideForm& form) {
            form.Load = [&, big = std::vector<int>(1000, 7)] {
                side.Unload();
                UiRoom::Soon([&] { other->Hide(); });
                other->ShowModal();
                calls_.append(QString::number(big[999]));
            };
        });
        side.LoadForm();
        QCOMPARE(calls_, QStringList{u"7"_s});
    }

    void a_touch_after_an_unload_runs_load_again()
    {
        FormHandle<SideForm>& side = *side_;
        side.Bind([this](SideForm& form) { form.Load = [this] { calls_.append(u"load"_s); }; });
        side->Go.SetCaption(u"changed"_s);
        side.Unload();
        QCOMPARE(side->Go.Caption(), u"Go"_s);
        QCOMPARE(calls_.size(), 2);
    }

    void the_name_is_free_for_the_next_instance_at_once()
    {
        FormHandle<SideForm>& side = *side_;
        QVERIFY(UiRoom::Open(*side));
        RunHandler([&] {
            side.Unload();
            side->Show();
            int named = 0;
            for (const QWidget* window : QApplication::topLevelWidgets())
                named += window->objectName() == u"Side"_s ? 1 : 0;
            QCOMPARE(named, 1);
        });
    }

    void the_form_of_a_window_is_found()
    {
        FormHandle<SideForm>& side = *side_;
        QCOMPARE(FormHandleBase::FormOfWindow(&side->Window()), &*side);
        const QWidget stranger;
        QCOMPARE(FormHandleBase::FormOfWindow(&stranger), nullptr);
        QCOMPARE(FormHandleBase::FormOfWindow(nullptr), nullptr);
    }

private:
    std::unique_ptr<UiRoom> room_;
    std::unique_ptr<FormHandle<SideForm>> side_;
    QStringList calls_;
};

TORVIK_TEST(FormHandleTest)
#include "form_handle_test.moc"
