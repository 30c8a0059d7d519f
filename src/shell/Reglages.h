#pragma once

#include <QString>

class QWidget;

namespace shell {

/// Sections and keys of the settings.
inline const QString kReglages = QStringLiteral("Settings");
inline const QString kSplashAuto = QStringLiteral("SplashAuto");

/// The program's own setting, or the default when there is none.
QString Lire(const QString &section, const QString &cle, const QString &defaut);

/// Stores a setting of the program. Throws platform::settings::SettingsError.
void Enregistrer(const QString &section, const QString &cle, const QString &texte);

/// The display mode of the settings, 0 to 2. Throws ConversionError for a stored text that is no number.
int ModeAffichage();
void EnregistrerMode(int mode);

/// The display mode of the windows in which recipes are made. Nothing writes it: it is 0 unless the user's settings say
/// otherwise by hand. Throws ConversionError.
int ModeCreation();

/// Opens a configured address with the desktop's program for it; says so when there is none.
void Ouvrir(QWidget &fenetre, QStringView adresse);

} // namespace shell
