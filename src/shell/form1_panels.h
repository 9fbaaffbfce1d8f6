#pragma once

#include "ui/control_array.h"
#include "ui/list_box.h"
#include "ui/panel.h"

namespace torvik {

/// The four work panels that lie hidden over the browsing view of the main window.

/// The installation of the screen saver.
struct SaverPanel {
    explicit SaverPanel(Form& form);
    Panel pnlSSaver;
};

/// The progress of a copy.
struct ProgressPanel {
    explicit ProgressPanel(Form& form);
    Panel pnlProgress;
};

/// The choice of what the printed booklet holds.
struct PrintPanel {
    explicit PrintPanel(Form& form);
    Panel pnlPrint;
    ControlArray<ListBox> List1{QStringLiteral("List1")}; ///< 0 the first year of the range, 1 the last
};

/// The sound effects.
struct SoundPanel {
    explicit SoundPanel(Form& form);
    Panel pnlSound;
};

} // namespace torvik
