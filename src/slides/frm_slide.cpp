#include "slides/frm_slide.h"

namespace torvik {

namespace {

FormDesign DesignOfSlide()
{
    FormDesign design;
    design.Name = QStringLiteral("frmSlide");
    design.Caption = QStringLiteral("The Torvik Vollandry Slide Show");
    design.ClientWidth = 12060;
    design.ClientHeight = 8385;
    return design;
}

} // namespace

frmSlideControls::frmSlideControls() : Form(DesignOfSlide()) {}

} // namespace torvik
