#pragma once

#include <QString>
#include <stdexcept>

namespace platform::settings {

/// The settings store could not be written; what() is a French text in UTF-8.
class SettingsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The text stored under section and key of the application, or the default when the key does not exist. The
/// store is the INI file <application>/<application>.ini in the user's configuration folder (QSettings).
QString GetSetting(const QString &application, const QString &section, const QString &key,
                   const QString &defaultText = {});

/// Stores a text under section and key, on disk when this returns. Throws SettingsError when it can't.
void SaveSetting(const QString &application, const QString &section, const QString &key, const QString &text);

} // namespace platform::settings
