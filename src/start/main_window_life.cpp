#include "start/main_window_life.h"

#include "browser/browse_from_start.h"
#include "browser/restore_main_window.h"
#include "browser/select_year.h"
#include "program/catalogue/other_files.h"
#include "program/catalogue/topics.h"
#include "program/program_state.h"
#include "program/task_bar.h"
#include "start/bind_start.h"
#include "start/main_window_place.h"
#include "ui/forms/program_end.h"
#include "ui/forms/screen.h"
#include "windows/main_window.h"
#include "windows/splash.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void Form1_Load()
{
    Form1Controls& form = *Form1;
    form.mnuMag(1).SetCaption(DoubleAmpersands(form.mnuMag(1).Caption()));
    state.DocumentFile = state.DiscRoot + startDocument;
    Screen.SetMousePointer(MousePointer::Default);
    Form2.Unload();
    form.Frame1.ZOrder();
    RestoreMainWindowPlace();
    form.Show();
}

/// Opens the browser on 1967, with the focus on the year after it.
void ShowFirstYear()
{
    Form1Controls& form = *Form1;
    state.FirstActivation = false;
    Screen.SetMousePointer(MousePointer::Hourglass);
    form.Image4.Clear();
    state.NextYearButton = 1;
    form.cmdYR(2).SetEnabled(true);
    form.cmdYR(2).SetFocus();
    form.panYear.SetCaption(u"1967"_s);
    SelectYear();
    form.cmdYR(1).SetEnabled(false);
    form.cmdYR(2).SetFocus();
    BrowseFromStart();
    Screen.SetMousePointer(MousePointer::Default);
    state.CurrentYearButton = state.NextYearButton;
}

/// The photos of a topic could not be stepped through with the characters that RestoreMainWindow takes from
/// its title.
void ReturnFromSlideShow()
{
    if (Form1->panYear.Caption() != nothingChosen)
        Form1->Image4.Show();
    RestoreMainWindow();
    if (const Topic* topic = BrowsedTopicOf(Form1->panYear.Caption()))
        state.YearCode = QString::fromLatin1(topic->code);
}

void Form1_Activate()
{
    if (state.FirstActivation)
        ShowFirstYear();
    if (state.SlideRestorePending)
        ReturnFromSlideShow();
}

/// A window that changes its size brings a hidden task bar back.
void Form1_Resize()
{
    if (Form1->mnuHideStatus.Caption() == u"HideStatusBar"_s)
        return;
    state.ApiResult = ShowWindow(state.TrayWindow, showWindow::normal);
    Form1->mnuHideStatus.SetCaption(u"HideStatusBar"_s);
}

void Form1_QueryUnload()
{
    Form1->MMControl1.Command(u"close"_s);
    state.ApiResult = ShowWindow(state.TrayWindow, showWindow::normal);
    SaveMainWindowPlace();
    EndProgram();
}

void UnloadForm1()
{
    Form1.Unload();
}

} // namespace

QString DoubleAmpersands(const QString& text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

void HideProgressPanel()
{
    Form1->pnlProgress.Hide();
}

void BindMainWindowLife()
{
    Form1.Bind([](Form1Controls& form) {
        form.Load = Form1_Load;
        form.Activate = Form1_Activate;
        form.Resize = Form1_Resize;
        form.QueryUnload = [](bool& /*cancel*/) { Form1_QueryUnload(); };
        form.cmdExit.Click = UnloadForm1;
        form.mnuExit.Click = UnloadForm1;
    });
}

} // namespace torvik
