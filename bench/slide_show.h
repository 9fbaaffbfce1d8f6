#pragma once

#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "program/program_state.h"
#include "ui/forms/clock.h"
#include "ui/forms/form_window.h"
#include "windows/main_window.h"
#include "windows/slide_window.h"
#include "windows/splash.h"

#include <QCoreApplication>
#include <QString>

namespace torvik::bench {

/// Starts the program on a disc and lays the slide show, paused at its first photo, over the main window.
/// The clock stands still then.
inline void OpenSlideShow(const QString& disc, const QString& programFolder)
{
    SetProgramFolder(programFolder);
    SetDriveOptions({{u'E', disc}});
    Clock::StopAt(QDateTime::currentDateTime());
    Form2.LoadForm();
    Clock::Turn(5000);
    QCoreApplication::processEvents();
    state.SlideShowOpen = true;
    state.SlideDelay = 1000;
    state.PhotoIndex = 1;
    frmSlide->Timer1.SetInterval(0);
    frmSlide->Image1.Load(state.PhotoFiles(1));
    frmSlide->Show();
    QCoreApplication::processEvents();
}

} // namespace torvik::bench
