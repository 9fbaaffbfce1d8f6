#pragma once

#include "ui/controls/button.h"
#include "ui/controls/image.h"
#include "ui/controls/panel.h"
#include "ui/controls/text_box.h"
#include "ui/forms/form.h"

namespace torvik {

/// The play list of the screen saver: what is on show goes on the list and off it.
struct frmSSPhotoControls : Form {
    frmSSPhotoControls();

    Image Picture1{*this, QStringLiteral("Picture1"), {180, 180, 900, 900}};
    TextBox Text4{*this,
                  QStringLiteral("Text4"),
                  {1260, 420, 3240, 360},
                  QStringLiteral("Screen Saver Photo Selection")};
    Button SSCommand7{*this,
                      QStringLiteral("SSCommand7"),
                      {180, 1260, 4320, 390},
                      QStringLiteral("Add this photo to list")};
    Button SSCommand8{*this,
                      QStringLiteral("SSCommand8"),
                      {180, 1680, 4320, 390},
                      QStringLiteral("Remove this photo from list")};
    Button SSCommand2{*this,
                      QStringLiteral("SSCommand2"),
                      {180, 2100, 4320, 390},
                      QStringLiteral("Remove all photos from the list")};
    Button SSCommand3{*this,
                      QStringLiteral("SSCommand3"),
                      {180, 2520, 4320, 390},
                      QStringLiteral("Copy this photo to Clipboard")};
    Button SSCommand1{*this, QStringLiteral("SSCommand1"), {180, 2940, 2130, 390}, QStringLiteral("Help")};
    Button SSCommand9{*this, QStringLiteral("SSCommand9"), {2370, 2940, 2130, 390}, QStringLiteral("Exit")};
    Panel ProgressGuage{*this, QStringLiteral("ProgressGuage"), {180, 3420, 4320, 300}, {}, Bevel::Sunken};
};

inline FormHandle<frmSSPhotoControls> frmSSPhoto;

} // namespace torvik
