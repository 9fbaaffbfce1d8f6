#include "browser/next_and_previous_photo.h"

#include "browser/bind_browser.h"
#include "browser/neighbours.h"
#include "browser/photo_caption.h"
#include "program/catalogue/topics.h"
#include "program/photo_list.h"
#include "program/photo_name.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// What a step changes before it has found a photo.
struct Cursor {
    Integer photoIndex;
    bool skipFirstPhoto;
    bool steppedForward;
    bool steppedBackward;
    QString yearCode;

    static Cursor Now()
    {
        return {state.PhotoIndex, state.SkipFirstPhoto, state.SteppedForward, state.SteppedBackward,
                state.YearCode};
    }
    void PutBack() const
    {
        state.PhotoIndex = photoIndex;
        state.SkipFirstPhoto = skipFirstPhoto;
        state.SteppedForward = steppedForward;
        state.SteppedBackward = steppedBackward;
        state.YearCode = yearCode;
    }
};

/// RestoreMainWindow can leave the plain digits of 2000 and 2001.
void CorrectYearCode()
{
    if (Left(state.YearCode, 1) == u"0"_s)
        state.YearCode = u"A"_s + Mid(state.YearCode, 2, 1);
}

bool HasYearCode(int index)
{
    RefreshPathPosition();
    return CodeOfPhoto(state.PhotoFiles(index)) == state.YearCode;
}

/// Leaves PhotoIndex one below the photo that was found, or after the last one.
bool ScanForward()
{
    for (; state.PhotoIndex <= state.PhotoCount; state.PhotoIndex += 1) {
        if (!HasYearCode(state.PhotoIndex + 1))
            continue;
        if (!state.SkipFirstPhoto)
            return true;
        state.SkipFirstPhoto = false;
    }
    return false;
}

bool ScanBackward()
{
    for (; state.PhotoIndex >= 1; state.PhotoIndex -= 1) {
        if (HasYearCode(state.PhotoIndex))
            return true;
    }
    return false;
}

/// A photo before it that could not be loaded may have hidden the pane.
void ShowPhoto(int index, Walk walk)
{
    Form1->Image4.Load(state.PhotoFiles(index));
    Form1->Image4.Show();
    Form1->panPhoto.SetCaption(state.PhotoNumbers(index));
    if (state.ShowFileNames)
        Form1->txtFile.SetText(ShortNameOfPhoto(state.PhotoFiles(index)));
    state.CurrentPhotoFile = state.PhotoFiles(index);
    ReadNeighboursAhead(index, walk);
}

/// The focus stays on the button after the year on show, so that a key pressed again walks on.
void FocusAfterStep()
{
    const QString& code = state.YearCode;
    int button = 1;
    if (code == code2000)
        button = yearCount;
    else if (code <= u"99"_s)
        button = static_cast<int>(Val(code)) - yearBeforeFirst + 1;
    if (code == code2000 || code == code2001)
        Form1->cmdYR(button).SetEnabled(true);
    Form1->cmdYR(button).SetFocus();
}

void SpinButton1_SpinUp()
{
    StepPhotoForward();
}

void SpinButton1_SpinDown()
{
    StepPhotoBackward();
}

/// The rebuilt list leaves the cursor past its end, so the step goes round to the start.
void panPhoto_DblClick()
{
    BuildPhotoSet();
    StepPhotoForward();
}

} // namespace

void StepPhotoForward()
{
    if (Form1->panYear.Caption() == nothingChosen) {
        Form1->cmdYR(1).SetEnabled(true);
        Form1->cmdYR(1).SetFocus();
        return;
    }
    const Cursor before = Cursor::Now();
    if (state.SteppedBackward) {
        state.SteppedBackward = false;
        state.PhotoIndex += 1;
    }
    state.SteppedForward = true;
    CorrectYearCode();

    state.ErrorCode = u"ER012"_s;
    OnError(
        [&] {
            bool found = ScanForward();
            for (int lap = 1; !found && lap <= 2; ++lap) { // the first lap may only have passed over a photo
                state.PhotoIndex = 0;
                found = ScanForward();
            }
            if (!found) {
                before.PutBack();
                return;
            }
            state.PhotoIndex += 1;
            ShowPhoto(state.PhotoIndex, Walk::Forward);
            state.ShownPhotoIndex = state.PhotoIndex;
            FocusAfterStep();
            if (Form1->rtbDetails.Visible())
                LoadPhotoDetails();
            UpdatePlayListButtons();
        },
        ReportError);
}

void StepToPhoto(int index)
{
    state.PhotoIndex = index - 1;
    state.SkipFirstPhoto = false;
    state.SteppedBackward = false;
    StepPhotoForward();
}

void StepPhotoBackward()
{
    const Cursor before = Cursor::Now();
    state.SkipFirstPhoto = false;
    if (state.SteppedForward)
        state.PhotoIndex -= 1;
    state.SteppedBackward = true;
    if (state.PhotoIndex < 1)
        state.PhotoIndex = state.PhotoCount;
    CorrectYearCode();

    state.ErrorCode = u"ER011"_s;
    bool found = true;
    const bool shown = OnError(
        [&] {
            found = ScanBackward();
            if (!found) {
                state.PhotoIndex = state.PhotoCount;
                found = ScanBackward();
            }
            if (!found) {
                before.PutBack();
                return;
            }
            ShowPhoto(state.PhotoIndex, Walk::Backward);
            state.PhotoIndex -= 1;
        },
        ReportError);
    if (!found)
        return;
    // Where the photo failed, the caption of the one after it is asked for, and there may be none.
    const auto reportUnlessTold = [shown] {
        if (shown)
            ReportError();
    };
    OnError(
        [&] {
            state.ShownPhotoIndex = state.PhotoIndex + 1;
            state.SteppedForward = false;
            FocusAfterStep();
            if (Form1->rtbDetails.Visible())
                LoadPhotoDetailsBackward();
        },
        reportUnlessTold);
    OnError(UpdatePlayListButtons, reportUnlessTold);
    if (!shown)
        state.PhotoIndex -= 1; // the next step passes the photo that could not be loaded
}

void BindNextAndPreviousPhoto()
{
    Form1.Bind([](Form1Controls& form) {
        form.SpinButton1.SpinUp = SpinButton1_SpinUp;
        form.SpinButton1.SpinDown = SpinButton1_SpinDown;
        form.panPhoto.DblClick = panPhoto_DblClick;
    });
}

} // namespace torvik
