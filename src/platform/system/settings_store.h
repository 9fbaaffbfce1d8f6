#pragma once

#include <QString>

namespace torvik {

/// Application settings: decimal or plain text, addressed by application, section and key, exactly as named.
/// They live in an INI file per application in the user's configuration folder (on Windows in the registry).

/// The stored text, or `absent` when there is none.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& absent = {});
/// Stores a text at once. Failure 75 when the store cannot be written.
void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& text);

/// Where the settings of an application are kept, in words of this machine for people who mend them: the
/// file.
QString SettingsPlace(const QString& application);
/// Takes a text out of the store, if it is there. Failure 75 when the store cannot be written.
void DeleteSetting(const QString& application, const QString& section, const QString& key);

} // namespace torvik
