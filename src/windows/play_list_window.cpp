#include "windows/play_list_window.h"

#include "ui/forms/screen.h"

namespace torvik {

namespace {

FormDesign DesignOfPlayList()
{
    FormDesign design;
    design.Name = QStringLiteral("frmSSPhoto");
    design.Caption = QStringLiteral("The Torvik Vollandry 2001");
    design.ClientWidth = 4680;
    design.ClientHeight = 3900;
    return design;
}

} // namespace

frmSSPhotoControls::frmSSPhotoControls() : Form(DesignOfPlayList())
{
    SetLeft((Screen.Width() - Width()) / 2);
    SetTop((Screen.Height() - Height()) / 2);
    Picture1.Show(Picture::FromResource(QStringLiteral(":/assets/icon.png")));
    ProgressGuage.SetFloodPercent(0);
}

} // namespace torvik
