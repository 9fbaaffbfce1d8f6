#pragma once

#include "ui/controls/button.h"
#include "ui/controls/rich_text_box.h"
#include "ui/forms/form.h"
#include "ui/printer/common_dialog.h"

namespace torvik {

/// The document viewer. SSCommand1 is OK; the two wave buttons lie under its right end once it has been
/// widened.
///
///   +------------------------------------------------------+
///   | rtbText                                              |
///   |                                                      |
///   +------------------------------------------------------+
///   | SSCommand1             SSCommand2 SSCommand3 cmdPrint |
///   +------------------------------------------------------+
struct txtFormControls : Form {
    txtFormControls();

    // In the order in which Tab walks through them.
    RichTextBox rtbText{*this, QStringLiteral("rtbText"), {120, 120, 7695, 6135}};
    Button SSCommand1{*this, QStringLiteral("SSCommand1"), {120, 6360, 6255, 375}, QStringLiteral("OK")};
    Button cmdPrint{*this, QStringLiteral("cmdPrint"), {7440, 6360, 375, 375}};
    Button SSCommand2{*this, QStringLiteral("SSCommand2"), {6480, 6360, 390, 375}};
    Button SSCommand3{*this, QStringLiteral("SSCommand3"), {6960, 6360, 375, 375}};

    CommonDialog CommonDialog1{QStringLiteral("CommonDialog1")};
};

inline FormHandle<txtFormControls> txtForm;

} // namespace torvik
