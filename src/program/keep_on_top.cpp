#include "program/keep_on_top.h"

#include "ui/forms/form.h"

namespace torvik {

void SetFormTopmost(Form& form, int flag)
{
    if (flag == topmost::on || flag == topmost::off)
        form.SetTopmost(flag == topmost::on);
    else
        form.ZOrder();
}

} // namespace torvik
