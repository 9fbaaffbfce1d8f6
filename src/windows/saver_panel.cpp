#include "windows/saver_panel.h"

#include "ui/forms/form.h"

namespace torvik {

namespace {

constexpr int titleSize = 20;   // pixels
constexpr int headingSize = 15; // pixels

ControlArray<OptionButton> MakeOptions(Panel& panel)
{
    ControlArray<OptionButton> options(QStringLiteral("Option1"));
    options.Add(0, panel, Twips{360, 1890, 2700, 330}, QStringLiteral("All Photos"));
    options.Add(1, panel, Twips{360, 2325, 2700, 330}, QStringLiteral("Selected Photos"));
    return options;
}

} // namespace

SaverPanel::SaverPanel(Form& form)
    : pnlSSaver(form, QStringLiteral("pnlSSaver"), {3000, 1200, 6300, 3780}),
      Image2(pnlSSaver, QStringLiteral("Image2"), {240, 240, 2100, 1400}),
      Label7(pnlSSaver, QStringLiteral("Label7"), {2580, 420, 3480, 420},
             QStringLiteral("The Torvik Vollandry")),
      Label8(pnlSSaver, QStringLiteral("Label8"), {2580, 870, 3480, 360},
             QStringLiteral("Install Screen Saver")),
      Option1(MakeOptions(pnlSSaver)), Label9(pnlSSaver, QStringLiteral("Label9"), {3300, 1920, 2760, 300},
                                              QStringLiteral("Select the photo delay:")),
      panInterval(pnlSSaver, QStringLiteral("panInterval"), {3300, 2310, 1950, 360},
                  QStringLiteral("1 Second"), Bevel::Sunken),
      SpinInterval(pnlSSaver, QStringLiteral("SpinInterval"), {5310, 2310, 750, 360}),
      SSCommand4(pnlSSaver, QStringLiteral("SSCommand4"), {240, 3120, 1860, 420}, QStringLiteral("Install")),
      SSCommand5(pnlSSaver, QStringLiteral("SSCommand5"), {2220, 3120, 1860, 420}, QStringLiteral("Help")),
      SSCommand6(pnlSSaver, QStringLiteral("SSCommand6"), {4200, 3120, 1860, 420}, QStringLiteral("Cancel"))
{
    Option1(0).SetValue(true);
    Label7.SetCaptionFont(titleSize, true, look::accent);
    Label8.SetCaptionFont(headingSize, true);
    SpinInterval.SetToolTip(QStringLiteral("Set Slide Show Delay"));
    SpinInterval.SetSpokenAs(QStringLiteral("Longer delay"), QStringLiteral("Shorter delay"));
    Image2.Show(Picture::FromResource(QStringLiteral(":/assets/splash@2x.png")));
    pnlSSaver.Hide();
}

} // namespace torvik
