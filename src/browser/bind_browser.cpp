#include "browser/bind_browser.h"

namespace torvik {

void BindBrowser()
{
    BindYearButtons();
    BindNextAndPreviousPhoto();
    BindPhotoClick();
    BindShowFileNames();
    BindEmblemAndScriptButtons();
}

} // namespace torvik
