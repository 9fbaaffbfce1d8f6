#include "ui/printer/common_dialog.h"

#include "runtime/failure.h"
#include "ui/help/help_system.h"
#include "ui/printer/printer.h"
#include "ui/printer/printer_dialog.h"

#include <utility>

namespace torvik {

CommonDialog::CommonDialog(const QString& name, CommonDialogDesign design) : design_(std::move(design))
{
    setObjectName(name);
}

void CommonDialog::SetAction(int action)
{
    if (action != commonDialog::showPrinter)
        Fail(failure::invalidProperty);
    if (const auto chosen = AskForPrinter(Printer.Setup(), Printer.Choices()))
        Printer.SetUp(*chosen);
}

void CommonDialog::ShowHelp() const
{
    WinHelp(0, helpFile_, helpCommand_, {});
}

} // namespace torvik
