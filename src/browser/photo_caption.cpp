#include "browser/photo_caption.h"

#include "program/photo_name.h"
#include "program/program_state.h"
#include "windows/main_window.h"

namespace torvik {

void PlaceDetails()
{
    Form1Controls& form = *Form1;
    form.rtbDetails.SetLeft(form.cmdAd.Left() + form.cmdAd.Width() - form.rtbDetails.Width() - 10);
    form.rtbDetails.SetTop(form.Image4.Top() + 9);
}

void LoadPhotoDetails()
{
    state.DocumentFile = CaptionOfPhoto(state.PhotoFiles(state.PhotoIndex)).toLower();
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    PlaceDetails();
}

void LoadPhotoDetailsBackward()
{
    state.DocumentFile = CaptionOfPhoto(state.PhotoFiles(state.PhotoIndex + 1));
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    state.SteppedForward = false;
    PlaceDetails();
}

} // namespace torvik
