#include "saver/information.h"

#include "runtime/text.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString InformationText(const SaverSettings& settings)
{
    const QString folder = settings.folder.isEmpty() ? u"none chosen yet"_s : settings.folder;
    const double seconds = settings.interval / 1000.0;
    const QString unit = seconds == 1 ? u" second"_s : u" seconds"_s;
    return u"The Torvik Vollandry Screen Saver\r\n\r\nPhotos:  "_s + folder + u"\r\nDelay:  "_s +
           NumberText(seconds) + unit +
           u"\r\n\r\nTo choose other photos or another delay, start The Torvik Vollandry 2001\r\n"
           "and select Install Screen saver under the File menu.\r\n\r\n"
           "To see the photos now, start Torvik2001.scr with /s."_s;
}

} // namespace torvik
