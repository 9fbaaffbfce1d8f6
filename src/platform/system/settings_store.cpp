#include "platform/system/settings_store.h"

#include "runtime/failure.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// The store takes slashes and backslashes in a name as its own separators and knows no empty name. Such
/// names are written in another way.
QString StoredName(const QString& name)
{
    if (name.isEmpty())
        return u"%"_s;
    QString stored = name;
    stored.replace(u'%', u"%25"_s);
    stored.replace(u'/', u"%2F"_s);
    stored.replace(u'\\', u"%5C"_s);
    return stored;
}

/// The one place that knows where the settings of an application lie; on a system with a registry it would be
/// a key there.
class Store : public QSettings {
public:
    explicit Store(const QString& application) : QSettings(FileOf(application), QSettings::IniFormat) {}

private:
    static QString FileOf(const QString& application)
    {
        QString name = StoredName(application);
        if (name.startsWith(u'.'))
            name.prepend(u'%'); // neither a hidden file nor another folder
        name.replace(QChar(u'\0'), u"%00"_s);
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + name +
               u".ini"_s;
    }
};

QString StoredKey(const QString& section, const QString& key)
{
    return StoredName(section) + u'/' + StoredName(key);
}

void WriteNow(Store& store)
{
    store.sync();
    if (store.status() == QSettings::AccessError)
        Fail(failure::pathFileAccess);
}

} // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& absent)
{
    const Store store(application);
    const QVariant stored = store.value(StoredKey(section, key));
    if (!stored.isValid())
        return absent;
    // A text with commas that a person wrote into the file without quotes.
    if (stored.typeId() == QMetaType::QStringList)
        return stored.toStringList().join(u',');
    return stored.toString();
}

void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& text)
{
    Store store(application);
    store.setValue(StoredKey(section, key), text.isNull() ? u""_s : text);
    WriteNow(store);
}

void DeleteSetting(const QString& application, const QString& section, const QString& key)
{
    Store store(application);
    if (!store.contains(StoredKey(section, key)))
        return;
    store.remove(StoredKey(section, key));
    WriteNow(store);
}

QString SettingsPlace(const QString& application)
{
    return Store(application).fileName();
}

} // namespace torvik
