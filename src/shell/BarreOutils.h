#pragma once

namespace shell {

class Fenetres;

/// Connects the toolbar of the main window: its tools, the panels beside them, and what the pointer does to both.
void BrancherBarreOutils(Fenetres &fenetres);

} // namespace shell
