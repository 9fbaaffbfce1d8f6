#include "support/program.h"
#include "support/test_class.h"
#include "windows/page_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The window of the zoom viewer as it is designed.
class PageWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { program_ = std::make_unique<Program>(); }
    void cleanup() { program_.reset(); }

    void each_view_says_what_the_mouse_does()
    {
        QCOMPARE(frmScroll->Image1.ToolTip(),
                 u"Click the left mouse button to zoom in. Click the Right mouse button to close."_s);
        const QString zoomOut =
            u"Click the left mouse button to view zoom out. Click the Right mouse button to close."_s;
        QCOMPARE(frmScroll->picParent.ToolTip(), zoomOut);
        QCOMPARE(frmScroll->picChild.ToolTip(), zoomOut);
        for (const Control* control : std::initializer_list<const Control*>{
                 &frmScroll->HScroll1, &frmScroll->VScroll1, &frmScroll->SSCommand1})
            QVERIFY(control->ToolTip().isEmpty());
    }

    void the_corner_button_is_spoken_as_what_it_does()
    {
        QCOMPARE(frmScroll->SSCommand1.Widget().accessibleName(), u"Close"_s);
    }

    void lengths_are_pixels_on_the_form_and_in_the_pane()
    {
        QCOMPARE(frmScroll->ScaleMode(), Scale::Pixels);
        QCOMPARE(frmScroll->picParent.ScaleMode(), Scale::Pixels);
        QCOMPARE(frmScroll->ScaleHeight(), frmScroll->Height() / 15); // no caption above the page
    }

    void the_pane_covers_the_image()
    {
        const QObjectList& order = frmScroll->Host().children();
        QVERIFY(order.indexOf(&frmScroll->Image1.Widget()) < order.indexOf(&frmScroll->picParent.Widget()));
        QCOMPARE(frmScroll->picChild.Widget().parentWidget(), &frmScroll->picParent.Widget());
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(PageWindowTest)
#include "page_window_test.moc"
