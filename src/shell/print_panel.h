#pragma once

#include "ui/control_array.h"
#include "ui/list_box.h"
#include "ui/panel.h"

namespace torvik {

/// The work panel that chooses what the printed booklet holds; hidden over the browsing view.
struct PrintPanel {
    explicit PrintPanel(Form& form);
    Panel pnlPrint;
    ControlArray<ListBox> List1{QStringLiteral("List1")}; ///< 0 the first year of the range, 1 the last
};

} // namespace torvik
