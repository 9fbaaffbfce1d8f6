#pragma once

#include "ui/button.h"
#include "ui/form.h"
#include "ui/rich_text_box.h"

namespace torvik {

/// The document viewer.
struct txtFormControls : Form {
    txtFormControls();

    RichTextBox rtbText{*this, QStringLiteral("rtbText"), {120, 120, 7695, 6135}};
    Button SSCommand1{*this, QStringLiteral("SSCommand1"), {120, 6360, 6255, 375}, QStringLiteral("OK")};
};

inline FormHandle<txtFormControls> txtForm;

} // namespace torvik
