#include "browser/restore_main_window.h"
#include "browser/select_year.h"
#include "program/catalogue/topics.h"
#include "program/help_position.h"
#include "program/photo_name.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "slides/bind_slides.h"
#include "slides/shown_slide.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void CarryPhotoOver()
{
    Form1Controls& main = *Form1;
    main.Image4.Load(state.PhotoFiles(state.PhotoIndex));
    state.CurrentPhotoFile = state.PhotoFiles(state.PhotoIndex);
    main.panPhoto.SetCaption(state.PhotoNumbers(state.PhotoIndex));
    main.panYear.SetCaption(frmSlide->panYear.Caption());
    main.panYear.Show();
    main.Image4.Show();
    state.ShownPhotoIndex = state.PhotoIndex;
}

/// The focus goes to the button after the year's own. A title that has no digits where a year has them is
/// failure 13, Type mismatch.
void FocusYearAfter()
{
    const int button = static_cast<int>(RoundHalfEven(ToNumber(state.YearCode))) - yearBeforeFirst;
    Form1->cmdYR(button + 1).SetFocus();
    state.CurrentYearButton = button;
}

/// RestoreMainWindow has given the buttons the states of the title before. The button of 2001 never gets the
/// focus as the one after the year's own; it has always been so.
void FitFocusToTitle()
{
    const QString title = Form1->panYear.Caption();
    const Topic* topic = BrowsedTopicOf(title);
    if (topic != nullptr && !topic->keepsYearButtons)
        FitButtonsToTopic();
    if (topic != nullptr || title == YearOfButton(yearCount)) {
        Form1->cmdYR(1).SetFocus();
    } else if (title == YearOfButton(yearCount - 1)) {
        Form1->cmdYR(yearCount).SetFocus();
        state.CurrentYearButton = yearCount - 1;
    } else {
        FocusYearAfter();
    }
}

/// The main window comes back with the photo on show here. RestoreMainWindow unloads this form: nothing
/// after it may touch it.
void LeaveWithPhoto()
{
    state.PhotoIndex -= 1;
    CarryPhotoOver();
    Form1->txtFile.SetText(NameOfPhoto(state.PhotoFiles(state.PhotoIndex)));
    UpdatePlayListButtons();
    RestoreMainWindow();
    Form1->cmdStats.SetCaption(u"Engines"_s);
    state.CurrentYearButton = 0;
    FitFocusToTitle();
    if (const Topic* topic = TopicOf(Form1->panYear.Caption()))
        state.YearCode = QString::fromLatin1(topic->code);
    state.SlideShowOpen = false;
    state.PhotoIndex -= 1;
}

/// Either state of the show lands on the photo that it shows: LeaveWithPhoto goes one back.
void mmSlide_StopClick()
{
    state.SlideRestorePending = false;
    if (Form1->panYear.Caption() == nothingChosen) {
        RestoreMainWindow();
        return;
    }
    if (!frmSlide->mmSlide.ButtonEnabled(MediaButton::Pause))
        state.PhotoIndex += 1;
    if (state.PhotoIndex < 2)
        state.PhotoIndex = 2;
    OnError(LeaveWithPhoto, [] { ReportSlideFailure(u"ER017"_s); });
}

void cmdExit_Click()
{
    frmSlide.Unload();
}

void frmSlide_Load()
{
    UpdatePlayListButtons();
    InitHelp(frmSlide->WindowNumber());
}

void frmSlide_QueryUnload(bool& cancel)
{
    if (state.SlideShowOpen)
        return;
    state.MessageResult = MsgBox(u"Exit The Torvik Vollandry?"_s, msgbox::question + msgbox::okCancel);
    cancel = state.MessageResult != msgbox::answerOk;
}

} // namespace

void BindLeaveSlideShow()
{
    frmSlide.Bind([](frmSlideControls& form) {
        form.mmSlide.ButtonClick(MediaButton::Stop) = mmSlide_StopClick;
        form.cmdExit.Click = cmdExit_Click;
        form.Load = frmSlide_Load;
        form.QueryUnload = frmSlide_QueryUnload;
        form.Unload = QuitHelp;
    });
}

} // namespace torvik
