#pragma once

#include "ui/button.h"
#include "ui/choice_buttons.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/image.h"
#include "ui/mm_control.h"
#include "ui/panel.h"
#include "ui/scroll_bar.h"

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
