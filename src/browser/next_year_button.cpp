#include "browser/next_year_button.h"

#include "shell/form1.h"
#include "shell/program_state.h"

namespace torvik {

int NextYearButtonAfter(int button)
{
    return button == yearCount ? 1 : button + 1;
}

void FocusNextYearButton()
{
    Form1->cmdYR(NextYearButtonAfter(state.CurrentYearButton)).SetFocus();
}

} // namespace torvik
