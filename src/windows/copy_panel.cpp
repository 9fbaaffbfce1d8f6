#include "windows/copy_panel.h"

#include "ui/forms/form.h"

namespace torvik {

ProgressPanel::ProgressPanel(Form& form)
    : pnlProgress(form, QStringLiteral("pnlProgress"), {3000, 1260, 6300, 3390}),
      Image1(pnlProgress, QStringLiteral("Image1"), {210, 180, 840, 840}),
      Label2(pnlProgress, QStringLiteral("Label2"), {1200, 300, 4890, 600}),
      Label1(pnlProgress, QStringLiteral("Label1"), {210, 1110, 2000, 240}, QStringLiteral("Copying file:")),
      Text1(pnlProgress, QStringLiteral("Text1"), {210, 1365, 5880, 330}),
      ProgressGuage(pnlProgress, QStringLiteral("ProgressGuage"), {210, 1785, 5880, 330}, {}, Bevel::Sunken),
      ProgressGuage2(pnlProgress, QStringLiteral("ProgressGuage2"), {210, 2205, 5880, 330}, {},
                     Bevel::Sunken),
      cmdCopy(pnlProgress, QStringLiteral("cmdCopy"), {1080, 2790, 1950, 390}, QStringLiteral("Copy Photos")),
      cmdCancel(pnlProgress, QStringLiteral("cmdCancel"), {3270, 2790, 1950, 390}, QStringLiteral("Cancel"))
{
    pnlProgress.Hide();
    Image1.Show(Picture::FromResource(QStringLiteral(":/assets/icon.png")));
    Label2.SetCaptionFont(15, true, look::accent);
    ProgressGuage.SetToolTip(QStringLiteral("This file"));
    ProgressGuage2.SetToolTip(QStringLiteral("All files"));
    ProgressGuage.SetFloodPercent(0);
    ProgressGuage2.SetFloodPercent(0);
}

} // namespace torvik
