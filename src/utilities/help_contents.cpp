#include "utilities/help_contents.h"

#include "program/help_window.h"
#include "ui/help/win_help.h"
#include "windows/form1.h"

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

void BindHelpContents()
{
    Form1.Bind([](Form1Controls& form) { form.mnuContents.Click = mnuContents_Click; });
}

} // namespace torvik
