#pragma once

#include <QString>

namespace pictures {

/// Path of the existing file that a recipe's `Photo` value names, empty when there is none. Blanks around and
/// every "<BR>" are dropped first. A value that holds a "\" or is an absolute path stands for itself; any
/// other is a name inside the photo folder, and one that would leave that folder names no file.
QString CheminPhoto(const QString &valeur);

} // namespace pictures
