#include "documents/txt_form.h"

namespace torvik {

namespace {

FormDesign DesignOfViewer()
{
    FormDesign design;
    design.Name = QStringLiteral("txtForm");
    design.Caption = QStringLiteral("txtForm");
    design.ClientWidth = 7965;
    design.ClientHeight = 6840;
    return design;
}

} // namespace

txtFormControls::txtFormControls() : Form(DesignOfViewer()) {}

} // namespace torvik
