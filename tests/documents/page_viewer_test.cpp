#include "program/program_state.h"
#include "runtime/failure.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "ui/forms/program_end.h"
#include "windows/main_window.h"
#include "windows/page_window.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr int bar = 17; // pixels: how thick the scroll bars are

} // namespace

/// The zoom viewer: its layout, both views, scrolling and closing.
class PageViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->StartBrowsing();
    }
    void cleanup() { program_.reset(); }

    void loading_disables_the_main_window_and_takes_its_place()
    {
        Form1->SetTop(1500);
        Form1->SetLeft(2250);
        frmScroll->picParent.Width(); // the first touch
        QVERIFY(!Form1->Enabled());
        QCOMPARE(frmScroll->Top(), 1500.0);
        QCOMPARE(frmScroll->Left(), 2250.0);
        QVERIFY(frmScroll->picParent.Visible());
        QVERIFY(frmScroll->picChild.Visible());
        QCOMPARE(frmScroll->picChild.Left(), 0.0);
        QCOMPARE(frmScroll->picChild.Top(), 0.0);
    }

    void unloading_enables_the_main_window()
    {
        frmScroll.LoadForm();
        frmScroll.Unload();
        QVERIFY(Form1->Enabled());
    }

    void pane_bars_and_button_share_the_window()
    {
        OpenPage({1240, 1610});
        QCOMPARE(RectOf(frmScroll->picParent), QRectF(0, 0, 800 - bar, 600 - bar));
        QCOMPARE(RectOf(frmScroll->HScroll1), QRectF(0, 600 - bar, 800 - bar, bar));
        QCOMPARE(RectOf(frmScroll->VScroll1), QRectF(800 - bar, 0, bar, 600 - bar));
        QCOMPARE(RectOf(frmScroll->SSCommand1), QRectF(800 - bar, 600 - bar, bar, bar));
        QCOMPARE(Program::Focus(), u"SSCommand1"_s);
    }

    void a_new_size_lays_everything_out_anew_data() { Screens(); }
    void a_new_size_lays_everything_out_anew()
    {
        QFETCH(QSize, size);
        OpenPage({1240, 1610});
        frmScroll->SetWidth(size.width() * 15);
        frmScroll->SetHeight(size.height() * 15);
        const QRectF pane(0, 0, size.width() - bar, size.height() - bar);
        QCOMPARE(RectOf(frmScroll->picParent), pane);
        QCOMPARE(RectOf(frmScroll->HScroll1), QRectF(0, pane.height(), pane.width(), bar));
        QCOMPARE(RectOf(frmScroll->VScroll1), QRectF(pane.width(), 0, bar, pane.height()));
        QCOMPARE(RectOf(frmScroll->SSCommand1), QRectF(pane.width(), pane.height(), bar, bar));
        QCOMPARE(frmScroll->HScroll1.Max(), 1240 - (size.width() - bar));
        QCOMPARE(frmScroll->VScroll1.Max(), 1610 - (size.height() - bar));
        QCOMPARE(frmScroll->HScroll1.Enabled(), size.width() - bar < 1240);
        QCOMPARE(frmScroll->VScroll1.Enabled(), size.height() - bar < 1610);
    }

    void ranges_and_steps_follow_from_page_and_pane()
    {
        OpenPage({1600, 2080}); // the pane is 783 by 583
        QCOMPARE(frmScroll->HScroll1.Max(), 1600 - 783);
        QCOMPARE(frmScroll->HScroll1.LargeChange(), (1600 - 783) / 2 / 6);
        QCOMPARE(frmScroll->VScroll1.Max(), 2080 - 583);
        QCOMPARE(frmScroll->VScroll1.LargeChange(), (2080 - 583) / 3 / 6);
        QVERIFY(frmScroll->HScroll1.Enabled());
        QVERIFY(frmScroll->VScroll1.Enabled());
    }

    void a_range_is_rounded_to_a_whole_number_halves_to_the_even_one_data()
    {
        QTest::addColumn<double>("twips"); // of the form's width
        QTest::addColumn<int>("max");      // of a page of 1240 pixels
        QTest::newRow("0.4 pixels more") << 12006.0 << 457 - 0;
        QTest::newRow("a half, down to the even 456") << 12007.5 << 456;
        QTest::newRow("a half, up to the even 458") << 11992.5 << 458;
    }
    void a_range_is_rounded_to_a_whole_number_halves_to_the_even_one()
    {
        QFETCH(double, twips);
        QFETCH(int, max);
        OpenPage({1240, 1610});
        frmScroll->SetWidth(twips + 150); // so that the size changes
        frmScroll->SetWidth(twips);
        QCOMPARE(frmScroll->HScroll1.Max(), max);
    }

    void a_page_that_fits_the_pane_leaves_the_bars_disabled_with_a_max_below_zero()
    {
        OpenPage({300, 200});
        QVERIFY(!frmScroll->HScroll1.Enabled());
        QVERIFY(!frmScroll->VScroll1.Enabled());
        QCOMPARE(frmScroll->HScroll1.Max(), 300 - 783);
        QCOMPARE(frmScroll->VScroll1.Max(), 200 - 583);
        program_->Press(Qt::Key_Down);
        QCOMPARE(frmScroll->picChild.Top(), 0.0);
    }

    void a_page_as_large_as_the_pane_leaves_the_bars_disabled_with_a_max_of_zero()
    {
        OpenPage({783, 583});
        QVERIFY(!frmScroll->HScroll1.Enabled());
        QCOMPARE(frmScroll->HScroll1.Max(), 0);
        QVERIFY(!frmScroll->VScroll1.Enabled());
        QCOMPARE(frmScroll->VScroll1.Max(), 0);
    }

    void a_page_hardly_larger_than_the_pane_keeps_the_step_that_was()
    {
        OpenPage({783 + 5, 1610}); // 5 \ 1 \ 6 is 0, which no bar takes
        QCOMPARE(frmScroll->HScroll1.Max(), 5);
        QVERIFY(frmScroll->HScroll1.Enabled());
        QCOMPARE(frmScroll->HScroll1.LargeChange(), 1);
    }

    void a_page_of_20000_pixels_scrolls_to_its_end()
    {
        OpenPage({20000, 700});
        QCOMPARE(frmScroll->HScroll1.Max(), 20000 - 783);
        QCOMPARE(frmScroll->HScroll1.LargeChange(), (20000 - 783) / 25 / 6);
        frmScroll->HScroll1.SetValue(20000 - 783);
        QCOMPARE(frmScroll->picChild.Left(), -19217.0);
        QCOMPARE(frmScroll->picChild.Left() + frmScroll->picChild.Width(), frmScroll->picParent.Width());
        const QImage shown = frmScroll->picParent.Widget().grab().toImage();
        QVERIFY(shown.pixelColor(780, 300).blue() > 200);
    }

    void a_range_above_32767_overflows_and_the_bar_keeps_the_one_it_had()
    {
        OpenPage({1240, 700});
        program_->disc.AddFile(u"ads/67brto00.jpg"_s, TestDisc::Jpeg(Qt::blue, {33600, 900}));
        frmScroll->picChild.Load(u"G:\\ads\\67brto00.jpg"_s);
        frmScroll->SetWidth(801 * 15);
        QCOMPARE(frmScroll->HScroll1.Max(), 1240 - 783);
        QVERIFY(frmScroll->HScroll1.Enabled());
        QCOMPARE(frmScroll->HScroll1.LargeChange(), (1240 - 783) / 42 / 6);
        QCOMPARE(frmScroll->VScroll1.Max(), 900 - 583); // and the layout goes on after it
        QCOMPARE(RectOf(frmScroll->SSCommand1), QRectF(784, 583, bar, bar));
    }

    void a_page_may_be_32767_pixels_longer_than_the_pane()
    {
        OpenPage({32767 + 783, 700});
        QCOMPARE(frmScroll->HScroll1.Max(), 32767);
        frmScroll->HScroll1.SetValue(32767);
        QCOMPARE(frmScroll->picChild.Left(), -32767.0);
    }

    void a_window_too_small_for_a_pane_is_passed_over()
    {
        OpenPage({1240, 1610});
        QCOMPARE(ResumeNext([] { frmScroll->SetWidth(5 * 15); }), 0);
        QCOMPARE(frmScroll->picParent.Width(), 783.0);
        QCOMPARE(ResumeNext([] { frmScroll->SetWidth(bar * 15); }), 0);
        QCOMPARE(frmScroll->picParent.Width(), 0.0);
        QVERIFY(!ProgramIsEnding());
    }

    void a_layout_before_the_window_is_on_the_screen_passes_the_focus_over()
    {
        frmScroll.LoadForm();
        QCOMPARE(ResumeNext([] { frmScroll->SetWidth(600 * 15); }), 0);
        QCOMPARE(RectOf(frmScroll->SSCommand1).left(), 600.0 - bar);
        QVERIFY(Program::Focus().startsWith(u"cmdYR"_s));
    }

    void the_bars_move_the_page()
    {
        OpenPage({1600, 2080});
        frmScroll->HScroll1.SetValue(120);
        QCOMPARE(frmScroll->picChild.Left(), -120.0);
        QCOMPARE(frmScroll->picChild.Top(), 0.0);
        frmScroll->VScroll1.SetValue(345);
        QCOMPARE(frmScroll->picChild.Top(), -345.0);
        QCOMPARE(frmScroll->picChild.Widget().pos(), QPoint(-120, -345));
    }

    void keys_scroll_whatever_has_the_focus()
    {
        OpenPage({1600, 2080});
        program_->Press(Qt::Key_Down);
        program_->Press(Qt::Key_Right);
        QCOMPARE(frmScroll->picChild.Widget().pos(), QPoint(-40, -40));
        program_->Press(Qt::Key_End);
        QCOMPARE(frmScroll->VScroll1.Value(), 2080 - 583);
        QCOMPARE(Program::Focus(), u"SSCommand1"_s);
    }

    void a_left_click_turns_between_the_views()
    {
        OpenPage({1240, 1610});
        QVERIFY(ZoomedIn(true));
        program_->Click(frmScroll->picChild);
        QVERIFY(ZoomedIn(false));
        QVERIFY(frmScroll->Image1.Visible());
        program_->Click(frmScroll->Image1);
        QVERIFY(ZoomedIn(true));
    }

    void zooming_out_turns_each_control_over_by_itself()
    {
        OpenPage({1240, 1610});
        frmScroll->HScroll1.Hide();
        program_->Click(frmScroll->picChild);
        QVERIFY(frmScroll->HScroll1.Visible());
        QVERIFY(!frmScroll->VScroll1.Visible());
        program_->Click(frmScroll->Image1);
        QVERIFY(ZoomedIn(true));
    }

    void the_title_tells_how_the_page_stands_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("landscape");
        const QStringList across = {u"1979"_s, u"1980"_s, u"1986"_s, u"1987"_s, u"1990"_s,
                                    u"1992"_s, u"1993"_s, u"1994"_s, u"1995"_s, u"1996"_s};
        for (int year = 1967; year <= 2001; ++year)
            QTest::addRow("%d", year) << QString::number(year) << across.contains(QString::number(year));
        QTest::newRow("a trailing blank") << u"1987 "_s << false;
        QTest::newRow("a topic") << u"The Classic Harwell "_s << false;
        QTest::newRow("nothing chosen") << nothingChosen << false;
    }
    void the_title_tells_how_the_page_stands()
    {
        QFETCH(QString, title);
        QFETCH(bool, landscape);
        OpenPage({124, 161});
        Form1->panYear.SetCaption(title);
        program_->Click(frmScroll->picChild);
        const QRectF upright((800 - 462) / 2.0, 0, 462, 600); // 0.77 of the height
        QCOMPARE(RectOf(frmScroll->Image1), landscape ? QRectF(0, 0, 800, 600) : upright);
    }

    void zoomed_out_the_page_goes_by_the_screen_and_not_by_the_window()
    {
        OpenPage({1240, 1610});
        program_->SetScreen({1024, 768});
        program_->Click(frmScroll->picChild);
        QCOMPARE(frmScroll->Image1.Height(), 768.0);
        QCOMPARE(frmScroll->Image1.Width(), 768 * 0.77);
        QCOMPARE(frmScroll->Image1.Left(), (1024 - 768 * 0.77) / 2);
    }

    void the_right_button_closes_either_view()
    {
        OpenPage({1240, 1610});
        program_->Click(frmScroll->picChild, Qt::RightButton);
        QVERIFY(!frmScroll.IsLoaded());
        QVERIFY(Form1->Enabled());
        OpenPage({1240, 1610});
        program_->Click(frmScroll->picChild);
        program_->Click(frmScroll->Image1, Qt::RightButton);
        QVERIFY(!frmScroll.IsLoaded());
    }

    void the_middle_button_does_nothing()
    {
        OpenPage({1240, 1610});
        program_->Click(frmScroll->picChild, Qt::MiddleButton);
        QVERIFY(ZoomedIn(true));
        program_->Click(frmScroll->picChild);
        program_->Click(frmScroll->Image1, Qt::MiddleButton);
        QVERIFY(frmScroll.IsLoaded());
        QVERIFY(ZoomedIn(false));
    }

    void beside_the_page_no_button_does_anything()
    {
        OpenPage({300, 200});
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QTest::mouseClick(&frmScroll->picParent.Widget(), button, {}, {500, 400});
            program_->Settle();
            QVERIFY(frmScroll.IsLoaded());
            QVERIFY(ZoomedIn(true));
        }
    }

    void the_corner_button_and_escape_close_it()
    {
        OpenPage({1240, 1610});
        program_->Click(frmScroll->SSCommand1);
        QVERIFY(!frmScroll.IsLoaded());
        OpenPage({1240, 1610});
        program_->Press(Qt::Key_Escape);
        QVERIFY(!frmScroll.IsLoaded());
        QVERIFY(Form1->Enabled());
    }

    void the_page_is_decoded_once_however_far_it_is_scrolled()
    {
        OpenPage({1240, 1610});
        const qint64 page = Drawn(frmScroll->picChild).cacheKey();
        for (const int value : {1, 40, 300, 0})
            frmScroll->VScroll1.SetValue(value);
        frmScroll->HScroll1.SetValue(100);
        program_->Settle();
        QCOMPARE(Drawn(frmScroll->picChild).cacheKey(), page);
    }

    void the_whole_page_is_drawn_when_it_comes_to_light()
    {
        OpenPage({1240, 1610});
        QVERIFY(Drawn(frmScroll->Image1).isNull());
        program_->Click(frmScroll->picChild);
        QCOMPARE(Drawn(frmScroll->Image1).height(), 600);
        const qint64 page = Drawn(frmScroll->Image1).cacheKey();
        program_->Click(frmScroll->Image1);
        program_->Click(frmScroll->picChild);
        QCOMPARE(Drawn(frmScroll->Image1).cacheKey(), page);
    }

