#pragma once

#include "platform/surface/Surface.h"

#include <QString>

namespace pictures {

/// Writes the surface as a bitmap file (BMP, 24 bits), whatever the ending of the name. A file that was there
/// stays as it was when writing fails.
/// @throws platform::images::PictureError when the file cannot be written
void EcrireBmp(const platform::surface::Surface &surface, const QString &chemin);

/// Path of the file through which a drawn bitmap becomes a picture again.
QString CheminTempBmp();

/// Writes what was drawn to CheminTempBmp() and reads the file into the other surface. The file is left there.
/// @throws platform::images::PictureError when it cannot be written or read
void PasserParTempBmp(const platform::surface::Surface &dessin, platform::surface::Surface &image);

} // namespace pictures
