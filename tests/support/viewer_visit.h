#pragma once

#include "support/modal_visit.h"
#include "support/program.h"
#include "windows/article_window.h"

namespace torvik {

/// What the document viewer shows while it is open.
struct Viewed {
    bool came = false;
    QString caption;
    QString file;
    QString text;
};

/// Does something that opens the document viewer, keeps what it shows and closes it with OK. `Came` stays
/// false when no viewer came up.
template <typename Opening>
Viewed ViewerOf(Program& program, Opening&& opening)
{
    Viewed viewed;
    const ModalVisit visit(
        [&] {
            program.Settle();
            viewed = {true, txtForm->Caption(), txtForm->rtbText.FileName(), txtForm->rtbText.Text()};
            program.Click(txtForm->SSCommand1);
        },
        [] { txtForm.Unload(); });
    opening();
    program.Settle();
    return viewed;
}

} // namespace torvik
