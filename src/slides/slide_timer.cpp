#include "program/photo_name.h"
#include "program/program_state.h"
#include "program/slide_delay_steps.h"
#include "runtime/failure.h"
#include "slides/bind_slides.h"
#include "slides/shown_slide.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// While the show runs, nothing but Play, Pause and the exits can be pressed.
void EnableStepping(bool enabled)
{
    MediaBar& bar = frmSlide->mmSlide;
    bar.SetButtonEnabled(MediaButton::Pause, !enabled);
    for (const MediaButton button :
         {MediaButton::Prev, MediaButton::Next, MediaButton::Back, MediaButton::Step})
        bar.SetButtonEnabled(button, enabled);
    frmSlide->SSCommand1.SetEnabled(enabled);
    frmSlide->SSCommand2.SetEnabled(enabled);
}

/// While the show runs, PhotoIndex is the photo that comes next, not the one on show.
void mmSlide_PlayClick()
{
    frmSlide->SpinInterval.SetEnabled(false);
    state.PhotoIndex += 1;
    state.SlidePlayPressed = true;
    EnableStepping(false);
    state.SlideRestorePending = true;
    frmSlide->Timer1.SetInterval(state.SlideDelay);
    frmSlide->pnlPhotoNumber.Show();
}

void mmSlide_PauseClick()
{
    frmSlide->SpinInterval.SetEnabled(true);
    state.SlideRestorePending = false;
    frmSlide->Timer1.SetInterval(0);
    EnableStepping(true);
    state.PhotoIndex = state.PhotoIndex == 0 ? int{state.PhotoCount} : state.PhotoIndex - 1;
    frmSlide->SSCommand1.SetFocus();
}

/// After the last photo a tick only goes back to the start, so the last photo stays for two delays.
void ShowNextSlide()
{
    if (state.PhotoIndex < state.PhotoCount + 1) {
        RefreshPathPosition();
        LoadSlide();
        SetSlideCaption();
        ShowSlidePosition();
        state.PhotoIndex += 1;
    } else {
        state.PhotoIndex = 1;
    }
    frmSlide->panYear.Show();
}

void Timer1_Tick()
{
    if (frmSlide->Timer1.Interval() == 0)
        return;
    if (state.PhotoIndex == 0)
        state.PhotoIndex = 1;
    OnError(ShowNextSlide, [] { ReportSlideFailure(u"ER016"_s); });
}

void ShowDelay()
{
    frmSlide->panInterval.SetCaption(DelayInSeconds(state.SlideDelay) + u" seconds"_s);
    frmSlide->SSCommand1.SetFocus();
}

} // namespace

void BindSlideTimer()
{
    frmSlide.Bind([](frmSlideControls& form) {
        form.mmSlide.ButtonClick(MediaButton::Play) = mmSlide_PlayClick;
        form.mmSlide.ButtonClick(MediaButton::Pause) = mmSlide_PauseClick;
        form.Timer1.Tick = Timer1_Tick;
        BindDelaySteps(form.SpinInterval, ShowDelay);
    });
}

} // namespace torvik
