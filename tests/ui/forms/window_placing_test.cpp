#include "support/test_class.h"
#include "support/ui_room.h"

#include <QScreen>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels, FormBorder::Sizable, true)) {}
};

struct PageForm : Form {
    PageForm() : Form(DesignOf(u"Page"_s, Scale::Pixels, FormBorder::None)) {}
};

struct SideForm : Form {
    SideForm() : Form(DesignOf(u"Side"_s)) {}
};

FormHandle<MainForm> Main;
FormHandle<SideForm> side;
FormHandle<PageForm> page;

QPoint FrameCorner()
{
    return Main->Window().pos();
}

} // namespace

/// Where a form stands on the desktop, and who may say so.
class WindowPlacingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { room_ = std::make_unique<UiRoom>(); }
    void cleanup() { room_.reset(); }

    void left_and_top_place_the_corner_of_the_frame()
    {
        Main->SetLeft(1500);
        Main->SetTop(750);
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(FrameCorner(), QPoint(100, 50));
        QCOMPARE(Main->Window().frameGeometry().topLeft(), QPoint(100, 50));
        QCOMPARE(Main->Left(), 1500.0);
        QCOMPARE(Main->Top(), 750.0);
    }

    void sizes_that_follow_the_showing_leave_the_frame_in_its_place()
    {
        Main->SetLeft(0);
        Main->SetTop(0);
        Main->Show();
        Main->SetWidth(7500);
        Main->SetHeight(6000);
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(FrameCorner(), QPoint(0, 0));
        QCOMPARE(Main->Left(), 0.0);
        QCOMPARE(Main->Top(), 0.0);
        QCOMPARE(Main->Width(), 7500.0);
        QCOMPARE(Main->Height(), 6000.0);
    }

    void what_one_handler_does_is_one_change_for_the_desktop()
    {
        struct Sizes : QObject {
            QList<QSize> Seen;
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::Resize)
                    Seen.append(static_cast<QWindow*>(watched)->size());
                return false;
            }
        } sizes;
        Main->SetWidth(Screen.Width());
        Main->SetHeight(Screen.Height());
        Main->Show();
        QVERIFY(Main->Visible());
        QVERIFY(!Main->Window().isVisible()); // the handler goes on
        Main->SetWidth(7500);
        Main->SetHeight(6000);
        Main->SetCaption(u"The last title"_s);
        Main->Window().winId();
        Main->Window().windowHandle()->installEventFilter(&sizes);
        QTRY_VERIFY(!Main->IsSettling());
        QVERIFY(Main->Window().isVisible());
        const QSize last(500, 400 - 19);
        QCOMPARE(Main->Window().size(), last);
        for (const QSize& seen : std::as_const(sizes.Seen))
            QCOMPARE(seen, last);

        sizes.Seen.clear();
        Main->SetWidth(6000);
        Main->SetHeight(4500);
        QCOMPARE(Main->Window().size(), last);
        Main->SetWidth(9000);
        QTRY_VERIFY(!Main->IsSettling());
        QVERIFY(!sizes.Seen.isEmpty());
        for (const QSize& seen : std::as_const(sizes.Seen))
            QCOMPARE(seen, QSize(600, 300 - 19));
    }

    void a_form_that_is_hidden_again_before_the_desktop_heard_of_it_does_not_come_up()
    {
        Main->Show();
        Main->Hide();
        UiRoom::Settle();
        QVERIFY(!Main->Window().isVisible());
    }

    void a_modal_form_comes_up_after_the_forms_that_were_shown_before_it()
    {
        bool below = false;
        UiRoom::Soon([&] {
            below = Main->Window().isVisible();
            page.Unload();
        });
        Main->Show();
        page->ShowModal();
        QVERIFY(below);
    }

    void a_maximized_form_measures_what_it_covers()
    {
        Main->SetLeft(1500);
        Main->SetTop(750);
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        const QMargins frame = Main->Window().windowHandle()->frameMargins();
        Main->Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(Main->Left() == 0.0 && !Main->IsSettling());
        QCOMPARE(Main->WindowState(), Form::State::Maximized);
        const QRect covered = Main->Window().windowHandle()->frameGeometry();
        QCOMPARE(covered, QApplication::primaryScreen()->availableGeometry());
        QCOMPARE(Main->Left(), 0.0);
        QCOMPARE(Main->Top(), 0.0);
        QCOMPARE(Main->Width(), (covered.width() - frame.left() - frame.right()) * 15.0);
        QCOMPARE(Main->Height(), (covered.height() - frame.top() - frame.bottom() + 19) * 15.0);
        QVERIFY(resizes > 0);
        Main->Window().setWindowState(Qt::WindowNoState);
        QTRY_COMPARE(Main->Left(), 1500.0);
        QCOMPARE(Main->Top(), 750.0);
        QCOMPARE(Main->Width(), 6000.0);
        QCOMPARE(Main->Height(), 4500.0 + 2 * 19 * 15);
    }

    void a_form_that_takes_a_maximized_ones_measures_stands_exactly_on_it()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(Main->Width() > 6000.0 && !Main->IsSettling());
        side->SetLeft(Main->Left());
        side->SetTop(Main->Top());
        side->SetWidth(Main->Width());
        side->SetHeight(Main->Height());
        side->Show();
        QTRY_VERIFY(!side->IsSettling());
        QCOMPARE(side->Window().windowHandle()->frameGeometry(),
                 Main->Window().windowHandle()->frameGeometry());
    }

    void a_form_that_is_maximized_before_it_comes_up_has_the_measures_of_that()
    {
        Main->SetWindowState(Form::State::Maximized);
        QCOMPARE(Main->WindowState(), Form::State::Maximized);
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(Main->WindowState(), Form::State::Maximized);
        QVERIFY(Main->Width() > 6000.0);
    }

    void when_the_desktop_ends_the_full_screen_state_that_is_no_resize_but_the_next_one_is()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->CoverScreen(true);
        QTRY_VERIFY(Main->Window().isFullScreen() && !Main->IsSettling());
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->Window().setWindowState(Qt::WindowNoState);
        QTRY_VERIFY(!Main->CoversScreen());
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(resizes, 0);
        Main->Window().resize(500, 400);
        QTRY_COMPARE(resizes, 1);
        QCOMPARE(Main->Width(), 7500.0);
        Main->CoverScreen(false); // which it does already
        UiRoom::Settle();
        QCOMPARE(Main->Width(), 7500.0);
    }

    void a_maximized_form_that_covers_the_screen_comes_back_at_the_measures_that_it_was_given()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(Main->Width() > 6000.0 && !Main->IsSettling());
        Main->CoverScreen(true);
        Main->SetWindowState(Form::State::Normal);
        Main->SetLeft(300);
        Main->SetTop(300);
        Main->SetWidth(7500);
        Main->SetHeight(6000);
        QTRY_VERIFY(Main->Window().isFullScreen() && !Main->IsSettling());
        QCOMPARE(Main->WindowState(), Form::State::Normal);
        Main->Window().setWindowState(Qt::WindowNoState);
        QTRY_VERIFY(!Main->CoversScreen() && !Main->IsSettling());
        QCOMPARE(Main->Window().size(), QSize(500, 400 - 19));
        QCOMPARE(Main->Left(), 300.0);
        QCOMPARE(Main->Width(), 7500.0);
    }

    void a_form_on_the_screen_can_be_moved_by_the_program()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->SetLeft(1200);
        Main->SetTop(900);
        QCOMPARE(Main->Left(), 1200.0);
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(FrameCorner(), QPoint(80, 60));
    }

    void a_place_where_the_user_put_the_window_is_the_forms_own()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->Window().move(33, 44);
        QTRY_COMPARE(Main->Left(), 33 * 15.0);
        QCOMPARE(Main->Top(), 44 * 15.0);
    }

    void a_place_that_the_desktop_gives_while_the_window_settles_is_not()
    {
        Main->SetLeft(1500);
        Main->SetTop(1500);
        Main->Show();
        Main->Window().move(5, 5);
        QCoreApplication::processEvents();
        QCOMPARE(Main->Left(), 1500.0);
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(Main->Left(), 1500.0);
        QCOMPARE(FrameCorner(), QPoint(100, 100));
    }

    void a_size_that_comes_while_the_window_settles_is_kept_with_its_place()
    {
        Main->SetLeft(1500);
        Main->SetTop(1500);
        Main->Show();
        UiRoom::Settle();
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->Window().resize(500, 400);
        Main->Window().move(40, 30);
        QVERIFY(Main->IsSettling());
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(Main->Window().size(), QSize(500, 400));
        QCOMPARE(FrameCorner(), QPoint(40, 30));
        QCOMPARE(Main->Width(), 7500.0);
        QCOMPARE(Main->Left(), 600.0);
        QCOMPARE(Main->Top(), 450.0);
        QCOMPARE(resizes, 1);
    }

    void a_size_that_the_user_gave_is_the_forms_own_and_runs_resize()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->Window().resize(500, 400);
        QTRY_COMPARE(Main->Width(), 7500.0);
        QCOMPARE(Main->Height(), (400 - 19) * 15.0 + 2 * 19 * 15);
        QCOMPARE(resizes, 1);
        QCOMPARE(Main->Host().size(), QSize(500, 381));
    }

    void the_programs_own_sizing_runs_resize_once()
    {
        Main->Show();
        UiRoom::Settle();
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->SetWidth(7500);
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(resizes, 1);
    }

    void a_place_off_the_desktop_leaves_enough_to_take_hold_of()
    {
        Main->SetLeft(-1'000'000);
        Main->SetTop(-1'000'000);
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        const QRect desktop = QApplication::primaryScreen()->virtualGeometry();
        QVERIFY(desktop.intersects(Main->Window().geometry()));
        QVERIFY(FrameCorner().y() >= desktop.top());
        QCOMPARE(Main->Left(), -1'000'000.0);
        Main->SetLeft(1'000'000'000);
        Main->SetTop(1'000'000'000);
        QTRY_VERIFY(!Main->IsSettling());
        QVERIFY(desktop.intersects(Main->Window().geometry()));
    }

    void covering_the_screen_keeps_the_measures_and_is_no_resize()
    {
        Main->SetLeft(300);
        Main->SetTop(300);
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->CoverScreen(true);
        QVERIFY(Main->CoversScreen());
        QTRY_VERIFY(Main->Window().isFullScreen());
        UiRoom::Settle();
        QCOMPARE(Main->Width(), 6000.0);
        Main->CoverScreen(false);
        QVERIFY(!Main->CoversScreen());
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(resizes, 0);
        QCOMPARE(Main->Left(), 300.0);
        QCOMPARE(Main->Width(), 6000.0);
        QCOMPARE(Main->Host().size(), QSize(400, 300));
        QCOMPARE(FrameCorner(), QPoint(20, 20));
    }

    void measures_that_are_set_while_the_screen_is_covered_count_afterwards()
    {
        Main->Show();
        QTRY_VERIFY(!Main->IsSettling());
        Main->CoverScreen(true);
        UiRoom::Settle();
        Main->SetWidth(7500);
        Main->SetLeft(450);
        Main->CoverScreen(false);
        QTRY_VERIFY(!Main->IsSettling());
        QCOMPARE(Main->Host().width(), 500);
        QCOMPARE(FrameCorner().x(), 30);
    }

    void a_form_without_a_frame_that_has_the_screens_size_is_shown_in_the_full_screen_state()
    {
        page->SetWidth(Screen.Width());
        page->SetHeight(Screen.Height());
        page->SetTop(0);
        page->SetLeft(0);
        page->Show();
        QTRY_VERIFY(!page->IsSettling());
        QVERIFY(page->Window().isFullScreen());
        QCOMPARE(page->ScaleHeight(), Screen.Height() / 15);
        QCOMPARE(page->Window().geometry(), QApplication::primaryScreen()->geometry());
    }

    void a_smaller_form_without_a_frame_is_an_ordinary_window()
    {
        page->Show();
        QTRY_VERIFY(!page->IsSettling());
        QVERIFY(!page->Window().isFullScreen());
        QCOMPARE(page->Window().size(), QSize(400, 300));
        QCOMPARE(page->Window().minimumSize(), QSize(400, 300));
    }

    void the_first_showing_runs_resize_and_the_next_does_not()
    {
        int resizes = 0;
        Main->Resize = [&] { ++resizes; };
        Main->Show();
        UiRoom::Settle();
        QCOMPARE(resizes, 1);
        Main->Hide();
        Main->Show();
        UiRoom::Settle();
        QCOMPARE(resizes, 1);
    }

    void hiding_a_window_that_settles_is_safe()
    {
        Main->Show();
        Main->Hide();
        QTRY_VERIFY(!Main->IsSettling());
        Main->Show();
        Main.Unload();
        UiRoom::Settle();
        QVERIFY(!Main.IsLoaded());
    }

private:
    std::unique_ptr<UiRoom> room_;
};

TORVIK_TEST(WindowPlacingTest)
#include "window_placing_test.moc"
