#include "browser/bind_browser.h"
#include "browser/browse_from_start.h"
#include "browser/select_year.h"
#include "browser/year_buttons.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "program/next_year_button.h"
#include "program/program_state.h"
#include "runtime/failure.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/play_list_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Where the walk goes from a title behind the last year.
struct WalkStep {
    const char* From;
    const char* To;
    int NextYearButton;
    int FocusButton;
    void (*ShowIt)();
};

constexpr WalkStep behindTheYears[] = {
    {"2001", "Danbury Mint Die Cast Models ", 35, 2, SelectYear},
    {"Danbury Mint Die Cast Models ", "Franklin Mint Die Cast Models ", 35, 2, ShowSpecialTopic},
    {"Franklin Mint Die Cast Models ", "Torvik Metal Signs ", 35, 2, ShowSpecialTopic},
    {"Torvik Metal Signs ", "Torvik Postage Stamps ", 1, 1, SelectYear},
    {"Torvik Postage Stamps ", "1967 ", 1, 1, SelectYear},
};

const WalkStep* StepFrom(const QString& title)
{
    for (const WalkStep& step : behindTheYears) {
        if (title == QLatin1String(step.From))
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
        Form1->panYear.SetCaption(QString::fromLatin1(step->To));
        state.NextYearButton = step->NextYearButton;
        Form1->cmdYR(step->FocusButton).SetFocus();
        step->ShowIt();
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
    ResumeNext([] { MakeFolder(ProgramFolder() + u"\\ssTorviks\\"_s); });
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
