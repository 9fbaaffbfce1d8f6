#include "browser/bind_browser.h"
#include "browser/browse_from_start.h"
#include "browser/next_and_previous_photo.h"
#include "browser/select_year.h"
#include "program/catalogue/topics.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void BeginSelection()
{
    state.YearChosen = true;
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->rtbDetails.Hide();
    Form1->Image4.Clear();
}

/// The focus does not stay on the button: it moves on to the next year.
void FinishSelection(int index)
{
    SelectYear();
    Form1->cmdYR(NextYearButtonAfter(index)).SetFocus();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);
    state.CurrentYearButton = index;
}

void cmdYR_Click(int index)
{
    BeginSelection();
    Form1->panYear.SetCaption(YearOfButton(index));
    FinishSelection(index);
}

/// The first selection by the space bar takes its year from the position in the photos' paths, not from the
/// button; it has always been so.
void SelectBySpaceBar(int index)
{
    BeginSelection();
    if (state.TorviksPathPos == 0)
        state.TorviksPathPos = 1;
    Form1->panYear.SetCaption(u"19%1"_s.arg(state.TorviksPathPos + yearBeforeFirst));
    FinishSelection(index);
}

void cmdYR_KeyDown(int index, int keyCode)
{
    switch (keyCode) {
    case key::comma:
        StepPhotoBackward();
        break;
    case key::period:
        StepPhotoForward();
        break;
    case key::space:
        if (!state.YearChosen)
            SelectBySpaceBar(index);
        break;
    default:
        break;
    }
}

} // namespace

void BindYearButtons()
{
    Form1.Bind([](Form1Controls& form) {
        form.cmdYR.Each([](int index, Button& button) {
            button.Click = [index] { cmdYR_Click(index); };
            button.KeyDown = [index](int keyCode, int /*shift*/) { cmdYR_KeyDown(index, keyCode); };
        });
    });
}

} // namespace torvik
