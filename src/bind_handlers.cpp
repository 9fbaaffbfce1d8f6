#include "bind_handlers.h"

#include "browser/bind_browser.h"
#include "documents/bind_documents.h"
#include "hard_drive/bind_hard_drive.h"
#include "media/bind_media.h"
#include "printing/bind_printing.h"
#include "search/bind_search.h"
#include "slides/bind_slides.h"
#include "start/bind_start.h"
#include "utilities/bind_utilities.h"

namespace torvik {

void BindHandlers()
{
    BindBrowser();
    BindStart();
    BindMedia();
    BindPrinting();
    BindUtilities();
    BindDocuments();
    BindSlides();
    BindHardDrive();
    BindSearch();
}

} // namespace torvik
