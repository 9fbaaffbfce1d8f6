#include "shell/saver_panel.h"

#include "ui/form.h"

namespace torvik {

SaverPanel::SaverPanel(Form& form) : pnlSSaver(form, QStringLiteral("pnlSSaver"), {3000, 1200, 6000, 4500})
{
    pnlSSaver.Hide();
}

} // namespace torvik
