#include "windows/article_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

FormDesign DesignOfViewer()
{
    FormDesign design;
    design.Name = u"txtForm"_s;
    design.Caption = u"txtForm"_s;
    design.ClientWidth = 7965;
    design.ClientHeight = 6840;
    return design;
}

} // namespace

txtFormControls::txtFormControls() : Form(DesignOfViewer())
{
    Adopt(CommonDialog1);
    cmdPrint.SetPicture(u":/assets/button_print.png"_s, u"Print"_s);
    SSCommand2.SetPicture(u":/assets/button_play.png"_s, u"Play the narration"_s);
    SSCommand3.SetPicture(u":/assets/button_stop.png"_s, u"Stop the narration"_s);
}

} // namespace torvik
