#include "hard_drive/copy_job.h"

#include "program/catalogue/movies_and_sounds.h"
#include "program/program_state.h"

using namespace Qt::StringLiterals;

namespace torvik {

const CopyJob& PresentCopyJob()
{
    static const CopyJob photos{u"Copy photos from CD-ROM to hard drive"_s, u"Copy Photos"_s, torviksFolder,
                                u"Photos successfully copied!\r\n"_s,       38'000'000,       42'000'000};
    static const CopyJob movies{u"Copy Movies from CD-ROM to hard drive"_s, u"Copy Movies"_s, movieFolder,
                                u"Movies successfully copied!\r\n"_s,       470'000'000,      432'000'000};
    return state.CopyingPhotos ? photos : movies;
}

} // namespace torvik
