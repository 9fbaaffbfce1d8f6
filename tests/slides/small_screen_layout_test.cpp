#include "program/program_state.h"
#include "slides/small_screen_layout.h"
#include "support/program.h"
#include "support/test_class.h"
#include "ui/forms/form_window.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

Control& Named(const QString& name)
{
    Control* control = Control::OfWidget(frmSlide->Window().findChild<QWidget*>(name));
    if (control == nullptr)
        qFatal("there is no such control");
    return *control;
}

constexpr double asAtDesign = -1;

} // namespace

/// The layout of the slide show on a display of 640 by 480 pixels.
class SmallScreenLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 1);
        program_->SetScreen({640, 480});
        program_->StartBrowsing();
        state.SlideShowOpen = true;
    }
    void cleanup() { program_.reset(); }

    void each_control_goes_to_its_place_data()
    {
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("top");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        const auto row = [](const char* name, double left, double top, double width, double height) {
            QTest::newRow(name) << left << top << width << height;
        };
        const frmSlideControls& form = *frmSlide;
        row("Image1", asAtDesign, asAtDesign, form.Image1.Width() * 0.795, form.Image1.Height() * 0.78);
        row("panYear", asAtDesign, 5900, asAtDesign, asAtDesign);
        row("pnlPhotoNumber", asAtDesign, asAtDesign, asAtDesign, asAtDesign);
        const double strip = form.PnlCoStar.Left();
        row("PnlCoStar", asAtDesign, 6500, 3500, asAtDesign);
        row("StatusDate", strip + 3500, 6500, 1500, asAtDesign);
        row("StatusDay", strip + 5000, 6500, 1500, asAtDesign);
        row("StatusTime", strip + 6500, 6500, 1500, asAtDesign);
        row("cmdExit", strip + 8000, 6500, 1400, asAtDesign);
        const double bar = form.SSCommand1.Left() - 400;
        row("SSCommand1", bar, 5900, 1377, asAtDesign);
        row("SSCommand2", bar + 1377, 5900, 1377, asAtDesign);
        row("mmSlide", bar, 6140, 2736, asAtDesign);
        const double interval = 9600 - form.panInterval.Width() - 140;
        row("panInterval", interval, 5900, asAtDesign, asAtDesign);
        row("SpinInterval", interval - form.SpinInterval.Width(), 5900, asAtDesign,
            form.SpinInterval.Height() * 0.6);
    }

    void each_control_goes_to_its_place()
    {
        QFETCH(const double, left);
        QFETCH(const double, top);
        QFETCH(const double, width);
        QFETCH(const double, height);
        Control& control = Named(QString::fromLatin1(QTest::currentDataTag()));
        const auto expected = [](double value, double design) {
            return value == asAtDesign ? design : value;
        };
        const double wantedLeft = expected(left, control.Left());
        const double wantedTop = expected(top, control.Top());
        const double wantedWidth = expected(width, control.Width());
        const double wantedHeight = expected(height, control.Height());
        LayOutForSmallScreen();
        QCOMPARE(control.Left(), wantedLeft);
        QCOMPARE(control.Top(), wantedTop);
        QCOMPARE(control.Width(), wantedWidth);
        QCOMPARE(control.Height(), wantedHeight);
    }

    void nothing_overlaps_and_all_of_it_is_on_the_screen()
    {
        LayOutForSmallScreen();
        const QRect screen(0, 0, 640, 480 - 19); // below the window's caption
        QList<const Control*> controls;
        for (const char* name :
             {"Image1", "panYear", "SSCommand1", "SSCommand2", "mmSlide", "SpinInterval", "panInterval",
              "PnlCoStar", "StatusDate", "StatusDay", "StatusTime", "cmdExit"})
            controls += &Named(QString::fromLatin1(name));
        for (const Control* one : controls) {
            QVERIFY2(screen.contains(one->Widget().geometry()), qPrintable(one->Name()));
            for (const Control* other : controls)
                if (one != other)
                    QVERIFY2(!one->Widget().geometry().intersects(other->Widget().geometry()),
                             qPrintable(one->Name() + u" and "_s + other->Name()));
        }
        QVERIFY(
            Named(u"Image1"_s).Widget().geometry().contains(Named(u"pnlPhotoNumber"_s).Widget().geometry()));
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SmallScreenLayoutTest)
#include "small_screen_layout_test.moc"
