#include "hard_drive/copy_job.h"

#include "program/program_state.h"

namespace torvik {

const CopyJob& PresentCopyJob()
{
    static const CopyJob photos{QStringLiteral("Copy photos from CD-ROM to hard drive"),
                                QStringLiteral("Copy Photos"),
                                torviksFolder,
                                QStringLiteral("Photos successfully copied!\r\n"),
                                38'000'000,
                                42'000'000};
    static const CopyJob movies{QStringLiteral("Copy Movies from CD-ROM to hard drive"),
                                QStringLiteral("Copy Movies"),
                                QStringLiteral("\\movies\\"),
                                QStringLiteral("Movies successfully copied!\r\n"),
                                470'000'000,
                                432'000'000};
    return state.CopyingPhotos ? photos : movies;
}

} // namespace torvik
