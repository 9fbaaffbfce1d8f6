#include "slides/slide_steps.h"

#include "program/photo_name.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "slides/bind_slides.h"
#include "slides/shown_slide.h"
#include "windows/slide_window.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int jump = 10; // photos

/// A show of a title without photos stands on the empty element after the last photo. It stays there, where
/// every other button leads back to the photos.
int IndexAfter(int index)
{
    if (index == state.PhotoCount)
        return 1;
    return std::min(index + 1, state.PhotoCount + 1);
}

void ShowSlideWithCaption(SlideWalk walk = SlideWalk::Forward)
{
    LoadSlide(walk);
    SetSlideCaption();
    frmSlide->panYear.Show();
}

/// Whatever is left over, a jump before the first photo ends on the last one.
void mmSlide_BackClick()
{
    frmSlide->pnlPhotoNumber.Show();
    state.SlideRestorePending = false;
    const int target = state.PhotoIndex - jump;
    state.PhotoIndex = target < 1 ? int{state.PhotoCount} : target;
    OnError(
        [] {
            RefreshPathPosition();
            ShowSlideWithCaption();
            ShowSlidePosition();
        },
        [] { ReportSlideFailure(u"ER013"_s); });
    frmSlide->SSCommand1.SetFocus();
}

/// A jump that would end on the last photo goes to the first one already; it has always been so.
void mmSlide_StepClick()
{
    state.SlideRestorePending = false;
    const int target = state.PhotoIndex + jump;
    state.PhotoIndex = target > state.PhotoCount - 1 ? 1 : target;
    OnError(
        [] {
            RefreshPathPosition();
            ShowSlideWithCaption();
        },
        [] { ReportSlideFailure(u"ER018"_s); });
    frmSlide->SSCommand1.SetFocus();
    ShowSlidePosition();
}

/// "Beginning". Its caption is that of the first year, whatever the first photo is.
void SSCommand1_Click()
{
    frmSlide->pnlPhotoNumber.Show();
    frmSlide->pnlPhotoNumber.SetCaption(u"1 of %1"_s.arg(state.PhotoCount));
    frmSlide->Image1.Show();
    frmSlide->panYear.SetCaption(u"1967"_s);
    frmSlide->panYear.Show();
    state.PhotoIndex = 1;
    LoadSlide();
}

/// "Middle". Its caption is a plain year, for the photo of a topic too.
void SSCommand2_Click()
{
    frmSlide->Image1.Show();
    frmSlide->panYear.Show();
    state.PhotoIndex = static_cast<int>(RoundHalfEven(state.PhotoCount / 2.0));
    ShowSlidePosition();
    frmSlide->pnlPhotoNumber.Show();
    LoadSlide();
    const QString& photo = state.PhotoFiles(state.PhotoIndex);
    TakePathPosition(photo);
    frmSlide->panYear.SetCaption(u"19"_s + CodeOfPhoto(photo));
    frmSlide->SSCommand1.SetFocus();
}

void SSCommand1_KeyDown(int keyCode)
{
    if (keyCode == key::comma)
        SlideStepBack();
    else if (keyCode == key::period)
        SlideStepForward();
}

} // namespace

void SlideStepForward()
{
    frmSlide->pnlPhotoNumber.Show();
    state.SlideRestorePending = false;
    state.PhotoIndex = IndexAfter(state.PhotoIndex);
    ShowSlidePosition();
    OnError(
        [] {
            RefreshPathPosition();
            ShowSlideWithCaption();
        },
        [] { ReportSlideFailure(u"ER014"_s); });
    frmSlide->SSCommand1.SetFocus();
}

void SlideStepBack()
{
    state.SlideRestorePending = false;
    frmSlide->pnlPhotoNumber.Show();
    RefreshPathPosition();
    OnError(
        [] {
            state.PhotoIndex = state.PhotoIndex >= 2 ? state.PhotoIndex - 1 : int{state.PhotoCount};
            ShowSlideWithCaption(SlideWalk::Backward);
        },
        [] { ReportSlideFailure(u"ER015"_s); });
    frmSlide->SSCommand1.SetFocus();
    ShowSlidePosition();
}

void BindSlideSteps()
{
    frmSlide.Bind([](frmSlideControls& form) {
        form.mmSlide.ButtonClick(MediaButton::Prev) = SlideStepBack;
        form.mmSlide.ButtonClick(MediaButton::Next) = SlideStepForward;
        form.mmSlide.ButtonClick(MediaButton::Back) = mmSlide_BackClick;
        form.mmSlide.ButtonClick(MediaButton::Step) = mmSlide_StepClick;
        form.SSCommand1.Click = SSCommand1_Click;
        form.SSCommand1.KeyDown = [](int keyCode, int /*shift*/) { SSCommand1_KeyDown(keyCode); };
        form.SSCommand2.Click = SSCommand2_Click;
    });
}

} // namespace torvik
