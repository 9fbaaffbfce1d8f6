#include "browser/bind_browser.h"
#include "browser/copy_to_clipboard.h"
#include "browser/pictures_over_photo.h"
#include "program/catalogue/pictures.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "program/report_error.h"
#include "runtime/failure.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Emblem and script: the button opens what is closed and closes what is open.
void Toggle(PictureBox& pane, void (*load)())
{
    if (Form1->panYear.Caption() == nothingChosen)
        return;
    if (pane.Visible())
        pane.Hide();
    else
        load();
    FocusNextYearButton();
}

void OpenClipArt()
{
    FocusNextYearButton();
    state.YearCode = Mid(Form1->panYear.Caption(), 3, 2);
    state.ErrorCode = u"ER035"_s;
    OnError(
        [] {
            PictureBox& pane = Form1->picClipArt;
            pane.Load(state.DiscRoot + ClipArtOf(state.YearCode));
            PlaceClipArt();
            pane.ZOrder();
            pane.Show();
        },
        ReportError);
}

void cmdClipArt_Click()
{
    if (Form1->picClipArt.Visible())
        Form1->picClipArt.Hide();
    else if (Form1->panYear.Caption() != nothingChosen)
        OpenClipArt();
}

void ClosePane(PictureBox& pane)
{
    pane.Hide();
    FocusNextYearButton();
}

void Pane_MouseDown(int button)
{
    if (button == mouse::right) {
        state.ClipboardRequest = u"2"_s;
        CopyToClipboard();
    } else {
        state.ClipboardRequest = u" "_s;
    }
}

/// A click tells no button, so this picture is never copied, whatever its tool tip says.
void picEmbRear_Click()
{
    state.ClipboardRequest = u" "_s;
}

} // namespace

void BindEmblemAndScriptButtons()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdEmblem.Click = [] { Toggle(Form1->picEmblem, LoadEmblem); };
        form.cmdScript.Click = [] { Toggle(Form1->picScript, LoadScript); };
        form.cmdClipArt.Click = cmdClipArt_Click;
        form.picEmblem.Click = [] { ClosePane(Form1->picEmblem); };
        form.picScript.Click = [] { ClosePane(Form1->picScript); };
        form.picClipArt.Click = [] { ClosePane(Form1->picClipArt); };
        for (PictureBox* pane : {&form.picEmblem, &form.picScript, &form.picClipArt, &form.picEmbSide})
            pane->MouseDown = Pane_MouseDown;
        form.picEmbRear.Click = picEmbRear_Click;
    });
}

} // namespace torvik
