#include "windows/play_list_window.h"

#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

namespace torvik {

frmSSPhotoControls::frmSSPhotoControls()
    : Form({.name = u"frmSSPhoto"_s,
            .caption = u"The Torvik Vollandry 2001"_s,
            .clientWidth = 4680,
            .clientHeight = 3900})
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Picture1.ShowWhenSeen(Picture::FromResource(u":/assets/icon.png"_s));
    ProgressGuage.SetFloodPercent(0);
}

} // namespace torvik
