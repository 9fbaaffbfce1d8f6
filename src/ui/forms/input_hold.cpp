#include "ui/forms/input_hold.h"

#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

namespace torvik {

InputHold::InputHold(Form& form) : form_(&form)
{
    ++form.holds_;
    form.Window().ReleaseButtons();
}

InputHold::~InputHold()
{
    if (form_ != nullptr)
        --form_->holds_;
}

} // namespace torvik
