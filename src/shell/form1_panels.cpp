#include "shell/form1_panels.h"

#include "ui/form.h"

namespace torvik {

SaverPanel::SaverPanel(Form& form) : pnlSSaver(form, QStringLiteral("pnlSSaver"), {3000, 1200, 6000, 4500})
{
    pnlSSaver.Hide();
}

ProgressPanel::ProgressPanel(Form& form)
    : pnlProgress(form, QStringLiteral("pnlProgress"), {3000, 1200, 6300, 3300})
{
    pnlProgress.Hide();
}

PrintPanel::PrintPanel(Form& form) : pnlPrint(form, QStringLiteral("pnlPrint"), {3000, 1200, 6600, 5400})
{
    pnlPrint.Hide();
    List1.Add(0, pnlPrint, Twips{3600, 1200, 1200, 3300});
    List1.Add(1, pnlPrint, Twips{5040, 1200, 1200, 3300});
}

SoundPanel::SoundPanel(Form& form) : pnlSound(form, QStringLiteral("pnlSound"), {2000, 1200, 8100, 6000})
{
    pnlSound.Hide();
}

} // namespace torvik
