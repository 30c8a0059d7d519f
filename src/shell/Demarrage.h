#pragma once

#include "platform/desktop/SingleInstance.h"

namespace browser {
class Frmmain;
}

namespace shell {

class Fenetres;

/// Starts reading what the window will show first, on another thread; not where the program runs already, which may be
/// using the book. To be called before the application is made, so that the reading goes on beside that.
/// @param dossier the folder of the program; nothing is read where it is empty
void LireDAvance(const platform::desktop::SingleInstance &instance, const QString &dossier);

/// Gives a newly made application the program's name, look, fonts and language.
void PreparerApplication();

/// The load step of the main window: shows the opening screen if the user wants it, tests the screen and the instance,
/// prepares the window, presses the sort button of the last run, which loads the first list, and shows the window.
/// Throws FinDuProgramme after a failed test, and what the database, the settings and the conversion of an old book
/// throw.
void ChargerFrmmain(Fenetres &fenetres, const platform::desktop::SingleInstance &instance);

/// Asks whether to quit. "Oui" removes the scratch picture and throws FinDuProgramme; otherwise nothing
/// changes.
void Quitter(browser::Frmmain &frm);

} // namespace shell
