#pragma once

#include "ui/button.h"
#include "ui/image.h"
#include "ui/label.h"
#include "ui/panel.h"
#include "ui/text_box.h"

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
