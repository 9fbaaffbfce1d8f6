#include "browser/select_year.h"

#include "browser/browse_from_start.h"
#include "browser/neighbours.h"
#include "browser/restore_main_window.h"
#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString detailsCaption = u"Details"_s;

void TakeYearCode()
{
    const QString title = Form1->panYear.Caption();
    state.YearCode = CodeOfTitle(title);
    const Topic* topic = BrowsedTopicOf(title);
    if (topic != nullptr && topic->renamesStatistics)
        Form1->cmdStats.SetCaption(detailsCaption);
}

/// On a disc that lost its photos while the list was built anew, the list is shorter than its count.
QString PhotoAt(int index)
{
    return index <= state.PhotoFiles.Count() ? state.PhotoFiles(index) : QString();
}

/// Leaves PhotoIndex on the first photo of the code, or after the last photo.
void FindFirstPhoto()
{
    RefreshPathPosition();
    for (state.PhotoIndex = 1; state.PhotoIndex <= state.PhotoCount; state.PhotoIndex += 1) {
        const QString photo = PhotoAt(state.PhotoIndex);
        if (CodeOfPhoto(photo) != state.YearCode)
            continue;
        state.CurrentPhotoFile = photo;
        if (state.ShowFileNames)
            Form1->txtFile.SetText(ShortNameOfPhoto(photo));
        return;
    }
}

void ReportMissingPhoto()
{
    state.ErrorCode = u"ER023"_s;
    ReportError();
    Form1->Image4.Hide();
}

void ShowFirstPhoto()
{
    if (state.PhotoIndex > state.PhotoCount) {
        ReportMissingPhoto();
        return;
    }
    OnError(
        [] {
            Form1->Image4.Load(state.CurrentPhotoFile);
            Form1->Image4.Show();
            ReadNeighboursAhead(state.PhotoIndex, Walk::Forward);
        },
        ReportMissingPhoto);
}

} // namespace

void SelectYear()
{
    Form1->mnuNames.SetVisible(true);
    Form1->rtbDetails.Hide();
    state.SkipFirstPhoto = true;
    state.MissingClipArt.clear();
    state.YearCode = Mid(Form1->panYear.Caption(), 3, 2);
    RestoreMainWindow();
    TakeYearCode();
    FindFirstPhoto();
    ShowFirstPhoto();
    state.ShownPhotoIndex = state.PhotoIndex;
    UpdatePlayListButtons();
}

void FitButtonsToTopic()
{
    Form1Controls& form = *Form1;
    form.cmdStats.SetCaption(detailsCaption);
    for (Button* button : {&form.cmdOptions, &form.cmdColors, &form.cmdScript, &form.cmdEmblem, &form.cmdAd,
                           &form.cmdNostalgia})
        button->SetEnabled(false);
}

void ShowSpecialTopic()
{
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->Image4.Clear();
    SelectYear();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);

    FitButtonsToTopic();
    Form1->rtbDetails.Hide();
    state.CurrentYearButton = 0;
    Form1->cmdYR(1).SetEnabled(true);
    Form1->cmdYR(1).SetFocus();
}

} // namespace torvik
