#include "browser/restore_main_window.h"
#include "program/help_position.h"
#include "program/play_list_buttons.h"
#include "program/program_state.h"
#include "program/title_code.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "slides/bind_slides.h"
#include "slides/shown_slide.h"
#include "ui/forms/message_box.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"

#include <algorithm>
#include <initializer_list>

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

void ShowAsTopic()
{
    Form1Controls& main = *Form1;
    main.cmdStats.SetCaption(u"Details"_s);
    for (Button* button : {&main.cmdOptions, &main.cmdColors, &main.cmdScript, &main.cmdEmblem, &main.cmdAd,
                           &main.cmdNostalgia})
        button->SetEnabled(false);
    main.cmdYR(1).SetFocus();
}

bool IsOneOf(const QString& title, std::initializer_list<const char*> titles)
{
    return std::any_of(titles.begin(), titles.end(),
                       [&](const char* each) { return title == QLatin1String(each); });
}

/// The focus goes to the button behind the year's own. A title that has no digits where a year has them is
/// failure 13, Type mismatch.
void FocusYearBehind()
{
    const int year = static_cast<int>(RoundHalfEven(ToNumber(state.YearCode)));
    Form1->cmdYR(year - 65).SetFocus();
    state.CurrentYearButton = year - 66;
}

void FitButtonsToTitle()
{
    Form1Controls& main = *Form1;
    const QString title = main.panYear.Caption();
    if (IsOneOf(title, {"Torvik Postage Stamps ", "Torvik Metal Signs ", "Torvik Kestra I ",
                        "Early Torvik Prototypes ", "Torvik Cookies ", "The Torvik Monopoly Game "})) {
        ShowAsTopic();
    } else if (IsOneOf(title,
                       {"Torvik Kestra III ", "Torvik Super Stallion ", "Danbury Mint Die Cast Models ",
                        "Franklin Mint Die Cast Models ", "Franklin Mint Collector Knives "})) {
        main.cmdDesc.SetEnabled(true);
        ShowAsTopic();
    } else if (title == u"2000"_s) {
        main.cmdYR(35).SetFocus();
        state.CurrentYearButton = 34;
    } else if (IsOneOf(title, {"2001", "The Classic Harwell "})) {
        main.cmdYR(1).SetFocus();
    } else {
        FocusYearBehind();
    }
}

/// The main window comes back with the photo on show here. RestoreMainWindow unloads this form: nothing
/// behind it may touch it.
void LeaveWithPhoto()
{
    state.PhotoIndex -= 1;
    CarryPhotoOver();
    Form1->txtFile.SetText(Mid(state.PhotoFiles(state.PhotoIndex), state.TorviksPathPos + 9));
    UpdatePlayListButtons();
    RestoreMainWindow();
    Form1->cmdStats.SetCaption(u"Engines"_s);
    state.CurrentYearButton = 0;
    FitButtonsToTitle();
    TakeCodeOfTitle();
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
