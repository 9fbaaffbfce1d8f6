#include "shell/print_panel.h"

#include "ui/form.h"

namespace torvik {

PrintPanel::PrintPanel(Form& form) : pnlPrint(form, QStringLiteral("pnlPrint"), {3000, 1200, 6600, 5400})
{
    pnlPrint.Hide();
    List1.Add(0, pnlPrint, Twips{3600, 1200, 1200, 3300});
    List1.Add(1, pnlPrint, Twips{5040, 1200, 1200, 3300});
}

} // namespace torvik
