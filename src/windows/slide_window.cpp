#include "windows/slide_window.h"

#include "ui/look/look.h"

namespace torvik {

namespace {

/// As large as the main window, which has a menu bar where this one has room for its photo.
FormDesign DesignOfSlide()
{
    FormDesign design;
    design.Name = QStringLiteral("frmSlide");
    design.Caption = QStringLiteral("The Torvik Vollandry Slide Show");
    design.ClientWidth = 12060;
    design.ClientHeight = 8670;
    return design;
}

void SetUpBar(MediaBar& bar)
{
    bar.SetToolTip(QStringLiteral("[Bkwd] [Fwd] [Play] [Pause] [Jump Bkwd] [Jump Fwd] [Exit]"));
    bar.SetSpokenAs(MediaButton::Prev, QStringLiteral("Backward"));
    bar.SetSpokenAs(MediaButton::Next, QStringLiteral("Forward"));
    bar.SetSpokenAs(MediaButton::Back, QStringLiteral("Jump backward"));
    bar.SetSpokenAs(MediaButton::Step, QStringLiteral("Jump forward"));
    bar.SetSpokenAs(MediaButton::Stop, QStringLiteral("Exit with this photo"));
    for (const MediaButton button : {MediaButton::Pause, MediaButton::Record, MediaButton::Eject})
        bar.SetButtonEnabled(button, false);
    for (const MediaButton button : {MediaButton::Record, MediaButton::Eject})
        bar.SetButtonVisible(button, false);
}

} // namespace

frmSlideControls::frmSlideControls() : Form(DesignOfSlide())
{
    constexpr int titleSize = 16; // pixels
    Image1.Show(Picture::FromResource(QStringLiteral(":/assets/slide_show.jpg")));
    pnlPhotoNumber.Hide();
    panYear.SetCaptionFont(titleSize, true);
    PnlCoStar.SetCaptionFont(12, true, look::accent);
    SSCommand1.SetToolTip(QStringLiteral("Jump to Slide 1"));
    SSCommand2.SetToolTip(QStringLiteral("Jump to Middle"));
    SpinInterval.SetToolTip(QStringLiteral("Set Slide Show Delay"));
    SpinInterval.SetSpokenAs(QStringLiteral("Longer delay"), QStringLiteral("Shorter delay"));
    SetUpBar(mmSlide);
}

} // namespace torvik
