#include "program/program_state.h"
#include "program/task_bar.h"
#include "ui/forms/screen.h"
#include "utilities/bind_utilities.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

void HideTaskBar()
{
    state.ApiResult = ShowWindow(state.TrayWindow, showWindow::hide);
    Form1->SetWindowState(Form::State::Normal);
    Form1->SetHeight(Screen.Height());
    Form1->SetWidth(Screen.Width());
    Form1->SetTop(0);
    Form1->SetLeft(0);
    Form1->mnuHideStatus.SetCaption(u"ShowStatusBar"_s);
}

void ShowTaskBar()
{
    state.ApiResult = ShowWindow(state.TrayWindow, showWindow::normal);
    Form1->mnuHideStatus.SetCaption(u"HideStatusBar"_s);
}

void mnuHideStatus_Click()
{
    state.TrayClassName = u"Shell_TrayWnd"_s;
    state.TrayWindow = FindWindowByClass(state.TrayClassName);
    if (Form1->mnuHideStatus.Caption() == u"HideStatusBar"_s)
        HideTaskBar();
    else
        ShowTaskBar();
}

} // namespace

void BindHideTaskBar()
{
    Form1.Bind([](Form1Controls& form) { form.mnuHideStatus.Click = mnuHideStatus_Click; });
}

} // namespace torvik
