#include "windows/find_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

FormDesign DesignOfFind()
{
    FormDesign design;
    design.name = u"frmFind"_s;
    design.caption = u"Find"_s;
    design.clientWidth = 7500;
    design.clientHeight = 4920;
    design.border = FormBorder::Sizable;
    return design;
}

} // namespace

frmFindControls::frmFindControls() : Form(DesignOfFind())
{
    txtFind.SetLocked(false);
    txtFind.SetHint(u"Words to find, \"words in a row\", -without"_s);
    lstFound.SetSpokenAs(u"What was found"_s);
    ProgressGuage.SetFloodPercent(0);
    ProgressGuage.Hide();
    cmdOpen.SetEnabled(false);
    SetCancelButton(&cmdClose);
}

} // namespace torvik
