#include "program/next_year_button.h"

#include "program/program_state.h"
#include "windows/main_window.h"

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
