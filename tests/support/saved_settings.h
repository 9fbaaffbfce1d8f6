#pragma once

#include "platform/system/settings_store.h"
#include "ui/forms/program_title.h"

#include <QFile>
#include <QString>

namespace torvik {

using namespace Qt::StringLiterals;

/// What the program keeps under a key of its settings; "(none)" where it keeps nothing.
inline QString Saved(const QString& key)
{
    return GetSetting(applicationTitle, u"Settings"_s, key, u"(none)"_s);
}

/// Removes the file of the program's settings.
inline void ForgetSettings()
{
    QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/The Torvik Vollandry 2001.ini"_s);
}

} // namespace torvik
