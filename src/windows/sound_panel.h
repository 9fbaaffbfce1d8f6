#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/forms/control_array.h"

namespace torvik {

/// The panel of sound effects has this many buttons, from index 0 on.
inline constexpr int soundCount = 29;

/// What is written beside a button.
QString SoundLabel(int index);

/// The work panel with the sound effects; hidden over the browsing view.
///
///   +----------------------------------------------------+
///   |                      Label10                        |
///   | SSCommand2(0) lblSound(0)  SSCommand2(13)  ...(21)  |
///   |      ...                        ...          ...    |
///   |                            Picture5                 |
///   | SSCommand2(12)             SSCommand3  SSCommand1   |
///   +----------------------------------------------------+
struct SoundPanel {
    explicit SoundPanel(Form& form);

    Panel pnlSound;
    Label Label10;
    ControlArray<Button> SSCommand2;
    ControlArray<Label> lblSound;
    Image Picture5;
    Button SSCommand3;
    Button SSCommand1;
};

} // namespace torvik
