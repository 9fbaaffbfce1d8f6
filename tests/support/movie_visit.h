#pragma once

#include "support/modal_visit.h"
#include "support/program.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"

namespace torvik {

/// Chooses Movies from the main menu and does something while the movie player is on the screen; leaves it
/// afterwards, if it is still there. Returns whether it came.
template <typename Action>
bool VisitMovies(Program& program, Action&& action)
{
    const ModalVisit visit(
        [&] {
            program.Settle();
            action();
        },
        [] { frmMovie.Unload(); });
    Form1->mnuMovies.Click.Fire();
    program.Settle();
    return visit.Ran();
}

} // namespace torvik
