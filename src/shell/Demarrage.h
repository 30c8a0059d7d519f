#pragma once

#include "platform/desktop/SingleInstance.h"

namespace browser {
class Frmmain;
}

namespace shell {

/// Gives a newly made application the program's name, look, fonts and language, and starts what may be ready
/// by the time that the book is opened.
void PreparerApplication();

/// The load step of the main window: tests the screen and the instance, prepares the window, presses the sort
/// button of the last run, which loads the first list, and shows the window. Throws FinDuProgramme after a
/// failed test, and what the database and the settings throw.
void ChargerFrmmain(browser::Frmmain &frm, const platform::desktop::SingleInstance &instance);

/// Asks whether to quit. "Oui" removes the scratch picture and throws FinDuProgramme; otherwise nothing
/// changes.
void Quitter(browser::Frmmain &frm);

} // namespace shell
