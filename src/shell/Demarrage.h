#pragma once

#include "platform/desktop/SingleInstance.h"

namespace browser {
class Frmmain;
}

namespace shell {

class Fenetres;

/// Gives a newly made application the program's name, look, fonts and language; begins to derive the key of the book
/// beside that.
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
