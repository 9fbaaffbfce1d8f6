#include "saver/saver_settings.h"

#include "platform/system/saver_agreement.h"
#include "platform/system/settings_store.h"
#include "runtime/text.h"

#include <algorithm>

namespace torvik {

namespace {

constexpr double shortest = 1;   // seconds
constexpr double longest = 3600; // seconds
constexpr double withoutANumber = 5;

int Milliseconds(const QString& seconds)
{
    const double wanted = IsNumeric(seconds) ? Val(seconds) : withoutANumber;
    return static_cast<int>(std::clamp(wanted, shortest, longest) * 1000);
}

QString Closed(const QString& folder)
{
    const bool isClosed = folder.isEmpty() || folder.endsWith(u'\\') || folder.endsWith(u'/');
    return isClosed ? folder : folder + u'\\';
}

} // namespace

SaverSettings ReadSaverSettings()
{
    return {Milliseconds(GetSetting(saver::settings, saver::section, saver::interval)),
            Closed(GetSetting(saver::settings, saver::section, saver::photoFolder))};
}

} // namespace torvik
