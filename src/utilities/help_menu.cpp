#include "program/help_position.h"
#include "ui/help/help_system.h"
#include "utilities/bind_utilities.h"
#include "windows/main_window.h"

namespace torvik {

namespace {

void mnuContents_Click()
{
    CommonDialog& dialog = Form1->dlgCommon1;
    dialog.SetHelpFile(HelpFile());
    dialog.SetHelpCommand(winHelp::contents);
    dialog.ShowHelp();
}

} // namespace

void BindHelpMenu()
{
    Form1.Bind([](Form1Controls& form) { form.mnuContents.Click = mnuContents_Click; });
}

} // namespace torvik
