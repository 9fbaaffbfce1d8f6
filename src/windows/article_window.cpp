#include "windows/article_window.h"

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

txtFormControls::txtFormControls() : Form(DesignOfViewer())
{
    Adopt(CommonDialog1);
    cmdPrint.SetPicture(QStringLiteral(":/assets/button_print.png"), QStringLiteral("Print"));
    SSCommand2.SetPicture(QStringLiteral(":/assets/button_play.png"), QStringLiteral("Play the narration"));
    SSCommand3.SetPicture(QStringLiteral(":/assets/button_stop.png"), QStringLiteral("Stop the narration"));
}

} // namespace torvik
