#include "start/chosen_scale.h"

#include "platform/system/settings_store.h"
#include "runtime/failure.h"
#include "ui/forms/program_title.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString ChosenScale(const QString& given)
{
    const QString section = u"Settings"_s;
    const QString key = u"Scale"_s;
    QString chosen = given;
    ResumeNext([&] {
        if (given.isEmpty())
            chosen = GetSetting(applicationTitle, section, key);
        else if (given == u"auto"_s)
            DeleteSetting(applicationTitle, section, key);
        else
            SaveSetting(applicationTitle, section, key, given);
    });
    return chosen;
}

} // namespace torvik
