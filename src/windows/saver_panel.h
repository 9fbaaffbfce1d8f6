#pragma once

#include "ui/controls/button.h"
#include "ui/controls/choice_buttons.h"
#include "ui/controls/image.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/controls/spin_button.h"
#include "ui/forms/control_array.h"

namespace torvik {

/// The work panel that installs the screen saver; hidden over the browsing view.
///
///   +-----------------------------------------------+
///   |  Image2        Label7                         |
///   |                Label8                         |
///   |  Option1(0)                Label9             |
///   |  Option1(1)                panInterval <>     |
///   |  SSCommand4     SSCommand5     SSCommand6     |
///   +-----------------------------------------------+
struct SaverPanel {
    explicit SaverPanel(Form& form);

    Panel pnlSSaver;
    Image Image2;
    Label Label7;
    Label Label8;
    ControlArray<OptionButton> Option1; ///< 0 all photos, 1 the play list
    Label Label9;
    Panel panInterval;
    SpinButton SpinInterval;
    Button SSCommand4; ///< Install
    Button SSCommand5; ///< Help
    Button SSCommand6; ///< Cancel, after an installation Exit
};

} // namespace torvik
