#include "Settings.h"

#include <QSettings>

namespace platform::settings {

namespace {

QString path(const QString &section, const QString &key) {
    return section + QLatin1Char('/') + key;
}

} // namespace

QString GetSetting(const QString &application, const QString &section, const QString &key,
                   const QString &defaultText) {
    const QSettings store(QSettings::IniFormat, QSettings::UserScope, application, application);
    const QVariant value = store.value(path(section, key), defaultText);
    // An unquoted comma in a file changed by hand makes a list of the value.
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1Char(','))
                                                    : value.toString();
}

void SaveSetting(const QString &application, const QString &section, const QString &key,
                 const QString &text) {
    QSettings store(QSettings::IniFormat, QSettings::UserScope, application, application);
    store.setValue(path(section, key), text);
    store.sync();
    if (store.status() == QSettings::AccessError) {
        throw SettingsError("Les réglages ne peuvent pas être écrits : " + store.fileName().toStdString());
    }
}

} // namespace platform::settings
