#pragma once

#include "platform/files/FileError.h"

#include <QImage>
#include <QString>

namespace pictures {

/// A picture that could not be written to the photo folder.
using PhotoError = platform::files::FileError;

/// Writes a picture in its natural size to the photo folder, as a JPEG of quality 90. Where there is a file of that
/// name, which another recipe shows, it gets the next free one: "Tarte.jpg", "Tarte (2).jpg", "Tarte (3).jpg". It is
/// complete and on disk when this returns; after a failure the folder is as it was. Its rights are those of the user's mask,
/// but never wider than the book's.
/// @return the name that it got
/// @throws PhotoError for no picture, for a name with a path separator and for one that the file system refuses
QString EnregistrerPhoto(const QImage &image, const QString &nom);

/// Removes what writes that were killed have left in the photo folder.
void OterBrouillonsDePhotos();

} // namespace pictures
