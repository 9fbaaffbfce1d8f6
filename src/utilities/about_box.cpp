#include "program/program_state.h"
#include "program/task_bar.h"
#include "ui/desktop/shell_execute.h"
#include "utilities/bind_utilities.h"
#include "windows/about_window.h"
#include "windows/main_window.h"
#include "windows/maker.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString lineEnd = u"\r\n"_s;

/// In the middle of Form1's size, wherever Form1 stands.
void frmAbout_Load()
{
    frmAboutControls& form = *frmAbout;
    form.SetTop((Form1->Height() - form.Height()) / 2);
    form.SetLeft((Form1->Width() - form.Width()) / 2);
    form.panQuillon.SetCaption(maker::name + lineEnd + maker::street + lineEnd + maker::town + lineEnd +
                               u"WEB: "_s + maker::webAddress);
    form.SSPanel2.SetCaption(maker::legalNotice);
}

/// The browser needs the task bar. The menu entry keeps its caption, so its next click goes by that alone.
void VisitWebSite()
{
    state.ApiResult = ShowWindow(state.TrayWindow, showWindow::normal);
    ShellExecute(maker::webAddress);
}

} // namespace

void BindAboutBox()
{
    Form1.Bind([](Form1Controls& form) {
        form.mnuAbout.Click = [] { frmAbout->ShowModal(); };
        form.mnuQuillonSoftware.Click = VisitWebSite;
    });
    frmAbout.Bind([](frmAboutControls& form) {
        form.Load = frmAbout_Load;
        form.SSCommand1.Click = [] { frmAbout.Unload(); };
        form.SSCommand2.Click = VisitWebSite;
    });
}

} // namespace torvik
