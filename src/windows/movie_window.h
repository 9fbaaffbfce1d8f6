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

using namespace Qt::StringLiterals;

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

    Panel SSPanel1{*this, u"SSPanel1"_s, {180, 180, 5130, 3585}};
    Image PicMovie{SSPanel1, u"PicMovie"_s, {165, 165, 4800, 3255}};
    ControlArray<OptionButton> optMovie;
    MMControl MMControl1{*this, u"MMControl1"_s, {180, 3900, 5130, 780}};
    Button SSCommand1{*this, u"SSCommand1"_s, {5520, 3900, 1200, 420}, u"Exit"_s};
    Button SSCommand2{*this, u"SSCommand2"_s, {6840, 3900, 1200, 420}, u"Help"_s};
    ScrollBar HScroll1{*this, u"HScroll1"_s, {180, 4740, 5130, 240}};
};

inline FormHandle<frmMovieControls> frmMovie;

} // namespace torvik
