#include "windows/about_window.h"

#include "windows/maker.h"

using namespace Qt::StringLiterals;

namespace torvik {

frmAboutControls::frmAboutControls()
    : Form({.name = u"frmAbout"_s,
            .caption = u"About The Torvik Vollandry 2001"_s,
            .clientWidth = 6240,
            .clientHeight = 5070})
{
    Picture2.Show(Picture::FromResource(u":/assets/icon.png"_s));
    Image1.Show(Picture::FromResource(u":/assets/splash.png"_s));
    SSPanel5.SetCaptionFont(18, false);
    SSPanel1.SetCaptionFont(30, true, look::accent);
    SSPanel4.SetCaptionFont(30, true, look::accent);
    for (Panel* line : {&SSPanel5, &SSPanel1, &SSPanel4})
        line->SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    SSCommand2.SetCaption(maker::webAddress);
    SetCancelButton(&SSCommand1);
}

} // namespace torvik
