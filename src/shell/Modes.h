#pragma once

namespace shell {

/// The display mode of the settings, 0 to 2. Throws ConversionError for a stored text that is no number.
int ModeAffichage();
void EnregistrerMode(int mode);

/// The display mode of the windows in which recipes are made. Nothing writes it: it is 0 unless the user's settings say
/// otherwise by hand. Throws ConversionError.
int ModeCreation();

} // namespace shell
