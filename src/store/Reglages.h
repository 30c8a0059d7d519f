#pragma once

#include <QString>

namespace store {

/// A setting of the program: its section and key, and the text that stands for it while there is none.
struct Reglage {
    QStringView section, cle, defaut{};
};

/// The sort view shown, 0 to 7, or 99 while the first one is being loaded.
inline constexpr Reglage kTris{u"Settings", u"Tris", u"0"};

/// Place of the main window, in twips. It is in the middle of the screen at first.
inline constexpr Reglage kMainTop{u"Settings", u"MainTop"};
inline constexpr Reglage kMainLeft{u"Settings", u"MainLeft"};

/// Whether the program opens with the opening screen: not, until the user says so.
inline constexpr Reglage kSplashAuto{u"Settings", u"SplashAuto", u"0"};
/// The same, as the box on that screen shows it: ticked, until the user unticks it.
inline constexpr Reglage kSplashAutoCoche{u"Settings", u"SplashAuto", u"True"};

/// File and folder of a background picture. The folder is one of the program's at first.
inline constexpr Reglage kFondScreen{u"Settings", u"FondScreen"};
inline constexpr Reglage kRepFondScreen{u"Settings", u"RepFondScreen"};

/// Display mode of the windows, 0 to 2, and of those in which recipes are made. Nothing writes the second.
inline constexpr Reglage kMode{u"Patch", u"Mode", u"0"};
inline constexpr Reglage kModeCreation{u"Splash", u"Splash", u"0"};

/// The text of a setting, or its default.
QString LireReglage(const Reglage &reglage);

/// The same, for a setting whose default is known only as the program runs.
QString LireReglage(const Reglage &reglage, const QString &defaut);

/// Stores the text of a setting. Throws platform::settings::SettingsError.
void EnregistrerReglage(const Reglage &reglage, const QString &texte);

} // namespace store
