#include "windows/page_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString zoomOutTip =
    u"Click the left mouse button to view zoom out. Click the Right mouse button to close."_s;
constexpr int arrowStep = 40; // pixels: some lines of print

} // namespace

frmScrollControls::frmScrollControls()
    : Form({.name = u"frmScroll"_s,
            .caption = u"The Torvik Vollandry"_s,
            .clientWidth = 9600,
            .clientHeight = 7200,
            .border = FormBorder::None,
            .scaleMode = Scale::Pixels})
{
    Image1.SetToolTip(u"Click the left mouse button to zoom in. Click the Right mouse button to close."_s);
    picParent.SetToolTip(zoomOutTip);
    picChild.SetToolTip(zoomOutTip);
    Image1.SetTabStop();
    picChild.SetTabStop();
    HScroll1.SetSmallChange(arrowStep);
    VScroll1.SetSmallChange(arrowStep);
    SSCommand1.SetPicture(u":/assets/button_close.png"_s, u"Close"_s);
    SetCancelButton(&SSCommand1);
}

} // namespace torvik
