#include "windows/page_window.h"

namespace torvik {

namespace {

const QString zoomOutTip =
    QStringLiteral("Click the left mouse button to view zoom out. Click the Right mouse button to close.");
constexpr int arrowStep = 40; // pixels: some lines of print

FormDesign DesignOfScroll()
{
    FormDesign design;
    design.Name = QStringLiteral("frmScroll");
    design.Caption = QStringLiteral("The Torvik Vollandry");
    design.ClientWidth = 9600;
    design.ClientHeight = 7200;
    design.Border = FormBorder::None;
    design.ScaleMode = Scale::Pixels;
    return design;
}

} // namespace

frmScrollControls::frmScrollControls() : Form(DesignOfScroll())
{
    Image1.SetToolTip(
        QStringLiteral("Click the left mouse button to zoom in. Click the Right mouse button to close."));
    picParent.SetToolTip(zoomOutTip);
    picChild.SetToolTip(zoomOutTip);
    Image1.SetTabStop();
    picChild.SetTabStop();
    HScroll1.SetSmallChange(arrowStep);
    VScroll1.SetSmallChange(arrowStep);
    SSCommand1.SetPicture(QStringLiteral(":/assets/button_close.png"), QStringLiteral("Close"));
    SetCancelButton(&SSCommand1);
}

} // namespace torvik
