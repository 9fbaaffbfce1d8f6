#include "bind_handlers.h"

#include "browser/file_names.h"
#include "browser/overlay_buttons.h"
#include "browser/photo_stepping.h"
#include "browser/photo_walk.h"
#include "browser/year_selection.h"
#include "documents/advertisement.h"
#include "documents/document_viewer.h"
#include "documents/library_documents.h"
#include "documents/library_topics.h"
#include "documents/year_documents.h"
#include "documents/year_statistics.h"
#include "documents/zoom_viewer.h"
#include "hard_drive/copy_panel.h"
#include "hard_drive/play_list_form.h"
#include "hard_drive/remove_copies.h"
#include "hard_drive/saver_installation.h"
#include "media/driver_offer.h"
#include "media/movie_player.h"
#include "media/sound_effects.h"
#include "printing/booklet_panel.h"
#include "printing/print_commands.h"
#include "slides/slide_clock.h"
#include "slides/slide_exit.h"
#include "slides/slide_focus.h"
#include "slides/slide_player.h"
#include "slides/slide_setup.h"
#include "slides/slide_steps.h"
#include "start/form1_life.h"
#include "start/start_up.h"
#include "utilities/about_box.h"
#include "utilities/display_check.h"
#include "utilities/help_contents.h"
#include "utilities/system_information.h"
#include "utilities/task_bar_toggle.h"

namespace torvik {

void BindHandlers()
{
    BindStartUp();
    BindForm1Life();
    BindYearSelection();
    BindPhotoStepping();
    BindPhotoWalk();
    BindFileNames();
    BindLibraryTopics();
    BindLibraryDocuments();
    BindYearDocuments();
    BindYearStatistics();
    BindDocumentViewer();
    BindBookletPanel();
    BindPrintCommands();
    BindCopyPanel();
    BindRemoveCopies();
    BindOverlayButtons();
    BindZoomViewer();
    BindAdvertisement();
    BindPlayListForm();
    BindSaverInstallation();
    BindSlideSetup();
    BindSlideSteps();
    BindSlidePlayer();
    BindSlideClock();
    BindSlideFocus();
    BindSlideExit();
    BindSoundEffects();
    BindMoviePlayer();
    BindDriverOffer();
    BindTaskBarToggle();
    BindDisplayCheck();
    BindSystemInformation();
    BindAboutBox();
    BindHelpContents();
}

} // namespace torvik
