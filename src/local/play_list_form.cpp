#include "local/play_list_form.h"

#include "local/frm_ss_photo.h"
#include "local/play_list_entry.h"
#include "shell/form1.h"
#include "slides/form_topmost.h"

namespace torvik {

namespace {

void frmSSPhoto_Load()
{
    UpdatePlayListButtons();
    SetFormTopmost(*frmSSPhoto, topmost::on);
}

void SSCommand9_Click()
{
    SetFormTopmost(*frmSSPhoto, topmost::off);
    frmSSPhoto.Unload();
}

void frmSSPhoto_Unload()
{
    Form1->SetEnabled(true);
}

} // namespace

void BindPlayListForm()
{
    frmSSPhoto.Bind([](frmSSPhotoControls& form) {
        form.Load = frmSSPhoto_Load;
        form.Unload = frmSSPhoto_Unload;
        form.SSCommand9.Click = SSCommand9_Click;
    });
}

} // namespace torvik
