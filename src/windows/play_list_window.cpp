#include "windows/play_list_window.h"

#include "ui/forms/screen.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

FormDesign DesignOfPlayList()
{
    FormDesign design;
    design.Name = u"frmSSPhoto"_s;
    design.Caption = u"The Torvik Vollandry 2001"_s;
    design.ClientWidth = 4680;
    design.ClientHeight = 3900;
    return design;
}

} // namespace

frmSSPhotoControls::frmSSPhotoControls() : Form(DesignOfPlayList())
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Picture1.Show(Picture::FromResource(u":/assets/icon.png"_s));
    ProgressGuage.SetFloodPercent(0);
}

} // namespace torvik
