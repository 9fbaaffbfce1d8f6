#include "windows/saver_panel.h"

#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int headingSize = 15; // pixels

ControlArray<OptionButton> MakeOptions(Panel& panel)
{
    ControlArray<OptionButton> options(u"Option1"_s);
    options.Add(0, panel, Twips{360, 1890, 2700, 330}, u"All Photos"_s);
    options.Add(1, panel, Twips{360, 2325, 2700, 330}, u"Selected Photos"_s);
    return options;
}

} // namespace

SaverPanel::SaverPanel(Form& form)
    : pnlSSaver(form, u"pnlSSaver"_s, {3000, 1200, 6300, 3780}),
      Image2(pnlSSaver, u"Image2"_s, {240, 240, 2100, 1400}),
      Label7(pnlSSaver, u"Label7"_s, {2580, 420, 3480, 420}, u"The Torvik Vollandry"_s),
      Label8(pnlSSaver, u"Label8"_s, {2580, 870, 3480, 360}, u"Install Screen Saver"_s),
      Option1(MakeOptions(pnlSSaver)),
      Label9(pnlSSaver, u"Label9"_s, {3300, 1920, 2760, 300}, u"Select the photo delay:"_s),
      panInterval(pnlSSaver, u"panInterval"_s, {3300, 2310, 1950, 360}, u"1 Second"_s, Bevel::Sunken),
      SpinInterval(pnlSSaver, u"SpinInterval"_s, {5310, 2310, 750, 360}),
      SSCommand4(pnlSSaver, u"SSCommand4"_s, {240, 3120, 1860, 420}, u"Install"_s),
      SSCommand5(pnlSSaver, u"SSCommand5"_s, {2220, 3120, 1860, 420}, u"Help"_s),
      SSCommand6(pnlSSaver, u"SSCommand6"_s, {4200, 3120, 1860, 420}, u"Cancel"_s)
{
    Option1(0).SetValue(true);
    Label7.SetCaptionFont(look::panelTitleSize, true, look::accent);
    Label8.SetCaptionFont(headingSize, true);
    SpinInterval.SetToolTip(u"Set Slide Show Delay"_s);
    SpinInterval.SetSpokenAs(u"Longer delay"_s, u"Shorter delay"_s);
    Image2.ShowWhenSeen(Picture::FromResource(u":/assets/splash@2x.png"_s));
    pnlSSaver.Hide();
}

} // namespace torvik
