#include "browser/photo_caption.h"

#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// "E:\Torviks\67A.JPG" has its caption in "E:\RichText\67A.rtf". What counts is the first point of the path,
/// wherever it stands.
QString CaptionDocumentOf(const QString& photo)
{
    const int point = InStr(photo, u"."_s);
    const int folder = state.TorviksPathPos;
    const int stem = folder + 8;
    return Left(photo, folder) + u"RichText"_s + Mid(photo, stem, point - stem) + u".rtf"_s;
}

} // namespace

void PlaceDetails()
{
    Form1Controls& form = *Form1;
    form.rtbDetails.SetLeft(form.cmdAd.Left() + form.cmdAd.Width() - form.rtbDetails.Width() - 10);
    form.rtbDetails.SetTop(form.Image4.Top() + 9);
}

void LoadPhotoDetails()
{
    state.DocumentFile = CaptionDocumentOf(state.PhotoFiles(state.PhotoIndex)).toLower();
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    PlaceDetails();
}

void LoadPhotoDetailsBackward()
{
    state.PhotoIndex += 1;
    state.DocumentFile = CaptionDocumentOf(state.PhotoFiles(state.PhotoIndex));
    Form1->rtbDetails.SetFileName(state.DocumentFile);
    state.PhotoIndex -= 1;
    state.SteppedForward = false;
    PlaceDetails();
}

} // namespace torvik
