#pragma once

#include "platform/controls/SkinnedWindow.h"

namespace shell {

class Fenetres;

/// Minimises the program from one of its windows: that window and the main one go, and Pop stands for the program on
/// the task bar. Where the platform does not tell when a window is brought back, the window is minimised itself.
void Reduire(Fenetres &fenetres, platform::controls::SkinnedWindow &fenetre);

/// Pop was minimised or brought back: hides the main window, or shows it and the tool window that was open.
void SuivreEtat(Fenetres &fenetres);

} // namespace shell
