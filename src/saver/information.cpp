#include "saver/information.h"

#include "runtime/text.h"

namespace torvik {

QString InformationText(const SaverSettings& settings)
{
    const QString folder = settings.Folder.isEmpty() ? QStringLiteral("none chosen yet") : settings.Folder;
    const double seconds = settings.Interval / 1000.0;
    const QString unit = seconds == 1 ? QStringLiteral(" second") : QStringLiteral(" seconds");
    return QStringLiteral("The Torvik Vollandry Screen Saver\r\n\r\nPhotos:  ") + folder +
           QStringLiteral("\r\nDelay:  ") + NumberText(seconds) + unit +
           QStringLiteral(
               "\r\n\r\nTo choose other photos or another delay, start The Torvik Vollandry 2001\r\n"
               "and select Install Screen saver under the File menu.\r\n\r\n"
               "To see the photos now, start Torvik2001.scr with /s.");
}

} // namespace torvik
