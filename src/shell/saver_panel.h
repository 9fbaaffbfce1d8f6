#pragma once

#include "ui/button.h"
#include "ui/choice_buttons.h"
#include "ui/control_array.h"
#include "ui/image.h"
#include "ui/label.h"
#include "ui/panel.h"
#include "ui/spin_button.h"

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
