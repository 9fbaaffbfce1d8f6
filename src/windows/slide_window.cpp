#include "windows/slide_window.h"

#include "ui/look/look.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void SetUpBar(MediaBar& bar)
{
    bar.SetToolTip(u"[Bkwd] [Fwd] [Play] [Pause] [Jump Bkwd] [Jump Fwd] [Exit]"_s);
    bar.SetSpokenAs(MediaButton::Prev, u"Backward"_s);
    bar.SetSpokenAs(MediaButton::Next, u"Forward"_s);
    bar.SetSpokenAs(MediaButton::Back, u"Jump backward"_s);
    bar.SetSpokenAs(MediaButton::Step, u"Jump forward"_s);
    bar.SetSpokenAs(MediaButton::Stop, u"Exit with this photo"_s);
    for (const MediaButton button : {MediaButton::Pause, MediaButton::Record, MediaButton::Eject})
        bar.SetButtonEnabled(button, false);
    for (const MediaButton button : {MediaButton::Record, MediaButton::Eject})
        bar.SetButtonVisible(button, false);
}

} // namespace

/// As large as the main window, which has a menu bar where this one has room for its photo.
frmSlideControls::frmSlideControls()
    : Form({.name = u"frmSlide"_s,
            .caption = u"The Torvik Vollandry Slide Show"_s,
            .clientWidth = 12060,
            .clientHeight = 8670})
{
    constexpr int titleSize = 16; // pixels
    Image1.Show(Picture::FromResource(u":/assets/slide_show.jpg"_s));
    pnlPhotoNumber.Hide();
    panYear.SetCaptionFont(titleSize, true);
    PnlCoStar.SetCaptionFont(12, true, look::accent);
    SSCommand1.SetToolTip(u"Jump to Slide 1"_s);
    SSCommand2.SetToolTip(u"Jump to Middle"_s);
    SpinInterval.SetToolTip(u"Set Slide Show Delay"_s);
    SpinInterval.SetSpokenAs(u"Longer delay"_s, u"Shorter delay"_s);
    SetUpBar(mmSlide);
}

} // namespace torvik
