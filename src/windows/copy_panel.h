#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/controls/text_box.h"

namespace torvik {

/// The work panel that shows the progress of a copy; hidden over the browsing view.
struct ProgressPanel {
    explicit ProgressPanel(Form& form);

    Panel pnlProgress;
    Image Image1;
    Label Label2; ///< the heading
    Label Label1;
    TextBox Text1;        ///< the source file in hand
    Panel ProgressGuage;  ///< percent of that file
    Panel ProgressGuage2; ///< percent of the whole job
    Button cmdCopy;
    Button cmdCancel;
};

} // namespace torvik
