#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/panel.h"
#include "ui/controls/text_box.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels, FormBorder::Sizable, true)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
};

struct SideForm : Form {
    SideForm() : Form(DesignOf(u"Side"_s, Scale::Twips, FormBorder::Fixed)) {}
    Button Go{*this, u"Go"_s, {0, 0, 1200, 375}, u"Go"_s};
};

struct SplashForm : Form {
    SplashForm() : Form(DesignOf(u"Splash"_s, Scale::Twips, FormBorder::None)) {}
};

FormHandle<MainForm> Main;
FormHandle<SideForm> side;
FormHandle<SplashForm> splash;

} // namespace

/// Forms on the screen: plain and modal showing, measures, states.
class FormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void height_counts_a_caption_and_a_menu_bar_of_19_pixels_each()
    {
        QCOMPARE(Main->Width(), 6000.0);
        QCOMPARE(Main->Height(), 4500.0 + 2 * 19 * 15);
        QCOMPARE(side->Height(), 4500.0 + 19 * 15);
        QCOMPARE(splash->Height(), 4500.0);
        for (Form* form : std::initializer_list<Form*>{&*Main, &*side, &*splash}) {
            QVERIFY(UiRoom::Open(*form));
            QCOMPARE(form->Host().size(), QSize(400, 300));
        }
    }

    void the_mouse_pointer_is_the_forms_own()
    {
        QCOMPARE(Main->Pointer(), MousePointer::Default);
        Main->SetMousePointer(MousePointer::Hourglass);
        QCOMPARE(Main->Pointer(), MousePointer::Hourglass);
        QCOMPARE(Main->Window().cursor().shape(), Qt::WaitCursor);
        QCOMPARE(side->Pointer(), MousePointer::Default);
        Main->SetMousePointer(MousePointer::Default);
        QCOMPARE(Main->Pointer(), MousePointer::Default);
    }

    void scale_width_and_height_are_the_client_area_in_the_forms_scale()
    {
        QCOMPARE(Main->ScaleWidth(), 400.0);
        QCOMPARE(Main->ScaleHeight(), 300.0);
        QCOMPARE(side->ScaleWidth(), 6000.0);
        QCOMPARE(side->ScaleHeight(), 4500.0);
        QCOMPARE(Main->ScaleMode(), Scale::Pixels);
        QCOMPARE(Main->TwipsPerUnit(), 15.0);
        QCOMPARE(side->TwipsPerUnit(), 1.0);
    }

    void width_and_height_are_always_twips()
    {
        Main->SetWidth(11994);
        Main->SetHeight(9100);
        QCOMPARE(Main->Width(), 11994.0);
        QCOMPARE(Main->Height(), 9100.0);
        QCOMPARE(Main->Window().width(), 800);  // 799.6
        QCOMPARE(Main->Window().height(), 588); // 606.7 less the caption
        QCOMPARE(Main->ScaleHeight(), (9100.0 - 570) / 15);
    }

    void a_size_of_nothing_leaves_a_window_of_one_pixel()
    {
        side->SetWidth(0);
        side->SetHeight(-100);
        QCOMPARE(side->Window().size(), QSize(1, 1));
        QCOMPARE(side->Width(), 0.0);
    }

    void each_form_has_a_window_number_of_its_own()
    {
        QVERIFY(Main->WindowNumber() != 0);
        QCOMPARE(Main->WindowNumber(), Main->WindowNumber());
        QVERIFY(Main->WindowNumber() != side->WindowNumber());
        QVERIFY(!Main->Visible());
    }

    void a_fixed_form_cannot_be_sized_by_the_user_but_by_the_program()
    {
        QCOMPARE(side->Window().minimumSize(), side->Window().maximumSize());
        side->SetWidth(3000);
        QCOMPARE(side->Window().minimumWidth(), 200);
        QVERIFY(Main->Window().minimumWidth() < Main->Window().maximumWidth());
    }

    void resize_runs_when_the_measures_change()
    {
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->SetWidth(7500);
        QCOMPARE(resizes, 1);
        Main->SetWidth(7500);
        QCOMPARE(resizes, 1);
        Main->SetHeight(7500);
        QCOMPARE(resizes, 2);
        Main->SetLeft(300);
        QCOMPARE(resizes, 2);
    }

    void a_failure_of_resize_is_the_callers()
    {
        Main->Resize = [] { Fail(failure::invalidCall); };
        QCOMPARE(ResumeNext([] { Main->SetWidth(7500); }), 5);
        QVERIFY(!ProgramIsEnding());
    }

    void the_caption_is_the_windows_title()
    {
        QCOMPARE(Main->Caption(), u"Main"_s);
        Main->SetCaption(u"The Torvik Vollandry    2001"_s);
        QCOMPARE(Main->Window().windowTitle(), u"The Torvik Vollandry    2001"_s);
        QCOMPARE(Main->Caption(), u"The Torvik Vollandry    2001"_s);
        QCOMPARE(Main->Window().accessibleName(), Main->Caption());
        QCOMPARE(Main->Window().objectName(), u"Main"_s);
    }

    void an_empty_caption_is_an_empty_title_bar()
    {
        Main->SetCaption(QString());
        QCOMPARE(Main->Caption(), QString());
        QVERIFY(UiRoom::Open(*Main));
        // Qt puts the program's name in the place of a title without a character.
        QCOMPARE(Main->Window().windowHandle()->title(), u" "_s);
        QCOMPARE(Main->Window().accessibleName(), u"Main"_s);
        Main->SetCaption(u"again"_s);
        QCOMPARE(Main->Window().windowHandle()->title(), u"again"_s);
    }

    void a_plain_show_goes_on_at_once()
    {
        int activations = 0;
        Main->Activate = [&] { ++activations; };
        Main->Show();
        QVERIFY(Main->Visible());
        QCOMPARE(activations, 0);
        QTRY_VERIFY(activations > 0);
        Main->Hide();
        QVERIFY(!Main->Visible());
        QVERIFY(Main.IsLoaded());
    }

    void a_hidden_form_is_not_activated()
    {
        int activations = 0;
        Main->Activate = [&] { ++activations; };
        Main->Show();
        Main->Hide();
        UiRoom::Settle();
        QCOMPARE(activations, 0);
    }

    void a_form_that_is_shown_over_another_one_belongs_to_it()
    {
        QVERIFY(UiRoom::Open(*splash));
        side->ShowOver(*splash);
        QVERIFY(QTest::qWaitForWindowExposed(&side->Window()));
        const QWindow* window = side->Window().windowHandle();
        QCOMPARE(window->type(), Qt::Dialog);
        QCOMPARE(window->transientParent(), splash->Window().windowHandle());
        QVERIFY(!side->Window().isModal());
    }

    void a_modal_show_returns_on_unload()
    {
        QVERIFY(UiRoom::Open(*Main));
        QStringList order;
        UiRoom::Soon([&] {
            QCOMPARE(QApplication::activeModalWidget(), &side->Window());
            order.append(u"unload"_s);
            side.Unload();
        });
        side->ShowModal();
        order.append(u"after"_s);
        QCOMPARE(order, (QStringList{u"unload"_s, u"after"_s}));
        QVERIFY(!side.IsLoaded());
    }

    void a_modal_show_returns_on_hide_and_can_be_shown_again()
    {
        for (int time = 0; time < 2; ++time) {
            bool shown = false;
            UiRoom::Soon([&] {
                shown = side->Visible();
                side->Hide();
            });
            side->ShowModal();
            QVERIFY(shown);
            QVERIFY(side.IsLoaded());
        }
        side->Show();
        QVERIFY(!side->Window().isModal());
    }

    void modal_shows_nest()
    {
        QStringList order;
        UiRoom::Soon([&] {
            UiRoom::Soon([&] {
                order.append(u"hide splash"_s);
                splash->Hide();
            });
            splash->ShowModal();
            order.append(u"after splash"_s);
            side->Hide();
        });
        side->ShowModal();
        order.append(u"after side"_s);
        QCOMPARE(order, (QStringList{u"hide splash"_s, u"after splash"_s, u"after side"_s}));
    }

    void an_outer_modal_form_that_goes_first_returns_when_the_inner_one_has_gone()
    {
        QStringList order;
        UiRoom::Soon([&] {
            UiRoom::Soon([&] {
                side.Unload();
                order.append(u"outer gone"_s);
                UiRoom::Soon([&] { splash->Hide(); });
            });
            splash->ShowModal();
            order.append(u"after inner"_s);
        });
        side->ShowModal();
        order.append(u"after outer"_s);
        QCOMPARE(order, (QStringList{u"outer gone"_s, u"after inner"_s, u"after outer"_s}));
    }

    void a_modal_form_alone_takes_input()
    {
        QVERIFY(UiRoom::Open(*Main));
        int clicks = 0;
        Main->Go.Click = [&] { ++clicks; };
        UiRoom::Soon([&] {
            QTest::mouseClick(Main->Window().windowHandle(), Qt::LeftButton, {}, {10, 19 + 10});
            QCOMPARE(clicks, 0);
            side->Hide();
        });
        side->ShowModal();
        QTest::mouseClick(Main->Window().windowHandle(), Qt::LeftButton, {}, {10, 19 + 10});
        QCOMPARE(clicks, 1);
    }

    void a_form_that_is_shown_cannot_be_shown_modally()
    {
        side->Show();
        QCOMPARE(ResumeNext([] { side->ShowModal(); }), 400);
        side->Hide();
        int failed = 0;
        UiRoom::Soon([&] {
            failed = ResumeNext([] { side->ShowModal(); });
            side->Hide();
        });
        side->ShowModal();
        QCOMPARE(failed, 400);
    }

    void the_form_below_is_activated_when_a_modal_one_has_gone()
    {
        QVERIFY(UiRoom::Open(*Main));
        int activations = 0;
        UiRoom::Soon([&] {
            Main->Activate = [&] { ++activations; };
            side.Unload();
        });
        side->ShowModal();
        QTRY_VERIFY(activations > 0);
    }

    void an_activation_waits_while_another_form_is_modal()
    {
        QVERIFY(UiRoom::Open(*Main));
        int activations = 0;
        Main->Activate = [&] { ++activations; };
        UiRoom::Soon([&] {
            Main->Show();
            QCoreApplication::processEvents();
            QCOMPARE(activations, 0);
            side->Hide();
        });
        side->ShowModal();
        QTRY_VERIFY(activations > 0);
    }

    void a_refresh_leaves_the_users_input_waiting()
    {
        Main->Show();
        int clicks = 0;
        Main->Go.Click = [&] { ++clicks; };
        Main->Refresh();
        QVERIFY(Main->Window().windowHandle()->isExposed());
        QCOMPARE(clicks, 0);
    }

    void zorder_and_topmost_keep_the_form_on_the_screen()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->ZOrder();
        Main->SetTopmost(true);
        QVERIFY(Main->Visible());
        QVERIFY(Main->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(Main->Host().size(), QSize(400, 300));
        Main->SetTopmost(false);
        QVERIFY(Main->Visible());
        QVERIFY(!Main->Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        Main->Hide();
        Main->SetTopmost(true);
        QVERIFY(!Main->Visible());
    }

    void the_window_state_can_be_set_and_read()
    {
        QVERIFY(UiRoom::Open(*Main));
        QCOMPARE(Main->WindowState(), Form::State::Normal);
        Main->SetWindowState(Form::State::Maximized);
        QCOMPARE(Main->WindowState(), Form::State::Maximized);
        Main->SetWindowState(Form::State::Minimized);
        QCOMPARE(Main->WindowState(), Form::State::Minimized);
        Main->SetWindowState(Form::State::Normal);
        QCOMPARE(Main->WindowState(), Form::State::Normal);
    }

    void a_minimized_form_keeps_its_measures()
    {
        QVERIFY(UiRoom::Open(*Main));
        Main->SetLeft(600);
        Main->SetWindowState(Form::State::Minimized);
        UiRoom::Settle();
        QCOMPARE(Main->Left(), 600.0);
        QCOMPARE(Main->Width(), 6000.0);
    }

    void unloading_is_safe_while_nothing_is_shown()
    {
        side->SetCaption(u"changed"_s);
        QVERIFY(side.Unload());
        UiRoom::Settle();
        QCOMPARE(side->Caption(), u"Side"_s);
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(FormTest)
#include "form_test.moc"
