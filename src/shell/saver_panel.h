#pragma once

#include "ui/panel.h"

namespace torvik {

/// The work panel that installs the screen saver; hidden over the browsing view.
struct SaverPanel {
    explicit SaverPanel(Form& form);
    Panel pnlSSaver;
};

} // namespace torvik
