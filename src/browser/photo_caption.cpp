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

void PrepareDetails()
{
    constexpr int width = 329; // pixels
    constexpr int height = 106;
    RichTextBox& details = Form1->rtbDetails;
    details.ZOrder();
    details.SetWidth(width);
    details.SetHeight(height);
    PlaceDetails();
}

void ShowPhotoDetails()
{
    Form1->rtbDetails.Hide();
    PrepareDetails();
    LoadPhotoDetails();
    Form1->rtbDetails.Show();
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
