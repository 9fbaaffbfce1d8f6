#include "support/test_class.h"
#include "support/ui_room.h"
#include "ui/controls/button.h"
#include "ui/controls/panel.h"
#include "ui/form_fixture.h"
#include "ui/pixels.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

struct MainForm : Form {
    MainForm() : Form(DesignOf(u"Main"_s, Scale::Pixels)) {}
    Panel panYear{*this, u"panYear"_s, {0, 0, 810, 300}, u"panYear"_s};
    Panel Gauge{*this, u"ProgressGuage"_s, {0, 600, 3120, 300}, {}, Bevel::Sunken};
    Panel Flat{*this, u"Flat"_s, {0, 1200, 1500, 600}, {}, Bevel::None};
    Button Go{Flat, u"Go"_s, {0, 0, 1200, 375}};
};

FormHandle<MainForm> Main;

/// How many pixels of the middle row, from the left edge on, are of a colour.
int FilledPixels(const Control& control, const QColor& colour)
{
    const QImage image = Grab(control);
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, image.height() / 2) == colour ? 1 : 0;
    return count;
}

} // namespace

/// 3-D panels: captions, containers, gauges.
class PanelTest : public FormFixture {
    Q_OBJECT

public:
    PanelTest() : FormFixture(Main) {}

private Q_SLOTS:
    void captions_are_kept_as_they_are_and_spoken()
    {
        QCOMPARE(Main->panYear.Caption(), u"panYear"_s);
        Main->panYear.SetCaption(u"Torvik Cookies "_s);
        QCOMPARE(Main->panYear.Caption(), u"Torvik Cookies "_s);
        QCOMPARE(Main->panYear.Widget().accessibleName(), u"Torvik Cookies "_s);
        Main->panYear.SetCaption(1);
        QCOMPARE(Main->panYear.Caption(), u"1"_s);
        Main->panYear.SetCaption(-12345);
        QCOMPARE(Main->panYear.Caption(), u"-12345"_s);
    }

    void the_flood_is_a_whole_number_of_percent()
    {
        for (const auto& [set, got] :
             {std::pair{0.0, 0}, std::pair{100.0, 100}, std::pair{49.6, 50}, std::pair{0.5, 0},
              std::pair{1.5, 2}, std::pair{-0.4, 0}, std::pair{100.4, 100}}) {
            Main->Gauge.SetFloodPercent(set);
            QCOMPARE(Main->Gauge.FloodPercent(), got);
        }
    }

    void a_flood_outside_is_failure_380_and_changes_nothing()
    {
        Main->Gauge.SetFloodPercent(30);
        for (const double percent : {-1.0, 101.0, 1e30, -1e30, std::numeric_limits<double>::quiet_NaN(),
                                     std::numeric_limits<double>::infinity()})
            QCOMPARE(ResumeNext([&] { Main->Gauge.SetFloodPercent(percent); }), 380);
        QCOMPARE(Main->Gauge.FloodPercent(), 30);
    }

    void the_gauge_fills_from_the_left()
    {
        QCOMPARE(FilledPixels(Main->Gauge, look::accent), 0);
        for (const int percent : {1, 25, 50, 100}) {
            Main->Gauge.SetFloodPercent(percent);
            QCOMPARE(FilledPixels(Main->Gauge, look::accent),
                     qRound(204 * percent / 100.0)); // 208 less two bevels
        }
        QCOMPARE(Grab(Main->Gauge).pixelColor(2, 10), look::accent);
    }

    void the_caption_of_a_gauge_stays_readable_over_the_flood()
    {
        Main->Gauge.SetCaption(50);
        Main->Gauge.SetFloodPercent(100);
        const QImage image = Grab(Main->Gauge);
        int light = 0;
        for (int y = 2; y < image.height() - 2; ++y)
            for (int x = 2; x < image.width() - 2; ++x)
                light += qGreen(image.pixel(x, y)) > 160 ? 1 : 0; // the flood holds hardly any green
        QVERIFY(light > 5);
    }

    void a_gauge_says_its_percentage()
    {
        Main->Gauge.SetCaption(u"17"_s);
        QCOMPARE(Main->Gauge.Widget().accessibleName(), u"17"_s);
        Main->Gauge.SetFloodPercent(42);
        QCOMPARE(Main->Gauge.Widget().accessibleName(), u"42%"_s);
    }

    void it_grows_with_a_wide_caption_and_shrinks_back_to_its_design()
    {
        Main->panYear.SetCaption(u"1967"_s);
        Main->panYear.SetAutoSize(true);
        QCOMPARE(Main->panYear.Width(), 54.0);
        Main->panYear.SetCaption(u"Franklin Mint Collector Knives "_s);
        QVERIFY(Main->panYear.Width() > 150);
        QVERIFY(Main->panYear.Widget().width() >=
                Main->panYear.Widget().fontMetrics().horizontalAdvance(Main->panYear.Caption()));
        QCOMPARE(Main->panYear.Left(), 0.0);
        QCOMPARE(Main->panYear.Height(), 20.0);
        Main->panYear.SetCaption(u"1968"_s);
        QCOMPARE(Main->panYear.Width(), 54.0);
    }

    void without_auto_size_it_keeps_its_width()
    {
        Main->panYear.SetCaption(u"Franklin Mint Collector Knives "_s);
        QCOMPARE(Main->panYear.Width(), 54.0);
    }

    void it_carries_controls_measured_in_twips()
    {
        QCOMPARE(Main->Flat.ScaleMode(), Scale::Twips);
        QCOMPARE(Main->Go.Width(), 1200.0);
        QCOMPARE(&Main->Flat.OwnerForm(), static_cast<Form*>(&*Main));
    }

    void bevels_are_raised_sunken_or_none()
    {
        QCOMPARE(Grab(Main->panYear).pixelColor(0, 0), look::light);
        QCOMPARE(Grab(Main->Gauge).pixelColor(0, 0), look::shadow);
        QCOMPARE(Grab(Main->Flat).pixelColor(99, 39), look::face);
    }

    void letters_and_their_place_can_be_set()
    {
        const QImage plain = Grab(Main->panYear);
        Main->panYear.SetCaptionFont(14, true, look::accent);
        const QImage bold = Grab(Main->panYear);
        QVERIFY(bold != plain);
        Main->panYear.SetCaption(u"I"_s);
        const QImage centred = Grab(Main->panYear);
        Main->panYear.SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        QVERIFY(Grab(Main->panYear) != centred);
    }
};

TORVIK_TEST(PanelTest)
#include "panel_test.moc"
