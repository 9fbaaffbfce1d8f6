#pragma once

#include "ui/panel.h"

namespace torvik {

/// The work panel that shows the progress of a copy; hidden over the browsing view.
struct ProgressPanel {
    explicit ProgressPanel(Form& form);
    Panel pnlProgress;
};

} // namespace torvik
