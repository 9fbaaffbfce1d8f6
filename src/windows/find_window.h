#pragma once

#include "ui/controls/button.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/controls/rich_list_box.h"
#include "ui/controls/text_box.h"
#include "ui/forms/form.h"
#include "ui/forms/timer.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// Finds words in all that the disc holds. It lies over the lower left of the main window, clear of the
/// caption of the photo, and takes the user's own size.
///
///   +----------------------------------------+
///   | txtFind                                |
///   | +------------------------------------+ |
///   | | lstFound                           | |
///   | |                                    | |
///   | +------------------------------------+ |
///   | lblFound               cmdOpen cmdClose |
///   | ProgressGuage                          |
///   +----------------------------------------+
struct frmFindControls : Form {
    frmFindControls();

    // In the order in which Tab walks through them.
    TextBox txtFind{*this, u"txtFind"_s, {120, 120, 7260, 360}};
    RichListBox lstFound{*this, u"lstFound"_s, {120, 600, 7260, 3420}};
    Label lblFound{*this, u"lblFound"_s, {120, 4140, 4440, 450}};
    Panel ProgressGuage{*this, u"ProgressGuage"_s, {120, 4620, 4440, 180}, {}, Bevel::Sunken};
    Button cmdOpen{*this, u"cmdOpen"_s, {4740, 4290, 1260, 390}, u"Open"_s};
    Button cmdClose{*this, u"cmdClose"_s, {6120, 4290, 1260, 390}, u"Close"_s};

    Timer TypingRest{*this, u"TypingRest"_s};
};

inline FormHandle<frmFindControls> frmFind;

} // namespace torvik
