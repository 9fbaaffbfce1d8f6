#pragma once

#include "browsing.h"
#include "program/program_state.h"
#include "ui/forms/form_window.h"
#include "windows/slide_window.h"

namespace torvik::bench {

/// Starts the program on a disc and lays the slide show, paused at its first photo, over the main window.
/// The clock stands still then.
inline void OpenSlideShow(const QString& disc, const QString& programFolder)
{
    StartBrowsing(disc, programFolder);
    state.SlideShowOpen = true;
    state.SlideDelay = 1000;
    state.PhotoIndex = 1;
    frmSlide->Timer1.SetInterval(0);
    frmSlide->Image1.Load(state.PhotoFiles(1));
    frmSlide->Show();
    QCoreApplication::processEvents();
}

} // namespace torvik::bench
