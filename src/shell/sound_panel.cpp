#include "shell/sound_panel.h"

#include "ui/form.h"

namespace torvik {

SoundPanel::SoundPanel(Form& form) : pnlSound(form, QStringLiteral("pnlSound"), {2000, 1200, 8100, 6000})
{
    pnlSound.Hide();
}

} // namespace torvik
