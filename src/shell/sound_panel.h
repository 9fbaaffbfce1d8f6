#pragma once

#include "ui/panel.h"

namespace torvik {

/// The work panel with the sound effects; hidden over the browsing view.
struct SoundPanel {
    explicit SoundPanel(Form& form);
    Panel pnlSound;
};

} // namespace torvik