private:
    static void Screens()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize& size : {QSize(640, 480), QSize(1024, 768), QSize(1280, 2000), QSize(3840, 2160)})
            QTest::addRow("%d by %d", size.width(), size.height()) << size;
    }
    static QRectF RectOf(const Control& control)
    {
        return {control.Left(), control.Top(), control.Width(), control.Height()};
    }
    static QPixmap Drawn(const Control& control)
    {
        return static_cast<const QLabel&>(control.Widget()).pixmap(Qt::ReturnByValue);
    }
    static bool ZoomedIn(bool zoomedIn)
    {
        return frmScroll->HScroll1.Visible() == zoomedIn && frmScroll->VScroll1.Visible() == zoomedIn &&
               frmScroll->picParent.Visible() == zoomedIn && frmScroll->picChild.Visible() == zoomedIn;
    }
    /// Shows the viewer on a window of 800 by 600 pixels with a page of that size.
    void OpenPage(const QSize& page)
    {
        program_->disc.AddFile(u"ads/67brto00.jpg"_s, TestDisc::Jpeg(Qt::blue, page));
        frmScroll->SetWidth(800 * 15);
        frmScroll->SetHeight(600 * 15);
        frmScroll->picChild.Load(u"G:\\ads\\67brto00.jpg"_s);
        frmScroll->Image1.ShowWhenSeen(frmScroll->picChild.Picture(), frmScroll->picChild.Pixels());
        frmScroll->Show();
        program_->Settle();
        frmScroll->Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&frmScroll->Window()));
        program_->Settle();
    }

    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PageViewerTest)
#include "page_viewer_test.moc"
