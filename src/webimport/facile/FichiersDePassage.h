#pragma once

#include <QString>

namespace webimport::facile {

// The two files of the program's folder that an analysis passes through. What is longer in them than what is written
// stays at their end, so that none may be left from an analysis that ended badly.

/// The page that is read.
QString CheminPage();

/// The picture that was fetched, whatever its format.
QString CheminPhotoRecue();

/// Removes both, as far as they are there.
void OterFichiersDePassage();

} // namespace webimport::facile
