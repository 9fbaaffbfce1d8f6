#include "bind_handlers.h"

#include "browser/emblem_and_script_buttons.h"
#include "browser/next_and_previous_photo.h"
#include "browser/photo_click.h"
#include "browser/show_file_names.h"
#include "browser/year_buttons.h"
#include "documents/advertisement.h"
#include "documents/article_viewer.h"
#include "documents/books_and_magazines.h"
#include "documents/page_viewer.h"
#include "documents/topic_menus.h"
#include "documents/year_articles.h"
#include "documents/year_statistics.h"
#include "hard_drive/copy_photos_and_movies.h"
#include "hard_drive/play_list.h"
#include "hard_drive/remove_copies.h"
#include "hard_drive/saver_panel_buttons.h"
#include "media/movie_player.h"
#include "media/sound_panel_buttons.h"
#include "media/video_driver_offer.h"
#include "printing/booklet_panel_buttons.h"
#include "printing/print_photo_and_setup.h"
#include "slides/leave_slide_show.h"
#include "slides/open_slide_show.h"
#include "slides/slide_clock.h"
#include "slides/slide_keyboard_focus.h"
#include "slides/slide_steps.h"
#include "slides/slide_timer.h"
#include "start/main_window_life.h"
#include "start/start_up.h"
#include "utilities/about_box.h"
#include "utilities/display_check.h"
#include "utilities/help_menu.h"
#include "utilities/hide_task_bar.h"
#include "utilities/system_information.h"

namespace torvik {

void BindHandlers()
{
    BindStartUp();
    BindMainWindowLife();
    BindYearButtons();
    BindNextAndPreviousPhoto();
    BindPhotoClick();
    BindShowFileNames();
    BindTopicMenus();
    BindBooksAndMagazines();
    BindYearArticles();
    BindYearStatistics();
    BindArticleViewer();
    BindBookletPanelButtons();
    BindPrintPhotoAndSetup();
    BindCopyPhotosAndMovies();
    BindRemoveCopies();
    BindEmblemAndScriptButtons();
    BindPageViewer();
    BindAdvertisement();
    BindPlayList();
    BindSaverPanelButtons();
    BindOpenSlideShow();
    BindSlideSteps();
    BindSlideTimer();
    BindSlideClock();
    BindSlideKeyboardFocus();
    BindLeaveSlideShow();
    BindSoundPanelButtons();
    BindMoviePlayer();
    BindVideoDriverOffer();
    BindHideTaskBar();
    BindDisplayCheck();
    BindSystemInformation();
    BindAboutBox();
    BindHelpMenu();
}

} // namespace torvik
