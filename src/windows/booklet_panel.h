#pragma once

#include "ui/controls/button.h"
#include "ui/controls/choice_buttons.h"
#include "ui/controls/frame.h"
#include "ui/controls/image.h"
#include "ui/controls/label.h"
#include "ui/controls/list_box.h"
#include "ui/controls/panel.h"
#include "ui/controls/picture_box.h"
#include "ui/controls/rich_text_box.h"
#include "ui/forms/control_array.h"

namespace torvik {

/// The work panel that chooses what the printed booklet holds; hidden over the browsing view.
///
///   +-------------------------------------------------------+
///   | Image3  Label3                                        |
///   |                                                       |
///   | Check1(0)                Label5                       |
///   | Check1(1)                Label4        Label6         |
///   | +- Frame2 ------------+  +----------+  +----------+   |
///   | | Check1(2)           |  | List1(0) |  | List1(1) |   |
///   | |   ...               |  |          |  |          |   |
///   | | Check1(7)           |  |          |  |          |   |
///   | +---------------------+  +----------+  +----------+   |
///   |   cmdPrint            SSCommand7            cmdOK     |
///   +-------------------------------------------------------+
struct PrintPanel {
    explicit PrintPanel(Form& form);

    // In the order in which Tab walks through them.
    Panel pnlPrint;
    Image Image3;
    Label Label3;
    Frame Frame2;
    ControlArray<CheckBox> Check1; ///< 0 and 1 without a year, 2 to 7 by year, in the frame
    Label Label5;
    Label Label4;
    ControlArray<ListBox> List1; ///< 0 the first year of the range, 1 the last
    Label Label6;
    Button cmdPrint;
    Button SSCommand7; ///< Clear
    Button cmdOK;

    PictureBox Picture3; ///< unseen: a picture on its way to the printer
    RichTextBox rtbText; ///< unseen: a document on its way to the printer
};

} // namespace torvik
