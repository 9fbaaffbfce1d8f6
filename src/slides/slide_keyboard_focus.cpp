#include "program/program_state.h"
#include "slides/bind_slides.h"
#include "windows/slide_window.h"

namespace torvik {

namespace {

/// Without a test: while the show runs "Beginning" is disabled and the call fails.
void FocusKeys()
{
    frmSlide->SSCommand1.SetFocus();
}

void FocusKeysUnlessPlayed()
{
    if (!state.SlidePlayPressed)
        frmSlide->SSCommand1.SetFocus();
}

} // namespace

void BindSlideKeyboardFocus()
{
    frmSlide.Bind([](frmSlideControls& form) {
        for (Panel* panel :
             {&form.panYear, &form.PnlCoStar, &form.StatusDate, &form.StatusDay, &form.StatusTime})
            panel->Click = FocusKeys;
        form.Image1.Click = FocusKeysUnlessPlayed;
        form.Activate = FocusKeysUnlessPlayed;
    });
}

} // namespace torvik
