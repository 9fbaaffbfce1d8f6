#include "program/program_state.h"
#include "support/slide_visit.h"
#include "support/test_class.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

QString SpokenName(const QString& widget)
{
    const auto* found = frmSlide->Window().findChild<QWidget*>(widget);
    return found == nullptr ? u"(missing)"_s : found->accessibleName();
}

} // namespace

/// What the slide show's window is made of.
class SlideWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        program_ = std::make_unique<Program>();
        program_->disc.AddGroup(u"67"_s, 2);
        program_->StartBrowsing();
        state.SlideShowOpen = true;
    }
    void cleanup() { program_.reset(); }

    void captions_and_tool_tips()
    {
        QCOMPARE(frmSlide->Caption(), u"The Torvik Vollandry Slide Show"_s);
        QCOMPARE(frmSlide->panYear.Caption(), u"panYear"_s);
        QCOMPARE(frmSlide->panInterval.Caption(), u"SSPanel1"_s);
        QCOMPARE(frmSlide->SSCommand1.Caption(), u"Beginning"_s);
        QCOMPARE(frmSlide->SSCommand1.ToolTip(), u"Jump to Slide 1"_s);
        QCOMPARE(frmSlide->SSCommand2.Caption(), u"Middle"_s);
        QCOMPARE(frmSlide->SSCommand2.ToolTip(), u"Jump to Middle"_s);
        QCOMPARE(frmSlide->SpinInterval.ToolTip(), u"Set Slide Show Delay"_s);
        QCOMPARE(frmSlide->mmSlide.ToolTip(), u"[Bkwd] [Fwd] [Play] [Pause] [Jump Bkwd] [Jump Fwd] [Exit]"_s);
        QCOMPARE(frmSlide->PnlCoStar.Caption(), u"The Torvik Vollandry   2001"_s);
        QCOMPARE(frmSlide->StatusDate.Caption(), u"StatusDate"_s);
        QCOMPARE(frmSlide->StatusDay.Caption(), u"StatusDay"_s);
        QCOMPARE(frmSlide->StatusTime.Caption(), u"StatusTime"_s);
        QCOMPARE(frmSlide->cmdExit.Caption(), u"Exit"_s);
    }

    void the_timers_as_they_are_at_design()
    {
        QCOMPARE(frmSlide->Timer1.Interval(), 750);
        QCOMPARE(frmSlide->Timer3.Interval(), 10);
    }

    void the_bar_shows_seven_buttons_and_six_of_them_are_enabled()
    {
        const MediaBar& bar = frmSlide->mmSlide;
        for (const MediaButton button : {MediaButton::Prev, MediaButton::Next, MediaButton::Play,
                                         MediaButton::Back, MediaButton::Step, MediaButton::Stop}) {
            QVERIFY(bar.ButtonVisible(button));
            QVERIFY(bar.ButtonEnabled(button));
        }
        QVERIFY(bar.ButtonVisible(MediaButton::Pause));
        QVERIFY(!bar.ButtonEnabled(MediaButton::Pause));
        for (const MediaButton button : {MediaButton::Record, MediaButton::Eject}) {
            QVERIFY(!bar.ButtonVisible(button));
            QVERIFY(!bar.ButtonEnabled(button));
        }
    }

    void the_photo_is_the_built_in_picture_sharp_on_dense_screens()
    {
        QCOMPARE(frmSlide->Image1.Picture().FileName(), u"slide_show.jpg"_s);
        const QSize shown = frmSlide->Image1.Widget().size();
        const QSize natural = frmSlide->Image1.Picture().NaturalSize();
        QVERIFY(natural.width() >= 2 * shown.width() || natural.height() >= 2 * shown.height());
        QVERIFY(!frmSlide->pnlPhotoNumber.Visible());
    }

    void every_part_says_what_it_does_data()
    {
        QTest::addColumn<QString>("spoken");
        for (const auto& [name, spoken] : {std::pair{"mmSlide(Prev)", "Backward"},
                                           {"mmSlide(Next)", "Forward"},
                                           {"mmSlide(Play)", "Play"},
                                           {"mmSlide(Pause)", "Pause"},
                                           {"mmSlide(Back)", "Jump backward"},
                                           {"mmSlide(Step)", "Jump forward"},
                                           {"mmSlide(Stop)", "Exit with this photo"},
                                           {"SpinInterval(Up)", "Longer delay"},
                                           {"SpinInterval(Down)", "Shorter delay"},
                                           {"SSCommand1", "Beginning"},
                                           {"cmdExit", "Exit"},
                                           {"Image1", "slide_show.jpg"}})
            QTest::newRow(name) << QString::fromLatin1(spoken);
    }

    void every_part_says_what_it_does()
    {
        QFETCH(QString, spoken);
        QCOMPARE(SpokenName(QString::fromLatin1(QTest::currentDataTag())), spoken);
    }

private:
    std::unique_ptr<Program> program_;
};

TORVIK_TEST(SlideWindowTest)
#include "slide_window_test.moc"
