#pragma once

#include "ui/controls/button.h"
#include "ui/controls/choice_buttons.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/scroll_bar.h"
#include "ui/forms/control_array.h"
#include "ui/forms/form.h"
#include "ui/media/mm_control.h"

namespace torvik {

/// The options for a movie, the last one without a caption.
inline constexpr int movieOptionCount = 6;

/// The movie player.
///
///   +- SSPanel1 -----------------+   optMovie(0)
///   |                            |   optMovie(1)
///   |          PicMovie          |       ...
///   |                            |   optMovie(5)
///   +----------------------------+
///    MMControl1                      SSCommand1 SSCommand2
struct frmMovieControls : Form {
    frmMovieControls();

    Panel SSPanel1{*this, QStringLiteral("SSPanel1"), {180, 180, 5130, 3585}};
    Image PicMovie{SSPanel1, QStringLiteral("PicMovie"), {165, 165, 4800, 3255}};
    ControlArray<OptionButton> optMovie;
    MMControl MMControl1{*this, QStringLiteral("MMControl1"), {180, 3900, 5130, 780}};
    Button SSCommand1{*this, QStringLiteral("SSCommand1"), {5520, 3900, 1200, 420}, QStringLiteral("Exit")};
    Button SSCommand2{*this, QStringLiteral("SSCommand2"), {6840, 3900, 1200, 420}, QStringLiteral("Help")};
    ScrollBar HScroll1{*this, QStringLiteral("HScroll1"), {180, 4740, 5130, 240}};
};

inline FormHandle<frmMovieControls> frmMovie;

} // namespace torvik
