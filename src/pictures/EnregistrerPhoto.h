#pragma once

#include <QImage>
#include <QString>

#include <stdexcept>

namespace pictures {

/// A picture that could not be written to the photo folder; what() is a French text in UTF-8.
class PhotoError : public std::runtime_error {
public:
    explicit PhotoError(const QString &texte) : std::runtime_error(texte.toUtf8().toStdString()) {}
};

/// Writes a picture in its natural size to the photo folder, as a JPEG of quality 90. Where there is a file of that
/// name, which another recipe shows, it gets the next free one: "Tarte.jpg", "Tarte (2).jpg", "Tarte (3).jpg". It is
/// complete and on disk when this returns; after a failure the folder is as it was.
/// @return the name that it got
/// @throws PhotoError for no picture, for a name with a path separator and for one that the file system refuses
QString EnregistrerPhoto(const QImage &image, const QString &nom);

} // namespace pictures
