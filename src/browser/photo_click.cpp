#include "browser/bind_browser.h"
#include "browser/browse_from_start.h"
#include "browser/select_year.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/catalogue/topics.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

namespace torvik {

namespace {

/// Where the walk goes after the last year, by the codes of the titles.
struct WalkStep {
    const char* from;
    const char* to;
    int nextYearButton;
    int focusButton;
    void (*showIt)();
};

constexpr WalkStep afterTheYears[] = {
    {"A1", "TD", 35, 2, SelectYear},       {"TD", "TF", 35, 2, ShowSpecialTopic},
    {"TF", "VM", 35, 2, ShowSpecialTopic}, {"VM", "ZZ", 1, 1, SelectYear},
    {"ZZ", "67", 1, 1, SelectYear},
};

const WalkStep* StepFrom(const QString& title)
{
    for (const WalkStep& step : afterTheYears) {
        if (title == TitleOfCode(QLatin1String(step.from)))
            return &step;
    }
    return nullptr;
}

void WalkToNextYear()
{
    if (state.CurrentYearButton == yearCount) {
        state.NextYearButton = 1;
        Form1->cmdYR(2).SetFocus();
    } else {
        state.NextYearButton = state.CurrentYearButton + 1;
        Form1->cmdYR(state.NextYearButton).SetFocus();
    }
}

void WalkOn()
{
    state.YearChosen = true;
    Screen.SetMousePointer(MousePointer::Hourglass);
    Form1->rtbDetails.Hide();
    WalkToNextYear();

    if (const WalkStep* step = StepFrom(Form1->panYear.Caption())) {
        Form1->panYear.SetCaption(TitleOfCode(QLatin1String(step->to)));
        state.NextYearButton = step->nextYearButton;
        Form1->cmdYR(step->focusButton).SetFocus();
        step->showIt();
    } else {
        Form1->panYear.SetCaption(YearOfButton(state.NextYearButton));
        SelectYear();
    }

    Form1->cmdYR(NextYearButtonAfter(state.NextYearButton)).SetFocus();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);
    state.CurrentYearButton = state.NextYearButton;
}

void OpenPlayList()
{
    ResumeNext([] { MakeFolder(ProgramFolder() + playListFolder); });
    ResumeNext([] { frmSSPhoto->Show(); });
}

void Image4_MouseDown(int button)
{
    if (button == mouse::right)
        OpenPlayList();
    else
        WalkOn();
}

} // namespace

void BindPhotoClick()
{
    Form1.Bind([](Form1Controls& form) { form.Image4.MouseDown = Image4_MouseDown; });
}

} // namespace torvik
