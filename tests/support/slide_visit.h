#pragma once

#include "program/program_state.h"
#include "support/modal_visit.h"
#include "support/program.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"

#include <QTest>

namespace torvik {

using namespace Qt::StringLiterals;

/// Opens the slide show by its button on the main window and does `action` in it. A show that still stands
/// then is left by its own Exit button. False when no show came up.
template <typename Action>
bool InSlideShow(Program& program, Action&& action)
{
    const ModalVisit visit(
        [&] {
            program.Settle();
            action();
            program.Settle();
        },
        [] {
            if (frmSlide.IsLoaded())
                frmSlide.Unload();
        });
    program.Click(Form1->cmdSlide);
    program.Settle();
    return visit.Ran();
}

/// Clicks a part of the bar or of the spin button of the slide show, by its name: "mmSlide(Play)".
inline void ClickSlidePart(Program& program, const QString& name)
{
    auto* part = frmSlide->Window().findChild<QWidget*>(name);
    QVERIFY2(part != nullptr, qPrintable(name));
    QTest::mouseClick(part, Qt::LeftButton);
    program.Settle();
}

/// The photo, the position and the caption that the slide show shows: "67A.JPG, 1 of 5, 1967 ".
inline QString ShownSlide()
{
    return u"%1, %2, %3"_s.arg(frmSlide->Image1.Picture().FileName(), frmSlide->pnlPhotoNumber.Caption(),
                               frmSlide->panYear.Caption());
}

} // namespace torvik
