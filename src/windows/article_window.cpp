#include "windows/article_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

txtFormControls::txtFormControls()
    : Form({.name = u"txtForm"_s, .caption = u"txtForm"_s, .clientWidth = 7965, .clientHeight = 6840})
{
    Adopt(CommonDialog1);
    cmdPrint.SetPicture(u":/assets/button_print.png"_s, u"Print"_s);
    SSCommand2.SetPicture(u":/assets/button_play.png"_s, u"Play the narration"_s);
    SSCommand3.SetPicture(u":/assets/button_stop.png"_s, u"Stop the narration"_s);
    txtFindText.SetLocked(false);
    txtFindText.SetHint(u"Words to find in this text"_s);
    cmdFindBefore.SetToolTip(u"The place before (Shift+F3)"_s);
    cmdFindNext.SetToolTip(u"The next place (F3)"_s);
    panFind.Hide();
}

} // namespace torvik
