#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/text_box.h"
#include "ui/forms/form.h"

namespace torvik {

using namespace Qt::StringLiterals;

/// The play list of the screen saver: what is on show goes on the list and off it.
struct frmSSPhotoControls : Form {
    frmSSPhotoControls();

    Image Picture1{*this, u"Picture1"_s, {180, 180, 900, 900}};
    TextBox Text4{*this, u"Text4"_s, {1260, 420, 3240, 360}, u"Screen Saver Photo Selection"_s};
    Button SSCommand7{*this, u"SSCommand7"_s, {180, 1260, 4320, 390}, u"Add this photo to list"_s};
    Button SSCommand8{*this, u"SSCommand8"_s, {180, 1680, 4320, 390}, u"Remove this photo from list"_s};
    Button SSCommand2{*this, u"SSCommand2"_s, {180, 2100, 4320, 390}, u"Remove all photos from the list"_s};
    Button SSCommand3{*this, u"SSCommand3"_s, {180, 2520, 4320, 390}, u"Copy this photo to Clipboard"_s};
    Button SSCommand1{*this, u"SSCommand1"_s, {180, 2940, 2130, 390}, u"Help"_s};
    Button SSCommand9{*this, u"SSCommand9"_s, {2370, 2940, 2130, 390}, u"Exit"_s};
    Panel ProgressGuage{*this, u"ProgressGuage"_s, {180, 3420, 4320, 300}, {}, Bevel::Sunken};
};

inline FormHandle<frmSSPhotoControls> frmSSPhoto;

} // namespace torvik
