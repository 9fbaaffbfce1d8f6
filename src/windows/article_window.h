#pragma once

#include "ui/controls/button.h"
#include "ui/controls/label.h"
#include "ui/controls/panel.h"
#include "ui/controls/rich_text_box.h"
#include "ui/controls/text_box.h"
#include "ui/forms/form.h"
#include "ui/printer/common_dialog.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The document viewer. SSCommand1 is OK; the two wave buttons lie under its right end once it has been
/// widened. The bar panFind comes up between text and buttons when something is looked for.
///
///   +------------------------------------------------------+
///   | rtbText                                              |
///   |                                                      |
///   +------------------------------------------------------+
///   | txtFindText cmdFindBefore cmdFindNext    lblFindText  |
///   +------------------------------------------------------+
///   | SSCommand1             SSCommand2 SSCommand3 cmdPrint |
///   +------------------------------------------------------+
struct txtFormControls : Form {
    txtFormControls();

    // In the order in which Tab walks through them.
    RichTextBox rtbText{*this, u"rtbText"_s, {120, 120, 7695, 6135}};
    Button SSCommand1{*this, u"SSCommand1"_s, {120, 6360, 6255, 375}, u"OK"_s};
    Button cmdPrint{*this, u"cmdPrint"_s, {7440, 6360, 375, 375}};
    Button SSCommand2{*this, u"SSCommand2"_s, {6480, 6360, 390, 375}};
    Button SSCommand3{*this, u"SSCommand3"_s, {6960, 6360, 375, 375}};

    Panel panFind{*this, u"panFind"_s, {120, 5760, 7695, 495}};
    TextBox txtFindText{panFind, u"txtFindText"_s, {75, 75, 2700, 345}};
    Button cmdFindBefore{panFind, u"cmdFindBefore"_s, {2850, 60, 1050, 375}, u"Before"_s};
    Button cmdFindNext{panFind, u"cmdFindNext"_s, {3930, 60, 1050, 375}, u"Next"_s};
    Label lblFindText{panFind, u"lblFindText"_s, {5100, 75, 2520, 345}};

    CommonDialog CommonDialog1{u"CommonDialog1"_s};
};

inline FormHandle<txtFormControls> txtForm;

} // namespace torvik
