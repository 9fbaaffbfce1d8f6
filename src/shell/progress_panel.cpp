#include "shell/progress_panel.h"

#include "ui/form.h"

namespace torvik {

ProgressPanel::ProgressPanel(Form& form)
    : pnlProgress(form, QStringLiteral("pnlProgress"), {3000, 1200, 6300, 3300})
{
    pnlProgress.Hide();
}

} // namespace torvik
