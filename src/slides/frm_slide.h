#pragma once

#include "ui/form.h"
#include "ui/panel.h"

namespace torvik {

/// The slide show's window.
struct frmSlideControls : Form {
    frmSlideControls();

    Panel panYear{*this, QStringLiteral("panYear"), {120, 7560, 3000, 330}, QStringLiteral("panYear")};
};

inline FormHandle<frmSlideControls> frmSlide;

} // namespace torvik
