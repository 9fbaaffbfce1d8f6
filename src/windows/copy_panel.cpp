#include "windows/copy_panel.h"

#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

namespace torvik {

ProgressPanel::ProgressPanel(Form& form)
    : pnlProgress(form, u"pnlProgress"_s, {3000, 1260, 6300, 3390}),
      Image1(pnlProgress, u"Image1"_s, {210, 180, 840, 840}),
      Label2(pnlProgress, u"Label2"_s, {1200, 300, 4890, 600}),
      Label1(pnlProgress, u"Label1"_s, {210, 1110, 2000, 240}, u"Copying file:"_s),
      Text1(pnlProgress, u"Text1"_s, {210, 1365, 5880, 330}),
      ProgressGuage(pnlProgress, u"ProgressGuage"_s, {210, 1785, 5880, 330}, {}, Bevel::Sunken),
      ProgressGuage2(pnlProgress, u"ProgressGuage2"_s, {210, 2205, 5880, 330}, {}, Bevel::Sunken),
      cmdCopy(pnlProgress, u"cmdCopy"_s, {1080, 2790, 1950, 390}, u"Copy Photos"_s),
      cmdCancel(pnlProgress, u"cmdCancel"_s, {3270, 2790, 1950, 390}, u"Cancel"_s)
{
    pnlProgress.Hide();
    Image1.ShowWhenSeen(Picture::FromResource(u":/assets/icon.png"_s));
    Label2.SetCaptionFont(15, true, look::accent);
    ProgressGuage.SetToolTip(u"This file"_s);
    ProgressGuage2.SetToolTip(u"All files"_s);
    ProgressGuage.SetFloodPercent(0);
    ProgressGuage2.SetFloodPercent(0);
}

} // namespace torvik
