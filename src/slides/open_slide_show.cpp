#include "program/keep_on_top.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "program/screen_size.h"
#include "runtime/text.h"
#include "slides/bind_slides.h"
#include "slides/shown_slide.h"
#include "slides/small_screen_layout.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void TakePlaceOfForm1()
{
    frmSlide->SetTop(Form1->Top());
    frmSlide->SetLeft(Form1->Left());
    frmSlide->SetWidth(Form1->Width());
    frmSlide->SetHeight(Form1->Height());
    frmSlide->ZOrder();
}

/// The show opens on the photo of the main window, or else on the form's own picture and the caption of the
/// first photo.
void ShowOpeningSlide()
{
    RefreshPathPosition(); // the photos may lie elsewhere since they were copied
    if (state.ShownPhotoIndex > 0) {
        state.PhotoIndex = state.ShownPhotoIndex;
        LoadSlide();
        frmSlide->panYear.Show();
        ShowSlidePosition();
        frmSlide->pnlPhotoNumber.Show();
    } else {
        state.PhotoIndex = 1;
    }
    SetSlideCaption();
    state.PhotoIndex = state.ShownPhotoIndex;
}

void cmdSlide_Click()
{
    SetFormTopmost(*frmSSPhoto, topmost::off);
    frmSSPhoto.Unload();
    state.SlideShowOpen = true;
    state.MissingClipArt.clear();
    frmSlide->SpinInterval.SetEnabled(true);
    state.SlideDelay = 1000;
    frmSlide->panInterval.SetCaption(u" 1 second"_s);
    frmSlide->Timer1.SetInterval(0);
    TakePlaceOfForm1();
    ShowOpeningSlide();
    if (!IsNumeric(state.YearCode))
        state.YearCode = u"67"_s;
    if (IsScreenSize(640, 480))
        LayOutForSmallScreen();
    frmSlide->ShowModal();
    state.SlideRestorePending = true;
}

} // namespace

void BindOpenSlideShow()
{
    Form1.Bind([](Form1Controls& form) { form.cmdSlide.Click = cmdSlide_Click; });
}

} // namespace torvik
