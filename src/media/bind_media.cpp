#include "media/bind_media.h"

namespace torvik {

void BindMedia()
{
    BindSoundPanelButtons();
    BindMoviePlayer();
    BindVideoDriverOffer();
}

} // namespace torvik
