#include "windows/play_list_window.h"

#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

namespace torvik {

frmSSPhotoControls::frmSSPhotoControls()
    : Form({.Name = u"frmSSPhoto"_s,
            .Caption = u"The Torvik Vollandry 2001"_s,
            .ClientWidth = 4680,
            .ClientHeight = 3900})
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Picture1.Show(Picture::FromResource(u":/assets/icon.png"_s));
    ProgressGuage.SetFloodPercent(0);
}

} // namespace torvik
