#pragma once

#include <QString>

namespace store {

/// The application title; it also heads the settings.
inline constexpr QStringView TitreProgramme = u"Savorel";

/// The folder of the program, without a closing separator. All files of the program are found in it.
QString DossierProgramme();

/// Puts another folder in its place, for a test or a tool.
void DefinirDossierProgramme(const QString &dossier);

/// The book: db.mdb in the folder of the program.
QString CheminBase();

} // namespace store
